// SQLite's locks on the database file belong to the process: a file opened and closed beside
// SQLite drops them. The program refuses such files, and a connection that lost its locks is
// opened anew without writing, and says so.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <sys/sysmacros.h>

#include "common/DatabaseFiles.h"
#include "common/ErrObject.h"
#include "suite/Database.h"
#include "suite/OptionFileReaderText.h"
#include "suite/SqliteFileLocks.h"

static void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

namespace {

using SqliteFileLocks::State;

const QDateTime kNow(QDate(2026, 11, 22), QTime(10, 0, 0));

class DatabaseFileLocksTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        path = dir.filePath(QStringLiteral("suite.sqlite"));
        db = Database::open(path, std::make_shared<FixedClock>(kNow));
        db->runScript(QStringLiteral("CREATE TABLE t (a INTEGER); INSERT INTO t VALUES (1);"));
    }

    // What a careless file dialog does: opens a file to read its first bytes, and closes it.
    static void peekInto(const QString& file) {
        QFile f(file);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << file.toStdString();
        f.read(16);
    }

    long rows() {
        auto rs = db->recordsetFactory()();
        rs->Connect();
        rs->OpenQuery(QStringLiteral("select count(*) as n from t"), 0);
        return rs->ReadLong(QStringLiteral("n"));
    }

    // The text of the failure of an insert through the record set, empty when it was written.
    QString insertFails() {
        try {
            auto rs = db->recordsetFactory()();
            rs->Connect();
            rs->Execute(QStringLiteral("insert into t (a) values (2)"));
        } catch (const RaisedError& e) {
            return e.err().Description;
        }
        return {};
    }

    QTemporaryDir dir;
    QString path;
    std::shared_ptr<Database> db;
};

TEST_F(DatabaseFileLocksTest, AnOpenConnectionHoldsItsLocksUntilAFileOfItIsClosedBesideIt) {
    EXPECT_EQ(SqliteFileLocks::ofThisProcess(path), State::Held);
    peekInto(path);
    EXPECT_EQ(SqliteFileLocks::ofThisProcess(path), State::Lost);
}

TEST_F(DatabaseFileLocksTest, AWriteAfterLostLocksIsRefusedOnceAndTheRepeatedWriteIsSaved) {
    for (const QString& file : {path, path + QStringLiteral("-shm")}) {
        SCOPED_TRACE(file.toStdString());
        const long before = rows();
        peekInto(file);
        const QString refused = insertFails();
        EXPECT_EQ(refused,
                  QStringLiteral("Die Sperre auf die Datenbank %1 ist verloren gegangen. Damit "
                                 "nichts in eine Datei geschrieben wird, die ein anderes Programm "
                                 "inzwischen gelöscht haben kann, wurde die letzte Aktion nicht "
                                 "ausgeführt. Die Verbindung wurde neu geöffnet; bitte wiederholen "
                                 "Sie die Aktion.")
                      .arg(path));
        EXPECT_EQ(rows(), before);
        // Opened anew: the locks are back, and the same action now goes through.
        EXPECT_EQ(SqliteFileLocks::ofThisProcess(path), State::Held);
        EXPECT_EQ(insertFails(), QString());
        EXPECT_EQ(rows(), before + 1);
        // The server's functions are registered on the new connection too.
        auto rs = db->recordsetFactory()();
        rs->Connect();
        rs->OpenQuery(QStringLiteral("select getdate() as jetzt"), 0);
        EXPECT_EQ(rs->ReadDate(QStringLiteral("jetzt")), kNow);
    }
}

TEST(SqliteFileLocksText, OnlyLocksHeldByThatProcessOnThatFileCount) {
    const QByteArray locks =
        "1: POSIX  ADVISORY  READ 3336 fe:00:10952957 128 128\n"
        "2: POSIX  ADVISORY  READ 4100 fe:00:10952905 1073741826 1073742335\n"
        "2: -> POSIX  ADVISORY  WRITE 3336 fe:00:10952905 1073741826 1073742335\n"
        "3: OFDLCK ADVISORY  READ -1 fe:00:10952905 0 0\n"
        "4: FLOCK  ADVISORY  WRITE 3336 08:01:10952905 0 EOF\n";
    const auto device = static_cast<unsigned long long>(makedev(0xfe, 0));
    EXPECT_TRUE(SqliteFileLocks::holds(locks, 3336, {device, 10952957}));
    // Held by another process, or only waited for.
    EXPECT_FALSE(SqliteFileLocks::holds(locks, 3336, {device, 10952905}));
    EXPECT_TRUE(SqliteFileLocks::holds(locks, 4100, {device, 10952905}));
    // The same inode on another device.
    EXPECT_FALSE(SqliteFileLocks::holds(locks, 3336, {makedev(8, 1), 10952957}));
}

TEST_F(DatabaseFileLocksTest, TheDatabaseAndItsCompanionsAreKnownByNameAndByLinkUntilClosed) {
    const QString other = dir.filePath(QStringLiteral("Auftraege.json"));
    QFile(other).open(QIODevice::WriteOnly);
    const QString link = dir.filePath(QStringLiteral("verweis"));
    ASSERT_TRUE(QFile::link(path, link));
    for (const QString& file : {path, path + QStringLiteral("-wal"), path + QStringLiteral("-shm"),
                                path + QStringLiteral("-journal"), link,
                                dir.path() + QStringLiteral("/./sub/../suite.sqlite")}) {
        EXPECT_TRUE(DatabaseFiles::isDatabaseFile(file)) << file.toStdString();
    }
    EXPECT_FALSE(DatabaseFiles::isDatabaseFile(other));
    EXPECT_FALSE(DatabaseFiles::isDatabaseFile(dir.path()));
    EXPECT_FALSE(DatabaseFiles::isDatabaseFile(QString()));
    db.reset();
    EXPECT_FALSE(DatabaseFiles::isDatabaseFile(path));
}

TEST_F(DatabaseFileLocksTest, AnImportScriptThatIsTheDatabaseIsRefusedUnread) {
    try {
        TextOptionFileReader().Entries(path + QStringLiteral("-shm"));
        FAIL() << "read";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, DatabaseFiles::kRefusalNumber);
        EXPECT_EQ(e.err().Description,
                  QStringLiteral("Die Datei %1-shm gehört zur geöffneten Datenbank des "
                                 "Programms. Sie wird nicht geöffnet, damit die Datenbank keinen "
                                 "Schaden nimmt; bitte wählen Sie eine andere Datei.")
                      .arg(path));
    }
    EXPECT_EQ(SqliteFileLocks::ofThisProcess(path), State::Held);
}

}  // namespace
