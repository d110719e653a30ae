// The history the agent writes for a year agrees with the forecast of runs, start by start.
#include <gtest/gtest.h>

#include <QSqlQuery>
#include <QTimeZone>

#include "agent/JobAgentSimulator.h"
#include "forecast/RunForecast.h"
#include "suite/Database.h"
#include "tests/agent/AgentTestDatabase.h"

namespace {

TEST(AgentForecast, TheRunsOfAYearAreTheForecastsStarts) {
    AgentTestDatabase data;
    const QDateTime now(QDate(2026, 11, 2), QTime(8, 15, 0));
    auto db = Database::open(data.path, std::make_shared<FixedClock>(now));
    // Job 1 gets schedules across a clock change, on month ends, across midnight and one that
    // is not active; job 2 is not active.
    db->runScript(
        QStringLiteral("DELETE FROM tAutoJobSchedule WHERE idAutoJob IN (1, 2); "
                       "UPDATE tAutoJobJob SET Aktiviert = 1 WHERE idAutoJob = 1; "
                       "UPDATE tAutoJobJob SET Aktiviert = 0 WHERE idAutoJob = 2"));
    const QList<ScheduleRule> rules{
        {8, 1 + 64, 1, 0, 4, 15, 13000, 33000, QDate(2025, 6, 1), QDate(9999, 12, 31)},
        {16, 31, 1, 0, 1, 1, 223000, 235959, QDate(2025, 1, 1), QDate(9999, 12, 31)},
        {4, 2, 0, 0, 8, 1, 223000, 20000, QDate(2026, 3, 1), QDate(2026, 5, 1)},
        {32, 9, 2, 16, 1, 1, 70000, 0, QDate(2025, 2, 1), QDate(9999, 12, 31)},
        {1, 0, 0, 0, 1, 0, 120000, 235959, QDate(2026, 2, 3), QDate(2026, 2, 3)},
    };
    QSqlQuery q(QSqlDatabase::database(db->connectionName(), false));
    auto insert = [&](long job, int aktiv, const ScheduleRule& r) {
        q.prepare(QStringLiteral(
            "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
            "FrequencyInterval, FrequencyRecurrenceFactor, FrequencyRelativeInterval, "
            "FrequencySubDay, FrequencySubDayinterval, ActiveStartTimeOfDay, "
            "ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate) VALUES "
            "(?, 'Z', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
        for (const QVariant& v : QVariantList{
                 qlonglong(job), aktiv, r.lFreqencyType, r.lFrequencyInterval,
                 r.lFrequencyRecurrenceFactor, r.lFrequencyRelativeInterval, r.lFrequencySubDay,
                 r.lFrequencySubDayinterval, r.lActiveStartTimeOfDay, r.lActiveEndTimeOfDay,
                 r.dActiveStartDate.toString(Qt::ISODate) + QStringLiteral(" 00:00:00"),
                 r.dActiveEndDate.toString(Qt::ISODate) + QStringLiteral(" 00:00:00")}) {
            q.addBindValue(v);
        }
        EXPECT_TRUE(q.exec());
        return q.lastInsertId().toLongLong();
    };
    QList<qlonglong> ids;
    for (const ScheduleRule& r : rules) {
        ids << insert(1, 1, r);
    }
    insert(1, 0, rules[1]);
    insert(2, 1, rules[1]);

    QStringList want;
    LocalClock clock(QTimeZone::systemTimeZone());
    for (qsizetype k = 0; k < rules.size(); ++k) {
        for (const ForecastRun& run :
             RunForecast::runs(rules[k], now.addYears(-1).toSecsSinceEpoch(),
                               now.toSecsSinceEpoch() + 1, clock)) {
            want << RunForecast::storedText(run.wall) + QStringLiteral(" %1").arg(ids[k]);
        }
    }
    want.sort();

    for (const long job : {1L, 2L}) {
        AgentOptions options;
        options.years = 1;
        options.jobId = job;
        JobAgentSimulator agent(db, options);
        agent.loadSchedules();
        agent.fillYears();
    }
    ASSERT_TRUE(q.exec(
        QStringLiteral("SELECT LetzteAusfuehrung || ' ' || idAutoJobSchedule FROM tAutoJobVerlauf "
                       "ORDER BY idAutoJobVerlauf")));
    QStringList got;
    while (q.next()) {
        got << q.value(0).toString();
    }
    // Written in the order of time.
    QStringList inOrder = got;
    std::stable_sort(inOrder.begin(), inOrder.end(),
                     [](const QString& a, const QString& b) { return a.left(19) < b.left(19); });
    EXPECT_EQ(got, inOrder);
    got.sort();
    EXPECT_GT(want.size(), 400);
    EXPECT_EQ(got, want);
}

}  // namespace

namespace {

TEST(AgentForecast, LiveTheRunsComeAtTheForecastsStartsAsTheClockReachesThem) {
    AgentTestDatabase data;
    auto clock = std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 2), QTime(8, 0, 0)));
    auto db = Database::open(data.path, clock);
    // One schedule every 15 minutes from 08:10 to 09:00; every other schedule off.
    db->runScript(QStringLiteral(
        "UPDATE tAutoJobSchedule SET Aktiviert = 0; "
        "UPDATE tAutoJobJob SET Aktiviert = 1 WHERE idAutoJob = 1; "
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
        "FrequencyInterval, FrequencySubDay, FrequencySubDayinterval, ActiveStartTimeOfDay, "
        "ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate) VALUES (1, 'Viertelstündlich', 1, "
        "4, 1, 4, 15, 81000, 90000, '2026-01-01 00:00:00', '9999-12-31 00:00:00'); "
        "DELETE FROM tAutoJobVerlauf"));
    JobAgentSimulator agent(db, AgentOptions{});
    ASSERT_EQ(agent.loadSchedules(), 1);
    EXPECT_EQ(agent.runDue(), 0);  // what was due before the start is not made up
    clock->set(QDateTime(QDate(2026, 11, 2), QTime(8, 9, 59)));
    EXPECT_EQ(agent.runDue(), 0);
    clock->set(QDateTime(QDate(2026, 11, 2), QTime(8, 10, 0)));
    EXPECT_EQ(agent.runDue(), 1);
    EXPECT_EQ(agent.runDue(), 0);  // the same moment again makes nothing twice
    clock->set(QDateTime(QDate(2026, 11, 2), QTime(9, 30, 0)));
    EXPECT_EQ(agent.runDue(), 3);  // 08:25, 08:40, 08:55; the window ends at 09:00
    QSqlQuery q(QSqlDatabase::database(db->connectionName(), false));
    ASSERT_TRUE(
        q.exec(QStringLiteral("SELECT group_concat(LetzteAusfuehrung, ',') FROM "
                              "(SELECT LetzteAusfuehrung FROM tAutoJobVerlauf ORDER BY "
                              "idAutoJobVerlauf)")));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toString(),
              QStringLiteral("2026-11-02 08:10:00,2026-11-02 08:25:00,2026-11-02 08:40:00,"
                             "2026-11-02 08:55:00"));
    EXPECT_EQ(agent.counts().runs, 4);
}

}  // namespace
