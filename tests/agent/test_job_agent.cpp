#include <gtest/gtest.h>

#include <QSet>
#include <QSqlRecord>

#include "agent/JobAgentSimulator.h"
#include "common/ErrObject.h"
#include "suite/SqlDates.h"
#include "tests/agent/AgentTestDatabase.h"

namespace {

const QDateTime kNow(QDate(2024, 3, 1), QTime(8, 15, 0));

class JobAgent : public ::testing::Test {
  protected:
    std::shared_ptr<Database> open() {
        return Database::open(data.path, std::make_shared<FixedClock>(kNow));
    }
    qint64 count(const QString& sql) { return AgentTestDatabase::count(*db, sql); }

    // Everything the configuration program owns, as one text.
    QString ownedRows() {
        QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
        QString all;
        for (const QString table : {"tAutoJobJob", "tAutoJobSchedule"}) {
            EXPECT_TRUE(query.exec(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(table)));
            while (query.next()) {
                for (int c = 0; c < query.record().count(); ++c) {
                    all += query.value(c).toString() + u'|';
                }
                all += u'\n';
            }
        }
        return all;
    }

    AgentTestDatabase data;
    std::shared_ptr<Database> db = open();
};

TEST_F(JobAgent, BulkWritesTheGivenRunsPerJobOverThePeriodAndCountsThem) {
    const QString before = ownedRows();
    AgentOptions options;
    options.years = 2;
    options.runsPerJob = 500;
    JobAgentSimulator agent(db, options);
    const int schedules = agent.loadSchedules();
    ASSERT_GT(schedules, 5);
    const AgentCounts written = agent.fillYears();

    const qint64 jobs =
        count("SELECT count(DISTINCT idAutoJob) FROM tAutoJobSchedule WHERE Aktiviert <> 0");
    EXPECT_EQ(written.runs, jobs * 500);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), written.runs);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), written.logEntries);
    // Each job's runs, spread over its schedules.
    EXPECT_EQ(count("SELECT min(n) FROM (SELECT count(*) AS n FROM tAutoJobVerlauf v JOIN "
                    "tAutoJobSchedule s USING (idAutoJobSchedule) GROUP BY s.idAutoJob)"),
              500);
    // Stored as the system stores dates, within the two years up to now, ids in time order.
    EXPECT_EQ(
        count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung NOT GLOB "
              "'[0-9][0-9][0-9][0-9]-[0-1][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]'"),
        0);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung < "
                    "'2022-03-01 08:15:00' OR LetzteAusfuehrung > '2024-03-01 08:15:00'"),
              0);
    // Spread over the whole period: the latest runs lie in its last days.
    EXPECT_GT(count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung >= "
                    "'2024-02-28 00:00:00'"),
              0);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf a JOIN tAutoJobVerlauf b ON "
                    "b.idAutoJobVerlauf = a.idAutoJobVerlauf + 1 WHERE b.LetzteAusfuehrung < "
                    "a.LetzteAusfuehrung"),
              0);
    EXPECT_EQ(ownedRows(), before);
}

TEST_F(JobAgent, ResultCodesAndPathsAreTheOnesOfTheJobType) {
    AgentOptions options;
    options.years = 1;
    options.runsPerJob = 300;
    JobAgentSimulator agent(db, options);
    agent.loadSchedules();
    agent.fillYears();
    QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
    ASSERT_TRUE(query.exec(
        "SELECT DISTINCT j.DatenArt, v.Erfolgreich FROM tAutoJobVerlauf v JOIN tAutoJobSchedule "
        "s USING (idAutoJobSchedule) JOIN tAutoJobJob j ON j.idAutoJob = s.idAutoJob"));
    const QMap<int, QSet<int>> allowed{{4, {0, 1, 2}},  {17, {0, 1, 2}}, {18, {0, 1, 2}},
                                       {28, {0, 1, 4}}, {30, {0, 1, 5}}, {20, {10, 11}},
                                       {21, {20, 21}},  {5, {0, 1}},     {99, {0, 1}}};
    QMap<int, QSet<int>> seen;
    while (query.next()) {
        seen[query.value(0).toInt()] << query.value(1).toInt();
    }
    ASSERT_FALSE(seen.isEmpty());
    for (auto it = seen.cbegin(); it != seen.cend(); ++it) {
        EXPECT_TRUE(allowed.value(it.key()).contains(it.value())) << "type " << it.key();
        EXPECT_GE(it.value().size(), 2) << "type " << it.key();
    }
    // The run keeps the job's directories; the backup gets a folder of its own per run.
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf v JOIN tAutoJobSchedule s USING "
                    "(idAutoJobSchedule) JOIN tAutoJobJob j ON j.idAutoJob = s.idAutoJob WHERE "
                    "v.ErrorMTA IS NOT j.ErrorMTA OR v.MTAPath IS NOT j.MTAPath"),
              0);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf v JOIN tAutoJobSchedule s USING "
                    "(idAutoJobSchedule) JOIN tAutoJobJob j ON j.idAutoJob = s.idAutoJob WHERE "
                    "j.DatenArt = 4 AND v.BackupPath NOT LIKE j.BackupPath || '/________\\_______' "
                    "ESCAPE '\\'"),
              0);
    // Job entries name their log file; the kinds of the log viewer are all there.
    EXPECT_GT(count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 AND JobArt = 17 "
                    "AND Zusatz LIKE '%/KUND%.XLS'"),
              0);
    EXPECT_EQ(count("SELECT count(DISTINCT LogTyp) FROM SYS_JobAgentLogDaten"), 3);
}

TEST_F(JobAgent, AGivenNumberOfLogEntriesIsWrittenExactly) {
    AgentOptions options;
    options.years = 1;
    options.runsPerJob = 10;
    options.logEntries = 12345;
    options.jobId = 1;
    JobAgentSimulator agent(db, options);
    agent.loadSchedules();
    const AgentCounts written = agent.fillYears();
    EXPECT_EQ(written.logEntries, 12345);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), 12345);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf v JOIN tAutoJobSchedule s USING "
                    "(idAutoJobSchedule) WHERE s.idAutoJob <> 1"),
              0);
    EXPECT_EQ(
        count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 AND AutoJobId <> 1"), 0);
}

TEST_F(JobAgent, ALiveRunIsWrittenAtTheMomentNowInOneTransaction) {
    JobAgentSimulator agent(db, AgentOptions{});
    agent.loadSchedules();
    ASSERT_TRUE(agent.runOnce());
    ASSERT_TRUE(agent.runOnce());
    EXPECT_EQ(agent.counts().runs, 2);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung = "
                    "'2024-03-01 08:15:00'"),
              2);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), agent.counts().logEntries);

    // A run that cannot be written leaves nothing behind and is not counted.
    db->runScript(
        "CREATE TRIGGER tNoRuns BEFORE INSERT ON tAutoJobVerlauf BEGIN "
        "SELECT RAISE(ABORT, 'no runs'); END");
    const AgentCounts before = agent.counts();
    EXPECT_THROW(agent.runOnce(), RaisedError);
    EXPECT_EQ(agent.counts().runs, before.runs);
    EXPECT_EQ(agent.counts().logEntries, before.logEntries);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), before.logEntries);
}

TEST_F(JobAgent, WithoutSchedulesThereIsNothingToRun) {
    db->runScript("UPDATE tAutoJobSchedule SET Aktiviert = 0");
    JobAgentSimulator agent(db, AgentOptions{});
    EXPECT_EQ(agent.loadSchedules(), 0);
    EXPECT_FALSE(agent.runOnce());
}

}  // namespace
