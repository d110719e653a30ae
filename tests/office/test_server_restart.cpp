// The office's server goes away while the program runs: restarted between two actions, and
// stopped at the moment of a save. The program uses it again once it is back, without a
// restart of its own, and the input typed meanwhile is saved; so does the agent service.
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>

#include "suite/Database.h"
#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"

using namespace real_input;

namespace {

const QString kJob = QStringLiteral("Kunden Bäckerei Huber");

// The test's own server, so that stopping it touches no other test.
class OwnServer {
  public:
    OwnServer() : dir_(QStringLiteral("/tmp/ajv-neustart-XXXXXX")) {
        dir_.setAutoRemove(false);  // the script removes it on stop
        run(QStringLiteral("start"));
    }
    ~OwnServer() { run(QStringLiteral("stop")); }
    bool run(const QString& action) {
        QProcess p;
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral(AJV_SOURCE_DIR "/scripts/pg-test-server"), {action, dir_.path()});
        p.waitForFinished(120000);
        const bool ok = p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
        EXPECT_TRUE(ok) << p.readAll().toStdString();
        return ok;
    }
    QString address() const {
        return QStringLiteral("postgresql://postgres@/postgres?host=") + dir_.path();
    }

  private:
    QTemporaryDir dir_;
};

class ServerRestart : public ProgramFixture {
  protected:
    void configure(SuiteConfig& config) override {
        QDir().mkpath(root() + QStringLiteral("/in"));
        QDir().mkpath(root() + QStringLiteral("/backup"));
        QDir().mkpath(root() + QStringLiteral("/log"));
        config.databasePath = server_.address();
        config.mitId = 2;
        auto db = Database::open(config.databasePath, nullptr);
        db->applySchema();
        db->runScript(
            QStringLiteral(
                "INSERT INTO tMitarbeiter (MitId, Name) VALUES (2, 'Anna Berger');"
                "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES "
                "(1, 10010, 0, 'Bäckerei Huber GmbH');"
                "INSERT INTO tAutoJobJob (Name, Beschreibung, Aktiviert, DatenArt, MTAPath, "
                "BackupPath, ErrorMTA, Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, "
                "Erstellt, LetzteAenderung) VALUES ('%1', 'Stammdaten', 1, 17, '%2/in', "
                "'%2/backup', '%2/log', 1, 0, 2, '2', '2026-11-01 08:00:00', '2026-11-01 "
                "08:00:00');"
                "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
                "FrequencyInterval, FrequencySubDay, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
                "ActiveStartDate, ActiveEndDate) VALUES (1, 'Minütlich', 1, 4, 1, 4, 0, 235959, "
                "'2026-01-01 00:00:00', '9999-12-31 00:00:00')")
                .arg(kJob, root()));
    }

    QString stored(const QString& sql) {
        auto db = Database::open(server_.address(), nullptr);
        QSqlQuery q(QSqlDatabase::database(db->connectionName(), false));
        return q.exec(sql) && q.next() ? q.value(0).toString() : QStringLiteral("<no row>");
    }

    void describe(QWidget* w, const QString& text) {
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung), text);
    }

    OwnServer server_;
};

TEST_F(ServerRestart, TheNextSaveAfterARestartOrAnOutageGoesThroughInTheSameProgram) {
    QStringList boxesWhileAway;
    QString inputWhileAway;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        auto* uebernehmen =
            find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Uebernehmen);
        // Restarted between two actions: the next one works as if nothing had happened.
        describe(w, QStringLiteral("Vor dem Neustart"));
        click(uebernehmen);
        ASSERT_TRUE(server_.run(QStringLiteral("halt")));
        ASSERT_TRUE(server_.run(QStringLiteral("resume")));
        describe(w, QStringLiteral("Nach dem Neustart"));
        click(uebernehmen);
        EXPECT_TRUE(boxes_->shown().isEmpty()) << boxes_->shown().join(u'|').toStdString();

        // Away at the moment of a save: told once, the input stays, the button too.
        ASSERT_TRUE(server_.run(QStringLiteral("halt")));
        describe(w, QStringLiteral("Waehrend der Server fehlt"));
        click(uebernehmen);
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 20000);
        boxesWhileAway = boxes_->shown();
        inputWhileAway = static_cast<QPlainTextEdit*>(find(w, QStringLiteral("txtTextBox"),
                                                           frmEigenschaften::Txt::Beschreibung))
                             ->toPlainText();
        EXPECT_TRUE(uebernehmen->isEnabled());
        // Back again: the same button saves what was typed.
        ASSERT_TRUE(server_.run(QStringLiteral("resume")));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kJob));
    ASSERT_TRUE(waitFor([&] { return done; }, 60000));

    ASSERT_EQ(boxesWhileAway.size(), 1) << boxesWhileAway.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhileAway.first().contains(QStringLiteral(
        "Die Verbindung zum Datenbankserver ist unterbrochen. Ihre Eingaben bleiben erhalten; "
        "bitte versuchen Sie es erneut, sobald der Server wieder erreichbar ist.")))
        << boxesWhileAway.first().toStdString();
    EXPECT_EQ(inputWhileAway, QStringLiteral("Waehrend der Server fehlt"));
    EXPECT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(stored(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob")),
              QStringLiteral("Waehrend der Server fehlt"));
}

TEST_F(ServerRestart, TheAgentGoesOnWritingAfterTheServerWasAway) {
    QProcess agent;
    agent.start(QStringLiteral(AJV_AGENT),
                {QStringLiteral("--db"), server_.address(), QStringLiteral("--live"),
                 QStringLiteral("--interval-ms"), QStringLiteral("200")});
    ASSERT_TRUE(agent.waitForStarted());
    ASSERT_TRUE(waitFor([&] {
        return stored(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toInt() >= 2;
    }));
    ASSERT_TRUE(server_.run(QStringLiteral("halt")));
    waitFor([] { return false; }, 1500);
    ASSERT_TRUE(server_.run(QStringLiteral("resume")));
    const int back = stored(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toInt();
    EXPECT_TRUE(waitFor([&] {
        return stored(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toInt() >= back + 3;
    }));
    agent.terminate();
    agent.waitForFinished(10000);
    const QString err = QString::fromUtf8(agent.readAllStandardError());
    // What it could not write while the server was away, it says in words, never empty.
    for (const QString& line : err.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(QStringLiteral("Nicht geschrieben:"))) {
            EXPECT_GT(line.size(), QStringLiteral("Nicht geschrieben: ").size() + 10)
                << line.toStdString();
        }
    }
}

}  // namespace
