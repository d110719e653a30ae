// The change journal on the server: the same rows as on SQLite, written by the schema's
// triggers in the statement of each write.
#include <gtest/gtest.h>

#include <QSqlDatabase>

#include "suite/PostgresConnection.h"
#include "tests/postgresql/ServerDatabase.h"
#include "tests/suite/JournalChecks.h"

TEST(ServerChangeJournal, EveryWriteOfAJobOrScheduleOnTheServer) {
    ServerDatabase server;
    auto db = Database::open(
        PostgresConnection::addressOf(server.name()),
        std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0))), 300);
    db->applySchema();
    checkChangeJournal(*db);
    // The time is the server's own, not the program's clock.
    QSqlDatabase other = server.connect();
    EXPECT_EQ(
        ServerDatabase::rows(other, QStringLiteral("SELECT count(*) FROM tAutoJobJournal WHERE "
                                                   "abs(extract(epoch FROM localtimestamp - "
                                                   "Zeitpunkt)) > 300")),
        QStringList({QStringLiteral("0")}));
}
