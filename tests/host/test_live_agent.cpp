// The program as users start it, worked through its windows while the job agent writes runs
// and log entries into the same database: no lock message, no error report, no row lost.
#include <QLabel>
#include <QTest>
#include <atomic>
#include <thread>

#include "agent/JobAgentSimulator.h"
#include "common/Clock.h"
#include "common/ErrObject.h"
#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmVerlauf.h"

using namespace real_input;

namespace {

// Seconds of the check; AJV_LIVE_CHECK_SECONDS makes it longer by hand.
int checkSeconds() {
    const int seconds = qEnvironmentVariableIntValue("AJV_LIVE_CHECK_SECONDS");
    return seconds > 0 ? seconds : 8;
}

}  // namespace

using LiveAgentTest = ProgramFixture;

TEST_F(LiveAgentTest, HistoryLogDataAndDeletionWhileTheAgentWrites) {
    const qint64 runsBefore =
        scalar(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toLongLong();
    const qint64 logBefore =
        scalar(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")).toLongLong();

    std::atomic<bool> stop{false};
    std::atomic<qint64> runs{0};
    std::atomic<qint64> entries{0};
    QStringList agentFailures;
    std::thread agent([&] {
        // The agent is a program of its own: its own connection, in its own thread.
        auto db = Database::open(config_->databasePath, std::make_shared<SystemClock>());
        JobAgentSimulator simulator(db, AgentOptions{});
        simulator.loadSchedules();
        while (!stop) {
            try {
                simulator.runOnce();
            } catch (const RaisedError& e) {
                agentFailures << e.err().Description;
            }
            runs = simulator.counts().runs;
            entries = simulator.counts().logEntries;
            QThread::msleep(20);
        }
    });

    QElapsedTimer timer;
    timer.start();
    int rounds = 0;
    while (timer.elapsed() < checkSeconds() * 1000) {
        clickRow(list(), 1 + rounds % 3);
        QString counter;
        whenShown(QStringLiteral("frmVerlauf"), [&](QWidget* w) {
            if (auto* label = qobject_cast<QLabel*>(
                    find(w, QStringLiteral("lblLabel"), frmVerlauf::Lbl::Ausfuehrungen))) {
                counter = label->text();
            }
            w->close();
        });
        chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Auftragsverlauf"));
        ASSERT_TRUE(waitFor([&] { return !counter.isEmpty(); }));
        EXPECT_TRUE(counter.startsWith(QStringLiteral("Ausführungen: "))) << counter.toStdString();

        bool viewed = false;
        whenShown(QStringLiteral("frmLogDaten"), [&](QWidget* w) {
            viewed = true;
            w->close();
        });
        chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Logdaten Dienst"));
        ASSERT_TRUE(waitFor([&] { return viewed; }));

        // Today's service entries, the agent's newest among them.
        deleteTodaysServiceLog();
        ++rounds;
    }
    stop = true;
    agent.join();

    QStringList unexpected;
    const qint64 deleted = deletedLogEntries({}, unexpected);
    EXPECT_EQ(unexpected, QStringList());
    EXPECT_EQ(agentFailures, QStringList());
    EXPECT_GE(rounds, 2);
    EXPECT_GT(runs, 5);
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toLongLong(),
              runsBefore + runs);
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")).toLongLong(),
              logBefore + entries - deleted);
}
