// An office: two workstations and the agent service on one PostgreSQL database. This process
// is the first workstation, driven through its widgets; the second is the program started as
// its own process; the agent service is autojobverw-agent writing runs all along.
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QTest>

#include "suite/Database.h"
#include "suite/PostgresConnection.h"
#include "tests/host/ProgramFixture.h"
#include "tests/postgresql/ServerDatabase.h"

using namespace real_input;

namespace {

constexpr long kFirst = 2;   // staff member at the first workstation
constexpr long kSecond = 3;  // and at the second

struct Finished {
    int exitCode = -1;
    QString out;
};

// A program of this build, started as its own process with the test server's environment.
Finished runProgram(const QString& program, const QStringList& arguments, int timeoutMs = 60000) {
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(program, arguments);
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
    }
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAll())};
}

class TwoWorkstations : public ProgramFixture {
  protected:
    void configure(SuiteConfig& config) override {
        address_ = PostgresConnection::addressOf(server_.name());
        // The office's database as its administrator made it: the schema, the suite's staff
        // members and clients, no job yet.
        auto db = Database::open(address_, nullptr);
        db->applySchema();
        db->runScript(QStringLiteral(
            "INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Administrator'), "
            "(2, 'Anna Berger'), (3, 'Jonas Keller'), (4, 'Miriam Schulte');"
            "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES "
            "(1, 10010, 0, 'Bäckerei Huber GmbH'), (2, 10020, 0, 'Autohaus Lindner KG'), "
            "(3, 10030, 0, 'Praxis Dr. Weber'), (4, 20100, 0, 'Elektro Sommer e.K.'), "
            "(5, 1, 1, 'Steuerkanzlei Brandt & Partner'), (6, 2, 1, 'Kanzlei Neumann');"
            "INSERT INTO tSuiteText (TextId, Text) VALUES (1236, 'Kesto')"));
        config.databasePath = address_;
        config.mitId = kFirst;
        look_ = server_.connect();
    }

    QString value(const QString& sql) {
        const QStringList rows = ServerDatabase::rows(look_, sql);
        return rows.isEmpty() ? QStringLiteral("<no row>") : rows.first();
    }

    // The jobs of the demo database as a transfer document, made by the program itself.
    QString demoJobs() {
        const QString file = root() + QStringLiteral("/demo-jobs.json");
        const Finished made =
            runProgram(QStringLiteral(AJV_PROGRAM),
                       {QStringLiteral("--db"), root() + QStringLiteral("/demo.sqlite"),
                        QStringLiteral("--export"), file});
        EXPECT_EQ(made.exitCode, 0) << made.out.toStdString();
        return file;
    }

    ServerDatabase server_;
    QString address_;
    QSqlDatabase look_;
};

TEST_F(TwoWorkstations, WhatEitherSavesTheOtherSeesAndTheStampsTellWho) {
    ASSERT_EQ(rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Kunden Bäckerei Huber")),
              0);

    // The second workstation adds 14 jobs with 17 schedules.
    const Finished imported =
        runProgram(QStringLiteral(AJV_PROGRAM),
                   {QStringLiteral("--db"), address_, QStringLiteral("--mitarbeiter"),
                    QString::number(kSecond), QStringLiteral("--import"), demoJobs()});
    ASSERT_EQ(imported.exitCode, 0) << imported.out.toStdString();
    ASSERT_TRUE(imported.out.contains(QStringLiteral("14 Aufträge importiert")))
        << imported.out.toStdString();

    // The agent service runs them from now on.
    QProcess agent;
    agent.setProcessChannelMode(QProcess::MergedChannels);
    agent.start(QStringLiteral(AJV_AGENT),
                {QStringLiteral("--db"), address_, QStringLiteral("--live"),
                 QStringLiteral("--interval-ms"), QStringLiteral("25"), QStringLiteral("--count"),
                 QStringLiteral("60")});
    ASSERT_TRUE(agent.waitForStarted());

    // The first workstation sees them once it reads its list again.
    chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Aktualisieren"));
    EXPECT_TRUE(waitFor([&] {
        return rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Kunden Bäckerei Huber")) >
               0;
    }));
    EXPECT_EQ(list()->model()->rowCount(), 14);

    // ... and saves a job of its own.
    saveNewJobFromTheMenu(QStringLiteral("Kunden vom Platz 1"));
    EXPECT_GT(rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Kunden vom Platz 1")), 0);

    // The second workstation finds it among all jobs.
    const QString exported = root() + QStringLiteral("/all.json");
    const Finished all =
        runProgram(QStringLiteral(AJV_PROGRAM),
                   {QStringLiteral("--db"), address_, QStringLiteral("--export"), exported});
    ASSERT_EQ(all.exitCode, 0) << all.out.toStdString();
    QFile document(exported);
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    const QByteArray text = document.readAll();
    EXPECT_EQ(text.count("\"name\": \"Kunden vom Platz 1\""), 1) << text.left(400).toStdString();

    // Nothing is lost, and the stamps tell who saved what.
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM tAutoJobJob")), "15");
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule")), "17");
    EXPECT_EQ(value(QStringLiteral("SELECT Ps_Id_Mitarbeiter, LetzteAenderung IS NOT NULL FROM "
                                   "tAutoJobJob WHERE Name = 'Kunden vom Platz 1'")),
              QStringLiteral("%1|true").arg(kFirst));
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE Ps_Id_Mitarbeiter = %1 "
                                   "AND LetzteAenderung IS NOT NULL")
                        .arg(kSecond)),
              "14");
    EXPECT_EQ(
        value(
            QStringLiteral("SELECT count(*) FROM tAutoJobSchedule WHERE Ps_Id = %1").arg(kSecond)),
        "17");

    // Every run the agent service wrote meanwhile is there.
    ASSERT_TRUE(agent.waitForFinished(60000));
    const QString agentOut = QString::fromUtf8(agent.readAll());
    // Live, the agent prints its totals after every run: the last line counts.
    QRegularExpressionMatch written;
    for (const QRegularExpressionMatch& m :
         QRegularExpression(QStringLiteral("Geschrieben: (\\d+) Ausführungen, (\\d+) Logeinträge"))
             .globalMatch(agentOut)) {
        written = m;
    }
    ASSERT_TRUE(written.hasMatch()) << agentOut.toStdString();
    EXPECT_EQ(written.captured(1), "60");
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")), written.captured(1));
    EXPECT_EQ(value(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")),
              written.captured(2));
    EXPECT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
}

}  // namespace
