// A database made by an earlier version opens with what this schema has more, its rows kept.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include "common/Clock.h"
#include "suite/Database.h"
#include "suite/SchemaUpgrade.h"
#include "suite/SuiteConfig.h"
#include "suite/SuiteServices.h"

namespace {

QString scalar(const QString& path, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* st = nullptr;
    QString value = QStringLiteral("<none>");
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) == SQLITE_OK &&
        sqlite3_step(st) == SQLITE_ROW) {
        const auto* text = sqlite3_column_text(st, 0);
        value = text ? QString::fromUtf8(reinterpret_cast<const char*>(text)) : QString();
    }
    sqlite3_finalize(st);
    sqlite3_close(db);
    return value;
}

// A database of the schema that the script then makes older, in dir.
SuiteConfig olderDatabase(const QTemporaryDir& dir, const QString& script) {
    SuiteConfig config;
    config.databasePath = dir.filePath(QStringLiteral("alt.sqlite"));
    config.paths.insert(83, dir.filePath(QStringLiteral("data")));
    auto db = Database::open(config.databasePath, std::make_shared<SystemClock>());
    db->applySchema();
    db->runScript(script);
    return config;
}

}  // namespace

TEST(SchemaUpgrade, AnOlderDatabaseGetsTheMissingTablesAndTheNewViewsAndKeepsItsRows) {
    QTemporaryDir dir;
    const SuiteConfig config = olderDatabase(
        dir, QStringLiteral("DROP TABLE tBrowserEinstellungen;"
                            "DROP VIEW V_ZPK_Applications_System_AutoJob;"
                            "CREATE VIEW V_ZPK_Applications_System_AutoJob AS SELECT idAutoJob "
                            "AS JobId FROM tAutoJobJob;"
                            "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz) VALUES ('Alt', "
                            "17, 3);"));
    const QString wantedView = [] {
        for (const SchemaObject& o : schemaObjects(
                 QStringLiteral("CREATE TABLE t (a); CREATE VIEW v AS SELECT a FROM t;"))) {
            if (o.type == QLatin1String("view")) {
                return o.sql;
            }
        }
        return QString();
    }();
    EXPECT_EQ(wantedView, QStringLiteral("CREATE VIEW v AS SELECT a FROM t"));

    {
        auto db = openSuiteDatabase(config, std::make_shared<SystemClock>());
        EXPECT_FALSE(db->isEmpty());
    }
    const QString path = config.databasePath;
    EXPECT_EQ(
        scalar(path, "SELECT count(*) FROM sqlite_master WHERE name = 'tBrowserEinstellungen'"),
        QStringLiteral("1"));
    EXPECT_EQ(scalar(path, "SELECT Name FROM tAutoJobJob"), QStringLiteral("Alt"));
    EXPECT_EQ(scalar(path, "SELECT count(*) FROM tAutoJobJob"), QStringLiteral("1"));
    EXPECT_EQ(scalar(path, "SELECT Auftragsart FROM V_ZPK_Applications_System_AutoJob"),
              QStringLiteral("Import Kunden"));

    // Once up to date, nothing is left to do.
    sqlite3* db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    QFile schema(QStringLiteral(":/db/schema.sql"));
    ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
    EXPECT_EQ(schemaUpgrade(db, QString::fromUtf8(schema.readAll())), QStringList());
    sqlite3_close(db);
}

TEST(SchemaUpgrade, JobsAndSchedulesOfAnOlderDatabaseCountTheirWritesAfterTheUpgrade) {
    QTemporaryDir dir;
    const SuiteConfig config = olderDatabase(
        dir,
        QStringLiteral("DROP TRIGGER trAutoJobJob_Zeilenversion;"
                       "DROP TRIGGER trAutoJobSchedule_Zeilenversion;"
                       "ALTER TABLE tAutoJobJob DROP COLUMN Zeilenversion;"
                       "ALTER TABLE tAutoJobSchedule DROP COLUMN Zeilenversion;"
                       "INSERT INTO tAutoJobJob (Name, DatenArt) VALUES ('Alt', 17);"
                       "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (1, 'Nachts');"));
    {
        auto db = openSuiteDatabase(config, std::make_shared<SystemClock>());
        // Any writer counts: the agent, the sqlite3 shell, this program.
        db->runScript(
            QStringLiteral("UPDATE tAutoJobJob SET Name = 'Neu';"
                           "UPDATE tAutoJobJob SET Aktiviert = 0;"
                           "UPDATE tAutoJobSchedule SET Aktiviert = 0;"));
    }
    const QString path = config.databasePath;
    EXPECT_EQ(scalar(path, "SELECT Name || '|' || Zeilenversion FROM tAutoJobJob"),
              QStringLiteral("Neu|2"));
    EXPECT_EQ(scalar(path, "SELECT Zeilenversion FROM tAutoJobSchedule"), QStringLiteral("1"));
    // A writer that sets the version itself is left alone.
    sqlite3* db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    sqlite3_exec(db, "UPDATE tAutoJobJob SET Zeilenversion = 10", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    EXPECT_EQ(scalar(path, "SELECT Zeilenversion FROM tAutoJobJob"), QStringLiteral("10"));
}

TEST(SchemaUpgrade, AnOlderDatabaseGetsTheChangeJournalWithItsIndexes) {
    QTemporaryDir dir;
    const SuiteConfig config =
        olderDatabase(dir, QStringLiteral("INSERT INTO tAutoJobJob (Name) VALUES ('Alt');"
                                          "DROP TABLE tAutoJobJournal;"));
    const QString path = config.databasePath;
    EXPECT_EQ(scalar(path, "SELECT count(*) FROM sqlite_master WHERE tbl_name = 'tAutoJobJournal'"),
              QStringLiteral("0"));
    {
        // The connection that upgraded journals at once.
        auto db = openSuiteDatabase(config, std::make_shared<SystemClock>());
        db->runScript(QStringLiteral("UPDATE tAutoJobJob SET Name = 'Neu'"));
    }
    EXPECT_EQ(scalar(path, "SELECT Art || ' ' || Anlass FROM tAutoJobJournal"),
              QStringLiteral("2 Bearbeiten"));
    EXPECT_EQ(scalar(path,
                     "SELECT group_concat(name, ',') FROM (SELECT name FROM sqlite_master "
                     "WHERE tbl_name = 'tAutoJobJournal' ORDER BY name)"),
              QStringLiteral("ixAutoJobJournal_JobZeit,ixAutoJobJournal_Zeit,tAutoJobJournal"));
    EXPECT_EQ(
        scalar(path, "SELECT group_concat(name, ',') FROM pragma_table_info('tAutoJobJournal')"),
        QStringLiteral("idAutoJobJournal,Zeitpunkt,Ps_Id_Mitarbeiter,Arbeitsplatz,idAutoJob,"
                       "idAutoJobSchedule,Art,Vorher,Nachher,Anlass"));
    EXPECT_EQ(scalar(path, "SELECT Name FROM tAutoJobJob"), QStringLiteral("Neu"));
}

// A log made by an earlier version gets its full-text index, filled with the entries it has,
// and what is written after is indexed by the database itself.
TEST(SchemaUpgrade, AnOlderLogIsIndexedAndWritesAfterAreIndexedByTheDatabase) {
    QTemporaryDir dir;
    const SuiteConfig config = olderDatabase(
        dir,
        QStringLiteral(
            "DROP TRIGGER trJobAgentLogDaten_SucheNeu;"
            "DROP TRIGGER trJobAgentLogDaten_SucheWeg;"
            "DROP TRIGGER trJobAgentLogDaten_SucheNeuText;"
            "DROP TABLE SYS_JobAgentLogDaten_Suche;"
            "INSERT INTO SYS_JobAgentLogDaten (LogTyp, Text) VALUES (2, 'Rechnungsstapel März');"
            "INSERT INTO SYS_JobAgentLogDaten (LogTyp, Text) VALUES (2, 'Kunden importiert');"));
    {
        auto db = openSuiteDatabase(config, std::make_shared<SystemClock>());
        EXPECT_EQ(scalar(config.databasePath,
                         "SELECT rowid FROM SYS_JobAgentLogDaten_Suche WHERE "
                         "SYS_JobAgentLogDaten_Suche MATCH '\"märz\"'"),
                  QStringLiteral("1"));
        db->runScript(QStringLiteral(
            "INSERT INTO SYS_JobAgentLogDaten (LogTyp, Text) VALUES (2, 'Rechnung April');"
            "DELETE FROM SYS_JobAgentLogDaten WHERE Id = 1;"
            "INSERT INTO SYS_JobAgentLogDaten_Suche (SYS_JobAgentLogDaten_Suche, rank) "
            "VALUES ('integrity-check', 1);"));
    }
    EXPECT_EQ(scalar(config.databasePath,
                     "SELECT group_concat(rowid) FROM SYS_JobAgentLogDaten_Suche WHERE "
                     "SYS_JobAgentLogDaten_Suche MATCH '\"rechnung\"*'"),
              QStringLiteral("3"));
    sqlite3* db = nullptr;
    sqlite3_open(config.databasePath.toUtf8().constData(), &db);
    QFile schema(QStringLiteral(":/db/schema.sql"));
    ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
    EXPECT_EQ(schemaUpgrade(db, QString::fromUtf8(schema.readAll())), QStringList());
    sqlite3_close(db);
}
