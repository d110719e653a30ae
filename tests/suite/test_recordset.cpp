#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <functional>

#include "common/ErrObject.h"
#include "suite/Database.h"

// Readable QString values in failure messages.
static void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

namespace {

const QDateTime kNow(QDate(2026, 11, 22), QTime(10, 0, 0));

class RecordsetTest : public ::testing::Test {
  protected:
    void SetUp() override {
        db = Database::open(":memory:", clock);
        db->runScript(
            "CREATE TABLE tJob (idJob INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT, "
            "  Aktiviert INTEGER, Erstellt DATETIME, EndDate DATETIME, [Mandant/Kanzlei] TEXT);"
            "CREATE VIEW vJob AS SELECT idJob, Name FROM tJob;");
    }

    std::unique_ptr<CRecordset> recordset() { return db->recordsetFactory()(); }

    // One stored value, read past the record set.
    QVariant stored(const QString& sql) {
        QSqlQuery query(QSqlDatabase::database(db->connectionName(), false));
        EXPECT_TRUE(query.exec(sql)) << sql.toStdString();
        return query.next() ? query.value(0) : QVariant(QStringLiteral("<no row>"));
    }

    void insertJobs(int n) {
        for (int i = 1; i <= n; ++i) {
            db->runScript(QStringLiteral("INSERT INTO tJob (Name, Aktiviert, [Mandant/Kanzlei]) "
                                         "VALUES ('Job %1', %2, 'M %1')")
                              .arg(i)
                              .arg(i % 2));
        }
    }

    std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>(kNow);
    std::shared_ptr<Database> db;
};

ErrObject failure(const std::function<void()>& call) {
    try {
        call();
    } catch (const RaisedError& e) {
        return e.err();
    }
    return {};
}

TEST_F(RecordsetTest, NewAndExistingRowShareOnePath) {
    auto rs = recordset();
    rs->Connect();
    ASSERT_EQ(rs->OpenQuery("Select * from tJob where idJob = -1", 2), 0);
    rs->AddNew();
    rs->WriteText("Name", "Erster");
    rs->WriteLong("Aktiviert", 1);
    // The buffer reads back before Update; the identity is still NULL.
    EXPECT_EQ(rs->ReadText("name"), "Erster");
    EXPECT_EQ(rs->ReadLong("IDJOB"), 0);
    EXPECT_EQ(stored("SELECT count(*) FROM tJob").toInt(), 0);
    rs->Update(0, true);
    EXPECT_EQ(rs->ReadLong("idJob"), 1);
    rs->Close();
    rs->Disconnect();
    EXPECT_EQ(stored("SELECT Name || '/' || Aktiviert FROM tJob WHERE idJob = 1").toString(),
              "Erster/1");

    ASSERT_EQ(rs->OpenQuery("Select * from tJob where idJob = 1"), 1);
    rs->WriteText("Name", "Zweiter");
    // Another writer changes a column this cycle doesn't write: it keeps the other's value.
    EXPECT_EQ(recordset()->Execute("update tJob set Aktiviert = 7 where idJob = 1"), 1);
    rs->Update(0, true);
    rs->Close();
    EXPECT_EQ(stored("SELECT count(*) || ':' || Name || '/' || Aktiviert FROM tJob").toString(),
              "1:Zweiter/7");
}

TEST_F(RecordsetTest, IdentityAndRowWithoutTheKeyInTheSelect) {
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select Name from tJob where Name = 'x'"), 0);
    rs->AddNew();
    rs->WriteText("Name", "x");
    rs->Update(0);
    // The whole new row is readable after Update.
    EXPECT_EQ(rs->ReadLong("idJob"), 1);
    EXPECT_EQ(rs->ReadText("Mandant/Kanzlei"), "");
    ASSERT_EQ(rs->OpenQuery("select Name from tJob where Name = 'x'"), 1);
    rs->WriteText("Name", "y");
    rs->Update(0);
    EXPECT_EQ(stored("SELECT Name FROM tJob WHERE idJob = 1").toString(), "y");
}

TEST_F(RecordsetTest, ListCycleAndDelete) {
    insertJobs(3);
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery(" Select * FROM tJob where idJob IN (1 ,3 )"), 2);
    bool more = true;
    while (more) {
        rs->WriteLong("Aktiviert", rs->ReadLong("Aktiviert") == 1 ? 0 : 1);
        rs->Update(0, true);
        more = rs->Move(3);
    }
    EXPECT_THROW(rs->ReadLong("Aktiviert"), RaisedError);
    EXPECT_EQ(stored("SELECT group_concat(Aktiviert, ',') FROM tJob").toString(), "0,0,0");

    ASSERT_EQ(rs->OpenQuery("select * from tJob where idJob = 2"), 1);
    rs->Update(1, true);
    EXPECT_EQ(failure([&] { rs->ReadText("Name"); }).Number, 3021);
    EXPECT_FALSE(rs->Move(3));
    rs->Close();
    EXPECT_EQ(stored("SELECT group_concat(idJob, ',') FROM tJob").toString(), "1,3");
}

TEST_F(RecordsetTest, CursorMovesAndLeavingARowSavesItsWrites) {
    insertJobs(3);
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select * from tJob order by idJob"), 3);
    EXPECT_TRUE(rs->Move(1));
    EXPECT_EQ(rs->ReadLong("idJob"), 3);
    EXPECT_TRUE(rs->Move(2));
    rs->WriteText("Name", "geändert");
    EXPECT_TRUE(rs->Move(0));
    EXPECT_EQ(rs->ReadLong("idJob"), 1);
    EXPECT_FALSE(rs->Move(2));
    EXPECT_EQ(failure([&] { rs->Move(4); }).Number, 3001);
    rs->AddNew();
    rs->WriteText("Name", "neu");
    rs->AddNew();
    rs->Close();
    // The second AddNew saved the first new row; Close dropped the unwritten second one.
    EXPECT_EQ(stored("SELECT group_concat(Name, ',') FROM tJob").toString(),
              "Job 1,geändert,Job 3,neu");
}

TEST_F(RecordsetTest, NullReadsAsTheEmptyValueOfEachType) {
    db->runScript("INSERT INTO tJob (idJob) VALUES (1)");
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select * from tJob"), 1);
    EXPECT_FALSE(rs->ReadBool("Aktiviert"));
    EXPECT_EQ(rs->ReadLong("aktiviert"), 0);
    EXPECT_EQ(rs->ReadText("NAME"), "");
    EXPECT_EQ(rs->ReadDate("Erstellt"), QDateTime(QDate(1899, 12, 30), QTime(0, 0)));
    const ErrObject err = failure([&] { rs->ReadText("Nichtda"); });
    EXPECT_EQ(err.Number, 3265);
    EXPECT_EQ(err.Source, "hdata.CRecordset");
}

TEST_F(RecordsetTest, ReadConversions) {
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select 2.5 AS a, 3.5 AS b, ' 42 ' AS c, 'wahr' AS d, 2.0 AS e, "
                            "'2026-11-22T08:05:09' AS f, 46348.5 AS g, 'abc' AS h"),
              1);
    EXPECT_EQ(rs->ReadLong("a"), 2);
    EXPECT_EQ(rs->ReadLong("b"), 4);
    EXPECT_EQ(rs->ReadLong("c"), 42);
    EXPECT_TRUE(rs->ReadBool("d"));
    EXPECT_EQ(rs->ReadText("e"), "2");
    EXPECT_EQ(rs->ReadText("a"), "2.5");
    EXPECT_EQ(rs->ReadDate("f"), QDateTime(QDate(2026, 11, 22), QTime(8, 5, 9)));
    EXPECT_EQ(rs->ReadDate("g"), QDateTime(QDate(2026, 11, 22), QTime(12, 0)));
    const ErrObject err = failure([&] { rs->ReadLong("h"); });
    EXPECT_EQ(err.Number, 13);
    EXPECT_EQ(err.Description, "Typen unverträglich (Feld \"h\")");
}

TEST_F(RecordsetTest, DateColumnsTakeDayNumbersAndDateTexts) {
    auto rs = recordset();
    const QList<std::pair<std::function<void()>, QString>> writes{
        {[&] { rs->WriteLong("EndDate", 2958465); }, "9999-12-31 00:00:00"},
        {[&] { rs->WriteText("EndDate", "2958465"); }, "9999-12-31 00:00:00"},
        {[&] { rs->WriteLong("EndDate", 0); }, "1899-12-30 00:00:00"},
        {[&] { rs->WriteText("EndDate", "0"); }, "1899-12-30 00:00:00"},
        {[&] { rs->WriteLong("EndDate", 46348); }, "2026-11-22 00:00:00"},
        {[&] { rs->WriteText("EndDate", "46348"); }, "2026-11-22 00:00:00"},
        {[&] { rs->WriteText("EndDate", "22.11.2026 14:05:09"); }, "2026-11-22 14:05:09"},
        {[&] { rs->WriteDate("EndDate", kNow); }, "2026-11-22 10:00:00"},
        {[&] { rs->WriteText("EndDate", "bald"); }, "bald"},
    };
    for (const auto& [write, text] : writes) {
        ASSERT_EQ(rs->OpenQuery("select * from tJob where idJob = -1"), 0);
        rs->AddNew();
        write();
        EXPECT_EQ(rs->ReadText("EndDate"), text);
        rs->Update(0);
        rs->Close();
        EXPECT_EQ(stored("SELECT EndDate FROM tJob").toString(), text);
        recordset()->Execute("delete from tJob");
    }
    // Outside a date column a number stays a number.
    ASSERT_EQ(rs->OpenQuery("select * from tJob where idJob = -1"), 0);
    rs->AddNew();
    rs->WriteText("Aktiviert", "46348");
    rs->WriteDate("Erstellt", QDateTime());
    rs->Update(0);
    EXPECT_EQ(
        stored("SELECT typeof(Aktiviert) || Aktiviert || typeof(Erstellt) FROM tJob").toString(),
        "integer46348null");
}

TEST_F(RecordsetTest, GetdateFollowsTheClock) {
    insertJobs(1);
    auto rs = recordset();
    EXPECT_EQ(rs->Execute("update tJob set Erstellt = getdate(), Aktiviert=5 where idJob like '1'"),
              1);
    EXPECT_EQ(stored("SELECT Erstellt FROM tJob").toString(), "2026-11-22 10:00:00");
    clock->set(kNow.addDays(40).addSecs(5));
    ASSERT_EQ(rs->OpenQuery("select getdate() AS Jetzt, Erstellt < getdate() AS Frueher from tJob"),
              1);
    EXPECT_EQ(rs->ReadDate("Jetzt"), QDateTime(QDate(2027, 1, 1), QTime(10, 0, 5)));
    EXPECT_TRUE(rs->ReadBool("Frueher"));
}

TEST_F(RecordsetTest, DatediffCountsBoundariesAsTheServer) {
    struct Case {
        const char* unit;
        const char* a;
        const char* b;
        long expected;
    };
    const Case cases[] = {
        {"Week", "'2026-11-21 23:59:59'", "'2026-11-22'", 1},  // Saturday to Sunday
        {"Week", "'2026-11-22'", "'2026-11-28 23:00'", 0},     // Sunday to Saturday
        {"Week", "'2026-11-22'", "'2026-11-21'", -1},
        {"wk", "46348", "46341", -1},  // day numbers, Sunday back to Sunday
        {"Day", "'2026-11-21 23:59:59'", "'2026-11-22 00:00:00'", 1},
        {"Day", "'2026-11-22 00:00'", "'2026-11-22 23:59'", 0},
        {"Month", "'2026-12-31'", "'2027-01-01'", 1},
        {"Year", "'2026-12-31 23:59:59'", "'2027-01-01T00:00:00'", 1},
        {"Year", "'2026-01-01'", "'2026-12-31'", 0},
        {"Month", "'2026-03-31'", "'2026-02-28'", -1},
        {"qq", "'2026-03-31'", "'2026-04-01'", 1},
        {"hh", "'2026-11-22 10:59:59'", "'2026-11-22 11:00:00'", 1},
        {"Day", "Erstellt", "getdate()", 2},
    };
    db->runScript("INSERT INTO tJob (Erstellt) VALUES ('2026-11-20 23:00:00')");
    auto rs = recordset();
    for (const Case& c : cases) {
        const QString sql =
            QStringLiteral("select datediff(%1, %2, %3) AS d from tJob").arg(c.unit, c.a, c.b);
        ASSERT_EQ(rs->OpenQuery(sql), 1) << sql.toStdString();
        EXPECT_EQ(rs->ReadLong("d"), c.expected) << sql.toStdString();
    }
    ASSERT_EQ(rs->OpenQuery("select datediff(day, NULL, getdate()) IS NULL AS n, len('ab  ') AS l"),
              1);
    EXPECT_TRUE(rs->ReadBool("n"));
    EXPECT_EQ(rs->ReadLong("l"), 2);
}

TEST_F(RecordsetTest, ServerDialectReadsAsItStands) {
    insertJobs(3);
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select top 2 * from dbo.tJob order by idJob desc"), 2);
    EXPECT_EQ(rs->ReadLong("idJob"), 3);
    EXPECT_TRUE(rs->Move(3));
    EXPECT_EQ(rs->ReadLong("idJob"), 2);
    EXPECT_FALSE(rs->Move(3));
    ASSERT_EQ(rs->OpenQuery("SELECT dbo.tJob.[Mandant/Kanzlei] FROM dbo.tJob WHERE idJob like '2'"),
              1);
    EXPECT_EQ(rs->ReadText("mandant/kanzlei"), "M 2");
    EXPECT_EQ(rs->Execute("update tJob set Name = 'a; dbo.x top 1' where idJob like '5'"), 0);
    EXPECT_EQ(rs->Execute("update tJob set Name = 'a; dbo.x top 1' where idJob like '3'"), 1);
    EXPECT_EQ(stored("SELECT Name FROM tJob WHERE idJob = 3").toString(), "a; dbo.x top 1");
}

TEST_F(RecordsetTest, SecondStatementNeverRuns) {
    insertJobs(2);
    auto rs = recordset();
    EXPECT_EQ(failure([&] { rs->Execute("delete from tJob; drop table tJob"); }).Number,
              ErrNumber::Database);
    EXPECT_THROW(rs->OpenQuery("select * from tJob; delete from tJob"), RaisedError);
    EXPECT_EQ(stored("SELECT count(*) FROM tJob").toInt(), 2);
    EXPECT_EQ(rs->Execute("delete from tJob;"), 2);
    EXPECT_EQ(rs->Execute("select * from tJob"), -1);
}

TEST_F(RecordsetTest, FailuresCarryNumberDescriptionAndSource) {
    auto rs = recordset();
    ErrObject err = failure([&] { rs->OpenQuery("select * from tNichtDa"); });
    EXPECT_EQ(err.Number, 1);
    EXPECT_TRUE(err.Description.startsWith("no such table: tNichtDa"))
        << err.Description.toStdString();
    EXPECT_TRUE(err.Description.endsWith("\r\nselect * from tNichtDa"));
    EXPECT_EQ(err.Source, "hdata.CRecordset");

    db->runScript("CREATE TABLE tStrict (id INTEGER PRIMARY KEY, Name TEXT NOT NULL)");
    ASSERT_EQ(rs->OpenQuery("select * from tStrict"), 0);
    rs->AddNew();
    EXPECT_EQ(failure([&] { rs->Update(0); }).Number, 19);  // constraint

    // Read-only sets and sets of a view or join take no writes.
    insertJobs(1);
    ASSERT_EQ(rs->OpenQuery("select * from tJob", 0), 1);
    EXPECT_EQ(failure([&] { rs->WriteLong("Aktiviert", 3); }).Number, 3251);
    EXPECT_EQ(failure([&] { rs->AddNew(); }).Number, 3251);
    ASSERT_EQ(rs->OpenQuery("select * from vJob"), 1);
    EXPECT_EQ(failure([&] { rs->Update(1); }).Number, 3251);
    rs->Close();
    EXPECT_EQ(failure([&] { rs->ReadLong("idJob"); }).Number, 3704);
}

TEST(Database, FileInWalModeAndConnectionLife) {
    QTemporaryDir dir;
    auto clock = std::make_shared<FixedClock>(kNow);
    auto db = Database::open(dir.filePath("ajv.db"), clock);
    const QString name = db->connectionName();
    EXPECT_TRUE(db->isEmpty());
    db->applySchema();
    EXPECT_FALSE(db->isEmpty());
    auto rs = db->recordsetFactory()();
    ASSERT_EQ(rs->OpenQuery("pragma journal_mode"), 1);
    EXPECT_EQ(rs->ReadText("journal_mode"), "wal");
    // A broken script leaves nothing behind.
    EXPECT_THROW(db->runScript("CREATE TABLE tA (x); INSERT INTO tNichtDa VALUES (1)"),
                 RaisedError);
    EXPECT_THROW(rs->Execute("select * from tA"), RaisedError);
    db.reset();
    EXPECT_FALSE(QSqlDatabase::contains(name));
    EXPECT_EQ(failure([&] { rs->Connect(); }).Number, 3709);
}

}  // namespace
