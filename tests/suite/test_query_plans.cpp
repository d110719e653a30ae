#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include "suite/Database.h"
#include "suite/SqlDialect.h"

// Every statement the system runs on the run history and the log data reaches its rows through
// an index: none reads the whole run table or the whole log table, however large they grow.

namespace {

const QDateTime kNow(QDate(2026, 11, 23), QTime(9, 30, 0));

// The run and log tables under their own names and under the names the views give them.
const QStringList kLargeTables{"tAutoJobVerlauf", "SYS_JobAgentLogDaten", "v", "lv", "l"};

class QueryPlans : public ::testing::Test {
  protected:
    void SetUp() override {
        db = Database::open(":memory:", std::make_shared<FixedClock>(kNow));
        db->applySchema();
    }

    // The plan of a statement as the record set would run it.
    QStringList plan(const QString& serverSql) {
        QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
        const QString sql =
            QStringLiteral("EXPLAIN QUERY PLAN ") + SqlDialect::translate(serverSql, kNow);
        EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString() << "\n"
                                     << sql.toStdString();
        QStringList details;
        while (query.next()) {
            details << query.value(3).toString();
        }
        return details;
    }

    // The steps that read one of the large tables from end to end.
    QStringList fullScans(const QString& serverSql) {
        static const QRegularExpression scan(QStringLiteral("^SCAN (\\S+)"));
        QStringList found;
        for (const QString& step : plan(serverSql)) {
            const auto m = scan.match(step);
            if (m.hasMatch() && kLargeTables.contains(m.captured(1))) {
                found << step;
            }
        }
        return found;
    }

    void expectNoFullScan(const QString& serverSql) {
        EXPECT_EQ(fullScans(serverSql), QStringList()) << serverSql.toStdString() << "\n"
                                                       << plan(serverSql).join(u'\n').toStdString();
    }

    std::shared_ptr<Database> db;
};

// The history's statement, piece by piece as the history window builds it.
QString historyStatement(long jobId, const QString& unit, long n, int erfolgreich) {
    QString s = QStringLiteral(" SELECT     ") + "tAutoJobVerlauf" + ".*, " + "tAutoJobSchedule" +
                "." + "idAutoJob" + " AS " + "idAutoJob";
    s += QStringLiteral(" FROM        ") + "tAutoJobSchedule" + " INNER JOIN " + "tAutoJobVerlauf" +
         " ON " + "tAutoJobSchedule" + "." + "idAutoJobSchedule" + " = " + "tAutoJobVerlauf" + "." +
         "idAutoJobSchedule";
    s += QStringLiteral(" WHERE ") + "tAutoJobSchedule" + "." + "idAutoJob" + "=" +
         QString::number(jobId);
    s += QStringLiteral(" AND datediff(") + unit + ", " + "tAutoJobVerlauf" + "." +
         "LetzteAusfuehrung" + ", getdate()) <= " + QString::number(n);
    if (erfolgreich != 3) {
        s += QStringLiteral(" AND ") + "tAutoJobVerlauf" + "." + "Erfolgreich" + " = " +
             QString::number(erfolgreich);
    }
    return s;
}

TEST_F(QueryPlans, TheHistoryReadsTheRunsOfItsPeriodByIndex) {
    for (const QString unit : {"Day", "Week", "Month", "Year"}) {
        for (const int erfolgreich : {3, 1}) {
            const QString sql = historyStatement(12, unit, 2, erfolgreich);
            expectNoFullScan(sql);
            // The period bounds the search on the run time, not only the schedule.
            EXPECT_TRUE(plan(sql).join(u'\n').contains(u"LetzteAusfuehrung>"))
                << plan(sql).join(u'\n').toStdString();
        }
    }
}

TEST_F(QueryPlans, DeletingTheHistoryFindsTheRunsOfTheJobsSchedules) {
    const QString sql = QStringLiteral(" delete from ") + "tAutoJobVerlauf" + " where " +
                        "tAutoJobVerlauf" + "." + "idAutoJobSchedule" + " in " + "(select " +
                        "tAutoJobSchedule" + "." + "idAutoJobSchedule" + " FROM " +
                        "tAutoJobSchedule" + " WHERE " + "idAutoJob" + " = " + "12" + ")";
    expectNoFullScan(sql);
}

TEST_F(QueryPlans, TheLogBrowserReadsItsKindAndJobByIndex) {
    const QString base =
        "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE (SYS_JobAgentLogDaten_Anzeigen.Typ";
    const QString job = " AND ( SYS_JobAgentLogDaten_Anzeigen.AutoJobId = 7)";
    expectNoFullScan(base + " IN (1, 3))");
    expectNoFullScan(base + " = 2)");
    expectNoFullScan(base + " IN (1, 3))" + job);
    expectNoFullScan(base + " = 2)" + job);
}

TEST_F(QueryPlans, DeletingLogDataFindsItsPeriodByIndex) {
    const QString von = "'2026-10-01 00:00:00'";
    const QString bis = "'2026-10-31 23:59:59'";
    const QStringList periods{"(DatumUhrzeit BETWEEN " + von + " AND " + bis + ")",
                              "(DatumUhrzeit >= " + von + ")", "(DatumUhrzeit <= " + bis + ")"};
    for (const QString& period : periods) {
        for (const QString kind : {"(LogTyp IN (1, 3))", "(LogTyp = 2)"}) {
            const QString sql = "DELETE FROM SYS_JobAgentLogDaten WHERE " + period + " AND " + kind;
            expectNoFullScan(sql);
            expectNoFullScan(sql + " AND (JobArt = 4)");
            expectNoFullScan(sql + " AND (AutoJobId = 7)");
        }
    }
}

TEST_F(QueryPlans, DeletingJobsCountsAndDeletesTheirLogEntriesByIndex) {
    for (const QString bedingung : {" = 7", " IN (7 ,8 ,9)"}) {
        expectNoFullScan(QStringLiteral("Select count(Id) AS Anzahl FROM SYS_JobAgentLogDaten "
                                        "WHERE AutoJobId") +
                         bedingung);
        expectNoFullScan(QStringLiteral("DELETE FROM SYS_JobAgentLogDaten WHERE AutoJobId") +
                         bedingung);
    }
}

TEST_F(QueryPlans, TheJobListSeeksEachJobsLatestRunInsteadOfSortingItsRuns) {
    for (const QString sql : {"SELECT * FROM V_ZPK_Applications_System_AutoJob",
                              "SELECT * FROM V_ZPK_Applications_System_AutoJob WHERE PSId = 3"}) {
        expectNoFullScan(sql);
        // Per schedule one seek for its newest run; no run is sorted.
        const QString p = plan(sql).join(u'\n');
        EXPECT_TRUE(p.contains(u"ixAutoJobVerlauf_ScheduleZeit (idAutoJobSchedule=?)"))
            << p.toStdString();
        EXPECT_FALSE(p.contains(u"TEMP B-TREE")) << p.toStdString();
    }
}

TEST_F(QueryPlans, CountingTheJobListTouchesNoRun) {
    const QString p =
        plan(QStringLiteral("SELECT count(*) FROM V_ZPK_Applications_System_AutoJob")).join(u'\n');
    EXPECT_FALSE(p.contains(u"ixAutoJobVerlauf")) << p.toStdString();
    EXPECT_FALSE(p.contains(u"tAutoJobSchedule")) << p.toStdString();
}

}  // namespace
