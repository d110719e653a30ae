#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QSqlRecord>

#include "agent/JobAgentSimulator.h"
#include "agent/PostgresAgentWriter.h"
#include "common/ErrObject.h"
#include "suite/PostgresConnection.h"
#include "tests/agent_postgresql/ServerTestDatabase.h"

// The agent simulator on a PostgreSQL server writes what it writes on SQLite, in the same
// transactions, and leaves nothing of a transaction that fails.

namespace {

const QDateTime kNow(QDate(2024, 3, 1), QTime(8, 15, 0));

qint64 count(const Database& db, const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(db.connectionName(), false));
    EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
    return query.next() ? query.value(0).toLongLong() : -1;
}

// Every row of the statement as text, dates as the system stores them, NULL as such.
QStringList rows(const Database& db, const QString& sql) {
    QSqlDatabase connection = QSqlDatabase::database(db.connectionName(), false);
    return ServerDatabase::rows(connection, sql);
}

// A job whose texts need quoting in a statement: a quote, a backslash, an umlaut.
const char* const kOddJob =
    "UPDATE tAutoJobJob SET Name = 'Kunden''s \\ Import ''ä''', "
    "ErrorMTA = 'C:\\zpk\\log''s', BackupPath = 'C:\\zpk\\sich' "
    "WHERE idAutoJob = (SELECT min(idAutoJob) FROM tAutoJobSchedule WHERE Aktiviert <> 0)";

class AgentOnServer : public ::testing::Test {
  protected:
    std::shared_ptr<Database> open() {
        return Database::open(server.address(), std::make_shared<FixedClock>(kNow));
    }
    qint64 count(const QString& sql) { return ::count(*db, sql); }

    ServerTestDatabase server;
    std::shared_ptr<Database> db = open();
};

TEST_F(AgentOnServer, BulkWritesTheRowsItWritesOnSqlite) {
    auto lite = Database::open(server.sqlitePath(), std::make_shared<FixedClock>(kNow));
    lite->runScript(QString::fromUtf8(kOddJob));
    db->runScript(QString::fromUtf8(kOddJob));
    const QString owned = rows(*db, "SELECT * FROM tAutoJobJob ORDER BY 1").join(u'\n') +
                          rows(*db, "SELECT * FROM tAutoJobSchedule ORDER BY 1").join(u'\n');

    AgentOptions options;
    options.years = 2;
    options.runsPerJob = 700;
    options.seed = 7;
    // Transactions and statements end at different rows.
    options.batch = 1500;
    JobAgentSimulator onServer(db, options);
    JobAgentSimulator onFile(lite, options);
    ASSERT_GT(onServer.loadSchedules(), 5);
    ASSERT_EQ(onFile.loadSchedules(), onServer.loadSchedules());
    const AgentCounts written = onServer.fillYears();
    const AgentCounts writtenOnFile = onFile.fillYears();

    EXPECT_EQ(written.runs, writtenOnFile.runs);
    EXPECT_EQ(written.logEntries, writtenOnFile.logEntries);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), written.runs);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), written.logEntries);
    EXPECT_GT(written.runs % PostgresAgentWriter::kRowsPerStatement, 0);

    const QString runs = QStringLiteral(
        "SELECT idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, BackupPath, "
        "ErrorMTA FROM tAutoJobVerlauf ORDER BY idAutoJobVerlauf");
    const QString logs = QStringLiteral(
        "SELECT DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId, MitarbeiterId, Herkunft, "
        "AuftragKennung, Kategorie, Name, Text, Zusatz FROM SYS_JobAgentLogDaten ORDER BY Id");
    const QStringList runsOnServer = rows(*db, runs);
    EXPECT_TRUE(runsOnServer == rows(*lite, runs));
    EXPECT_TRUE(rows(*db, logs) == rows(*lite, logs));
    // The odd texts arrived as they are, the NULLs as NULL.
    EXPECT_TRUE(runsOnServer.filter(QStringLiteral("|C:\\zpk\\log's")).size() > 0);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE Name = "
                    "'Kunden''s \\ Import ''ä'''"),
              count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 AND "
                    "AuftragKennung LIKE (SELECT min(idAutoJob) FROM tAutoJobSchedule WHERE "
                    "Aktiviert <> 0) || '-%'"));
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE (LogTyp = 2) <> "
                    "(Herkunft IS NULL AND AuftragKennung IS NOT NULL)"),
              0);
    // Ids in the order of time, within the two years up to now.
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf a JOIN tAutoJobVerlauf b ON "
                    "b.idAutoJobVerlauf = a.idAutoJobVerlauf + 1 WHERE b.LetzteAusfuehrung < "
                    "a.LetzteAusfuehrung"),
              0);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung < "
                    "'2022-03-01 08:15:00' OR LetzteAusfuehrung > '2024-03-01 08:15:00'"),
              0);
    // Jobs and schedules are the program's: the agent never writes them.
    EXPECT_EQ(rows(*db, "SELECT * FROM tAutoJobJob ORDER BY 1").join(u'\n') +
                  rows(*db, "SELECT * FROM tAutoJobSchedule ORDER BY 1").join(u'\n'),
              owned);
}

TEST_F(AgentOnServer, AGivenNumberOfLogEntriesIsWrittenExactly) {
    AgentOptions options;
    options.years = 1;
    options.runsPerJob = 10;
    options.logEntries = 12345;
    options.jobId = 1;
    options.batch = 4000;
    JobAgentSimulator agent(db, options);
    ASSERT_EQ(agent.loadSchedules(), count("SELECT count(*) FROM tAutoJobSchedule WHERE "
                                           "idAutoJob = 1 AND Aktiviert <> 0"));
    const AgentCounts written = agent.fillYears();
    EXPECT_EQ(written.logEntries, 12345);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), 12345);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), 10);
    EXPECT_EQ(
        count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE LogTyp = 2 AND AutoJobId <> 1"), 0);
}

TEST_F(AgentOnServer, ABulkFillThatFailsKeepsOnlyTheTransactionsBeforeIt) {
    db->runScript(QStringLiteral(
        "CREATE FUNCTION kein_spaeter_eintrag() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
        "IF NEW.DatumUhrzeit > '2023-09-01' THEN RAISE EXCEPTION 'kein Eintrag nach September'; "
        "END IF; RETURN NEW; END $$; "
        "CREATE TRIGGER tKeinSpaeterEintrag BEFORE INSERT ON SYS_JobAgentLogDaten FOR EACH ROW "
        "EXECUTE FUNCTION kein_spaeter_eintrag()"));
    AgentOptions options;
    options.years = 1;
    options.runsPerJob = 300;
    options.batch = 1000;
    JobAgentSimulator agent(db, options);
    agent.loadSchedules();
    try {
        agent.fillYears();
        FAIL() << "the fill went through";
    } catch (const RaisedError& e) {
        EXPECT_TRUE(e.err().Description.contains(QStringLiteral("kein Eintrag nach September")))
            << e.err().Description.toStdString();
    }
    // Whole transactions of 1000 runs, all before the failing entry; the connection goes on.
    const qint64 runs = count("SELECT count(*) FROM tAutoJobVerlauf");
    EXPECT_GT(runs, 0);
    EXPECT_EQ(runs % 1000, 0);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten WHERE DatumUhrzeit > "
                    "'2023-09-01'"),
              0);
}

TEST_F(AgentOnServer, ALiveRunIsOneTransactionAtTheMomentNow) {
    JobAgentSimulator agent(db, AgentOptions{});
    agent.loadSchedules();
    ASSERT_TRUE(agent.runOnce());
    ASSERT_TRUE(agent.runOnce());
    EXPECT_EQ(agent.counts().runs, 2);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf WHERE LetzteAusfuehrung = "
                    "'2024-03-01 08:15:00'"),
              2);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), agent.counts().logEntries);

    // The run goes in before its log entries fail: nothing of it stays, nothing is counted.
    db->runScript(QStringLiteral(
        "CREATE FUNCTION keine_eintraege() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
        "RAISE EXCEPTION 'keine Einträge'; END $$; "
        "CREATE TRIGGER tKeineEintraege BEFORE INSERT ON SYS_JobAgentLogDaten FOR EACH ROW "
        "EXECUTE FUNCTION keine_eintraege()"));
    const AgentCounts before = agent.counts();
    EXPECT_THROW(agent.runOnce(), RaisedError);
    EXPECT_EQ(agent.counts().runs, before.runs);
    EXPECT_EQ(agent.counts().logEntries, before.logEntries);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), before.runs);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), before.logEntries);

    // The next run is written again.
    db->runScript(QStringLiteral("DROP TRIGGER tKeineEintraege ON SYS_JobAgentLogDaten"));
    ASSERT_TRUE(agent.runOnce());
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), before.runs + 1);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), agent.counts().logEntries);

    // The server drops the agent's connection: the agent opens it again and writes the run.
    {
        QSqlDatabase admin =
            PostgresConnection::open(QStringLiteral("agent_admin"),
                                     PostgresConnection::addressOf(QStringLiteral("postgres")),
                                     {QStringLiteral("autojobverw-test")});
        EXPECT_TRUE(QSqlQuery(admin).exec(
            QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname "
                           "= '%1' AND application_name = 'autojobverw'")
                .arg(server.address().section(u'/', -1))));
        admin.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("agent_admin"));
    const AgentCounts beforeCut = agent.counts();
    ASSERT_TRUE(agent.runOnce());
    EXPECT_EQ(agent.counts().runs, beforeCut.runs + 1);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), agent.counts().runs);
}

// The program as it is started, on the database's address.
struct AgentRunResult {
    int exitCode = -1;
    QString out;
    QString err;
};

AgentRunResult runAgent(const QStringList& arguments) {
    QProcess agent;
    agent.start(QStringLiteral(AJV_AGENT_BINARY), arguments);
    EXPECT_TRUE(agent.waitForFinished(120000));
    return {agent.exitCode(), QString::fromLocal8Bit(agent.readAllStandardOutput()),
            QString::fromLocal8Bit(agent.readAllStandardError())};
}

// "Geschrieben: N Ausführungen, M Logeinträge" of the last line saying so.
std::pair<qint64, qint64> totalsOf(const QString& out) {
    static const QRegularExpression totals(
        QStringLiteral("Geschrieben: (\\d+) Ausführungen, (\\d+) Logeinträge"));
    std::pair<qint64, qint64> last{-1, -1};
    for (const auto& m : totals.globalMatch(out)) {
        last = {m.captured(1).toLongLong(), m.captured(2).toLongLong()};
    }
    return last;
}

TEST_F(AgentOnServer, TheAgentProgramFillsAndWritesLiveOnTheAddress) {
    const AgentRunResult bulk =
        runAgent({QStringLiteral("--db"), server.address(), QStringLiteral("--years"),
                  QStringLiteral("1"), QStringLiteral("--runs-per-job"), QStringLiteral("50")});
    ASSERT_EQ(bulk.exitCode, 0) << bulk.err.toStdString();
    const auto [runs, entries] = totalsOf(bulk.out);
    EXPECT_EQ(runs, 50 * count("SELECT count(DISTINCT idAutoJob) FROM tAutoJobSchedule WHERE "
                               "Aktiviert <> 0"));
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), runs);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), entries);

    const AgentRunResult live =
        runAgent({QStringLiteral("--db"), server.address(), QStringLiteral("--live"),
                  QStringLiteral("--count"), QStringLiteral("3"), QStringLiteral("--interval-ms"),
                  QStringLiteral("1")});
    ASSERT_EQ(live.exitCode, 0) << live.err.toStdString();
    EXPECT_TRUE(live.err.isEmpty()) << live.err.toStdString();
    const auto [liveRuns, liveEntries] = totalsOf(live.out);
    EXPECT_EQ(liveRuns, 3);
    EXPECT_EQ(count("SELECT count(*) FROM tAutoJobVerlauf"), runs + 3);
    EXPECT_EQ(count("SELECT count(*) FROM SYS_JobAgentLogDaten"), entries + liveEntries);
}

TEST(AgentOnServerAddress, AnEmptyDatabaseIsRefusedInTheSystemsWords) {
    const ServerTestDatabase server(ServerTestDatabase::Content::Empty);
    const AgentRunResult run = runAgent(
        {QStringLiteral("--db"), server.address(), QStringLiteral("--years"), QStringLiteral("1")});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err.trimmed(),
              QStringLiteral("Die Datenbank %1 hat keine Tabellen.").arg(server.address()));
}

}  // namespace
