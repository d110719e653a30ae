// The job list and the log viewer read the same columns and values from the server's views as
// from SQLite's for the same rows.
#include <sqlite3.h>

#include <QFile>
#include <QSqlDriver>

#include "common/Clock.h"
#include "suite/SqlFunctions.h"
#include "tests/postgresql/ServerTest.h"

namespace {

// The rows of both databases, in statements both dialects read alike.
const char* const kRows = R"(
INSERT INTO tSuiteText (TextId, Text) VALUES (1236, 'Kesto');
INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Anna Berger'), (2, 'Jonas Keller');
INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES
    (1, 10010, 0, 'Bäckerei Huber GmbH'), (2, 7, 1, 'Kanzlei Neumann'),
    (3, 10020, 0, ''), (4, 10030, 0, NULL);
INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt,
                         Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, LetzteAenderung) VALUES
    (1, '2026-01-05 09:00:00', 'Kunden', 'Zeile 1', 1, 17, 1, 1, 1, '2026-02-01 10:00:00'),
    (2, '2026-01-06 09:30:00', 'Kesto direkt', NULL, 0, 28, 2, 2, 2, NULL),
    (3, NULL, 'Ohne Namen', '', 1, 18, 3, 1, 1, '2026-02-03 00:00:00'),
    (4, NULL, 'Name NULL', NULL, 1, 4, 4, 1, 2, NULL),
    (5, NULL, 'Unbekannter Mandant', NULL, 1, 5, 99, 1, 1, NULL),
    (6, NULL, 'Alle Mandanten', NULL, 1, 77, 0, 3, 1, NULL),
    (7, NULL, 'Alle Kanzleien', NULL, 0, 99, 0, 4, 9, NULL),
    (8, NULL, 'Alle', NULL, 1, 21, 0, 5, 0, NULL),
    (9, NULL, NULL, NULL, NULL, 20, 0, 0, 2, NULL),
    (10, NULL, 'Nivora', NULL, 1, 30, 0, 0, 1, NULL);
INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name) VALUES
    (1, 1, 'A'), (2, 1, 'B'), (3, 2, 'C'), (4, 3, 'D');
INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich) VALUES
    (1, '2026-03-01 10:00:00', 1), (2, '2026-03-02 11:00:00', 0), (1, '2026-02-01 00:00:00', 1),
    (3, NULL, 1), (4, '2025-12-31 23:59:59', 2);
INSERT INTO SYS_JobAgentLogDaten (Id, DatumUhrzeit, LogTyp, JobArt, AutoJobId, MitarbeiterId,
                                  Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz) VALUES
    (1, '2026-03-01 10:00:01', 2, 17, 1, 1, 'Auftrag', 'Auftrag 1', 'Information', NULL, 'x', NULL),
    (2, '2026-03-01 10:05:00', 1, 0, 0, 0, NULL, NULL, NULL, 'JobAgent', NULL, 'z'),
    (3, '2026-03-02 00:00:00', 2, 28, 2, 9, 'Auftrag', '', 'Fehler', 'Eigener Name', 't', ''),
    (4, '2026-03-03 23:59:59', 3, 77, 99, 2, 'Dienst', NULL, 'Warnung', NULL, NULL, NULL),
    (5, '2026-03-04 12:00:00', 2, 99, 7, 0, NULL, NULL, NULL, NULL, NULL, NULL);
)";

const char* const kJobList = "SELECT * FROM V_ZPK_Applications_System_AutoJob ORDER BY JobId";
const char* const kLog = "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen ORDER BY Id";

class ServerViews : public ServerTest {
  protected:
    void SetUp() override {
        ServerTest::SetUp();
        run(QString::fromUtf8(kRows));

        lite_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("ajv_views"));
        lite_.setDatabaseName(QStringLiteral(":memory:"));
        ASSERT_TRUE(lite_.open());
        const QVariant handle = lite_.driver()->handle();
        handle_ = *static_cast<sqlite3* const*>(handle.constData());
        // The functions and the collation the program registers on its connections.
        ASSERT_EQ(registerServerFunctions(handle_, &clock_), SQLITE_OK);
        QFile schema(QStringLiteral(":/db/schema.sql"));
        ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
        sqlite(schema.readAll());
        sqlite(kRows);
    }

    void TearDown() override {
        lite_.close();
        lite_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("ajv_views"));
    }

    void sqlite(const QByteArray& script) {
        char* message = nullptr;
        ASSERT_EQ(sqlite3_exec(handle_, script.constData(), nullptr, nullptr, &message), SQLITE_OK)
            << (message ? message : "");
    }

    void expectSameRows(const char* sql) {
        const QStringList fromSqlite = ServerDatabase::rows(lite_, QString::fromUtf8(sql));
        const QStringList fromServer = ServerDatabase::rows(db_, QString::fromUtf8(sql));
        EXPECT_FALSE(fromServer.isEmpty());
        EXPECT_EQ(fromServer.join(u'\n').toStdString(), fromSqlite.join(u'\n').toStdString())
            << sql;
    }

    SystemClock clock_;
    QSqlDatabase lite_;
    sqlite3* handle_ = nullptr;
};

}  // namespace

TEST_F(ServerViews, JobListAndLogViewerGiveTheValuesOfSqlite) {
    expectSameRows(kJobList);
    expectSameRows(kLog);
    // Spot checks, should both sides have gone wrong alike.
    EXPECT_EQ(
        ServerDatabase::rows(db_,
                             "SELECT \"mandant/kanzlei\", Auftragsart, "
                             "LetzteAusfuehrung FROM V_ZPK_Applications_System_AutoJob "
                             "WHERE JobId IN (1, 2, 3, 4, 8) ORDER BY JobId"),
        QStringList({"10010 Bäckerei Huber GmbH|Import Kunden|2026-03-02 11:00:00",
                     "K7 Kanzlei Neumann|Import Buchungen Kesto (direkt)|NULL",
                     "10020|Import Lieferanten|2025-12-31 23:59:59", "10030|Import Buchungen|NULL",
                     "Alle Mandanten/Kanzleien|Verschlagwortung Belege|NULL"}));
    EXPECT_EQ(ServerDatabase::rows(db_,
                                   "SELECT Name, Mitarbeiter, \"auftrag kennung\" "
                                   "FROM SYS_JobAgentLogDaten_Anzeigen ORDER BY Id"),
              QStringList({"Kunden|Anna Berger|Auftrag 1", "JobAgent||", "Eigener Name||",
                           "|Jonas Keller|", "Alle Kanzleien||"}));
}

TEST_F(ServerViews, WithoutTheTextOfTheMerchandiseSystemBothLeaveTwoBlanks) {
    run(QStringLiteral("DELETE FROM tSuiteText"));
    sqlite("DELETE FROM tSuiteText");
    expectSameRows(kJobList);
    expectSameRows(kLog);
    EXPECT_EQ(value("SELECT Auftragsart FROM V_ZPK_Applications_System_AutoJob WHERE JobId = 2")
                  .toString(),
              QStringLiteral("Import Buchungen  (direkt)"));
}
