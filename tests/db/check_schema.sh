#!/usr/bin/env bash
# Checks db/schema.sql and db/demo.sql against an SQLite database.
#
#   tests/db/check_schema.sh [project root]
#
# Prints each failure, ends with "N passed, M failed" and exits non-zero when
# anything failed.

set -u

ROOT="${1:-$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)}"
SCHEMA="$ROOT/db/schema.sql"
DEMO="$ROOT/db/demo.sql"

PASSED=0
FAILED=0

pass() { PASSED=$((PASSED + 1)); }
fail() { FAILED=$((FAILED + 1)); printf 'FAIL: %s\n' "$*"; }
finish() {
    printf '%d passed, %d failed\n' "$PASSED" "$FAILED"
    [ "$FAILED" -eq 0 ]
    exit $?
}

if ! command -v sqlite3 >/dev/null 2>&1; then
    fail "sqlite3 not found"
    finish
fi
for f in "$SCHEMA" "$DEMO"; do
    if [ ! -r "$f" ]; then
        fail "missing file $f"
        finish
    fi
done

TMP="$(mktemp -d)"
trap 'rm -rf "$TMP"' EXIT
DB="$TMP/check.db"

# q SQL... : runs SQL on the check database, stdout and stderr together
q() { sqlite3 -bail -batch "$DB" "$@" 2>&1; }

# expect DESCRIPTION SQL EXPECTED
expect() {
    local got
    got="$(q "$2")"
    if [ "$got" == "$3" ]; then
        pass
    else
        fail "$1: expected [$3], got [$got]"
    fi
}

# expect_zero DESCRIPTION SQL  (a count that must be 0)
expect_zero() { expect "$1" "$2" "0"; }

# expect_some DESCRIPTION SQL  (a count that must be above 0)
expect_some() {
    local got
    got="$(q "$2")"
    if [[ "$got" =~ ^[0-9]+$ ]] && [ "$got" -gt 0 ]; then
        pass
    else
        fail "$1: expected a count above 0, got [$got]"
    fi
}

LABEL_28_SQL="'Import Buchungen ' || (SELECT Text FROM tSuiteText WHERE TextId = 1236) || ' (direkt)'"

###############################################################################
# Schema alone
###############################################################################

out="$(sqlite3 -bail :memory: < "$SCHEMA" 2>&1)"; rc=$?
if [ $rc -eq 0 ] && [ -z "$out" ]; then pass; else fail "schema.sql on :memory: (rc $rc): $out"; fi

out="$(sqlite3 -bail "$DB" < "$SCHEMA" 2>&1)"
if [ -n "$out" ]; then
    fail "schema.sql on the check database: $out"
    finish
fi

# Every object with its kind, every column with its declared type
OBJECTS="$(q "SELECT type || ' ' || name FROM sqlite_master WHERE type IN ('table', 'view') ORDER BY name;")"
COLUMNS="$(q "SELECT m.name || '.' || p.name || ':' || p.type
                FROM sqlite_master m, pragma_table_info(m.name) p
               WHERE m.type IN ('table', 'view');")"

has_object() {   # kind name
    if [[ $'\n'"$OBJECTS"$'\n' == *$'\n'"$1 $2"$'\n'* ]]; then pass; else fail "$1 $2 missing"; fi
}
has_columns() {  # object column...
    local obj="$1"; shift
    local col
    for col in "$@"; do
        if [[ $'\n'"$COLUMNS" == *$'\n'"$obj.$col:"* ]]; then
            pass
        else
            fail "column $obj.[$col] missing (names are case-sensitive here)"
        fi
    done
}
has_type() {     # object column type
    if [[ $'\n'"$COLUMNS"$'\n' == *$'\n'"$1.$2:$3"$'\n'* ]]; then pass; else fail "column $1.$2 is not declared $3"; fi
}

for t in tAutoJobJob tAutoJobSchedule tAutoJobVerlauf SYS_JobAgentLogDaten XB_Belegart_iKesto \
         person_wirtschaftsjahr tAutoJobOptionen tAutoJob tAutoJobEinstellungen \
         tSuiteText tMitarbeiter tMandant tBrowserEinstellungen tAutoJobJournal; do
    has_object table "$t"
done
has_object view V_ZPK_Applications_System_AutoJob
has_object view SYS_JobAgentLogDaten_Anzeigen

has_columns tAutoJobJob idAutoJob Erstellt Name Beschreibung Aktiviert DatenArt MTAPath BackupPath ErrorMTA \
    Ps_Id_Mandant MandKanz Ps_Id_Mitarbeiter Zusatzinfo SingleLog FremdFormat FremdDateifilter FremdMapping \
    LetzteAenderung
has_columns tAutoJobSchedule idAutoJobSchedule idAutoJob Name Aktiviert FreqencyType FrequencyRecurrenceFactor \
    FrequencyInterval FrequencyRelativeInterval FrequencySubDayinterval FrequencySubDay ActiveStartTimeOfDay \
    ActiveEndTimeOfDay ActiveStartDate ActiveEndDate LetzteAenderung Ps_Id
has_columns tAutoJobJournal idAutoJobJournal Zeitpunkt Ps_Id_Mitarbeiter Arbeitsplatz idAutoJob \
    idAutoJobSchedule Art Vorher Nachher Anlass
has_columns tAutoJobVerlauf idAutoJobVerlauf idAutoJobSchedule LetzteAusfuehrung Erfolgreich MTAPath BackupPath ErrorMTA
has_columns SYS_JobAgentLogDaten Id DatumUhrzeit LogTyp LogSubTyp JobArt AutoJobId MitarbeiterId
has_columns XB_Belegart_iKesto Nummer Bezeichnung
has_columns person_wirtschaftsjahr WJ_Id
has_columns tAutoJobOptionen AutoStart Transaktion
has_columns tAutoJob diInstallArt
has_columns tAutoJobEinstellungen diDataType
has_columns tSuiteText TextId Text
has_columns tMitarbeiter MitId Name
has_columns tMandant ManId ManNr Kanzlei Name
has_columns tBrowserEinstellungen Schluessel MitarbeiterId Spalten SortSpalte SortAbsteigend
has_columns V_ZPK_Applications_System_AutoJob JobId PSId Name Auftragsart "Mandant/Kanzlei" LetzteAusfuehrung
has_columns SYS_JobAgentLogDaten_Anzeigen Id AutoJobId Typ Herkunft "Auftrag Kennung" Mitarbeiter \
    "Datum/Uhrzeit" Kategorie Auftragsart Name Text Zusatz

# The schedule table keeps the agent's spelling and has no second spelling
if grep -q '^tAutoJobSchedule\.FrequencyType:' <<<"$COLUMNS"; then
    fail "tAutoJobSchedule has a column FrequencyType besides FreqencyType"
else
    pass
fi

# The history reaches its job only through the schedule; a job id of its own
# would make the history query's idAutoJob ambiguous
if grep -qi '^tAutoJobVerlauf\.idAutoJob:' <<<"$COLUMNS"; then
    fail "tAutoJobVerlauf has a column idAutoJob"
else
    pass
fi

# Date/time columns are recognised by their declared type
for c in tAutoJobJob.Erstellt tAutoJobJob.LetzteAenderung tAutoJobSchedule.ActiveStartDate \
         tAutoJobSchedule.ActiveEndDate tAutoJobSchedule.LetzteAenderung tAutoJobVerlauf.LetzteAusfuehrung \
         SYS_JobAgentLogDaten.DatumUhrzeit tAutoJobJournal.Zeitpunkt; do
    has_type "${c%%.*}" "${c#*.}" DATETIME
done
for c in tAutoJobJob.Aktiviert tAutoJobJob.SingleLog tAutoJobJob.FremdFormat tAutoJobSchedule.Aktiviert \
         tMandant.Kanzlei tAutoJobOptionen.AutoStart tAutoJobOptionen.Transaktion; do
    has_type "${c%%.*}" "${c#*.}" BIT
done

# Identity keys
for tk in tAutoJobJob:idAutoJob tAutoJobSchedule:idAutoJobSchedule tAutoJobVerlauf:idAutoJobVerlauf \
          SYS_JobAgentLogDaten:Id tMitarbeiter:MitId tMandant:ManId person_wirtschaftsjahr:WJ_Id \
          tAutoJobJournal:idAutoJobJournal; do
    expect "${tk%%:*}.${tk#*:} is an identity key" \
        "SELECT count(*) FROM pragma_table_info('${tk%%:*}') WHERE pk = 1 AND name = '${tk#*:}' AND type = 'INTEGER'
            AND (SELECT count(*) FROM pragma_table_info('${tk%%:*}') WHERE pk > 0) = 1
            AND (SELECT sql FROM sqlite_master WHERE name = '${tk%%:*}') LIKE '%AUTOINCREMENT%';" "1"
done

# Indexes: has_index TABLE FIRSTCOLUMN [FURTHERCOLUMN]
has_index() {
    local extra=""
    if [ $# -ge 3 ]; then
        extra="AND EXISTS (SELECT 1 FROM pragma_index_info(il.name) i2 WHERE i2.seqno > 0 AND i2.name = '$3')"
    fi
    expect_some "index on $1($2${3:+, $3})" \
        "SELECT count(*) FROM pragma_index_list('$1') il
          WHERE EXISTS (SELECT 1 FROM pragma_index_info(il.name) i1 WHERE i1.seqno = 0 AND i1.name = '$2') $extra;"
}
has_index tAutoJobVerlauf idAutoJobSchedule LetzteAusfuehrung
has_index tAutoJobVerlauf LetzteAusfuehrung
has_index tAutoJobSchedule idAutoJob
has_index tAutoJobJournal idAutoJob Zeitpunkt
has_index tAutoJobJournal Zeitpunkt
has_index SYS_JobAgentLogDaten DatumUhrzeit
has_index SYS_JobAgentLogDaten AutoJobId
has_index SYS_JobAgentLogDaten JobArt
has_index SYS_JobAgentLogDaten LogTyp
expect "one row of browser settings per key and staff member" \
    "SELECT count(*) FROM pragma_index_list('tBrowserEinstellungen') WHERE \"unique\" = 1;" "1"

# No rows in the schema alone
# (the full-text index of the log keeps its settings in tables of its own)
TABLES="$(q "SELECT name FROM sqlite_master m WHERE type = 'table' AND name NOT LIKE 'sqlite_%'
               AND NOT EXISTS (SELECT 1 FROM sqlite_master v WHERE v.sql LIKE 'CREATE VIRTUAL TABLE%'
                   AND m.name LIKE v.name || '\\_%' ESCAPE '\\');")"
count_sql="SELECT 0"
for t in $TABLES; do count_sql="$count_sql + (SELECT count(*) FROM \"$t\")"; done
expect_zero "rows created by schema.sql" "$count_sql;"
expect_zero "sequence rows created by schema.sql" \
    "SELECT count(*) FROM sqlite_master WHERE name = 'sqlite_sequence' AND (SELECT count(*) FROM sqlite_sequence) > 0;"

# The views work on an empty database
expect_zero "job list view on an empty database" "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob;"
expect_zero "log view on an empty database" "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen;"

###############################################################################
# Demo data
###############################################################################

if grep -v '^[[:space:]]*--' "$DEMO" | grep -Eiq '^[[:space:]]*(CREATE|DROP|ALTER|UPDATE|DELETE|PRAGMA|ATTACH|REPLACE|BEGIN|COMMIT)\b'; then
    fail "demo.sql holds statements other than INSERT"
else
    pass
fi

before="$(q "SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite_%' ORDER BY name;")"
out="$(sqlite3 -bail "$DB" < "$DEMO" 2>&1)"; rc=$?
if [ $rc -eq 0 ] && [ -z "$out" ]; then pass; else fail "demo.sql (rc $rc): $out"; finish; fi
after="$(q "SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite_%' ORDER BY name;")"
if [ "$before" == "$after" ]; then pass; else fail "demo.sql changed the schema"; fi

# --- Dates: every DATETIME value is ISO text 'yyyy-MM-dd HH:mm:ss' ----------
ISO="[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9]"
while IFS= read -r line; do
    [ -z "$line" ] && continue
    obj="${line%%.*}"; rest="${line#*.}"; col="${rest%%:*}"
    expect_zero "date format of $obj.$col" \
        "SELECT count(*) FROM \"$obj\" WHERE \"$col\" IS NOT NULL
            AND (typeof(\"$col\") <> 'text' OR \"$col\" NOT GLOB '$ISO'
                 OR (\"$col\" NOT LIKE '9999-12-31%' AND datetime(\"$col\") IS NOT \"$col\"));"
done < <(q "SELECT m.name || '.' || p.name || ':' FROM sqlite_master m, pragma_table_info(m.name) p
             WHERE m.type = 'table' AND p.type = 'DATETIME';")

# --- Suite tables -------------------------------------------------------------
expect "numbered texts" \
    "SELECT group_concat(TextId || '=' || Text, ',') FROM (SELECT * FROM tSuiteText WHERE TextId IN (1001, 1024, 1025, 1228, 1236) ORDER BY TextId);" \
    "1001=Suite,1024=Daten,1025=Programme,1228=JobAgent,1236=Kesto"
expect_some "clients" "SELECT count(*) FROM tMandant WHERE Kanzlei = 0;"
expect_some "offices" "SELECT count(*) FROM tMandant WHERE Kanzlei = 1;"
expect_some "staff members" "SELECT count(*) FROM tMitarbeiter WHERE Name <> '';"
expect_some "document types" "SELECT count(*) FROM (SELECT Nummer, Bezeichnung FROM XB_Belegart_iKesto ORDER BY Nummer);"
expect_some "fiscal year for the bookings log" "SELECT WJ_Id FROM person_wirtschaftsjahr LIMIT 1;"

# --- Jobs ---------------------------------------------------------------------
for t in 4 5 17 18 20 21 28 99 30; do
    expect_some "job of type $t" "SELECT count(*) FROM tAutoJobJob WHERE DatenArt = $t;"
done
expect_zero "jobs of unknown types" "SELECT count(*) FROM tAutoJobJob WHERE DatenArt NOT IN (4, 5, 17, 18, 20, 21, 28, 30, 99);"
for k in 1 2 3 4 5; do
    expect_some "job of client kind $k" "SELECT count(*) FROM tAutoJobJob WHERE MandKanz = $k;"
done
expect_zero "client kinds 3 to 5 only for types 4, 5, 20, 21, 99 (3 and 4 not for 20, 21)" \
    "SELECT count(*) FROM tAutoJobJob WHERE MandKanz NOT IN (1, 2, 3, 4, 5)
        OR (MandKanz IN (3, 4, 5) AND DatenArt NOT IN (4, 5, 20, 21, 99))
        OR (MandKanz IN (3, 4) AND DatenArt IN (20, 21));"
expect_zero "client ids fit the client kind" \
    "SELECT count(*) FROM tAutoJobJob j LEFT JOIN tMandant m ON m.ManId = j.Ps_Id_Mandant
      WHERE (j.MandKanz = 1 AND (m.ManId IS NULL OR m.Kanzlei <> 0))
         OR (j.MandKanz = 2 AND (m.ManId IS NULL OR m.Kanzlei <> 1))
         OR (j.MandKanz IN (3, 4, 5) AND j.Ps_Id_Mandant <> 0);"
expect_zero "Zusatzinfo fits the job type" \
    "SELECT count(*) FROM tAutoJobJob j
      WHERE NOT CASE
        WHEN j.DatenArt IN (4, 17, 18, 28) THEN j.Zusatzinfo = ''
             OR EXISTS (SELECT 1 FROM tMitarbeiter m WHERE CAST(m.MitId AS TEXT) = j.Zusatzinfo)
        WHEN j.DatenArt = 30 THEN j.Zusatzinfo IN ('1', '2', '3')
        WHEN j.DatenArt = 99 THEN j.Zusatzinfo = ''
             OR (length(j.Zusatzinfo) - length(replace(j.Zusatzinfo, '|', '')) = 2
                 AND EXISTS (SELECT 1 FROM tMitarbeiter m
                              WHERE CAST(m.MitId AS TEXT) = substr(j.Zusatzinfo, 1, instr(j.Zusatzinfo, '|') - 1)))
        ELSE j.Zusatzinfo = '' END;"
expect_zero "foreign format fields only on bookings with foreign format" \
    "SELECT count(*) FROM tAutoJobJob
      WHERE (DatenArt <> 4 AND (SingleLog <> 0 OR FremdFormat <> 0))
         OR (FremdFormat = 0 AND (FremdDateifilter <> '' OR FremdMapping <> ''));"
expect_zero "an archive login names a staff member" \
    "SELECT count(*) FROM tAutoJobJob j WHERE j.DatenArt IN (20, 21)
        AND NOT EXISTS (SELECT 1 FROM tMitarbeiter m WHERE CAST(m.MitId AS TEXT) = j.MTAPath);"
expect_zero "stored passwords are lower-case hex of even length" \
    "SELECT count(*) FROM tAutoJobJob WHERE DatenArt IN (20, 21)
        AND (BackupPath GLOB '*[^0-9a-f]*' OR length(BackupPath) % 2 <> 0);"

# Stored password: the hex text reversed gives the Windows-1252 codes
rev_str() { local s="$1" r="" i; for ((i = ${#s} - 1; i >= 0; i--)); do r+="${s:i:1}"; done; printf '%s' "$r"; }
if command -v iconv >/dev/null 2>&1; then
    while IFS='|' read -r id stored; do
        [ -z "$id" ] && continue
        hex="$(rev_str "$stored")"
        clear="$(printf "$(sed 's/../\\x&/g' <<<"$hex")" | iconv -f CP1252 -t UTF-8 2>/dev/null)"
        case "$id:$clear" in
            "8:Archiv#2024"|"9:Prüfung1"|"13:Scan!Beleg7") pass ;;
            *) fail "password of job $id decodes to [$clear]" ;;
        esac
    done < <(q "SELECT idAutoJob, BackupPath FROM tAutoJobJob WHERE DatenArt IN (20, 21) ORDER BY idAutoJob;")
else
    echo "note: iconv not found, stored passwords not decoded"
fi

# Document type lists of the direct bookings import
while IFS='|' read -r id list; do
    [ -z "$id" ] && continue
    if [ -z "$list" ] || [ "$list" == "0" ]; then pass; continue; fi
    if ! [[ "$list" =~ ^[0-9]+(,[0-9]+)*$ ]]; then fail "document type list of job $id: [$list]"; continue; fi
    missing="$(q "SELECT count(*) FROM (SELECT CAST(value AS INTEGER) n FROM json_each('[' || '$list' || ']'))
                   WHERE n NOT IN (SELECT Nummer FROM XB_Belegart_iKesto);")"
    if [ "$missing" == "0" ]; then pass; else fail "document type list of job $id names unknown types"; fi
done < <(q "SELECT idAutoJob, BackupPath FROM tAutoJobJob WHERE DatenArt = 28;")

# --- Job list view --------------------------------------------------------------
expect "job list has one row per job" \
    "SELECT (SELECT count(*) FROM V_ZPK_Applications_System_AutoJob) = (SELECT count(*) FROM tAutoJobJob);" "1"
expect "labels of the job types" \
    "SELECT group_concat(x, ';') FROM (SELECT DISTINCT j.DatenArt || '=' || v.Auftragsart AS x
        FROM tAutoJobJob j JOIN V_ZPK_Applications_System_AutoJob v ON v.JobId = j.idAutoJob ORDER BY j.DatenArt);" \
    "4=Import Buchungen;5=Import Wirtschaftsgüter;17=Import Kunden;18=Import Lieferanten;20=Übernahme Scan-Dokumente;21=Verschlagwortung Belege;28=Import Buchungen Kesto (direkt);30=Import Nivora;99=Textdatei-Import"
expect_zero "label of type 28 is composed from text 1236" \
    "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId
      WHERE j.DatenArt = 28 AND v.Auftragsart IS NOT ($LABEL_28_SQL);"
expect "label of type 28 with text 1236 changed" \
    "BEGIN; UPDATE tSuiteText SET Text = 'Warenwirtschaft' WHERE TextId = 1236;
     SELECT DISTINCT Auftragsart FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId WHERE j.DatenArt = 28;
     ROLLBACK;" \
    "Import Buchungen Warenwirtschaft (direkt)"
expect "label of type 28 with an empty text 1236 has two blanks" \
    "BEGIN; UPDATE tSuiteText SET Text = '' WHERE TextId = 1236;
     SELECT DISTINCT '[' || Auftragsart || ']' FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId WHERE j.DatenArt = 28;
     ROLLBACK;" \
    "[Import Buchungen  (direkt)]"
expect "label of type 28 without text 1236 has two blanks" \
    "BEGIN; DELETE FROM tSuiteText WHERE TextId = 1236;
     SELECT DISTINCT '[' || Auftragsart || ']' FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId WHERE j.DatenArt = 28;
     ROLLBACK;" \
    "[Import Buchungen  (direkt)]"
expect "unknown job type gives an empty label in both views" \
    "BEGIN;
     INSERT INTO tAutoJobJob (idAutoJob, Name, DatenArt, MandKanz, Ps_Id_Mandant) VALUES (9001, 'Unbekannt', 6, 1, 1);
     INSERT INTO SYS_JobAgentLogDaten (LogTyp, JobArt, AutoJobId) VALUES (2, 6, 9001);
     SELECT '[' || Auftragsart || ']' FROM V_ZPK_Applications_System_AutoJob WHERE JobId = 9001;
     SELECT '[' || Auftragsart || ']' FROM SYS_JobAgentLogDaten_Anzeigen WHERE AutoJobId = 9001;
     ROLLBACK;" \
    "[]
[]"
expect "Mandant/Kanzlei of the client kinds for all" \
    "SELECT group_concat(x, ';') FROM (SELECT DISTINCT j.MandKanz || '=' || v.[Mandant/Kanzlei] AS x
        FROM tAutoJobJob j JOIN V_ZPK_Applications_System_AutoJob v ON v.JobId = j.idAutoJob
       WHERE j.MandKanz IN (3, 4, 5) ORDER BY j.MandKanz);" \
    "3=Alle Mandanten;4=Alle Kanzleien;5=Alle Mandanten/Kanzleien"
expect_zero "Mandant/Kanzlei of a bound job: number (K for an office), blank, name" \
    "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId
       JOIN tMandant m ON m.ManId = j.Ps_Id_Mandant
      WHERE j.MandKanz IN (1, 2)
        AND v.[Mandant/Kanzlei] IS NOT (CASE WHEN m.Kanzlei = 1 THEN 'K' ELSE '' END || m.ManNr || ' ' || m.Name);"
expect_some "an office shows its number with K" \
    "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob v JOIN tAutoJobJob j ON j.idAutoJob = v.JobId
      WHERE j.MandKanz = 2 AND v.[Mandant/Kanzlei] GLOB 'K[0-9]* *';"
expect_zero "LetzteAusfuehrung is the latest run of the job" \
    "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob v
      WHERE v.LetzteAusfuehrung IS NOT (SELECT max(r.LetzteAusfuehrung) FROM tAutoJobVerlauf r
             JOIN tAutoJobSchedule s ON s.idAutoJobSchedule = r.idAutoJobSchedule WHERE s.idAutoJob = v.JobId);"
expect_some "jobs without runs show no LetzteAusfuehrung" \
    "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob WHERE LetzteAusfuehrung IS NULL;"
expect_some "job list of one client" "SELECT count(*) FROM V_ZPK_Applications_System_AutoJob WHERE PSId = 1;"
expect_some "grid of the schedule copy" \
    "SELECT count(*) FROM (SELECT V_ZPK_Applications_System_AutoJob.JobId, V_ZPK_Applications_System_AutoJob.Name,
            V_ZPK_Applications_System_AutoJob.Auftragsart, V_ZPK_Applications_System_AutoJob.[Mandant/Kanzlei]
       FROM  V_ZPK_Applications_System_AutoJob
      ORDER BY V_ZPK_Applications_System_AutoJob.[Mandant/Kanzlei], V_ZPK_Applications_System_AutoJob.Auftragsart);"
expect "job list columns" \
    "SELECT count(*) FROM (SELECT JobId, PSId, Name, Auftragsart, [Mandant/Kanzlei], LetzteAusfuehrung FROM V_ZPK_Applications_System_AutoJob);" \
    "$(q "SELECT count(*) FROM tAutoJobJob;")"

# Columns written as text and read as numbers keep numbers
expect "numbers written as text are stored as numbers" \
    "BEGIN;
     INSERT INTO tAutoJobJob (idAutoJob, Name, Aktiviert, DatenArt, Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, SingleLog)
          VALUES (9002, 'Text', '1', 17, '2', 1, '3', '1');
     SELECT typeof(Aktiviert) || typeof(Ps_Id_Mandant) || typeof(Ps_Id_Mitarbeiter) || typeof(SingleLog)
       FROM tAutoJobJob WHERE idAutoJob = 9002;
     SELECT count(*) FROM V_ZPK_Applications_System_AutoJob WHERE PSId = 2 AND JobId = 9002 AND Aktiviert = 'Ja';
     ROLLBACK;" \
    "integerintegerintegerinteger
1"

# --- Schedules ------------------------------------------------------------------
for f in 1 4 8 16 32; do
    expect_some "schedule of frequency type $f" "SELECT count(*) FROM tAutoJobSchedule WHERE FreqencyType = $f;"
done
for s in 1 4 8; do
    expect_some "schedule of sub-day unit $s" "SELECT count(*) FROM tAutoJobSchedule WHERE FrequencySubDay = $s;"
done
expect_zero "schedules of a missing job" \
    "SELECT count(*) FROM tAutoJobSchedule s WHERE NOT EXISTS (SELECT 1 FROM tAutoJobJob j WHERE j.idAutoJob = s.idAutoJob);"
expect_zero "frequency codes and their fields" \
    "SELECT count(*) FROM tAutoJobSchedule WHERE NOT CASE FreqencyType
        WHEN 1  THEN FrequencyInterval = 0 AND FrequencyRecurrenceFactor = 0 AND FrequencyRelativeInterval = 0
                     AND FrequencySubDay = 1 AND FrequencySubDayinterval = 0 AND ActiveEndDate = ActiveStartDate
        WHEN 4  THEN FrequencyInterval BETWEEN 1 AND 366 AND FrequencyRecurrenceFactor = 0 AND FrequencyRelativeInterval = 0
        WHEN 8  THEN FrequencyInterval BETWEEN 1 AND 127 AND FrequencyRecurrenceFactor >= 1 AND FrequencyRelativeInterval = 0
        WHEN 16 THEN FrequencyInterval BETWEEN 1 AND 31 AND FrequencyRecurrenceFactor >= 1 AND FrequencyRelativeInterval = 0
        WHEN 32 THEN FrequencyInterval BETWEEN 1 AND 10 AND FrequencyRecurrenceFactor >= 1
                     AND FrequencyRelativeInterval IN (1, 2, 4, 8, 16)
        ELSE 0 END;"
expect_zero "sub-day units and intervals" \
    "SELECT count(*) FROM tAutoJobSchedule WHERE NOT CASE FrequencySubDay
        WHEN 1 THEN 1
        WHEN 4 THEN FrequencySubDayinterval BETWEEN 1 AND 1440 AND ActiveStartTimeOfDay < ActiveEndTimeOfDay
        WHEN 8 THEN FrequencySubDayinterval BETWEEN 1 AND 24 AND ActiveStartTimeOfDay < ActiveEndTimeOfDay
        ELSE 0 END;"
expect_zero "times of day are HHMMSS numbers" \
    "SELECT count(*) FROM tAutoJobSchedule, (SELECT 1 AS k UNION ALL SELECT 2) WHERE (
        SELECT NOT (typeof(t) = 'integer' AND t BETWEEN 0 AND 235959 AND t % 100 < 60 AND (t / 100) % 100 < 60
                    AND (t % 100 = 0 OR t = 235959))
          FROM (SELECT CASE k WHEN 1 THEN ActiveStartTimeOfDay ELSE ActiveEndTimeOfDay END AS t));"
expect_zero "schedule dates are calendar dates" \
    "SELECT count(*) FROM tAutoJobSchedule
      WHERE ActiveStartDate NOT LIKE '% 00:00:00' OR ActiveEndDate NOT LIKE '% 00:00:00' OR ActiveEndDate < ActiveStartDate;"
expect_some "schedules without end date (9999-12-31)" \
    "SELECT count(*) FROM tAutoJobSchedule WHERE ActiveEndDate = '9999-12-31 00:00:00';"
expect_some "repeating schedule with an end date" \
    "SELECT count(*) FROM tAutoJobSchedule WHERE FreqencyType <> 1 AND ActiveEndDate < '9999-12-31';"
expect_some "active schedules for starting a job" \
    "SELECT count(*) FROM (select * from tAutoJobSchedule where idAutoJob = 1 AND Aktiviert = 1);"

# --- Run history --------------------------------------------------------------
for r in 0 1 2 4 5 10 11 20 21; do
    expect_some "run with result code $r" "SELECT count(*) FROM tAutoJobVerlauf WHERE Erfolgreich = $r;"
done
expect_zero "result codes that are never stored" \
    "SELECT count(*) FROM tAutoJobVerlauf WHERE Erfolgreich NOT IN (0, 1, 2, 4, 5, 10, 11, 20, 21);"
expect_zero "result codes fit the job type" \
    "SELECT count(*) FROM tAutoJobVerlauf v
       JOIN tAutoJobSchedule s ON s.idAutoJobSchedule = v.idAutoJobSchedule
       JOIN tAutoJobJob j ON j.idAutoJob = s.idAutoJob
      WHERE NOT ((v.Erfolgreich IN (0, 1) AND j.DatenArt IN (4, 17, 18, 28, 30))
              OR (v.Erfolgreich = 2 AND j.DatenArt IN (4, 17, 18))
              OR (v.Erfolgreich = 4 AND j.DatenArt = 28)
              OR (v.Erfolgreich = 5 AND j.DatenArt = 30)
              OR (v.Erfolgreich IN (10, 11) AND j.DatenArt = 20)
              OR (v.Erfolgreich IN (20, 21) AND j.DatenArt = 21));"
expect_zero "runs of a missing schedule" \
    "SELECT count(*) FROM tAutoJobVerlauf v WHERE NOT EXISTS (SELECT 1 FROM tAutoJobSchedule s WHERE s.idAutoJobSchedule = v.idAutoJobSchedule);"
expect_some "runs in the last two weeks" \
    "SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung >= strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime', '-14 days');"
expect_some "runs older than two weeks" \
    "SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung < strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime', '-14 days');"
expect_zero "runs in the future" \
    "SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung > strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime');"
hdr="$(sqlite3 -bail -header -batch "$DB" \
    " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule WHERE tAutoJobSchedule.idAutoJob=1 AND tAutoJobVerlauf.Erfolgreich = 1 LIMIT 1;" 2>&1 | head -n 1)"
expect "history query gives idAutoJob once" \
    "SELECT '$(printf '%s' "$hdr" | tr '|' '\n' | grep -c '^idAutoJob$')';" "1"

# --- Log data -----------------------------------------------------------------
for t in 1 2 3; do
    expect_some "log entries of type $t" "SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = $t;"
done
expect_zero "log types other than 1, 2, 3" "SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp NOT IN (1, 2, 3);"
expect_zero "log job types" "SELECT count(*) FROM SYS_JobAgentLogDaten WHERE JobArt NOT IN (0, 4, 5, 17, 18, 20, 21, 28, 30, 99);"
expect_zero "job log entries name an existing job of their type" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten l WHERE l.LogTyp = 2
        AND NOT EXISTS (SELECT 1 FROM tAutoJobJob j WHERE j.idAutoJob = l.AutoJobId AND j.DatenArt = l.JobArt);"
expect "log view has one row per entry" \
    "SELECT (SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen) = (SELECT count(*) FROM SYS_JobAgentLogDaten);" "1"
expect "service log of the browser" \
    "SELECT count(*) = (SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp IN (1, 3))
       FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ IN (1, 3));" "1"
expect "job log of the browser for one job" \
    "SELECT count(*) = (SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 AND AutoJobId = 1) AND count(*) > 0
       FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ = 2) AND ( SYS_JobAgentLogDaten_Anzeigen.AutoJobId = 1);" "1"
expect_some "service entries of a job" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ IN (1, 3)) AND ( SYS_JobAgentLogDaten_Anzeigen.AutoJobId = 3);"
expect_zero "Mitarbeiter is the staff member's name" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten l JOIN SYS_JobAgentLogDaten_Anzeigen v ON v.Id = l.Id
       LEFT JOIN tMitarbeiter m ON m.MitId = l.MitarbeiterId
      WHERE v.Mitarbeiter IS NOT COALESCE(m.Name, '');"
expect_some "log entries with a staff member" "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen WHERE Mitarbeiter <> '';"
expect_zero "log Auftragsart is the label of the job type" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen v JOIN SYS_JobAgentLogDaten l ON l.Id = v.Id
       LEFT JOIN tAutoJobJob j ON j.DatenArt = l.JobArt
       LEFT JOIN V_ZPK_Applications_System_AutoJob a ON a.JobId = j.idAutoJob
      WHERE l.JobArt <> 0 AND v.Auftragsart IS NOT a.Auftragsart;"
expect_some "log label of type 28" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen WHERE Auftragsart = ($LABEL_28_SQL) AND Auftragsart = 'Import Buchungen Kesto (direkt)';"
expect_zero "service entries without a job have no job type label" \
    "SELECT count(*) FROM SYS_JobAgentLogDaten_Anzeigen v JOIN SYS_JobAgentLogDaten l ON l.Id = v.Id WHERE l.JobArt = 0 AND v.Auftragsart <> '';"
expect "log view columns" \
    "SELECT count(*) = (SELECT count(*) FROM SYS_JobAgentLogDaten) FROM (SELECT Id, AutoJobId, Typ, Herkunft, [Auftrag Kennung], Mitarbeiter,
            [Datum/Uhrzeit], Kategorie, Auftragsart, Name, Text, Zusatz FROM SYS_JobAgentLogDaten_Anzeigen);" "1"
expect_some "log entries counted for a job" "Select count(Id) AS Anzahl FROM SYS_JobAgentLogDaten WHERE AutoJobId = 1;"
expect "log deletion by day, kind and job type" \
    "BEGIN;
     DELETE FROM SYS_JobAgentLogDaten WHERE (DatumUhrzeit BETWEEN strftime('%Y-%m-%d 00:00:00', 'now', 'localtime', '-1 days')
                                                        AND strftime('%Y-%m-%d 23:59:59', 'now', 'localtime', '-1 days'))
                                       AND (LogTyp = 2) AND (JobArt = 28);
     SELECT changes() > 0, (SELECT count(*) FROM SYS_JobAgentLogDaten WHERE JobArt = 28 AND LogTyp = 2
                             AND DatumUhrzeit LIKE strftime('%Y-%m-%d', 'now', 'localtime', '-1 days') || '%');
     ROLLBACK;" "1|0"

# --- Declared date types survive the views (record set detects dates by them) --
if command -v python3 >/dev/null 2>&1 && python3 -c 'import sqlite3' >/dev/null 2>&1; then
    out="$(python3 - "$DB" <<'EOF'
import sqlite3, sys
con = sqlite3.connect(sys.argv[1])
# LetzteAusfuehrung of the job list is computed per row (the newest run of the job's
# schedules), so it carries no declared type; it reads as the date text it is.
for view, col in [("V_ZPK_Applications_System_AutoJob", "LetzteAenderung"),
                  ("V_ZPK_Applications_System_AutoJob", "Erstellt"),
                  ("SYS_JobAgentLogDaten_Anzeigen", "[Datum/Uhrzeit]")]:
    seen = []
    sqlite3.register_converter("DATETIME", lambda b: seen.append(1) or b)
    c = sqlite3.connect(sys.argv[1], detect_types=sqlite3.PARSE_DECLTYPES)
    c.execute("SELECT %s FROM %s WHERE %s IS NOT NULL" % (col, view, col)).fetchall()
    print("%s.%s:%s" % (view, col, "DATETIME" if seen else "none"))
EOF
)"
    while IFS= read -r line; do
        case "$line" in
            *:DATETIME) pass ;;
            *) fail "declared type lost through the view: $line" ;;
        esac
    done <<<"$out"
else
    echo "note: python3 not found, declared types of view columns not checked"
fi

finish
