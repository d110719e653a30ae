// Measures the log viewer on a log of ten million entries against SQLite itself on the same
// file. Usage:
//
//   build/ajv_bench_logdaten [--db FILE] [--rows N] [--neu]
//   build/ajv_bench_logdaten --postgresql [--rows N] [--neu]
//
// The log is built once (FILE, by default /tmp/ajv_bench_logdaten.sqlite) and used again while
// it has N entries; --neu builds it anew. The deleted months are written back at the end.
// With --postgresql the viewer works on the server the PG* environment names, on the database
// ajv_bench_logdaten_N kept there between runs, against plain queries through QtSql's QPSQL
// driver on the same database.
#include <sys/wait.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <string_view>

#include "bench/BenchLogData.h"
#include "bench/BenchLogDataServer.h"
#include "bench/BenchLogSearch.h"
#include "bench/BenchRawPostgres.h"
#include "bench/BenchRawSqlite.h"
#include "bench/scale/ScaleBenchServer.h"
#include "common/Clock.h"
#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "common/Services.h"
#include "headless/HeadlessBrowser.h"
#include "headless/HeadlessWindow.h"
#include "suite/Database.h"
#include "ui/windows/frmPakete.h"

namespace {

// The statements of the viewer: the service log, and the job log (which is the longer).
const QString kAbfrage = QStringLiteral(
    "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ IN "
    "(1, 3))");
const QString kAbfrageAuftrag = QStringLiteral(
    "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ = 2)");
const QString kRawWhere = QStringLiteral("WHERE Typ IN (1, 3)");
constexpr int kScreen = BrowserRows::kPageSize;

long statusKb(const char* field) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : f.readAll().split('\n')) {
        if (line.startsWith(field)) {
            return line.mid(static_cast<qsizetype>(strlen(field)))
                .trimmed()
                .split(' ')
                .first()
                .toLong();
        }
    }
    return 0;
}

// Lets the peak start again from what is in use now.
void resetPeak() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (f.open(QIODevice::WriteOnly)) {
        f.write("5");
    }
}

double millis(const std::function<void()>& body) {
    QElapsedTimer t;
    t.start();
    body();
    return static_cast<double>(t.nsecsElapsed()) / 1e6;
}

// The best of a few runs after a warm-up, so that both sides read from a warm cache; `setup`
// runs before each and is not timed.
double best(
    int runs, const std::function<void()>& body, const std::function<void()>& setup = [] {}) {
    setup();
    body();
    double b = 1e300;
    for (int i = 0; i < runs; ++i) {
        setup();
        b = std::min(b, millis(body));
    }
    return b;
}

// One viewer window: the browser set up as the service log sets it up.
struct Viewer {
    std::unique_ptr<IWindow> window;
    HeadlessBrowser* browser = nullptr;

    explicit Viewer(HeadlessWindowFactory& factory, bool jobs = false)
        : window(factory.create(frmPakete::declaration())) {
        browser = &window->get<HeadlessBrowser>(QStringLiteral("ctlPakete"));
        browser->setTitel(QStringLiteral("Logdaten Dienst"));
        browser->setSchluessel(jobs ? QStringLiteral("Sys.JobAgent.LogDaten.Auftrag")
                                    : QStringLiteral("Sys.JobAgent.LogDaten.Dienst"));
        browser->setAbfrage(jobs ? kAbfrageAuftrag : kAbfrage);
        browser->setMitarbeiterId(1);
        browser->setMitarbeiterName(QStringLiteral("Sachbearbeiter 1"));
        for (const char* hidden :
             {"Id", "AutoJobId", "Typ", jobs ? "Herkunft" : "Auftrag Kennung"}) {
            browser->Spalte(QString::fromLatin1(hidden))->SpalteFlagA = true;
        }
    }
    void open() {
        browser->Load();
        for (const QString& c : browser->SpaltenNamen()) {
            browser->Spalte(c)->SpalteFlagB = true;
        }
        if (browser->RecordCount() > 0) {
            browser->setRow(1);
        }
        show(1);
    }
    // Reads the screen's rows from `first` on, as the list paints them.
    void show(int first) {
        const int last = std::min(browser->RecordCount(), first + kScreen - 1);
        for (int r = first; r <= last; ++r) {
            browser->Item(r);
        }
    }
};

void line(const char* what, double ours, double raw, const char* target) {
    std::printf("%-40s %10.2f ms %10.2f ms %8.2fx   %s\n", what, ours, raw, ours / raw, target);
}

// The yardstick of a run: SQLite itself on the file, or the server through QPSQL.
struct Raw {
    const char* name;
    // The view's date column as the database writes it.
    QString dateColumn;
    std::function<long long(const QString&)> run;
    std::function<long long(const QString&)> number;
    // Writes deleted entries from..to again.
    std::function<void(long long, long long)> fill;
    // Runs once after everything deleted was written again.
    std::function<void()> settle = [] {};
    // Runs before each delete, untimed.
    std::function<void()> beforeDelete = [] {};
    // Whether the far row is also read with a plain OFFSET on the view.
    bool offsetScan = true;
    // How many months are deleted (up to eight), alternately by the viewer and the raw side.
    int deleteMonths = 4;
};

int measure(const QString& path, const QString& emptyPath, Raw& raw, long long total);

// The log as a database of its own on the server, built when the server does not have it
// whole.
int onServer(long long total, bool anew) {
    namespace Server = ScaleBenchServer;
    std::printf("Server: %s\n", qPrintable(Server::describe()));
    const QString name = QStringLiteral("ajv_bench_logdaten_%1").arg(total);
    if (!anew) {
        // A run broken off before the deleted months were written back leaves fewer entries.
        bool whole = true;
        try {
            whole =
                RawPostgres(Server::address(name))
                    .number(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")) == total;
        } catch (const RaisedError&) {
        }
        anew = !whole;
    }
    if (anew) {
        Server::drop(name);
    }
    const QString address = Server::dataSet(
        name, [total](const QString& partial) { BenchLogDataServer::create(partial, total); });
    const QString emptyAddress =
        Server::dataSet(QStringLiteral("ajv_bench_logdaten_0"), [](const QString& partial) {
            Database::open(partial, std::make_shared<SystemClock>())->applySchema();
        });
    RawPostgres db(address);
    Raw raw{"PostgreSQL", QStringLiteral("\"datum/uhrzeit\""),
            [&db](const QString& sql) { return db.run(sql); },
            [&db](const QString& sql) { return db.number(sql); },
            [&db, total](long long from, long long to) {
                BenchLogDataServer::fill(db, from, to, total);
            },
            [&db] { BenchLogDataServer::settle(db); },
            // Each delete starts after a checkpoint, so that both sides write every page they
            // change whole into the log and neither profits from the other's checkpoint.
            [&db] { db.run(QStringLiteral("CHECKPOINT")); },
            // The server works out the view's per-row lookups for every row an OFFSET skips
            // (about a minute a run at five million); the keyed statement is the one to
            // compare with.
            false,
            // One delete on the server takes up to half as long again as the next: the best of
            // four a side is steadier.
            8};
    std::printf(
        "viewer on %s against plain queries through QtSql's QPSQL driver on the same "
        "database\n",
        qPrintable(address));
    return measure(address, emptyAddress, raw, total);
}

}  // namespace

int main(int argc, char** argv) {
    QString path = QStringLiteral("/tmp/ajv_bench_logdaten.sqlite");
    long long total = 10000000;
    bool anew = false;
    bool server = false;
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        if (a == u"--db" && i + 1 < argc) {
            path = QString::fromLocal8Bit(argv[++i]);
        } else if (a == u"--rows" && i + 1 < argc) {
            total = QString::fromLocal8Bit(argv[++i]).toLongLong();
        } else if (a == u"--neu") {
            anew = true;
        } else if (a == u"--postgresql") {
            server = true;
        } else {
            std::fprintf(stderr, "usage: %s [--db FILE | --postgresql] [--rows N] [--neu]\n",
                         argv[0]);
            return 2;
        }
    }
    if (server) {
        QCoreApplication app(argc, argv);
        try {
            return onServer(total, anew);
        } catch (const RaisedError& e) {
            std::fprintf(stderr, "%s\n", e.what());
            return 1;
        }
    }
    const QString emptyPath = path + QStringLiteral(".leer");

    // The log is built in a child process, so that its memory does not count here.
    const bool have = !anew && QFileInfo::exists(path) &&
                      RawSqlite(path).number(
                          QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")) == total;
    if (!have) {
        std::printf("Building %lld log entries in %s ...\n", total, qPrintable(path));
        std::fflush(stdout);
        const pid_t child = fork();
        if (child == 0) {
            QElapsedTimer t;
            t.start();
            BenchLogData::create(path, total);
            std::printf("built in %.1f s\n", static_cast<double>(t.elapsed()) / 1000.0);
            std::fflush(stdout);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            std::fprintf(stderr, "building the log failed\n");
            return 1;
        }
    }
    if (!QFileInfo::exists(emptyPath)) {
        Database::open(emptyPath, std::make_shared<SystemClock>())->applySchema();
    }

    QCoreApplication app(argc, argv);
    // Opened at its first use, after the viewer on the empty log was measured.
    std::optional<RawSqlite> opened;
    const auto file = [&]() -> RawSqlite& {
        if (!opened) {
            opened.emplace(path);
        }
        return *opened;
    };
    Raw raw{"SQLite", QStringLiteral("[Datum/Uhrzeit]"),
            [&file](const QString& sql) { return file().run(sql); },
            [&file](const QString& sql) { return file().number(sql); },
            [&file, total](long long from, long long to) {
                BenchLogData::fill(file(), from, to, total);
            }};
    return measure(path, emptyPath, raw, total);
}

namespace {

int measure(const QString& path, const QString& emptyPath, Raw& raw, long long total) {
    HeadlessWindowFactory factory;

    // The viewer on an empty log: what the program needs anyway.
    long emptyPeak = 0;
    {
        auto db = Database::open(emptyPath, std::make_shared<SystemClock>());
        Services s;
        s.newRecordset = db->recordsetFactory();
        ScopedServices scope(s);
        Viewer v(factory);
        v.open();
        emptyPeak = statusKb("VmHWM:");
    }
    resetPeak();

    auto db = Database::open(path, std::make_shared<SystemClock>());
    Services s;
    s.newRecordset = db->recordsetFactory();
    ScopedServices scope(s);
    const QString view = QStringLiteral("SELECT * FROM SYS_JobAgentLogDaten_Anzeigen ") + kRawWhere;
    const long long shown = raw.number(
        QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp IN (1, 3)"));
    raw.run(QStringLiteral("DELETE FROM tBrowserEinstellungen"));
    std::printf("\n%lld log entries, %lld in the service log; a screen is %d rows\n\n", total,
                shown, kScreen);
    std::printf("%-40s %13s %13s %9s   %s\n", "", "viewer", raw.name, "ratio", "target");

    // First screen: count and the first rows.
    const double firstOurs = best(3, [&] {
        Viewer v(factory);
        v.open();
    });
    const double firstRaw = best(3, [&] {
        raw.number(
            QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp IN (1, 3)"));
        raw.run(view + QStringLiteral(" ORDER BY Id LIMIT %1").arg(kScreen));
    });
    line("first screen (count + rows)", firstOurs, firstRaw, "<= 1.5x");

    BenchLogSearch::measure(
        raw.name == std::string_view("PostgreSQL"),
        [&](const QString& statement) {
            Viewer v(factory, true);
            v.browser->setAbfrage(statement);
            v.open();
        },
        [&](const QString& sql) { raw.run(sql); },
        [](int runs, const std::function<void()>& body) { return best(runs, body); }, line,
        kScreen);
    if (raw.name == std::string_view("SQLite")) {
        BenchLogSearch::measureUpkeep(emptyPath, line);
    }

    // Last row: a viewer just opened jumps to the end.
    std::unique_ptr<Viewer> v;
    const auto fresh = [&] {
        v.reset();
        v = std::make_unique<Viewer>(factory);
        v->open();
    };
    fresh();
    const int count = v->browser->RecordCount();
    const double lastOurs = best(
        3,
        [&] {
            v->browser->setRow(count);
            v->show(std::max(1, count - kScreen + 1));
        },
        fresh);
    const double lastRaw =
        best(3, [&] { raw.run(view + QStringLiteral(" ORDER BY Id DESC LIMIT %1").arg(kScreen)); });
    line("jump to the last row", lastOurs, lastRaw, "<= 1.5x");

    // A statement the database refuses is shown in place of the figure, and the bench goes on.
    QString sortFailed;
    double sortOurs = 0;
    try {
        sortOurs = best(3, [&] {
            v->browser->sortBy(QStringLiteral("Datum/Uhrzeit"), false);
            v->show(1);
            v->browser->sortBy(QStringLiteral("Datum/Uhrzeit"), true);
            v->show(1);
        });
    } catch (const RaisedError& e) {
        sortFailed = QString::fromUtf8(e.what()).section(u'\n', 0, 0);
    }
    const double sortRaw = best(3, [&] {
        // The viewer's order on every database: NULLs first ascending, last descending.
        raw.run(view + QStringLiteral(" ORDER BY %1 DESC NULLS LAST, Id DESC LIMIT %2")
                           .arg(raw.dateColumn)
                           .arg(kScreen));
        raw.run(view + QStringLiteral(" ORDER BY %1 NULLS FIRST, Id LIMIT %2")
                           .arg(raw.dateColumn)
                           .arg(kScreen));
    });
    if (sortFailed.isEmpty()) {
        line("sort by \"Datum/Uhrzeit\"", sortOurs, sortRaw, "");
    } else {
        std::printf("%-40s %13s %10.2f ms            the viewer failed: %s\n",
                    "sort by \"Datum/Uhrzeit\"", "-", sortRaw, qPrintable(sortFailed));
    }
    raw.run(QStringLiteral("DELETE FROM tBrowserEinstellungen"));

    // The details window reads the current row's columns: row 5,000,000 of the job log.
    const long long jobRows =
        raw.number(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2"));
    const int far = static_cast<int>(std::min<long long>(5000000, jobRows));
    const auto freshJobs = [&] {
        v.reset();
        v = std::make_unique<Viewer>(factory, true);
        v->open();
    };
    QVariant ourId;
    const double farOurs = best(
        3,
        [&] {
            v->browser->setRow(far);
            ourId = v->browser->Item(far).front().second;
        },
        freshJobs);
    const QString jobView =
        QStringLiteral("SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE Typ = 2");
    const double farRaw = !raw.offsetScan ? 1e300 : best(3, [&] {
        raw.run(jobView + QStringLiteral(" ORDER BY Id LIMIT 1 OFFSET %1").arg(far - 1));
    });
    const double farRawKeyed = best(3, [&] {
        raw.run(QStringLiteral("SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE Id = (SELECT Id "
                               "FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 ORDER BY Id "
                               "LIMIT 1 OFFSET %1)")
                    .arg(far - 1));
    });
    line(qPrintable(QStringLiteral("row %1 of the job log (details)").arg(far)), farOurs,
         std::min(farRaw, farRawKeyed), "");
    const long long rawId = raw.number(QStringLiteral("SELECT Id FROM SYS_JobAgentLogDaten WHERE "
                                                      "LogTyp = 2 ORDER BY Id LIMIT 1 OFFSET %1")
                                           .arg(far - 1));
    if (ourId.toLongLong() != rawId) {
        std::printf("  MISMATCH: the viewer read entry %lld, %s %lld\n", ourId.toLongLong(),
                    raw.name, rawId);
    }
    const long viewerPeak = statusKb("VmHWM:");

    // Deleting a month: the viewer's statement through the record set, and the raw DELETE,
    // each on months of 31 days, the best of two (of four on the server).
    const char* months[][2] = {{"2023-01-01", "2023-01-31"}, {"2023-03-01", "2023-03-31"},
                               {"2023-05-01", "2023-05-31"}, {"2023-07-01", "2023-07-31"},
                               {"2023-08-01", "2023-08-31"}, {"2023-10-01", "2023-10-31"},
                               {"2023-12-01", "2023-12-31"}, {"2024-01-01", "2024-01-31"}};
    QList<QPair<long long, long long>> deleted;
    double delOurs = 1e300;
    double delRaw = 1e300;
    long long delRows = 0;
    for (int m = 0; m < raw.deleteMonths; ++m) {
        const QString where =
            QStringLiteral("(DatumUhrzeit BETWEEN '%1 00:00:00' AND '%2 23:59:59')")
                .arg(QLatin1String(months[m][0]), QLatin1String(months[m][1]));
        deleted.append(
            {raw.number(QStringLiteral("SELECT min(Id) FROM SYS_JobAgentLogDaten WHERE ") + where),
             raw.number(QStringLiteral("SELECT max(Id) FROM SYS_JobAgentLogDaten WHERE ") +
                        where)});
        const QString statement = QStringLiteral("DELETE FROM SYS_JobAgentLogDaten WHERE ") + where;
        raw.beforeDelete();
        if (m % 2 == 0) {
            delOurs = std::min(delOurs, millis([&] {
                                   auto rs = services().newRecordset();
                                   rs->Connect();
                                   delRows = rs->Execute(statement);
                                   rs->Disconnect();
                               }));
        } else {
            delRaw = std::min(delRaw, millis([&] { raw.run(statement); }));
        }
    }
    line(qPrintable(QStringLiteral("delete one month (%1 rows)").arg(delRows)), delOurs, delRaw,
         "<= 1.1x");
    for (const auto& [from, to] : deleted) {
        raw.fill(from, to);
    }
    raw.settle();

    std::printf(
        "\npeak memory: %.1f MB with an empty log, %.1f MB with %lld entries: "
        "%.1f MB more (target < 100 MB)\n",
        emptyPeak / 1024.0, viewerPeak / 1024.0, total, (viewerPeak - emptyPeak) / 1024.0);
    return 0;
}

}  // namespace
