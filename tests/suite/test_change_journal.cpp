// The change journal on SQLite: every write of a job or schedule on the program's connection,
// in the statement of the write; another SQLite client writes as before.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QTemporaryDir>

#include "common/Clock.h"
#include "suite/SuiteConfig.h"
#include "suite/SuiteServices.h"
#include "tests/suite/JournalChecks.h"

TEST(ChangeJournal, EveryWriteOfAJobOrScheduleOnSqlite) {
    QTemporaryDir dir;
    auto db =
        Database::open(dir.filePath(QStringLiteral("j.sqlite")),
                       std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0))));
    db->applySchema();
    checkChangeJournal(*db);
}

TEST(ChangeJournal, TheDemoDataIsNoChangeAndAnotherClientStillWritesJobs) {
    QTemporaryDir dir;
    SuiteConfig config;
    config.databasePath = dir.filePath(QStringLiteral("demo.sqlite"));
    config.paths.insert(83, dir.filePath(QStringLiteral("data")));
    config.mitId = 2;
    {
        auto db = openSuiteDatabase(config, std::make_shared<SystemClock>());
        auto rs = db->recordsetFactory()();
        rs->Connect();
        EXPECT_EQ(journalRows(*rs, {}), QStringList());
        ASSERT_EQ(rs->OpenQuery(QStringLiteral("SELECT current_setting('ajv.mitarbeiter', 1) "
                                               "AS m")),
                  1);
        EXPECT_EQ(rs->ReadText(QStringLiteral("m")), QStringLiteral("2"));
        rs->Close();
        rs->Disconnect();
    }
    // The triggers live on the program's connections only: a client without its functions
    // writes jobs as before.
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(config.databasePath.toUtf8().constData(), &other), SQLITE_OK);
    EXPECT_EQ(
        sqlite3_exec(other, "UPDATE tAutoJobJob SET Name = Name || '!'; DELETE FROM tAutoJobJob",
                     nullptr, nullptr, nullptr),
        SQLITE_OK)
        << sqlite3_errmsg(other);
    sqlite3_close(other);
}
