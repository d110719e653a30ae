#include "bench/BenchLogSearch.h"

#include <QDate>
#include <QElapsedTimer>
#include <QFile>

#include "bench/BenchRawSqlite.h"
#include "logdata/LogDatenSuche.h"
#include "logdata/LogDatenTexte.h"
#include "suite/SqlFullText.h"

namespace BenchLogSearch {

void measure(bool onServer, const std::function<void(const QString& statement)>& viewer,
             const std::function<void(const QString& sql)>& raw,
             const std::function<double(int runs, const std::function<void()>&)>& best,
             const std::function<void(const char*, double, double, const char*)>& line,
             int screen) {
    struct Case {
        const char* what;
        const char* word;
        const char* target;
    };
    for (const Case& c :
         {Case{"search, a word in 0.1 % (first screen)", "Sammelrechnung", "<= 2x, <= 200 ms"},
          Case{"search, a word in no entry", "Zahlungsavis", "<= 50 ms"}}) {
        const QStringList words{QString::fromUtf8(c.word)};
        const QString statement = logdaten::msAbfrage(logdaten::kAuftraege, 0) +
                                  logsuche::msBedingung(words, QDate(), QDate());
        // The raw side: the same index as the database's own query, without the program.
        const QString hits =
            QStringLiteral("SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE Typ = 2 AND ") +
            SqlFullText::rewrite(
                QStringLiteral("CONTAINS(SYS_JobAgentLogDaten_Anzeigen.*, '\"%1*\"')")
                    .arg(words.front()),
                onServer ? SqlDialect::Target::Postgres : SqlDialect::Target::Sqlite);
        const double ours = best(3, [&] { viewer(statement); });
        const double theirs = best(3, [&] {
            raw(QStringLiteral("SELECT count(*) FROM (%1) t").arg(hits));
            raw(hits + QStringLiteral(" ORDER BY Id LIMIT %1").arg(screen));
        });
        line(c.what, ours, theirs, c.target);
    }
}

namespace {

double write(const QString& path, bool oneTransaction) {
    RawSqlite db(path);
    QElapsedTimer t;
    t.start();
    if (oneTransaction) {
        db.run(QStringLiteral("BEGIN"));
    }
    for (int i = 1; i <= 1000; ++i) {
        db.run(QStringLiteral(
                   "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, JobArt, AutoJobId, "
                   "MitarbeiterId, AuftragKennung, Kategorie, Text, Zusatz) VALUES "
                   "('2026-11-23 12:00:00', 2, 17, %1, 1, 'AJ-%1', 'Information', "
                   "'Import beendet: %2 Datensätze übernommen, %3 abgewiesen', 'KUND%2.XLS')")
                   .arg(i % 300)
                   .arg(i * 7 % 991)
                   .arg(i % 7));
    }
    if (oneTransaction) {
        db.run(QStringLiteral("COMMIT"));
    }
    return static_cast<double>(t.nsecsElapsed()) / 1e6;
}

QString copyOf(const QString& from, const QString& to, bool withIndex) {
    for (const char* suffix : {"", "-wal", "-shm"}) {
        QFile::remove(to + QString::fromLatin1(suffix));
    }
    QFile::copy(from, to);
    if (!withIndex) {
        RawSqlite db(to);
        for (const char* trigger : {"trJobAgentLogDaten_SucheNeu", "trJobAgentLogDaten_SucheWeg",
                                    "trJobAgentLogDaten_SucheNeuText"}) {
            db.run(QStringLiteral("DROP TRIGGER %1").arg(QString::fromLatin1(trigger)));
        }
    }
    return to;
}

}  // namespace

void measureUpkeep(const QString& emptyPath,
                   const std::function<void(const char*, double, double, const char*)>& line) {
    const QString with = emptyPath + QStringLiteral(".mit");
    const QString without = emptyPath + QStringLiteral(".ohne");
    for (const bool one : {false, true}) {
        double a = 1e300;
        double b = 1e300;
        for (int run = 0; run < 3; ++run) {
            a = std::min(a, write(copyOf(emptyPath, with, true), one));
            b = std::min(b, write(copyOf(emptyPath, without, false), one));
        }
        line(one ? "1,000 entries in one transaction, index/none"
                 : "1,000 entries, each committed, index/none",
             a, b, "<= 1.3x");
    }
    for (const QString& p : {with, without}) {
        for (const char* suffix : {"", "-wal", "-shm"}) {
            QFile::remove(p + QString::fromLatin1(suffix));
        }
    }
}

}  // namespace BenchLogSearch
