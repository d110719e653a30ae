// The cost of the change journal: a job saved through the record set (read the row, change
// its name, write it) with the journal's trigger writing its row, against the same save on a
// connection that names no workstation and so writes no journal row. Both run in the same
// process on the same database, in alternating rounds; the figure is the median of the rounds.
//
//   build/ajv_bench_journal [--db PATH|ADDRESS] [--saves N] [--rounds R]
//
// Without --db a new SQLite file in the temporary folder; a postgresql:// address names an
// existing database on a server (an empty one gets the schema).
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSysInfo>
#include <QTextStream>
#include <algorithm>

#include "common/Clock.h"
#include "common/Recordset.h"
#include "suite/ChangeJournal.h"
#include "suite/Database.h"

namespace {

QString option(const QStringList& args, const QString& name, const QString& fallback) {
    const qsizetype i = args.indexOf(name);
    return i >= 0 && i + 1 < args.size() ? args[i + 1] : fallback;
}

double median(QList<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Milliseconds for n saves of job 1.
double saves(CRecordset& rs, int n, int& counter) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < n; ++i) {
        rs.OpenQuery(QStringLiteral("SELECT * FROM tAutoJobJob WHERE idAutoJob = 1"), 2);
        rs.WriteText(QStringLiteral("Name"), QStringLiteral("Auftrag %1").arg(++counter));
        rs.Update(CRecordset::UpdateWrite, true);
        rs.Close();
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const QString path = option(args, QStringLiteral("--db"),
                                QDir::temp().filePath(QStringLiteral("ajv_bench_journal.sqlite")));
    const int n = option(args, QStringLiteral("--saves"), QStringLiteral("500")).toInt();
    const int rounds = option(args, QStringLiteral("--rounds"), QStringLiteral("7")).toInt();
    if (!path.startsWith(QStringLiteral("postgresql:"))) {
        QFile::remove(path);
    }
    auto db = Database::open(path, std::make_shared<SystemClock>());
    if (db->isEmpty()) {
        db->applySchema();
    }
    auto rs = db->recordsetFactory()();
    rs->Connect();
    rs->Execute(QStringLiteral("DELETE FROM tAutoJobJournal"));
    rs->Execute(QStringLiteral("DELETE FROM tAutoJobJob"));
    rs->Execute(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name) VALUES (1, 'Auftrag')"));
    const QString host = QSysInfo::machineHostName();
    auto journal = [&](bool on) {
        rs->Execute(
            ChangeJournal::settingStatement(ChangeJournal::kArbeitsplatz, on ? host : QString()));
    };
    int counter = 0;
    QList<double> with;
    QList<double> without;
    for (int r = 0; r < rounds; ++r) {
        journal(false);
        without << saves(*rs, n, counter);
        journal(true);
        with << saves(*rs, n, counter);
    }
    rs->OpenQuery(QStringLiteral("SELECT count(*) AS n FROM tAutoJobJournal"), 2);
    const long rows = rs->ReadLong(QStringLiteral("n"));
    rs->Close();
    rs->Disconnect();
    QTextStream out(stdout);
    out << QStringLiteral("%1 (%2 saves, median of %3 rounds, %4 journal rows)\n")
               .arg(db->onServer() ? QStringLiteral("PostgreSQL") : QStringLiteral("SQLite"))
               .arg(n)
               .arg(rounds)
               .arg(rows);
    out << QStringLiteral("  save without journal  %1 ms\n").arg(median(without), 0, 'f', 1);
    out << QStringLiteral("  save with journal     %1 ms\n").arg(median(with), 0, 'f', 1);
    out << QStringLiteral("  ratio                 %1\n")
               .arg(median(with) / median(without), 0, 'f', 2);
    return 0;
}
