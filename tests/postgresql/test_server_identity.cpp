// Rows inserted with an explicit id move the identity past it, as SQLite's AUTOINCREMENT does,
// also with several connections writing at once.
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <cstdio>
#include <mutex>
#include <thread>
#include <vector>

#include "tests/postgresql/ServerTest.h"

using ServerIdentity = ServerTest;

namespace {

QVariant insertReturningId(QSqlDatabase& db, const QString& sql) {
    return ServerDatabase::scalar(db, sql);
}

}  // namespace

TEST_F(ServerIdentity, EveryTableWithAnIdentityContinuesAfterAnExplicitId) {
    struct Table {
        const char* name;
        const char* id;
        const char* column;  // one more column to insert
        const char* value;
    };
    const Table tables[] = {
        {"tMitarbeiter", "MitId", "Name", "'x'"},
        {"tMandant", "ManId", "ManNr", "(SELECT count(*) FROM tMandant)"},
        {"person_wirtschaftsjahr", "WJ_Id", "WJ_Jahr", "2026"},
        {"tAutoJobJob", "idAutoJob", "Name", "'x'"},
        {"tAutoJobSchedule", "idAutoJobSchedule", "Name", "'x'"},
        {"tAutoJobVerlauf", "idAutoJobVerlauf", "Erfolgreich", "1"},
        {"SYS_JobAgentLogDaten", "Id", "LogTyp", "2"},
        {"tAutoJobOptionen", "idAutoJobOptionen", "AutoStart", "1"},
        {"tAutoJob", "Id", "diInstallArt", "1"},
        {"tAutoJobEinstellungen", "Id", "Name", "'x'"},
    };
    int n = 0;
    for (const Table& t : tables) {
        const QString name = QLatin1String(t.name);
        ++n;
        run(QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (%4, %5)")
                .arg(name, QLatin1String(t.id), QLatin1String(t.column))
                .arg(500 + n)
                .arg(QLatin1String(t.value)));
        EXPECT_EQ(value(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) RETURNING %4")
                            .arg(name, QLatin1String(t.column), QLatin1String(t.value),
                                 QLatin1String(t.id)))
                      .toInt(),
                  501 + n)
            << t.name;
    }
}

TEST_F(ServerIdentity, TwoConnectionsNeverGetAnIdThatWasGivenExplicitly) {
    QSqlDatabase other = server_.connect();
    run(QStringLiteral("INSERT INTO tMitarbeiter (MitId, Name) VALUES (10, 'Explizit')"));
    EXPECT_EQ(
        insertReturningId(other, "INSERT INTO tMitarbeiter (Name) VALUES ('b') RETURNING MitId")
            .toInt(),
        11);
    // An id below the sequence leaves it where it is.
    ServerDatabase::runScript(other,
                              "INSERT INTO tMitarbeiter (MitId, Name) VALUES (5, 'Unterhalb')");
    EXPECT_EQ(value("INSERT INTO tMitarbeiter (Name) VALUES ('c') RETURNING MitId").toInt(), 12);
    // Several rows in one statement, the highest not last.
    ServerDatabase::runScript(
        other, "INSERT INTO tMitarbeiter (MitId, Name) VALUES (30, 'd'), (25, 'e'), (20, 'f')");
    EXPECT_EQ(value("INSERT INTO tMitarbeiter (Name) VALUES ('g') RETURNING MitId").toInt(), 31);
    // Within a transaction of the other connection: the explicit id, then one without.
    ServerDatabase::runScript(other,
                              "BEGIN; INSERT INTO tMitarbeiter (MitId, Name) VALUES (40, 'h'); "
                              "INSERT INTO tMitarbeiter (Name) VALUES ('i'); COMMIT;");
    EXPECT_EQ(value("SELECT max(MitId) FROM tMitarbeiter").toInt(), 41);
    EXPECT_EQ(value("INSERT INTO tMitarbeiter (Name) VALUES ('j') RETURNING MitId").toInt(), 42);
    // A row without an id after one with an id in the same statement.
    EXPECT_EQ(ServerDatabase::rows(db_,
                                   "INSERT INTO tMitarbeiter (MitId, Name) VALUES "
                                   "(50, 'm'), (DEFAULT, 'n') RETURNING MitId"),
              QStringList({"50", "51"}));
    // The same explicit id twice is the primary key's business, as in SQLite.
    QSqlQuery twice(db_);
    EXPECT_FALSE(twice.exec("INSERT INTO tMitarbeiter (MitId, Name) VALUES (10, 'k')"));
    EXPECT_EQ(value("INSERT INTO tMitarbeiter (Name) VALUES ('l') RETURNING MitId").toInt(), 52);
}

TEST_F(ServerIdentity, WritersAtOnceNeverGetAnIdTwiceButTheExplicitOneOfTheMoment) {
    // Each writer inserts, in turn, a row with an explicit id beyond every id so far (and apart
    // from the other writers' explicit ids) and two rows without an id. A row without an id that
    // is drawn while the sequence is moved up to an explicit id can take that very id; then the
    // primary key rejects one of the two. Every other collision would mean that the sequence
    // fell behind an id already used.
    constexpr int kWriters = 4;
    constexpr int kRounds = 120;
    auto explicitId = [](int round, int writer) { return (round + 1) * 10000 + writer * 1000; };
    std::mutex errorsMutex;
    QStringList errors;
    int collisions = 0;
    const QRegularExpression duplicateKey(QStringLiteral(R"(Key \(id\)=\((\d+)\) already exists)"));
    std::vector<std::thread> writers;
    for (int w = 0; w < kWriters; ++w) {
        writers.emplace_back([&, w] {
            try {
                QSqlDatabase db = server_.connect();
                const QString connection = db.connectionName();
                for (int round = 0; round < kRounds; ++round) {
                    const QString statements[] = {
                        QStringLiteral("INSERT INTO SYS_JobAgentLogDaten (Id, LogTyp, Text) "
                                       "VALUES (%1, 2, 'explizit')")
                            .arg(explicitId(round, w)),
                        QStringLiteral("INSERT INTO SYS_JobAgentLogDaten (LogTyp) VALUES (1)"),
                        QStringLiteral("INSERT INTO SYS_JobAgentLogDaten (LogTyp) VALUES (3)"),
                    };
                    for (const QString& sql : statements) {
                        QSqlQuery query(db);
                        if (query.exec(sql)) {
                            continue;
                        }
                        const QString text = query.lastError().text();
                        const QRegularExpressionMatch m = duplicateKey.match(text);
                        const int id = m.hasMatch() ? m.captured(1).toInt() : -1;
                        std::lock_guard lock(errorsMutex);
                        if (id % 1000 == 0 && id % 10000 / 1000 < kWriters && id / 10000 >= 1 &&
                            id / 10000 <= kRounds) {
                            ++collisions;
                        } else {
                            errors << sql + QStringLiteral(": ") + text;
                        }
                    }
                }
                db = QSqlDatabase();
                ServerDatabase::disconnect(connection);
            } catch (const std::exception& e) {
                std::lock_guard lock(errorsMutex);
                errors << QString::fromUtf8(e.what());
            }
        });
    }
    for (std::thread& t : writers) {
        t.join();
    }
    EXPECT_TRUE(errors.isEmpty()) << errors.mid(0, 5).join(u'\n').toStdString();
    EXPECT_EQ(value("SELECT count(*) FROM SYS_JobAgentLogDaten").toInt(),
              kWriters * kRounds * 3 - collisions);
    const int highest = value("SELECT max(Id) FROM SYS_JobAgentLogDaten").toInt();
    EXPECT_GE(highest, explicitId(kRounds - 1, kWriters - 1));
    EXPECT_EQ(value("INSERT INTO SYS_JobAgentLogDaten (LogTyp) VALUES (1) RETURNING Id").toInt(),
              highest + 1);
    if (collisions > 0) {
        std::printf("%d explicit ids taken by a row without an id at the same moment\n",
                    collisions);
    }
}
