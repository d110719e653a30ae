// The change journal as CSV for auditors: the columns as written, names as they stood, quoting
// of the JSON, one job or all, and the command line that writes it.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "common/Clock.h"
#include "host/JournalCsv.h"
#include "suite/Database.h"

namespace {

const QString kKopf = QStringLiteral(
    "Zeitpunkt;Mitarbeiter;Arbeitsplatz;Auftrags-Id;Auftrag;Zeitplan-Id;Zeitplan;Art;Anlass;"
    "Vorher;Nachher\r\n");

class JournalCsvTest : public ::testing::Test {
  protected:
    void SetUp() override {
        path_ = dir_.filePath(QStringLiteral("journal.sqlite"));
        db_ = Database::open(
            path_, std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0))));
        db_->applySchema();
        // Job 1 was renamed after it was made; its schedule was deleted. Job 2 was made by
        // someone the staff table no longer knows, on another workstation.
        // Written as the rows stand, not journaled themselves.
        db_->runScript(QStringLiteral(
            "SELECT set_config('ajv.arbeitsplatz', '', false);"
            "INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Anna Admin');"
            "INSERT INTO tAutoJobJob (idAutoJob, Name) VALUES (1, 'Kunden neu');"
            "INSERT INTO tAutoJobJournal (Zeitpunkt, Ps_Id_Mitarbeiter, Arbeitsplatz, "
            "idAutoJob, idAutoJobSchedule, Art, Vorher, Nachher, Anlass) VALUES "
            "('2026-11-20 08:00:00', 1, 'pc-anna', 1, NULL, 1, NULL, "
            "'{\"Name\":\"Kunden; alt\"}', 'Bearbeiten'),"
            "('2026-11-21 09:30:05', 1, 'pc-anna', 1, NULL, 2, '{\"Name\":\"Kunden; alt\"}', "
            "'{\"Name\":\"Kunden neu\"}', 'Bearbeiten'),"
            "('2026-11-21 09:00:00', 7, 'pc-jonas', 2, NULL, 1, NULL, '{\"Name\":\"Lohn\"}', "
            "'Import'),"
            "('2026-11-21 10:15:00', 1, 'pc-anna', 1, 4, 3, '{\"Name\":\"Nachts\"}', NULL, "
            "'Zeitplan');"));
    }

    QTemporaryDir dir_;
    QString path_;
    std::shared_ptr<Database> db_;
};

}  // namespace

TEST_F(JournalCsvTest, EveryChangeInTheOrderItWasMadeWithNamesAsTheyStood) {
    EXPECT_EQ(
        JournalCsv::text(*db_, std::nullopt),
        kKopf +
            QStringLiteral(
                "20.11.2026 08:00:00;Anna Admin;pc-anna;1;\"Kunden; alt\";;;neu;Bearbeiten;;"
                "\"{\"\"Name\"\":\"\"Kunden; alt\"\"}\"\r\n"
                "21.11.2026 09:00:00;;pc-jonas;2;Lohn;;;neu;Import;;"
                "\"{\"\"Name\"\":\"\"Lohn\"\"}\"\r\n"
                "21.11.2026 09:30:05;Anna Admin;pc-anna;1;Kunden neu;;;geändert;Bearbeiten;"
                "\"{\"\"Name\"\":\"\"Kunden; alt\"\"}\";\"{\"\"Name\"\":\"\"Kunden neu\"\"}\"\r\n"
                "21.11.2026 10:15:00;Anna Admin;pc-anna;1;Kunden neu;4;Nachts;gelöscht;"
                "Zeitplan;\"{\"\"Name\"\":\"\"Nachts\"\"}\";\r\n"));
}

TEST_F(JournalCsvTest, OneJobAndAJobWithoutChangesGiveTheirLinesOrTheHeaderAlone) {
    const QString one = JournalCsv::text(*db_, 2);
    EXPECT_EQ(one, kKopf + QStringLiteral("21.11.2026 09:00:00;;pc-jonas;2;Lohn;;;neu;Import;;"
                                          "\"{\"\"Name\"\":\"\"Lohn\"\"}\"\r\n"));
    EXPECT_EQ(JournalCsv::text(*db_, 99), kKopf);
}

TEST_F(JournalCsvTest, TheProgramWritesItToStandardOutputAndRefusesAnIdThatIsNone) {
    db_.reset();
    auto run = [&](const QStringList& arguments, QString& out, QString& err) {
        QProcess p;
        p.start(QStringLiteral(AJV_PROGRAM),
                QStringList{QStringLiteral("--db"), path_} + arguments);
        EXPECT_TRUE(p.waitForFinished(60000));
        out = QString::fromUtf8(p.readAllStandardOutput());
        err = QString::fromUtf8(p.readAllStandardError());
        return p.exitCode();
    };
    QString out;
    QString err;
    EXPECT_EQ(run({QStringLiteral("--journal"), QStringLiteral("2")}, out, err), 0)
        << err.toStdString();
    EXPECT_EQ(out, kKopf + QStringLiteral("21.11.2026 09:00:00;;pc-jonas;2;Lohn;;;neu;Import;;"
                                          "\"{\"\"Name\"\":\"\"Lohn\"\"}\"\r\n"));
    EXPECT_EQ(run({QStringLiteral("--journal")}, out, err), 0) << err.toStdString();
    EXPECT_EQ(out.count(QStringLiteral("\r\n")), 5);

    EXPECT_EQ(run({QStringLiteral("--journal"), QStringLiteral("zwei")}, out, err), 1);
    EXPECT_EQ(out, QString());
    // Qt may note its own matters on the line before.
    EXPECT_TRUE(
        err.endsWith(QStringLiteral("Nach --journal steht die Id eines Auftrags (eine "
                                    "Zahl größer als 0), nicht „zwei“.\n")))
        << err.toStdString();
    EXPECT_EQ(
        run({QStringLiteral("--journal"), QStringLiteral("1"), QStringLiteral("2")}, out, err), 1);
    EXPECT_TRUE(err.endsWith(QStringLiteral("Nach --journal steht höchstens eine Auftrags-Id.\n")))
        << err.toStdString();
}
