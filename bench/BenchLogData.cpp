#include "bench/BenchLogData.h"

#include <QFile>
#include <QStringList>

#include "bench/BenchRawSqlite.h"
#include "common/Clock.h"
#include "suite/Database.h"

namespace BenchLogData {

namespace {

// Five years in seconds from 2021-01-01 00:00:00.
constexpr long long kStart = 1609459200;
constexpr long long kSpan = 1826LL * 24 * 60 * 60;

// The first column of every row of the statement, as text.
QStringList firstColumn(RawSqlite& db, const char* sql) {
    QStringList texts;
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db.handle(), sql, -1, &stmt, nullptr);
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        texts << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    }
    sqlite3_finalize(stmt);
    return texts;
}

}  // namespace

void fill(RawSqlite& db, long long from, long long to, long long total) {
    // The job of an entry comes from a fixed shuffle of the ids, its type from the job.
    QString sql = QStringLiteral(R"(
WITH RECURSIVE n(i) AS (SELECT {FROM} UNION ALL SELECT i + 1 FROM n WHERE i < {TO}),
e AS (SELECT i,
             CASE WHEN i % 10 < 6 THEN 2 WHEN i % 10 < 9 THEN 1 ELSE 3 END AS typ,
             1 + (i * 7919) % {JOBS} AS job
        FROM n)
INSERT INTO SYS_JobAgentLogDaten (Id, DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId,
    MitarbeiterId, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz)
SELECT i,
       datetime({START} + (i - 1) * {SPAN} / {TOTAL}, 'unixepoch'),
       typ,
       i % 4,
       CASE WHEN typ = 2 THEN j.DatenArt ELSE 0 END,
       CASE WHEN typ = 2 OR i % 7 = 0 THEN job ELSE 0 END,
       1 + i % 25,
       CASE WHEN typ = 2 THEN NULL ELSE
           CASE i % 5 WHEN 0 THEN 'Agentendienst' WHEN 1 THEN 'Zeitplaner'
                      WHEN 2 THEN 'Dateiüberwachung' WHEN 3 THEN 'Datenbankverbindung'
                      ELSE 'Dienststeuerung' END END,
       CASE WHEN typ = 2 THEN printf('AJ-%04d-%06d', job, i / 40) ELSE NULL END,
       CASE i % 11 WHEN 0 THEN 'Fehler' WHEN 1 THEN 'Warnung' WHEN 2 THEN 'Warnung'
                   ELSE 'Information' END,
       CASE WHEN typ = 2 THEN NULL ELSE 'Agentendienst ' || (1 + i % 3) END,
       CASE i % 6
           WHEN 0 THEN printf('Import gestartet: %d Datensätze in Datei Import_%02d.csv gefunden',
                              i % 997, i % 53)
           WHEN 1 THEN printf('Import beendet: %d Datensätze übernommen, %d abgewiesen',
                              i % 991, i % 7)
           WHEN 2 THEN printf('Verbindung zur Datenbank Mandant %d hergestellt', 1000 + i % 400)
           WHEN 3 THEN 'Zeitplan geprüft, nächster Lauf ' ||
                       datetime({START} + (i - 1) * {SPAN} / {TOTAL} + 3600, 'unixepoch')
           WHEN 4 THEN printf('Datei \\Server\Import\Mandant%04d\Buchungen_%03d.txt gesichert',
                              i % 400, i % 365)
           ELSE printf('Belegart %d: %d Belege verschlagwortet', 1 + i % 40, i % 120) END,
       CASE WHEN i % 1000 = 1 THEN 'Sammelrechnung geprüft und übergeben.'
            WHEN i % 9 = 0 THEN printf('Zeile %d: Konto %d ist im Wirtschaftsjahr nicht angelegt.',
                                       i % 311, 1000 + i % 8000)
            ELSE NULL END
  FROM e LEFT JOIN tAutoJobJob j ON j.idAutoJob = e.job
)");
    sql.replace(QStringLiteral("{FROM}"), QString::number(from))
        .replace(QStringLiteral("{TO}"), QString::number(to))
        .replace(QStringLiteral("{TOTAL}"), QString::number(total))
        .replace(QStringLiteral("{JOBS}"), QString::number(kJobs))
        .replace(QStringLiteral("{START}"), QString::number(kStart))
        .replace(QStringLiteral("{SPAN}"), QString::number(kSpan));
    db.run(sql);
}

void create(const QString& path, long long total) {
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-wal"));
    QFile::remove(path + QStringLiteral("-shm"));
    {
        auto database = Database::open(path, std::make_shared<SystemClock>());
        database->applySchema();
    }
    RawSqlite db(path);
    db.run(QStringLiteral("PRAGMA synchronous = OFF"));
    db.run(QStringLiteral("PRAGMA cache_size = -262144"));
    db.run(QStringLiteral("BEGIN"));
    static const int kArten[] = {17, 18, 4, 5, 28, 30, 20, 21, 99};
    for (int m = 1; m <= 25; ++m) {
        db.run(QStringLiteral("INSERT OR REPLACE INTO tMitarbeiter (MitId, Name) VALUES (%1, "
                              "'Sachbearbeiter %1')")
                   .arg(m));
    }
    for (int j = 1; j <= kJobs; ++j) {
        db.run(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name, DatenArt, Aktiviert) "
                              "VALUES (%1, 'Auftrag %1 Mandant %2', %3, 1)")
                   .arg(j)
                   .arg(1000 + j % 400)
                   .arg(kArten[j % 9]));
    }
    // The indexes are built once after the entries, which is far quicker than keeping them.
    const QStringList indexes =
        firstColumn(db,
                    "SELECT sql FROM sqlite_master WHERE type = 'index' AND "
                    "tbl_name = 'SYS_JobAgentLogDaten' AND sql IS NOT NULL");
    // Dropping an index drops its statistics: they are written back with the index.
    const QStringList statistics =
        firstColumn(db,
                    "SELECT printf('INSERT INTO sqlite_stat1 VALUES (%Q, %Q, %Q)', tbl, "
                    "idx, stat) FROM sqlite_stat1");
    // The full-text index, too, is built once from the entries rather than kept entry by entry.
    const QStringList triggers =
        firstColumn(db,
                    "SELECT sql FROM sqlite_master WHERE type = 'trigger' AND "
                    "tbl_name = 'SYS_JobAgentLogDaten'");
    for (const QString& index : indexes) {
        db.run(QStringLiteral("DROP INDEX ") + index.section(u' ', 2, 2));
    }
    for (const QString& trigger : triggers) {
        db.run(QStringLiteral("DROP TRIGGER ") + trigger.section(u' ', 2, 2));
    }
    const long long step = 1000000;
    for (long long from = 1; from <= total; from += step) {
        fill(db, from, std::min(total, from + step - 1), total);
    }
    for (const QString& index : indexes) {
        db.run(index);
    }
    db.run(QStringLiteral(
        "INSERT INTO SYS_JobAgentLogDaten_Suche (SYS_JobAgentLogDaten_Suche) VALUES ('rebuild')"));
    for (const QString& trigger : triggers) {
        db.run(trigger);
    }
    db.run(QStringLiteral("DELETE FROM sqlite_stat1"));
    for (const QString& statistic : statistics) {
        db.run(statistic);
    }
    db.run(QStringLiteral("COMMIT"));
}

}  // namespace BenchLogData
