#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <random>

#include "suite/Database.h"
#include "suite/SqlDates.h"
#include "suite/SqlDialect.h"

// The history's period condition, rewritten into a range on the run time, selects exactly the
// rows that the server's datediff selects.

namespace {

using SqlDialect::translate;

const QDateTime kNow(QDate(2024, 2, 29), QTime(13, 45, 10));

TEST(HistoryPeriod, TheHistoryStatementGetsARangeOnTheRunTime) {
    const QString sql =
        " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob"
        " FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON "
        "tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule"
        " WHERE tAutoJobSchedule.idAutoJob=7 AND datediff(Week, "
        "tAutoJobVerlauf.LetzteAusfuehrung, getdate()) <= 2 AND tAutoJobVerlauf.Erfolgreich = 1";
    const QString expected =
        " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob"
        " FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON "
        "tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule"
        " WHERE tAutoJobSchedule.idAutoJob=7 AND tAutoJobVerlauf.LetzteAusfuehrung >= "
        "'2024-02-11' AND tAutoJobVerlauf.Erfolgreich = 1";
    // 2024-02-29 is a Thursday; its week began on Sunday the 25th, two weeks before that the 11th.
    EXPECT_EQ(translate(sql, kNow).toStdString(), expected.toStdString());
    EXPECT_EQ(translate("select * from v where datediff(Day, v.d, getdate()) <= 0", kNow),
              "select * from v where v.d >= '2024-02-29'");
    EXPECT_EQ(translate("select * from v where (DATEDIFF( month ,[d],GETDATE())<=1)", kNow),
              "select * from v where ([d] >= '2024-01-01')");
    EXPECT_EQ(translate("select * from v where datediff(Year, d, getdate()) <= 4 order by d", kNow),
              "select * from v where d >= '2020-01-01' order by d");
    EXPECT_EQ(translate("select top 5 * from v where datediff(hh, d, getdate()) <= 3", kNow),
              "select * from v where d >= '2024-02-29 10:00:00' LIMIT 5");
}

TEST(HistoryPeriod, EveryOtherUseOfDatediffStaysAFunctionCall) {
    const QStringList untouched{
        "select * from v where datediff(day, d, e) <= 2",
        "select * from v where x + datediff(day, d, getdate()) <= 2",
        "select * from v where datediff(day, d, getdate()) <= 2 + 1",
        "select * from v where datediff(day, d, getdate()) < 2",
        "select * from v where datediff(day, d, getdate()) >= 2",
        "select * from v where datediff(day, getdate(), d) <= 2",
        "select * from v where datediff(day, d, getdate()) <= -2",
        "select * from v where datediff(day, d, getdate()) <= 1.5",
        "select * from v where datediff(day, d, getdate()) <= 2 * 3",
        "select * from v where 'datediff(day, d, getdate()) <= 2' = t",
    };
    for (const QString& sql : untouched) {
        EXPECT_EQ(translate(sql, kNow), translate(sql)) << sql.toStdString();
        EXPECT_TRUE(translate(sql, kNow).contains(u"datediff", Qt::CaseInsensitive))
            << sql.toStdString();
    }
    // Without the moment nothing is rewritten.
    EXPECT_EQ(translate("select * from v where datediff(Day, d, getdate()) <= 1"),
              "select * from v where datediff('day', d, getdate()) <= 1");
}

class HistoryPeriodProperty : public ::testing::Test {
  protected:
    void SetUp() override {
        db = Database::open(":memory:", clock);
        db->runScript("CREATE TABLE tRun (id INTEGER PRIMARY KEY, d DATETIME)");
    }

    QList<qint64> ids(const QString& sql) {
        QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
        EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
        QList<qint64> found;
        while (query.next()) {
            found << query.value(0).toLongLong();
        }
        return found;
    }

    void fill(const QList<QVariant>& dates) {
        QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
        ASSERT_TRUE(query.exec("DELETE FROM tRun"));
        query.prepare("INSERT INTO tRun (d) VALUES (?)");
        for (const QVariant& d : dates) {
            query.bindValue(0, d);
            ASSERT_TRUE(query.exec()) << query.lastError().text().toStdString();
        }
    }

    std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>(kNow);
    std::shared_ptr<Database> db;
};

QDateTime randomMoment(std::mt19937& rng) {
    std::uniform_int_distribution<qint64> day(QDate(1990, 1, 1).toJulianDay(),
                                              QDate(2040, 12, 31).toJulianDay());
    std::uniform_int_distribution<int> second(0, 86399);
    std::uniform_int_distribution<int> edge(0, 5);
    const QDate date = QDate::fromJulianDay(day(rng));
    switch (edge(rng)) {
        case 0:
            return QDateTime(date, QTime(0, 0));
        case 1:
            return QDateTime(date, QTime(23, 59, 59));
        default:
            return QDateTime(date, QTime(0, 0).addSecs(second(rng)));
    }
}

// Moments the calendar makes hard: year and month ends, leap days, Saturday to Sunday.
QDateTime edgeMoment(std::mt19937& rng) {
    std::uniform_int_distribution<int> year(1992, 2036);
    std::uniform_int_distribution<int> kind(0, 4);
    const int y = year(rng);
    const bool late = rng() % 2 == 0;
    const QTime time = late ? QTime(23, 59, 59) : QTime(0, 0);
    switch (kind(rng)) {
        case 0:
            return QDateTime(QDate(y, 12, 31), time);
        case 1:
            return QDateTime(QDate(y, 1, 1), time);
        case 2: {
            const int leap = y - y % 4;
            return QDateTime(QDate(leap, 2, 29), time);
        }
        case 3:
            return QDateTime(QDate(y, 3, 1), time);
        default: {
            QDate date(y, 6, 1);
            while (date.dayOfWeek() != 6) {
                date = date.addDays(1);
            }
            return QDateTime(date.addDays(late ? 0 : 1), time);
        }
    }
}

// n units back from now by the calendar's own arithmetic, off by a little either way.
QDateTime nearUnitsBefore(std::mt19937& rng, DatePart part, const QDateTime& now, int n) {
    std::uniform_int_distribution<int> jitter(-2, 2);
    std::uniform_int_distribution<int> seconds(-90000, 90000);
    QDateTime back = now;
    switch (part) {
        case DatePart::Year:
            back = now.addYears(-n);
            break;
        case DatePart::Quarter:
            back = now.addMonths(-3 * n);
            break;
        case DatePart::Month:
            back = now.addMonths(-n);
            break;
        case DatePart::Week:
            back = now.addDays(-7 * n);
            break;
        case DatePart::Day:
            back = now.addDays(-n);
            break;
        case DatePart::Hour:
            back = now.addSecs(-3600LL * n);
            break;
        case DatePart::Minute:
            back = now.addSecs(-60LL * n);
            break;
        case DatePart::Second:
            back = now.addSecs(-n);
            break;
    }
    if (rng() % 3 == 0) {
        return back.addSecs(jitter(rng));
    }
    return back.addSecs(seconds(rng));
}

TEST_F(HistoryPeriodProperty, RewrittenAndPlainConditionSelectTheSameRuns) {
    std::mt19937 rng(20261123);
    const QStringList units{"Day",    "Week",   "Month", "Year", "quarter", "hour",
                            "minute", "second", "dd",    "wk",   "yyyy"};
    std::uniform_int_distribution<int> unitAt(0, static_cast<int>(units.size()) - 1);
    std::uniform_int_distribution<int> count(0, 365);
    int rewritten = 0;
    for (int trial = 0; trial < 400; ++trial) {
        const QDateTime now = trial % 3 == 0 ? edgeMoment(rng) : randomMoment(rng);
        clock->set(now);
        const QString unit = units[unitAt(rng)];
        const DatePart part = *datePartFromName(unit);
        const int n = trial % 10 == 0 ? static_cast<int>(trial / 10 % 3) : count(rng);

        QList<QVariant> dates{QVariant(), QVariant(storedDateText(now)),
                              QVariant(now.date().toString("yyyy-MM-dd"))};
        for (int k = 0; k < 40; ++k) {
            dates << storedDateText(nearUnitsBefore(rng, part, now, n));
        }
        for (int k = 0; k < 10; ++k) {
            dates << storedDateText(nearUnitsBefore(rng, part, now, count(rng)));
            dates << storedDateText(randomMoment(rng));
            dates << storedDateText(edgeMoment(rng));
        }
        const QDateTime start = startOfUnitsBefore(part, now, n);
        dates << storedDateText(start) << storedDateText(start.addSecs(-1))
              << start.date().toString("yyyy-MM-dd")
              << start.date().addDays(-1).toString("yyyy-MM-dd");
        dates << storedDateText(now.addDays(400)) << storedDateText(now.addSecs(1));
        fill(dates);

        const QString sql = QStringLiteral(
                                "select id from tRun where datediff(%1, tRun.d, getdate()) <= %2 "
                                "order by id")
                                .arg(unit)
                                .arg(n);
        const QString fast = translate(sql, now);
        rewritten += fast.contains(u"datediff") ? 0 : 1;
        ASSERT_EQ(ids(fast), ids(translate(sql)))
            << "now " << storedDateText(now).toStdString() << ", " << fast.toStdString();
    }
    EXPECT_EQ(rewritten, 400);
}

}  // namespace
