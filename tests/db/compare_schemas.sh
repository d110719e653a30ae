#!/usr/bin/env bash
# Compares db/schema.postgresql.sql with db/schema.sql, and the demo data loaded into both.
#
#   tests/db/compare_schemas.sh [project root]
#
# Needs sqlite3, psql and a PostgreSQL server given by the PG* environment (PGHOST, PGPORT,
# PGUSER; scripts/pg-test-server starts one). Creates a temporary database there and drops it
# at the end. Compares, with names in lower case: the tables and views, the columns of each in
# order, the indexes with their columns. Then loads db/demo.sql into both (on PostgreSQL after
# db/demo-functions.postgresql.sql) and compares every table and view row by row, and the
# identity sequences with the highest ids. Prints each difference, ends with
# "N passed, M failed" and exits non-zero when anything failed.

set -u

ROOT="${1:-$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)}"
SCHEMA="$ROOT/db/schema.sql"
PG_SCHEMA="$ROOT/db/schema.postgresql.sql"
DEMO="$ROOT/db/demo.sql"
PG_DEMO_FUNCTIONS="$ROOT/db/demo-functions.postgresql.sql"

PASSED=0
FAILED=0

pass() { PASSED=$((PASSED + 1)); }
fail() { FAILED=$((FAILED + 1)); printf 'FAIL: %s\n' "$*"; }
finish() {
    printf '%d passed, %d failed\n' "$PASSED" "$FAILED"
    [ "$FAILED" -eq 0 ]
    exit $?
}

for tool in sqlite3 psql; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        fail "$tool not found"
        finish
    fi
done
for f in "$SCHEMA" "$PG_SCHEMA" "$DEMO" "$PG_DEMO_FUNCTIONS"; do
    if [ ! -r "$f" ]; then
        fail "missing file $f"
        finish
    fi
done

# The demo data is relative to the local day; both sides compute it in UTC.
export TZ=UTC PGTZ=UTC
TMP="$(mktemp -d)"
DB="$TMP/compare.db"
PGDB="ajv_compare_$$_$RANDOM"
PG_CREATED=0
cleanup() {
    if [ "$PG_CREATED" -eq 1 ]; then
        psql -X -q -d postgres -c "DROP DATABASE IF EXISTS $PGDB WITH (FORCE)" >/dev/null 2>&1 ||
            echo "note: could not drop the database $PGDB"
    fi
    rm -rf "$TMP"
}
trap cleanup EXIT

# s SQL / p SQL: one query on the SQLite / PostgreSQL database, rows as a|b|c
s() { sqlite3 -bail -batch -noheader -separator '|' "$DB" "$1" 2>&1; }
p() { psql -X -q -A -t -F '|' -v ON_ERROR_STOP=1 -d "$PGDB" -c "$1" 2>&1; }

# same DESCRIPTION SQLITE_OUTPUT POSTGRESQL_OUTPUT
same() {
    if [ "$2" == "$3" ]; then
        pass
    else
        fail "$1 differ:"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") | sed -n '1,40p' | sed 's/^/    /'
        echo "    (< SQLite, > PostgreSQL)"
    fi
}

###############################################################################
# The schemas
###############################################################################

out="$(sqlite3 -bail "$DB" <"$SCHEMA" 2>&1)"
if [ -n "$out" ]; then
    fail "schema.sql on SQLite: $out"
    finish
fi
if ! out="$(psql -X -q -v ON_ERROR_STOP=1 -d postgres -c "CREATE DATABASE $PGDB" 2>&1)"; then
    fail "no PostgreSQL server to compare with (PGHOST=${PGHOST:-}, PGPORT=${PGPORT:-}): $out"
    finish
fi
PG_CREATED=1
if out="$(psql -X -q -v ON_ERROR_STOP=1 -d "$PGDB" -f "$PG_SCHEMA" 2>&1)" && [ -z "$out" ]; then
    pass
else
    fail "schema.postgresql.sql: $out"
    finish
fi

# The full-text index of the log each database keeps its own way: on SQLite a virtual table
# with the tables it makes for itself, on the server an index on an expression. Neither is
# compared.
NOT_FULL_TEXT="NOT EXISTS (SELECT 1 FROM sqlite_master v WHERE v.sql LIKE 'CREATE VIRTUAL TABLE%'
                  AND (sqlite_master.name = v.name OR sqlite_master.name LIKE v.name || '\\_%' ESCAPE '\\'))"

# Tables and views
same "tables and views" \
    "$(s "SELECT type || ' ' || lower(name) FROM sqlite_master
           WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite_%' AND $NOT_FULL_TEXT ORDER BY 1;")" \
    "$(p "SELECT CASE c.relkind WHEN 'r' THEN 'table' ELSE 'view' END || ' ' || c.relname
            FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace
           WHERE n.nspname = 'public' AND c.relkind IN ('r', 'v') ORDER BY 1;")"

# Columns of each, in order
OBJECTS="$(s "SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite_%' AND $NOT_FULL_TEXT ORDER BY name;")"
for obj in $OBJECTS; do
    lower="$(tr '[:upper:]' '[:lower:]' <<<"$obj")"
    same "columns of $obj" \
        "$(s "SELECT group_concat(lower(name), ', ') FROM (SELECT name FROM pragma_table_info('$obj') ORDER BY cid);")" \
        "$(p "SELECT string_agg(attname, ', ' ORDER BY attnum) FROM pg_attribute
               WHERE attrelid = 'public.\"$lower\"'::regclass AND attnum > 0 AND NOT attisdropped;")"
done

# Indexes created by name (not those of primary keys), with their columns
same "indexes" \
    "$(s "SELECT lower(il.name) || ' ON ' || lower(m.name) || ' ('
                 || (SELECT group_concat(lower(ii.name), ', ') FROM (SELECT name FROM pragma_index_info(il.name) ORDER BY seqno) ii)
                 || ')' || CASE WHEN il.\"unique\" THEN ' unique' ELSE '' END
            FROM sqlite_master m, pragma_index_list(m.name) il
           WHERE m.type = 'table' AND il.origin = 'c' ORDER BY 1;")" \
    "$(p "SELECT ic.relname || ' ON ' || tc.relname || ' ('
                 || (SELECT string_agg(a.attname, ', ' ORDER BY k.n)
                       FROM unnest(i.indkey) WITH ORDINALITY AS k (attnum, n)
                       JOIN pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = k.attnum)
                 || ')' || CASE WHEN i.indisunique THEN ' unique' ELSE '' END
            FROM pg_index i
            JOIN pg_class ic ON ic.oid = i.indexrelid
            JOIN pg_class tc ON tc.oid = i.indrelid
            JOIN pg_namespace n ON n.oid = tc.relnamespace
           WHERE n.nspname = 'public' AND NOT i.indisprimary AND i.indexprs IS NULL ORDER BY 1;")"

# Primary keys: the columns of each
same "primary keys" \
    "$(s "SELECT lower(m.name) || ' ('
                 || (SELECT group_concat(lower(name), ', ')
                       FROM (SELECT name FROM pragma_table_info(m.name) WHERE pk > 0 ORDER BY pk)) || ')'
            FROM sqlite_master m
           WHERE m.type = 'table' AND m.name NOT LIKE 'sqlite_%' AND ${NOT_FULL_TEXT//sqlite_master.name/m.name} ORDER BY 1;")" \
    "$(p "SELECT tc.relname || ' (' || string_agg(a.attname, ', ' ORDER BY k.n) || ')'
            FROM pg_index i
            JOIN pg_class tc ON tc.oid = i.indrelid
            JOIN pg_namespace n ON n.oid = tc.relnamespace
            CROSS JOIN LATERAL unnest(i.indkey) WITH ORDINALITY AS k (attnum, n)
            JOIN pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = k.attnum
           WHERE n.nspname = 'public' AND i.indisprimary GROUP BY tc.relname ORDER BY 1;")"

# Identity keys: AUTOINCREMENT in SQLite, an identity column on the server
same "identity keys" \
    "$(s "SELECT lower(m.name) || '.' || lower(t.name) FROM sqlite_master m, pragma_table_info(m.name) t
           WHERE m.type = 'table' AND t.pk = 1 AND m.sql LIKE '%AUTOINCREMENT%' ORDER BY 1;")" \
    "$(p "SELECT c.relname || '.' || a.attname FROM pg_attribute a
            JOIN pg_class c ON c.oid = a.attrelid JOIN pg_namespace n ON n.oid = c.relnamespace
           WHERE n.nspname = 'public' AND a.attidentity = 'd' ORDER BY 1;")"

###############################################################################
# The demo data
###############################################################################

out="$(sqlite3 -bail "$DB" <"$DEMO" 2>&1)"
if [ -n "$out" ]; then
    fail "demo.sql on SQLite: $out"
    finish
fi
if out="$(psql -X -q -v ON_ERROR_STOP=1 -d "$PGDB" -f "$PG_DEMO_FUNCTIONS" -f "$DEMO" 2>&1)" && [ -z "$out" ]; then
    pass
else
    fail "demo.sql on PostgreSQL: $out"
    finish
fi

# Every table and view, row by row in the order of its columns
for obj in $OBJECTS; do
    lower="$(tr '[:upper:]' '[:lower:]' <<<"$obj")"
    same "rows of $obj" "$(s "SELECT * FROM \"$obj\" ORDER BY 1, 2;")" "$(p "SELECT * FROM $lower ORDER BY 1, 2;")"
done

# The identity sequences stand at the highest id, as SQLite's do, so that the next row
# without an id gets the next one.
same "identity sequences after the demo data" \
    "$(s "SELECT lower(name) || ' ' || seq FROM sqlite_sequence ORDER BY 1;")" \
    "$(p "SELECT string_agg(x, E'\n' ORDER BY x) FROM (
            SELECT c.relname || ' ' || pg_sequence_last_value(pg_get_serial_sequence(c.relname, a.attname)::regclass) AS x
              FROM pg_attribute a JOIN pg_class c ON c.oid = a.attrelid JOIN pg_namespace n ON n.oid = c.relnamespace
             WHERE n.nspname = 'public' AND a.attidentity = 'd'
               AND pg_sequence_last_value(pg_get_serial_sequence(c.relname, a.attname)::regclass) IS NOT NULL) q;")"
same "next job id" \
    "$(s "INSERT INTO tAutoJobJob (Name) VALUES ('neu'); SELECT max(idAutoJob) FROM tAutoJobJob;")" \
    "$(p "INSERT INTO tautojobjob (name) VALUES ('neu') RETURNING idautojob;" | head -n 1)"

finish
