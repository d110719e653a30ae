#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "suite/SqlDates.h"
#include "suite/SqlDialect.h"

// Readable QString values in failure messages.
static void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

namespace {

using SqlDialect::translate;

TEST(SqlDialect, TopBecomesLimitAtTheEndOfItsOwnSelect) {
    EXPECT_EQ(translate("select top 2 * from t order by a desc"),
              "select * from t order by a desc LIMIT 2");
    EXPECT_EQ(translate("SELECT DISTINCT TOP (3) Name FROM t"),
              "SELECT DISTINCT Name FROM t LIMIT 3");
    EXPECT_EQ(
        translate(
            "select a from t where id in (select top 1 id from u order by id desc) order by a"),
        "select a from t where id in (select id from u order by id desc LIMIT 1) order by a");
    // Never into a trailing comment, and the trailing ';' goes.
    EXPECT_EQ(translate("select top 1 * from person_wirtschaftsjahr -- first\n ;  "),
              "select * from person_wirtschaftsjahr LIMIT 1");
    // A column called top is no clause.
    EXPECT_EQ(translate("select top from t"), "select top from t");
}

TEST(SqlDialect, ServerNamesAndFunctions) {
    EXPECT_EQ(translate("SELECT dbo.V.JobId, dbo.V.[Mandant/Kanzlei]  FROM   dbo.V   ORDER BY "
                        "dbo.V.[Mandant/Kanzlei], dbo.V.Auftragsart"),
              "SELECT V.JobId, V.[Mandant/Kanzlei]  FROM   V   ORDER BY V.[Mandant/Kanzlei], "
              "V.Auftragsart");
    EXPECT_EQ(translate(" AND datediff(Day, v.LetzteAusfuehrung, getdate()) <= 1"),
              " AND datediff('day', v.LetzteAusfuehrung, getdate()) <= 1");
    EXPECT_EQ(translate("DATEDIFF( wk ,a,b) + datediff(yyyy,a,b) + datediff(MI,a,b)"),
              "DATEDIFF( 'week' ,a,b) + datediff('year',a,b) + datediff('minute',a,b)");
    EXPECT_EQ(translate("select isnull(Name, N'leer') from t"),
              "select ifnull(Name, 'leer') from t");
}

TEST(SqlDialect, LiteralsQuotedNamesAndCommentsStayUntouched) {
    const QString sql =
        "select [dbo.x], \"top 1\" from t where a = 'it''s; dbo.t top 1 datediff(Day' /* ; dbo. */";
    EXPECT_EQ(translate(sql), sql.left(sql.indexOf("/*") - 1));
}

TEST(SqlDialect, OnlyOneStatementPerCall) {
    EXPECT_EQ(translate("delete from t;"), "delete from t");
    EXPECT_EQ(translate("delete from t where a = ';' ; /* end */ -- done"),
              "delete from t where a = ';'");
    try {
        translate("delete from t; drop table t");
        FAIL() << "second statement accepted";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, ErrNumber::Database);
        EXPECT_EQ(e.err().Source, "hdata.CRecordset");
        EXPECT_EQ(e.err().Description,
                  "Mehr als eine Anweisung in einem Aufruf; keine wurde ausgeführt.\r\n"
                  "delete from t; drop table t");
    }
    EXPECT_THROW(translate("select 1;;"), RaisedError);
}

TEST(SqlDialect, SingleSourceFindsTheOneTableOfAPlainSelect) {
    const auto plain = SqlDialect::singleSource(" Select * FROM tAutoJobJob where idAutoJob = 5");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->name, "tAutoJobJob");
    EXPECT_EQ(plain->columnsAt, 7);
    EXPECT_EQ(SqlDialect::singleSource("select m.Name from [t Man] as m order by 1")->name,
              "t Man");
    EXPECT_EQ(SqlDialect::singleSource("select Name AS n FROM SYS_JobAgentLogDaten WHERE "
                                       "AutoJobId in (select count(a) from b join c on 1)")
                  ->name,
              "SYS_JobAgentLogDaten");
    for (const char* sql :
         {"select a.x from a inner join b on a.i = b.i", "select * from a, b",
          "select distinct x from a", "select x from a group by x",
          "select x from a union select x from b", "update a set x = 1",
          "select count(Id) AS Anzahl from a where x = 1", "select x, MAX (y) from a"}) {
        EXPECT_FALSE(SqlDialect::singleSource(sql)) << sql;
    }
}

TEST(SqlDates, TextsAndDayNumbers) {
    const QDateTime morning(QDate(2026, 11, 22), QTime(8, 5, 9));
    EXPECT_EQ(parseDateText(u"2026-11-22T08:05:09.123"), morning);
    EXPECT_EQ(parseDateText(u" 22.11.2026 08:05:09 "), morning);
    EXPECT_EQ(parseDateText(u"2026-11-22"), QDateTime(QDate(2026, 11, 22), QTime(0, 0)));
    EXPECT_FALSE(parseDateText(u"2026-02-30"));
    EXPECT_FALSE(parseDateText(u"46348"));
    EXPECT_EQ(dateFromDayNumber(46348.25), QDateTime(QDate(2026, 11, 22), QTime(6, 0)));
    EXPECT_EQ(dateFromDayNumber(-1.5), QDateTime(QDate(1899, 12, 29), QTime(12, 0)));
    EXPECT_EQ(dateFromDayNumber(2958465).date(), QDate(9999, 12, 31));
    EXPECT_EQ(datePartFromName(u"YYYY"), DatePart::Year);
    EXPECT_EQ(datePartFromName(u"ss"), DatePart::Second);
    EXPECT_FALSE(datePartFromName(u"fortnight"));
}

}  // namespace
