#include "bench/BenchLogDataServer.h"

#include <QStringList>

#include "bench/BenchLogData.h"
#include "bench/BenchRawPostgres.h"
#include "common/Clock.h"
#include "suite/Database.h"

namespace BenchLogDataServer {

namespace {

// Five years in seconds from 2021-01-01 00:00:00, as in the file.
constexpr long long kStart = 1609459200;
constexpr long long kSpan = 1826LL * 24 * 60 * 60;

// The trigger that keeps the identity ahead of explicit ids runs once per row; the entries
// come with their ids, and the identity is set once at the end instead.
const QString kTrigger = QStringLiteral("trJobAgentLogDaten_Identitaet");

void insert(RawPostgres& db, long long from, long long to, long long total) {
    QString sql = QStringLiteral(R"(
INSERT INTO SYS_JobAgentLogDaten (Id, DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId,
    MitarbeiterId, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
SELECT i,
       zeit,
       typ,
       i % 4,
       CASE WHEN typ = 2 THEN j.DatenArt ELSE 0 END,
       CASE WHEN typ = 2 OR i % 7 = 0 THEN job ELSE 0 END,
       1 + i % 25,
       CASE WHEN typ = 2 THEN NULL ELSE
           CASE i % 5 WHEN 0 THEN 'Agentendienst' WHEN 1 THEN 'Zeitplaner'
                      WHEN 2 THEN 'Dateiüberwachung' WHEN 3 THEN 'Datenbankverbindung'
                      ELSE 'Dienststeuerung' END END,
       CASE WHEN typ = 2 THEN 'AJ-' || lpad(job::text, 4, '0') || '-' || lpad((i / 40)::text, 6, '0')
            ELSE NULL END,
       CASE i % 11 WHEN 0 THEN 'Fehler' WHEN 1 THEN 'Warnung' WHEN 2 THEN 'Warnung'
                   ELSE 'Information' END,
       CASE WHEN typ = 2 THEN NULL ELSE 'Agentendienst ' || (1 + i % 3) END,
       CASE i % 6
           WHEN 0 THEN 'Import gestartet: ' || i % 997 || ' Datensätze in Datei Import_'
                       || lpad((i % 53)::text, 2, '0') || '.csv gefunden'
           WHEN 1 THEN 'Import beendet: ' || i % 991 || ' Datensätze übernommen, ' || i % 7
                       || ' abgewiesen'
           WHEN 2 THEN 'Verbindung zur Datenbank Mandant ' || 1000 + i % 400 || ' hergestellt'
           WHEN 3 THEN 'Zeitplan geprüft, nächster Lauf '
                       || to_char(zeit + interval '1 hour', 'YYYY-MM-DD HH24:MI:SS')
           WHEN 4 THEN 'Datei \\Server\Import\Mandant' || lpad((i % 400)::text, 4, '0')
                       || '\Buchungen_' || lpad((i % 365)::text, 3, '0') || '.txt gesichert'
           ELSE 'Belegart ' || 1 + i % 40 || ': ' || i % 120 || ' Belege verschlagwortet' END,
       CASE WHEN i % 1000 = 1 THEN 'Sammelrechnung geprüft und übergeben.'
            WHEN i % 9 = 0 THEN 'Zeile ' || i % 311 || ': Konto ' || 1000 + i % 8000
                                || ' ist im Wirtschaftsjahr nicht angelegt.'
            ELSE NULL END
  FROM (SELECT i,
               CASE WHEN i % 10 < 6 THEN 2 WHEN i % 10 < 9 THEN 1 ELSE 3 END AS typ,
               1 + (i * 7919) % {JOBS} AS job,
               timestamp '1970-01-01' + ({START} + (i - 1) * {SPAN} / {TOTAL}) * interval '1 second'
                   AS zeit
          FROM generate_series({FROM}::bigint, {TO}::bigint) AS n(i)) e
  LEFT JOIN tAutoJobJob j ON j.idAutoJob = e.job
)");
    sql.replace(QStringLiteral("{FROM}"), QString::number(from))
        .replace(QStringLiteral("{TO}"), QString::number(to))
        .replace(QStringLiteral("{TOTAL}"), QString::number(total))
        .replace(QStringLiteral("{JOBS}"), QString::number(BenchLogData::kJobs))
        .replace(QStringLiteral("{START}"), QString::number(kStart))
        .replace(QStringLiteral("{SPAN}"), QString::number(kSpan));
    db.run(sql);
}

}  // namespace

void fill(RawPostgres& db, long long from, long long to, long long total) {
    db.run(QStringLiteral("BEGIN"));
    db.run(QStringLiteral("ALTER TABLE SYS_JobAgentLogDaten DISABLE TRIGGER ") + kTrigger);
    insert(db, from, to, total);
    db.run(QStringLiteral("ALTER TABLE SYS_JobAgentLogDaten ENABLE TRIGGER ") + kTrigger);
    db.run(QStringLiteral("COMMIT"));
}

void settle(RawPostgres& db) {
    db.run(QStringLiteral("VACUUM (ANALYZE) SYS_JobAgentLogDaten"));
}

void create(const QString& address, long long total) {
    Database::open(address, std::make_shared<SystemClock>())->applySchema();
    RawPostgres db(address);
    db.run(QStringLiteral("SET synchronous_commit = off"));
    db.run(QStringLiteral("SET maintenance_work_mem = '256MB'"));
    static const int kArten[] = {17, 18, 4, 5, 28, 30, 20, 21, 99};
    for (int m = 1; m <= 25; ++m) {
        db.run(QStringLiteral("INSERT INTO tMitarbeiter (MitId, Name) VALUES (%1, "
                              "'Sachbearbeiter %1') ON CONFLICT (MitId) DO UPDATE SET Name = "
                              "EXCLUDED.Name")
                   .arg(m));
    }
    for (int j = 1; j <= BenchLogData::kJobs; ++j) {
        db.run(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name, DatenArt, Aktiviert) "
                              "VALUES (%1, 'Auftrag %1 Mandant %2', %3, 1)")
                   .arg(j)
                   .arg(1000 + j % 400)
                   .arg(kArten[j % 9]));
    }
    // The indexes are built once after the entries, which is far quicker than keeping them.
    const QStringList indexes = db.texts(QStringLiteral(
        "SELECT indexdef FROM pg_indexes WHERE schemaname = 'public' AND tablename = "
        "'sys_jobagentlogdaten' AND indexname <> 'sys_jobagentlogdaten_pkey'"));
    for (const QString& index : indexes) {
        db.run(QStringLiteral("DROP INDEX ") + index.section(u' ', 2, 2));
    }
    db.run(QStringLiteral("ALTER TABLE SYS_JobAgentLogDaten DISABLE TRIGGER ") + kTrigger);
    const long long step = 1000000;
    for (long long from = 1; from <= total; from += step) {
        insert(db, from, std::min(total, from + step - 1), total);
    }
    db.run(QStringLiteral("ALTER TABLE SYS_JobAgentLogDaten ENABLE TRIGGER ") + kTrigger);
    for (const QString& index : indexes) {
        db.run(index);
    }
    if (total > 0) {
        db.run(QStringLiteral(
                   "SELECT setval(pg_get_serial_sequence('sys_jobagentlogdaten', 'id'), %1)")
                   .arg(total));
    }
}

}  // namespace BenchLogDataServer
