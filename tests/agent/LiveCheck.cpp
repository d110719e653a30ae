#include "tests/agent/LiveCheck.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <atomic>
#include <mutex>
#include <thread>

#include "agent/JobAgentSimulator.h"
#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "suite/Database.h"

namespace {

// Seconds of the check; AJV_LIVE_CHECK_SECONDS makes it longer by hand.
int checkSeconds() {
    const int seconds = qEnvironmentVariableIntValue("AJV_LIVE_CHECK_SECONDS");
    return seconds > 0 ? seconds : 4;
}

qint64 count(const Database& db, const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(db.connectionName(), false));
    EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
    return query.next() ? query.value(0).toLongLong() : -1;
}

struct LiveAgent {
    std::atomic<bool> stop{false};
    std::atomic<qint64> runs{0};
    std::atomic<qint64> logEntries{0};
    std::mutex mutex;
    QStringList failures;

    void run(const QString& path) {
        // A connection lives in the thread that opened it.
        auto db = Database::open(path, std::make_shared<SystemClock>());
        JobAgentSimulator agent(db, AgentOptions{});
        agent.loadSchedules();
        while (!stop) {
            try {
                agent.runOnce();
            } catch (const RaisedError& e) {
                std::lock_guard lock(mutex);
                failures << e.err().Description;
            }
            runs = agent.counts().runs;
            logEntries = agent.counts().logEntries;
            QThread::msleep(5);
        }
    }
};

}  // namespace

void checkTheProgramWhileTheAgentWrites(const QString& location) {
    auto db = Database::open(location, std::make_shared<SystemClock>());
    {
        // Two years of history and log data to browse and delete in.
        AgentOptions options;
        options.years = 2;
        options.runsPerJob = 2000;
        JobAgentSimulator bulk(db, options);
        bulk.loadSchedules();
        bulk.fillYears();
    }
    const qint64 runsBefore = count(*db, "SELECT count(*) FROM tAutoJobVerlauf");
    const qint64 lastLogBefore = count(*db, "SELECT max(Id) FROM SYS_JobAgentLogDaten");

    LiveAgent agent;
    std::thread writer([&] { agent.run(location); });

    QStringList failures;
    auto program = [&](const QString& sql, bool query) {
        try {
            auto rs = db->recordsetFactory()();
            rs->Connect();
            const long n = query ? rs->OpenQuery(sql, 2) : rs->Execute(sql);
            rs->Close();
            rs->Disconnect();
            return n;
        } catch (const RaisedError& e) {
            failures << e.err().Description;
            return -1L;
        }
    };
    const QString history =
        " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob"
        " FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON "
        "tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule"
        " WHERE tAutoJobSchedule.idAutoJob=%1 AND datediff(%2, tAutoJobVerlauf.LetzteAusfuehrung, "
        "getdate()) <= %3";
    const QString logs =
        "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ%1)";
    QElapsedTimer timer;
    timer.start();
    int rounds = 0;
    qint64 deleted = 0;
    while (timer.elapsed() < checkSeconds() * 1000) {
        const int job = 1 + rounds % 5;
        EXPECT_GT(program("SELECT * FROM V_ZPK_Applications_System_AutoJob", true), 0);
        EXPECT_GT(program(history.arg(job).arg(rounds % 2 ? "Week" : "Month").arg(2), true), 0);
        program(logs.arg(" = 2") + QStringLiteral(" AND ( SYS_JobAgentLogDaten_Anzeigen.AutoJobId "
                                                  "= %1)")
                                       .arg(job),
                true);
        // A day of old log data after the other, of both kinds.
        const QDate day = QDate::currentDate().addDays(-700 + rounds);
        const QString period =
            QStringLiteral("(DatumUhrzeit BETWEEN '%1 00:00:00' AND '%1 23:59:59')")
                .arg(day.toString(Qt::ISODate));
        deleted += program("DELETE FROM SYS_JobAgentLogDaten WHERE " + period +
                               (rounds % 2 ? " AND (LogTyp IN (1, 3))" : " AND (LogTyp = 2)"),
                           false);
        ++rounds;
    }
    agent.stop = true;
    writer.join();

    EXPECT_EQ(failures, QStringList());
    EXPECT_EQ(agent.failures, QStringList());
    EXPECT_GT(rounds, 3);
    EXPECT_GT(deleted, 0);
    EXPECT_GT(agent.runs, 10);
    EXPECT_EQ(count(*db, "SELECT count(*) FROM tAutoJobVerlauf"), runsBefore + agent.runs);
    EXPECT_EQ(count(*db, QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE Id > %1")
                             .arg(lastLogBefore)),
              agent.logEntries);
}
