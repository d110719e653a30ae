#!/usr/bin/env bash
# Builds the Debian package from BUILD_DIR (or takes the one given), unpacks it into a
# temporary root and starts the installed program there: its summary and a picture of the
# job list. Usage: test_package.sh BUILD_DIR [PACKAGE.deb]
set -euo pipefail
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "package: $*" >&2; exit 1; }

if [ $# -ge 2 ]; then
  deb=$2
else
  cpack --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log" >&2; fail "cpack failed"; }
  deb=$(ls "$work"/out/*.deb)
fi
[ -f "$deb" ] || fail "no package: $deb"

depends=$(dpkg-deb -f "$deb" Depends)
recommends=$(dpkg-deb -f "$deb" Recommends)
grep -q "libqt6sql6-psql" <<<"$recommends" || fail "Recommends lacks libqt6sql6-psql: $recommends"
for needed in libqt6widgets6 libqt6sql6-sqlite libsqlite3-0 qt6-qpa-plugins; do
  grep -q "$needed" <<<"$depends" || fail "Depends lacks $needed: $depends"
done

root="$work/root"
dpkg-deb -x "$deb" "$root"
for file in usr/bin/autojobverw usr/bin/autojobverw-agent \
  usr/share/applications/autojobverw.desktop \
  usr/share/icons/hicolor/scalable/apps/autojobverw.svg \
  usr/share/icons/hicolor/16x16/apps/autojobverw.png \
  usr/share/icons/hicolor/48x48/apps/autojobverw.png \
  usr/share/icons/hicolor/256x256/apps/autojobverw.png; do
  [ -s "$root/$file" ] || fail "missing in the package: /$file"
done
grep -qx 'Exec=autojobverw' "$root/usr/share/applications/autojobverw.desktop" ||
  fail "the desktop entry does not start the program"
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$root/usr/share/applications/autojobverw.desktop"
fi

# The installed program on its own, away from the build: a fresh home, a fresh database.
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share"
mkdir -p "$HOME"
export QT_QPA_PLATFORM=offscreen
summary=$("$root/usr/bin/autojobverw" --db "$work/office.sqlite" --summary 2>"$work/summary.err") ||
  { cat "$work/summary.err" >&2; fail "--summary failed"; }
grep -q "^Datenbank: $work/office.sqlite" <<<"$summary" || fail "unexpected summary: $summary"
grep -q "^Aufträge: [1-9]" <<<"$summary" || fail "summary without the demo jobs: $summary"

"$root/usr/bin/autojobverw" --db "$work/office.sqlite" --shot "$work/list.png" 2>"$work/shot.err" ||
  { cat "$work/shot.err" >&2; fail "--shot failed"; }
[ "$(head -c 8 "$work/list.png" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] ||
  fail "--shot wrote no PNG"

# Job definitions carried from one database to another from the command line.
"$root/usr/bin/autojobverw" --db "$work/office.sqlite" --export "$work/jobs.json" >/dev/null ||
  fail "--export failed"
"$root/usr/bin/autojobverw" --db "$work/other.sqlite" --import "$work/jobs.json" \
  >"$work/import.out" 2>/dev/null || fail "--import failed: $(cat "$work/import.out")"
grep -q '^[1-9][0-9]* Aufträge importiert\.$' "$work/import.out" ||
  fail "unexpected import report: $(cat "$work/import.out")"
echo '{"format": "autojobverw-auftraege", "version": 9}' >"$work/broken.json"
if "$root/usr/bin/autojobverw" --db "$work/other.sqlite" --import "$work/broken.json" \
  >/dev/null 2>&1; then
  fail "--import of a broken document did not fail"
fi

"$root/usr/bin/autojobverw-agent" --help >/dev/null 2>&1 || fail "the agent does not start"
echo "package: $(basename "$deb") installs and starts"
