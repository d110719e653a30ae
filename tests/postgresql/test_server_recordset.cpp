// The record set on a PostgreSQL database: what the system writes, reads and is told there is
// what it writes, reads and is told on SQLite.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <functional>
#include <thread>

#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "suite/Database.h"
#include "suite/PostgresConnection.h"
#include "tests/postgresql/ServerDatabase.h"

static void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

namespace {

const QDateTime kNow(QDate(2026, 11, 22), QTime(10, 0, 0));

ErrObject failure(const std::function<void()>& call) {
    try {
        call();
    } catch (const RaisedError& e) {
        return e.err();
    }
    return {};
}

class ServerRecordset : public ::testing::Test {
  protected:
    void SetUp() override {
        db = Database::open(address(), clock, 300);
        ASSERT_TRUE(db->onServer());
        ASSERT_TRUE(db->isEmpty());
        db->applySchema();
        other = server.connect();
    }

    QString address() const { return PostgresConnection::addressOf(server.name()); }
    std::unique_ptr<CRecordset> recordset() { return db->recordsetFactory()(); }
    // What another workstation reads, as text.
    QString stored(const QString& sql) {
        const QStringList rows = ServerDatabase::rows(other, sql);
        return rows.isEmpty() ? QStringLiteral("<no row>") : rows.first();
    }
    void elsewhere(const QString& sql) { ServerDatabase::runScript(other, sql); }

    ServerDatabase server;
    std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>(kNow);
    std::shared_ptr<Database> db;
    QSqlDatabase other;
};

TEST_F(ServerRecordset, NewRowsGetTheirIdentityAndRowsAreFoundByTheirKey) {
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("Select * from tAutoJobJob where idAutoJob = -1", 2), 0);
    rs->AddNew();
    rs->WriteText("Name", "Erster");
    rs->WriteLong("DatenArt", 17);
    rs->WriteDate("Erstellt", kNow);
    EXPECT_EQ(rs->ReadLong("idAutoJob"), 0);
    rs->Update(0, true);
    EXPECT_EQ(rs->ReadLong("IDAUTOJOB"), 1);
    // The whole row as stored: defaults included, dates in the stored form.
    EXPECT_EQ(rs->ReadText("Erstellt"), "2026-11-22 10:00:00");
    EXPECT_EQ(rs->ReadLong("Aktiviert"), 1);
    EXPECT_EQ(rs->ReadText("LetzteAenderung"), "");
    EXPECT_EQ(rs->FieldNames().mid(0, 4),
              (QStringList{"idAutoJob", "Erstellt", "Name", "Beschreibung"}));

    // Ids written by others (an import, the agent) are never handed out again.
    elsewhere("INSERT INTO tAutoJobJob (idAutoJob, Name) VALUES (10, 'Zehnter')");
    rs->AddNew();
    rs->WriteText("Name", "Elfter");
    rs->Update(0);
    EXPECT_EQ(rs->ReadLong("idAutoJob"), 11);

    // A set without the key writes back to its row; another writer's column stays.
    ASSERT_EQ(rs->OpenQuery("select Name from tAutoJobJob where Name = 'Erster'"), 1);
    rs->WriteText("Name", "Zweiter");
    elsewhere("UPDATE tAutoJobJob SET DatenArt = 18 WHERE idAutoJob = 1");
    rs->Update(0);
    EXPECT_EQ(stored("SELECT Name, DatenArt FROM tAutoJobJob WHERE idAutoJob = 1"), "Zweiter|18");

    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobJob order by idAutoJob"), 3);
    EXPECT_TRUE(rs->Move(3));
    rs->Update(1);
    EXPECT_EQ(failure([&] { rs->ReadText("Name"); }).Number, 3021);
    EXPECT_EQ(stored("SELECT string_agg(idAutoJob::text, ',' ORDER BY idAutoJob) FROM tAutoJobJob"),
              "1,11");

    // A row deleted by another workstation meanwhile is reported, not silently lost.
    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobJob where idAutoJob = 11"), 1);
    elsewhere("DELETE FROM tAutoJobJob WHERE idAutoJob = 11");
    rs->WriteText("Name", "weg");
    EXPECT_TRUE(failure([&] {
                    rs->Update(0);
                }).Description.startsWith("Der Datensatz wurde nicht mehr gefunden"));
}

TEST_F(ServerRecordset, DatesTakeDayNumbersAndTextsAndNullReadsAsTheZeroDate) {
    auto rs = recordset();
    const QList<std::pair<std::function<void()>, QString>> writes{
        {[&] { rs->WriteLong("ActiveEndDate", 2958465); }, "9999-12-31 00:00:00"},
        {[&] { rs->WriteText("ActiveEndDate", "46348"); }, "2026-11-22 00:00:00"},
        {[&] { rs->WriteText("ActiveEndDate", "22.11.2026 14:05:09"); }, "2026-11-22 14:05:09"},
        {[&] { rs->WriteDate("ActiveEndDate", kNow); }, "2026-11-22 10:00:00"},
        {[&] { rs->WriteText("ActiveEndDate", ""); }, "NULL"},
    };
    for (const auto& [write, text] : writes) {
        ASSERT_EQ(rs->OpenQuery("select * from tAutoJobSchedule where idAutoJobSchedule = -1"), 0);
        rs->AddNew();
        write();
        rs->Update(0);
        EXPECT_EQ(stored("SELECT ActiveEndDate FROM tAutoJobSchedule"), text);
        EXPECT_EQ(rs->ReadText("ActiveEndDate"), text == u"NULL" ? QString() : text);
        elsewhere("DELETE FROM tAutoJobSchedule");
    }
    elsewhere("INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (1, NULL)");
    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobSchedule"), 1);
    EXPECT_EQ(rs->ReadDate("ActiveStartDate"), QDateTime(QDate(1899, 12, 30), QTime(0, 0)));
    EXPECT_EQ(rs->ReadText("Name"), "");
    EXPECT_EQ(rs->ReadLong("FreqencyType"), 0);
    // A null text is written as the empty text, as on SQLite.
    rs->WriteText("Name", QString());
    rs->Update(0);
    EXPECT_EQ(stored("SELECT Name IS NULL, Name = '' FROM tAutoJobSchedule"), "false|true");
}

TEST_F(ServerRecordset, TheSystemsDialectRunsUnchanged) {
    elsewhere(
        "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (1, 10010, 0, 'Huber');"
        "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz, Ps_Id_Mandant, Erstellt) VALUES"
        " ('Kunden', 17, 1, 1, '2026-11-20 23:00:00'), ('Lieferanten', 18, 1, 1, NULL),"
        " ('Anlagen', 5, 3, 0, NULL);"
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (1, 'Täglich')");
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select top 2 * from dbo.tAutoJobJob order by idAutoJob desc"), 2);
    EXPECT_EQ(rs->ReadLong("idAutoJob"), 3);
    ASSERT_EQ(rs->OpenQuery("SELECT [Mandant/Kanzlei], isnull(Beschreibung, 'leer') AS l FROM "
                            "dbo.V_ZPK_Applications_System_AutoJob WHERE JobId like '1'"),
              1);
    EXPECT_EQ(rs->ReadText("mandant/kanzlei"), "10010 Huber");
    EXPECT_EQ(rs->ReadText("L"), "leer");
    EXPECT_EQ(rs->FieldNames(), (QStringList{"Mandant/Kanzlei", "l"}));
    EXPECT_EQ(rs->OpenQuery("select * from tAutoJobJob where DatenArt like '1%'"), 2);
    EXPECT_EQ(rs->OpenQuery("select * from tAutoJobJob where DatenArt not like '1%'"), 1);
    ASSERT_EQ(rs->OpenQuery("select len('ab  ') AS l, datediff(day, Erstellt, getdate()) AS d, "
                            "datediff(wk, 46341, 46348) AS w from tAutoJobJob where idAutoJob = 1"),
              1);
    EXPECT_EQ(rs->ReadLong("l"), 2);
    EXPECT_EQ(rs->ReadLong("d"), 2);
    EXPECT_EQ(rs->ReadLong("w"), 1);
    // getdate() is the program's clock, not the server's.
    clock->set(QDateTime(QDate(2027, 1, 1), QTime(10, 0, 5)));
    EXPECT_EQ(rs->Execute("update tAutoJobJob set LetzteAenderung = getdate() where idAutoJob = 2"),
              1);
    EXPECT_EQ(stored("SELECT LetzteAenderung FROM tAutoJobJob WHERE idAutoJob = 2"),
              "2027-01-01 10:00:05");
    // Schedule names compare without regard to case, as the server of the suite compares them.
    EXPECT_EQ(rs->OpenQuery("select * from tAutoJobSchedule where Name = 'TÄGLICH'"), 1);
    EXPECT_EQ(rs->OpenQuery("select * from tAutoJobSchedule where Name = 'Taglich'"), 0);
}

TEST_F(ServerRecordset, FailuresReadAsOnSqlite) {
    auto rs = recordset();
    ErrObject err = failure([&] { rs->OpenQuery("select * from tNichtDa"); });
    EXPECT_EQ(err.Number, 1);
    EXPECT_TRUE(err.Description.contains("tnichtda")) << err.Description.toStdString();
    EXPECT_TRUE(err.Description.endsWith("\r\nselect * from tNichtDa"));
    EXPECT_EQ(err.Source, "hdata.CRecordset");

    // One statement per call: nothing of the text runs when a second follows.
    elsewhere("INSERT INTO tAutoJobJob (Name) VALUES ('a'), ('b')");
    EXPECT_EQ(
        failure([&] { rs->Execute("delete from tAutoJobJob; drop table tAutoJobJob"); }).Number,
        ErrNumber::Database);
    EXPECT_EQ(stored("SELECT count(*) FROM tAutoJobJob"), "2");

    ASSERT_EQ(rs->OpenQuery("select * from tBrowserEinstellungen"), 0);
    rs->AddNew();
    rs->WriteText("Spalten", "[]");
    EXPECT_EQ(failure([&] { rs->Update(0); }).Number, 19);  // the key is missing

    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobJob", 0), 2);
    EXPECT_EQ(failure([&] { rs->WriteLong("Aktiviert", 0); }).Number, 3251);
    ASSERT_EQ(rs->OpenQuery("select * from V_ZPK_Applications_System_AutoJob"), 2);
    EXPECT_EQ(failure([&] { rs->Update(1); }).Number, 3251);
    ASSERT_EQ(rs->OpenQuery("select count(*) AS Anzahl from tAutoJobJob"), 1);
    EXPECT_EQ(rs->ReadLong("Anzahl"), 2);
}

TEST_F(ServerRecordset, ATableWithATwoColumnKeyIsWrittenByItsKey) {
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select Schluessel, MitarbeiterId, Spalten from tBrowserEinstellungen "
                            "where Schluessel = 'x'"),
              0);
    rs->AddNew();
    rs->WriteText("Schluessel", "x");
    rs->WriteLong("MitarbeiterId", 2);
    rs->WriteText("Spalten", "[1]");
    rs->Update(0);
    elsewhere(
        "INSERT INTO tBrowserEinstellungen (Schluessel, MitarbeiterId, Spalten) "
        "VALUES ('x', 3, '[3]')");
    ASSERT_EQ(rs->OpenQuery("select Spalten from tBrowserEinstellungen where Schluessel = 'x' "
                            "and MitarbeiterId = 2"),
              1);
    rs->WriteText("Spalten", "[2]");
    rs->Update(0);
    EXPECT_EQ(stored("SELECT string_agg(Spalten, ',' ORDER BY MitarbeiterId) FROM "
                     "tBrowserEinstellungen"),
              "[2],[3]");
}

TEST_F(ServerRecordset, AWriteWaitsForAnotherWorkstationsLockOnlyAsLongAsTheWartezeit) {
    elsewhere("INSERT INTO tAutoJobJob (Name) VALUES ('gesperrt')");
    QSqlQuery(other).exec("BEGIN");
    QSqlQuery(other).exec("UPDATE tAutoJobJob SET Name = 'andere' WHERE idAutoJob = 1");
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobJob"), 1);
    rs->WriteText("Name", "meine");
    const ErrObject err = failure([&] { rs->Update(0); });
    EXPECT_EQ(err.Number, 5);  // busy, as SQLite reports a lock held too long
    EXPECT_TRUE(err.Description.startsWith(QStringLiteral(
        "Die Daten werden gerade an einem anderen Arbeitsplatz gespeichert. Bitte versuchen Sie "
        "es in einigen Sekunden erneut; Ihre Eingaben bleiben erhalten.\r\n")))
        << err.Description.toStdString();
    // The driver's words close the message: no statement follows them.
    EXPECT_TRUE(err.Description.endsWith(QStringLiteral("(55P03)")))
        << err.Description.toStdString();
    QSqlQuery(other).exec("COMMIT");
    // The other workstation's write is not undone by the next try: the row is no longer the
    // one read.
    const ErrObject changed = failure([&] { rs->Update(0); });
    EXPECT_TRUE(changed.Description.startsWith(
        QStringLiteral("Der Datensatz wurde inzwischen an einem anderen Arbeitsplatz geändert; "
                       "Ihre Änderung wurde nicht gespeichert. Bitte wiederholen Sie die "
                       "Aktion.\r\n")))
        << changed.Description.toStdString();
    EXPECT_EQ(stored("SELECT Name FROM tAutoJobJob"), "andere");
    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobJob"), 1);
    rs->WriteText("Name", "meine");
    rs->Update(0);
    EXPECT_EQ(stored("SELECT Name FROM tAutoJobJob"), "meine");
    EXPECT_EQ(stored("SELECT Zeilenversion FROM tAutoJobJob"), "2");
}

TEST_F(ServerRecordset, AConnectionTheServerDroppedIsOpenedAgainAndTheStatementRepeated) {
    elsewhere(
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = "
        "current_database() AND application_name = 'autojobverw'");
    auto rs = recordset();
    // The server said it ended the session: nothing of the statement ran, it runs again.
    EXPECT_EQ(rs->OpenQuery("select * from tAutoJobJob"), 0);
    // The session's settings hold again: getdate() is still the program's clock, lock waits
    // still end.
    EXPECT_EQ(rs->Execute("insert into tAutoJobJob (Name, Erstellt) values ('x', getdate())"), 1);
    EXPECT_EQ(stored("SELECT Erstellt FROM tAutoJobJob"), "2026-11-22 10:00:00");
    ASSERT_EQ(rs->OpenQuery("select current_setting('lock_timeout') AS t"), 1);
    EXPECT_EQ(rs->ReadText("t"), "300ms");
}

TEST_F(ServerRecordset, AnOlderDatabaseGetsTheChangeJournalWithTheUpgrade) {
    elsewhere("DROP TABLE tAutoJobJournal");
    db->upgradeSchema();
    db->upgradeSchema();  // once up to date, nothing is left to do
    EXPECT_EQ(stored("SELECT string_agg(indexname, ',' ORDER BY indexname) FROM pg_indexes "
                     "WHERE tablename = 'tautojobjournal' AND indexname LIKE 'ix%'"),
              "ixautojobjournal_jobzeit,ixautojobjournal_zeit");
    // An explicit id moves the identity up, as on every table with one.
    elsewhere(
        "INSERT INTO tAutoJobJournal (idAutoJobJournal, Zeitpunkt, idAutoJob, Art) "
        "VALUES (7, '2026-11-22 10:00:00', 1, 1);"
        "INSERT INTO tAutoJobJournal (Zeitpunkt, idAutoJob, Art) "
        "VALUES ('2026-11-22 10:00:01', 1, 2)");
    EXPECT_EQ(
        stored("SELECT string_agg(idAutoJobJournal::text, ',' ORDER BY idAutoJobJournal) FROM "
               "tAutoJobJournal"),
        "7,8");
}

TEST_F(ServerRecordset, AnOlderDatabaseCountsTheWritesOfJobsAndSchedulesAfterTheUpgrade) {
    elsewhere(
        "ALTER TABLE tAutoJobJob DROP COLUMN Zeilenversion;"
        "ALTER TABLE tAutoJobSchedule DROP COLUMN Zeilenversion;"
        "DROP FUNCTION zeilenversion_weiterzaehlen() CASCADE;"
        "DROP INDEX ixJobAgentLogDaten_Suche;"
        "INSERT INTO tAutoJobJob (Name) VALUES ('Alt');"
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (1, 'Nachts')");
    db->upgradeSchema();
    db->upgradeSchema();  // once up to date, nothing is left to do
    elsewhere(
        "UPDATE tAutoJobJob SET Name = 'Neu'; UPDATE tAutoJobJob SET Aktiviert = 0;"
        "UPDATE tAutoJobSchedule SET Aktiviert = 0");
    EXPECT_EQ(stored("SELECT Name || '|' || Zeilenversion FROM tAutoJobJob"), "Neu|2");
    EXPECT_EQ(stored("SELECT Zeilenversion FROM tAutoJobSchedule"), "1");
    EXPECT_EQ(stored("SELECT count(*) FROM pg_indexes WHERE indexname = "
                     "'ixjobagentlogdaten_suche'"),
              "1");

    // The record set writes only the row as it read it: a write of another workstation in
    // between is not undone.
    auto rs = recordset();
    ASSERT_EQ(rs->OpenQuery("select * from tAutoJobSchedule"), 1);
    elsewhere("UPDATE tAutoJobSchedule SET Name = 'Von Jonas'");
    rs->WriteText("Aktiviert", "1");
    const ErrObject changed = failure([&] { rs->Update(0); });
    EXPECT_TRUE(changed.Description.startsWith(
        QStringLiteral("Der Datensatz wurde inzwischen an einem anderen Arbeitsplatz geändert")))
        << changed.Description.toStdString();
    elsewhere("DELETE FROM tAutoJobSchedule");
    const ErrObject gone = failure([&] { rs->Update(0); });
    EXPECT_TRUE(gone.Description.startsWith(
        QStringLiteral("Der Datensatz wurde nicht mehr gefunden; er wurde inzwischen gelöscht.")))
        << gone.Description.toStdString();
}

TEST(ServerSchema, TwoWorkstationsStartingOnANewDatabaseApplyTheSchemaOnce) {
    ServerDatabase server;
    const QString address = PostgresConnection::addressOf(server.name());
    std::atomic<int> failures{0};
    auto start = [&] {
        try {
            auto db = Database::open(address, std::make_shared<FixedClock>(kNow));
            if (db->isEmpty()) {
                db->applySchema();
            }
            auto rs = db->recordsetFactory()();
            rs->OpenQuery("select * from tAutoJobJob");
        } catch (const RaisedError& e) {
            ++failures;
            ADD_FAILURE() << e.err().Description.toStdString();
        }
    };
    std::thread first(start);
    std::thread second(start);
    first.join();
    second.join();
    EXPECT_EQ(failures, 0);
}

TEST(ServerSchema, ColumnNamesReadAsOnSqlite) {
    ServerDatabase server;
    auto onServer = Database::open(PostgresConnection::addressOf(server.name()), nullptr);
    onServer->applySchema();
    auto embedded = Database::open(QStringLiteral(":memory:"), nullptr);
    embedded->applySchema();
    for (const char* sql :
         {"select * from V_ZPK_Applications_System_AutoJob", "select * from tAutoJobSchedule",
          "select * from SYS_JobAgentLogDaten_Anzeigen", "select * from tAutoJobVerlauf",
          "select JobId, [Mandant/Kanzlei] AS MK, count(*) AS Anzahl from "
          "V_ZPK_Applications_System_AutoJob group by JobId, [Mandant/Kanzlei]"}) {
        auto a = onServer->recordsetFactory()();
        auto b = embedded->recordsetFactory()();
        a->OpenQuery(sql);
        b->OpenQuery(sql);
        EXPECT_EQ(a->FieldNames(), b->FieldNames()) << sql;
    }
}

}  // namespace
