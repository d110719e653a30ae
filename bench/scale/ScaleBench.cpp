// autojobverw-bench-scale: the job list and the run history on large databases, measured side
// by side with raw SQLite on the same file in the same run.
//
//   autojobverw-bench-scale [--cache DIR] [--repeat N] [--history-runs N]
//   autojobverw-bench-scale --postgresql [--repeat N] [--history-runs N]
//
// The data sets are made once into the cache folder (jobs inserted here, runs written by the
// agent simulator) and reused. Every measurement runs in a process of its own, so that its
// peak memory is its own. With --postgresql the program works on the server the PG*
// environment names, the data sets are databases of their own there, and the raw side is the
// same work as plain queries through QtSql's QPSQL driver.

#include <sqlite3.h>
#include <sys/resource.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <algorithm>
#include <cstdio>

#include "agent/JobAgentSimulator.h"
#include "bench/scale/QtWindowBench.h"
#include "bench/scale/ScaleBenchServer.h"
#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "host/DesktopProgram.h"
#include "host/HostMainWindow.h"
#include "suite/Database.h"
#include "suite/PostgresAddress.h"
#include "suite/SqlDates.h"
#include "suite/SuiteConfig.h"

namespace {

constexpr qint64 kHistoryRuns = 5000000;  // the default of --history-runs
constexpr int kScreenRows = 40;
constexpr int kGridRows = 20000;  // the default of --grid-rows
const QDateTime kBenchNow(QDate(2026, 11, 23), QTime(12, 0, 0));

void say(const QString& line) {
    std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

// The peak resident memory of this process since its start; unlike the resource usage it
// does not carry the parent's peak over from before the exec.
long peakKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).trimmed().split(' ').value(0).toLong();
            }
        }
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// --- data sets ----------------------------------------------------------------------------

// n jobs of every type, one schedule each, and a few runs each by the agent.
void makeJobs(const QString& path, int n) {
    auto db = Database::open(path, std::make_shared<FixedClock>(kBenchNow));
    db->applySchema();
    static const int types[] = {4, 5, 17, 18, 20, 21, 28, 30, 99};
    QSqlQuery q(QSqlDatabase::database(db->connectionName(), false));
    q.exec(QStringLiteral("BEGIN"));
    if (db->onServer()) {
        // One statement: a round trip per job would measure the network.
        q.exec(QStringLiteral(
                   "INSERT INTO tAutoJobJob (Erstellt, Name, Beschreibung, Aktiviert, DatenArt, "
                   "MTAPath, BackupPath, ErrorMTA, Ps_Id_Mandant, MandKanz, LetzteAenderung) "
                   "SELECT '2024-01-01 08:00:00', 'Auftrag ' || lpad(i::text, 6, '0'), "
                   "'Auftrag der Messung', 1, (ARRAY[4, 5, 17, 18, 20, 21, 28, 30, 99])[i % 9 + "
                   "1], '/srv/zpk/import', '/srv/zpk/backup', '/srv/zpk/log', 0, 3, "
                   "'2024-01-01 08:00:00' FROM generate_series(1, %1) AS i")
                   .arg(n));
    } else {
        q.prepare(QStringLiteral(
            "INSERT INTO tAutoJobJob (Erstellt, Name, Beschreibung, Aktiviert, DatenArt, MTAPath, "
            "BackupPath, ErrorMTA, Ps_Id_Mandant, MandKanz, LetzteAenderung) VALUES "
            "('2024-01-01 08:00:00', ?, 'Auftrag der Messung', 1, ?, '/srv/zpk/import', "
            "'/srv/zpk/backup', '/srv/zpk/log', 0, 3, '2024-01-01 08:00:00')"));
        for (int i = 1; i <= n; ++i) {
            q.bindValue(0, QStringLiteral("Auftrag %1").arg(i, 6, 10, QLatin1Char('0')));
            q.bindValue(1, types[i % 9]);
            q.exec();
        }
    }
    q.exec(QStringLiteral(
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
        "FrequencyInterval, FrequencySubDay, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
        "ActiveStartDate, ActiveEndDate) SELECT idAutoJob, 'täglich', 1, 4, 1, 1, 60000, "
        "235959, '2024-01-01 00:00:00', '9999-12-31 00:00:00' FROM tAutoJobJob"));
    q.exec(QStringLiteral("COMMIT"));
    AgentOptions options;
    options.years = 1;
    options.runsPerJob = 3;
    options.logEntries = 1000;
    JobAgentSimulator agent(db, options);
    agent.loadSchedules();
    agent.fillYears();
}

// One job with that many runs over five years, next to a few quiet ones.
void makeHistory(const QString& path, qint64 runs) {
    makeJobs(path, 20);
    auto db = Database::open(path, std::make_shared<FixedClock>(kBenchNow));
    AgentOptions options;
    options.years = 5;
    options.runsPerJob = runs;
    options.logEntries = 1000;
    options.jobId = 1;
    JobAgentSimulator agent(db, options);
    agent.loadSchedules();
    agent.fillYears();
    if (!db->onServer()) {
        db->runScript(QStringLiteral("ANALYZE"));  // on the server with the vacuum afterwards
    }
}

QString dataSet(const QString& cache, const QString& name,
                const std::function<void(QString)>& make) {
    const QString path = QDir(cache).filePath(name);
    if (!QFile::exists(path)) {
        say(QStringLiteral("Erzeuge %1 ...").arg(path));
        QElapsedTimer t;
        t.start();
        const QString partial = path + QStringLiteral(".partial");
        QFile::remove(partial);
        make(partial);
        // Into WAL-less single file form, so that it can be copied as one file.
        sqlite3* raw = nullptr;
        sqlite3_open(partial.toUtf8().constData(), &raw);
        sqlite3_exec(raw, "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
        sqlite3_close(raw);
        QFile::rename(partial, path);
        say(QStringLiteral("  fertig in %1 s").arg(t.elapsed() / 1000.0, 0, 'f', 1));
    }
    return path;
}

// --- measurements, each in its own process -------------------------------------------------

struct Result {
    double ms = 0;
    long kb = 0;
    qint64 rows = 0;
};

void report(double ms, qint64 rows) {
    say(QStringLiteral("RESULT %1 %2 %3").arg(ms, 0, 'f', 2).arg(peakKb()).arg(rows));
}

// The program as users start it, until the list is on screen.
int measureProgramStart(int argc, char* argv[], const QString& path) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QElapsedTimer t;
    t.start();
    auto config = std::make_shared<SuiteConfig>(SuiteConfig::defaults());
    config->databasePath = path;
    DesktopProgram program(config);
    program.start();
    QApplication::processEvents();
    const double ms = t.nsecsElapsed() / 1e6;
    qint64 rows = -1;
    for (auto* view : program.window().findChildren<QAbstractItemView*>()) {
        if (view->model() != nullptr) {
            rows = std::max<qint64>(rows, view->model()->rowCount());
        }
    }
    report(ms, rows);
    program.end();
    return 0;
}

sqlite3* openRaw(const QString& path) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(db, 5000);
    return db;
}

qint64 stepAll(sqlite3* db, const char* sql, qint64 limit, const QByteArray& bind = {}) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) != SQLITE_OK) {
        say(QStringLiteral("FEHLER %1").arg(QString::fromUtf8(sqlite3_errmsg(db))));
        return -1;
    }
    if (!bind.isEmpty()) {
        sqlite3_bind_text(st, 1, bind.constData(), static_cast<int>(bind.size()), SQLITE_STATIC);
    }
    qint64 rows = 0;
    while ((limit < 0 || rows < limit) && sqlite3_step(st) == SQLITE_ROW) {
        const int columns = sqlite3_column_count(st);
        for (int c = 0; c < columns; ++c) {
            sqlite3_column_text(st, c);
        }
        ++rows;
    }
    sqlite3_finalize(st);
    return rows;
}

// Raw SQLite opening the file and reading the first screen of the list view, or all of it;
// on a server the same through QPSQL.
int measureRawList(const QString& path, qint64 limit) {
    if (PostgresAddress::isAddress(path)) {
        const ScaleBenchServer::Timed r = ScaleBenchServer::rawList(path, limit);
        report(r.ms, r.rows);
        return 0;
    }
    QElapsedTimer t;
    t.start();
    sqlite3* db = openRaw(path);
    const qint64 rows = stepAll(db, "SELECT * FROM V_ZPK_Applications_System_AutoJob", limit);
    const double ms = t.nsecsElapsed() / 1e6;
    sqlite3_close(db);
    report(ms, rows);
    return 0;
}

QString historyStatement(long jobId) {
    return QStringLiteral(
               " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob"
               " FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON "
               "tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule"
               " WHERE tAutoJobSchedule.idAutoJob=%1 AND datediff(Week, "
               "tAutoJobVerlauf.LetzteAusfuehrung, getdate()) <= 2")
        .arg(jobId);
}

// The history's statement through the record set, every row read as the history reads it.
qint64 readHistory(Database& database) {
    auto rs = database.recordsetFactory()();
    rs->Connect();
    const long n = rs->OpenQuery(historyStatement(1), 2);
    qint64 rows = 0;
    if (n > 0) {
        do {
            rs->ReadLong(QStringLiteral("idAutoJobVerlauf"));
            rs->ReadLong(QStringLiteral("idAutoJob"));
            rs->ReadDate(QStringLiteral("LetzteAusfuehrung"));
            rs->ReadLong(QStringLiteral("Erfolgreich"));
            rs->ReadText(QStringLiteral("MTAPath"));
            rs->ReadText(QStringLiteral("BackupPath"));
            rs->ReadText(QStringLiteral("ErrorMTA"));
            ++rows;
        } while (rs->Move(CRecordset::MoveNext));
    }
    rs->Close();
    rs->Disconnect();
    return rows;
}

int measureProgramHistory(int argc, char* argv[], const QString& path) {
    QCoreApplication app(argc, argv);
    // The program has its connection open before the history opens.
    auto db = Database::open(path, std::make_shared<FixedClock>(kBenchNow));
    QElapsedTimer t;
    t.start();
    const qint64 rows = readHistory(*db);
    report(t.nsecsElapsed() / 1e6, rows);
    return 0;
}

// The same rows by an index range scan in raw SQLite, or by a plain query on the server.
int measureRawHistory(const QString& path) {
    if (PostgresAddress::isAddress(path)) {
        const ScaleBenchServer::Timed r = ScaleBenchServer::rawHistory(
            path, storedDateText(startOfUnitsBefore(DatePart::Week, kBenchNow, 2)));
        report(r.ms, r.rows);
        return 0;
    }
    sqlite3* db = openRaw(path);
    const QByteArray start =
        storedDateText(startOfUnitsBefore(DatePart::Week, kBenchNow, 2)).toUtf8();
    QElapsedTimer t;
    t.start();
    const qint64 rows =
        stepAll(db,
                "SELECT v.*, s.idAutoJob FROM tAutoJobSchedule s JOIN tAutoJobVerlauf v "
                "ON s.idAutoJobSchedule = v.idAutoJobSchedule WHERE s.idAutoJob = 1 "
                "AND v.LetzteAusfuehrung >= ?",
                -1, start);
    const double ms = t.nsecsElapsed() / 1e6;
    sqlite3_close(db);
    report(ms, rows);
    return 0;
}

// The same history through the program's Qt window, offscreen, opened from the menu.
int measureHistoryWindow(int argc, char* argv[], const QString& path) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const GridFill r = openHistoryWindow(path, kBenchNow);
    report(r.ms, r.rows);
    return 0;
}

// A Qt grid of the program filled with n rows, offscreen.
int measureGridFill(int argc, char* argv[], const QString& which, int rows) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const GridFill r = which == u"logfiles" ? fillLogFileList(rows) : fillScheduleCopyList(rows);
    report(r.ms, r.rows);
    return 0;
}

const char* const kDeleteHistory =
    " delete from tAutoJobVerlauf where tAutoJobVerlauf.idAutoJobSchedule in (select "
    "tAutoJobSchedule.idAutoJobSchedule FROM tAutoJobSchedule WHERE idAutoJob = 1)";

// "Verlauf löschen": the delete through the record set, then the history read again.
int measureProgramDelete(int argc, char* argv[], const QString& path) {
    QCoreApplication app(argc, argv);
    auto db = Database::open(path, std::make_shared<FixedClock>(kBenchNow));
    QElapsedTimer t;
    t.start();
    auto rs = db->recordsetFactory()();
    const long deleted = rs->Execute(QString::fromUtf8(kDeleteHistory));
    readHistory(*db);
    report(t.nsecsElapsed() / 1e6, deleted);
    return 0;
}

int measureRawDelete(const QString& path) {
    if (PostgresAddress::isAddress(path)) {
        const ScaleBenchServer::Timed r =
            ScaleBenchServer::rawDelete(path, QString::fromUtf8(kDeleteHistory));
        report(r.ms, r.rows);
        return 0;
    }
    sqlite3* db = openRaw(path);
    sqlite3_exec(db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    sqlite3_exec(db, "PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    QElapsedTimer t;
    t.start();
    sqlite3_exec(db, kDeleteHistory, nullptr, nullptr, nullptr);
    const qint64 deleted = sqlite3_changes(db);
    const double ms = t.nsecsElapsed() / 1e6;
    sqlite3_close(db);
    report(ms, deleted);
    return 0;
}

// --- the driver ---------------------------------------------------------------------------

Result runChild(const QString& what, const QString& path) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--measure"), what, path});
    child.waitForFinished(-1);
    Result r;
    for (const QByteArray& line : child.readAllStandardOutput().split('\n')) {
        if (line.startsWith("RESULT ")) {
            const QList<QByteArray> f = line.split(' ');
            r.ms = f.value(1).toDouble();
            r.kb = f.value(2).toLong();
            r.rows = f.value(3).toLongLong();
        } else if (!line.isEmpty()) {
            say(QString::fromLocal8Bit(line));
        }
    }
    return r;
}

// The median of several runs; peak memory the largest. restore, when given, puts the data
// back before each run.
Result measured(const QString& what, const QString& path, int repeat,
                const std::function<void()>& restore = {}) {
    QList<Result> all;
    for (int i = 0; i < repeat; ++i) {
        if (restore) {
            restore();
        }
        all << runChild(what, path);
    }
    std::sort(all.begin(), all.end(), [](const Result& a, const Result& b) { return a.ms < b.ms; });
    Result r = all[all.size() / 2];
    for (const Result& x : all) {
        r.kb = std::max(r.kb, x.kb);
    }
    return r;
}

// A fresh copy of a data set file.
std::function<void()> fileCopy(const QString& from, const QString& to) {
    return [from, to] {
        QFile::remove(to);
        QFile::remove(to + QStringLiteral("-wal"));
        QFile::remove(to + QStringLiteral("-shm"));
        QFile::copy(from, to);
    };
}

// 5000000 as "5.000.000".
QString grouped(qint64 n) {
    QString digits = QString::number(n);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3) {
        digits.insert(at, u'.');
    }
    return digits;
}

QString row(const QString& what, const QString& data, const Result& program, const Result& raw,
            double target) {
    const double ratio = raw.ms > 0 ? program.ms / raw.ms : 0;
    return QStringLiteral(
               "| %1 | %2 | %3 ms (%4 Zeilen) | %5 ms (%6 Zeilen) | %7 | %8 | %9 MB / %10 MB |")
        .arg(what, data)
        .arg(program.ms, 0, 'f', 1)
        .arg(program.rows)
        .arg(raw.ms, 0, 'f', 1)
        .arg(raw.rows)
        .arg(ratio, 0, 'f', 2)
        .arg(ratio <= target ? QStringLiteral("<= %1 erreicht").arg(target)
                             : QStringLiteral("> %1 VERFEHLT").arg(target))
        .arg(program.kb / 1024)
        .arg(raw.kb / 1024);
}

// A measurement against a fixed time rather than a raw side.
QString absoluteRow(const QString& what, const QString& data, const Result& program,
                    double targetMs) {
    return QStringLiteral("| %1 | %2 | %3 ms (%4 Zeilen) | | | %5 | %6 MB / |")
        .arg(what, data)
        .arg(program.ms, 0, 'f', 1)
        .arg(program.rows)
        .arg(program.ms <= targetMs ? QStringLiteral("<= %1 ms erreicht").arg(targetMs)
                                    : QStringLiteral("> %1 ms VERFEHLT").arg(targetMs))
        .arg(program.kb / 1024);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc == 4 && qstrcmp(argv[1], "--measure") == 0) {
        const QString what = QString::fromLocal8Bit(argv[2]);
        const QString path = QString::fromLocal8Bit(argv[3]);
        try {
            if (what == u"program-start")
                return measureProgramStart(argc, argv, path);
            if (what == u"raw-list")
                return measureRawList(path, kScreenRows);
            if (what == u"raw-list-all")
                return measureRawList(path, -1);
            if (what == u"program-history")
                return measureProgramHistory(argc, argv, path);
            if (what == u"raw-history")
                return measureRawHistory(path);
            if (what == u"program-history-qt")
                return measureHistoryWindow(argc, argv, path);
            if (what.startsWith(u"grid-"))
                return measureGridFill(argc, argv, what.mid(5), path.toInt());
            if (what == u"program-delete")
                return measureProgramDelete(argc, argv, path);
            if (what == u"raw-delete")
                return measureRawDelete(path);
        } catch (const RaisedError& e) {
            say(QStringLiteral("FEHLER %1").arg(e.err().Description));
            return 1;
        }
        return 2;
    }

    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Misst Auftragsliste und Verlauf auf großen Datenbanken gegen rohes SQLite, mit "
        "--postgresql auf dem Server der PG*-Umgebung gegen rohe Abfragen über QPSQL."));
    parser.addHelpOption();
    const QCommandLineOption cacheOption(
        QStringLiteral("cache"), QStringLiteral("Ordner der Datensätze."), QStringLiteral("DIR"),
        QDir::home().filePath(QStringLiteral(".cache/autojobverw-bench")));
    const QCommandLineOption repeatOption(QStringLiteral("repeat"),
                                          QStringLiteral("Läufe je Messung (Median)."),
                                          QStringLiteral("N"), QStringLiteral("3"));
    const QCommandLineOption serverOption(
        QStringLiteral("postgresql"),
        QStringLiteral("Auf dem PostgreSQL-Server, den PGHOST, PGPORT und PGUSER nennen; die "
                       "Datensätze sind dort Datenbanken ajv_bench_*."));
    const QCommandLineOption historyOption(
        QStringLiteral("history-runs"),
        QStringLiteral("Läufe des Verlaufs-Datensatzes (Vorgabe %1).").arg(kHistoryRuns),
        QStringLiteral("N"), QString::number(kHistoryRuns));
    const QCommandLineOption gridOption(
        QStringLiteral("grid-rows"),
        QStringLiteral("Zeilen der Gitter-Messungen (Vorgabe %1).").arg(kGridRows),
        QStringLiteral("N"), QString::number(kGridRows));
    parser.addOptions({cacheOption, repeatOption, serverOption, historyOption, gridOption});
    parser.process(app);
    const QString cache = parser.value(cacheOption);
    const int repeat = std::max(1, parser.value(repeatOption).toInt());
    const bool onServer = parser.isSet(serverOption);
    const qint64 historyRuns = std::max<qint64>(1, parser.value(historyOption).toLongLong());
    const int gridRows = std::max(1, parser.value(gridOption).toInt());

    try {
        QString jobs0, jobs10k, jobs100k, history, scratch;
        std::function<void()> restoreScratch, removeScratch;
        auto jobs = [](int n) { return [n](const QString& p) { makeJobs(p, n); }; };
        auto runs = [historyRuns](const QString& p) { makeHistory(p, historyRuns); };
        if (onServer) {
            namespace Server = ScaleBenchServer;
            say(QStringLiteral("Server: %1").arg(Server::describe()));
            jobs10k = Server::dataSet(QStringLiteral("ajv_bench_jobs_10000"), jobs(10000));
            jobs100k = Server::dataSet(QStringLiteral("ajv_bench_jobs_100000"), jobs(100000));
            const QString historyName = QStringLiteral("ajv_bench_history_%1").arg(historyRuns);
            history = Server::dataSet(historyName, runs);
            jobs0 = Server::dataSet(QStringLiteral("ajv_bench_jobs_0"), jobs(0));
            const QString scratchName = QStringLiteral("ajv_bench_scratch");
            scratch = Server::address(scratchName);
            restoreScratch = [historyName, scratchName] { Server::copy(historyName, scratchName); };
            removeScratch = [scratchName] { Server::drop(scratchName); };
        } else {
            QDir().mkpath(cache);
            jobs10k = dataSet(cache, QStringLiteral("jobs-10000.sqlite"), jobs(10000));
            jobs100k = dataSet(cache, QStringLiteral("jobs-100000.sqlite"), jobs(100000));
            history = dataSet(cache, QStringLiteral("history-%1.sqlite").arg(historyRuns), runs);
            // What the start costs without data: the program, its windows and the database,
            // so that what the jobs add stands apart.
            jobs0 = dataSet(cache, QStringLiteral("jobs-0.sqlite"), jobs(0));
            scratch = QDir(cache).filePath(QStringLiteral("scratch.sqlite"));
            restoreScratch = fileCopy(history, scratch);
            removeScratch = [scratch] {
                QFile::remove(scratch);
                QFile::remove(scratch + QStringLiteral("-wal"));
                QFile::remove(scratch + QStringLiteral("-shm"));
            };
        }
        const QString historyData = QStringLiteral("%1 Läufe").arg(grouped(historyRuns));

        QStringList table{
            QStringLiteral("| was | Daten | Programm | %1 | Verhältnis | Ziel | Spitzenspeicher "
                           "Programm / roh |")
                .arg(onServer ? QStringLiteral("roh: PostgreSQL über QPSQL")
                              : QStringLiteral("rohes SQLite")),
            QStringLiteral("|---|---|---|---|---|---|---|")};
        for (const auto& [name, path] : {std::pair{QStringLiteral("10.000 Aufträge"), jobs10k},
                                         std::pair{QStringLiteral("100.000 Aufträge"), jobs100k},
                                         std::pair{QStringLiteral("0 Aufträge"), jobs0}}) {
            table << row(QStringLiteral("Start bis die Liste steht"), name,
                         measured(QStringLiteral("program-start"), path, repeat),
                         measured(QStringLiteral("raw-list"), path, repeat), 2.0);
        }
        // The start against a reading of every row of the view.
        table << row(QStringLiteral("Start gegen alle Zeilen der Listenansicht"),
                     QStringLiteral("100.000 Aufträge"),
                     measured(QStringLiteral("program-start"), jobs100k, repeat),
                     measured(QStringLiteral("raw-list-all"), jobs100k, repeat), 2.0);
        table << row(QStringLiteral("Verlauf eines Auftrags, 2 Wochen, alle"), historyData,
                     measured(QStringLiteral("program-history"), history, repeat),
                     measured(QStringLiteral("raw-history"), history, repeat), 2.0);
        table << row(QStringLiteral("Verlauf eines Auftrags im Qt-Fenster, 2 Wochen, alle"),
                     historyData, measured(QStringLiteral("program-history-qt"), history, repeat),
                     measured(QStringLiteral("raw-history"), history, repeat), 2.0);
        table << row(
            QStringLiteral("\"Verlauf löschen\" und Verlauf neu"), historyData,
            measured(QStringLiteral("program-delete"), scratch, std::min(repeat, 2),
                     restoreScratch),
            measured(QStringLiteral("raw-delete"), scratch, std::min(repeat, 2), restoreScratch),
            1.2);
        removeScratch();
        for (const auto& [what, name] :
             {std::pair{QStringLiteral("grid-logfiles"), QStringLiteral("Logfile-Liste")},
              std::pair{QStringLiteral("grid-copy"),
                        QStringLiteral("Auftragsliste der Zeitplan-Kopie")}}) {
            table << absoluteRow(QStringLiteral("Qt-Gitter gefüllt: %1").arg(name),
                                 QStringLiteral("%1 Zeilen").arg(grouped(gridRows)),
                                 measured(what, QString::number(gridRows), repeat), 300);
        }
        say(QString());
        if (onServer) {
            say(QStringLiteral(
                    "roh: dieselbe Arbeit als Abfrage über QtSqls QPSQL-Treiber auf derselben "
                    "Datenbank; die erste Bildschirmseite der Liste mit LIMIT %1.")
                    .arg(kScreenRows));
        }
        say(table.join(u'\n'));
    } catch (const RaisedError& e) {
        say(QStringLiteral("FEHLER %1").arg(e.err().Description));
        return 1;
    }
    return 0;
}
