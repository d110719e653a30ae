#include <gtest/gtest.h>

#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmZeitplanCopy.h"

// The controller's members of the copy dialog the tests set and look at.
class ScheduleCopyTestAccess {
  public:
    static std::shared_ptr<frmZeitplanCopy>& form(cAdminJob& a) { return a.mofrmZeitplanCopy; }
    static IGrid*& grid(cAdminJob& a) { return a.moGridAuftrag; }
    static long& jobId(cAdminJob& a) { return a.mlJobId; }
    static long& zeitplanId(cAdminJob& a) { return a.mlKopieZeitplanId; }
    static QString& name(cAdminJob& a) { return a.msKopieZeitplanName; }
    static long& ausgewaehlt(cAdminJob& a) { return a.mlKopieAusgewaehlt; }
    static long& gesamt(cAdminJob& a) { return a.mlKopieGesamt; }
    static QString& farbe(cAdminJob& a) { return a.msKopieInfoFarbe; }
    static std::unique_ptr<cSchedule>& schedule(cAdminJob& a) { return a.moSchedule; }
    static void initGrid(cAdminJob& a) { a.mInitGridAuftrag(); }
    static void fuelleGrid(cAdminJob& a) { a.mFuelleGridAuftrag(); }
    static void click(cAdminJob& a, int lRow, int lCol) { a.moGridAuftrag_Click(lRow, lCol); }
    static void waehlen(cAdminJob& a, bool bAbwaehlen) { a.mZeitplanWaehlen(bAbwaehlen); }
    static void kopieren(cAdminJob& a, std::uint8_t by) { a.mZeitplanKopieren(by); }
};

namespace {

using app_test::World;
using A = ScheduleCopyTestAccess;

class ScheduleCopy : public ::testing::Test {
  protected:
    World w;
    std::shared_ptr<frmZeitplanCopy> form;

    void SetUp() override {
        w.start();
        w.sql(
            "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz) VALUES ('Quelle', 5, 3);"
            "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz) VALUES ('Anlagen', 5, 3);"
            "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz) VALUES ('Kunden', 17, 3);"
            "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz) VALUES ('Kanzlei', 17, 4);"
            "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
            "  FrequencyInterval, FrequencySubDay, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
            "  ActiveStartDate, ActiveEndDate, Ps_Id) VALUES (1, 'Früh', 1, 4, 3, 1, 53000, "
            "  235959, '2026-12-01 00:00:00', '9999-12-31 00:00:00', 9);");
        form = std::make_shared<frmZeitplanCopy>(
            services().windows->create(frmZeitplanCopy::declaration()));
        A::form(admin()) = form;
        A::grid(admin()) = &form->grdAuftrag();
        A::jobId(admin()) = 1;
        A::zeitplanId(admin()) = 1;
        A::name(admin()) = QStringLiteral("Früh");
        A::farbe(admin()) = QStringLiteral("-1");
        A::initGrid(admin());
        A::fuelleGrid(admin());
    }
    void TearDown() override {
        A::grid(admin()) = nullptr;
        A::form(admin()) = nullptr;
    }

    cAdminJob& admin() { return w.admin(); }
    IGrid& grid() { return form->grdAuftrag(); }
    QString zeile(int r) {
        return grid().TextMatrix(r, 1) + QLatin1Char('|') + grid().TextMatrix(r, 2) +
               QLatin1Char('|') + grid().TextMatrix(r, 3) + QLatin1Char('|') +
               grid().CellData(r, 1).toString() + QLatin1Char('|') +
               (grid().CellChecked(r, 0) ? QLatin1Char('x') : QLatin1Char('-'));
    }
    QString zustand() {
        return form->lblZeitplanCopyInfo().Caption() + QLatin1Char('|') +
               QString::number(form->lblZeitplanCopyInfo().ForeColor()) + QLatin1Char('|') +
               (form->cmdAuswaehlen().Enabled() ? QLatin1Char('A') : QLatin1Char('-')) +
               (form->cmdAbwaehlen().Enabled() ? QLatin1Char('B') : QLatin1Char('-')) +
               (form->cmdOk().Enabled() ? QLatin1Char('O') : QLatin1Char('-'));
    }
};

TEST_F(ScheduleCopy, TheListHoldsEveryOtherJobByClientThenTypeAllTicked) {
    ASSERT_EQ(grid().Rows(), 4);
    EXPECT_EQ(grid().FixedRows(), 1);
    EXPECT_TRUE(grid().ColBoolean(0));
    EXPECT_EQ(zeile(1), "Kanzlei|Import Kunden|Alle Kanzleien|4|x");
    EXPECT_EQ(zeile(2), "Kunden|Import Kunden|Alle Mandanten|3|x");
    EXPECT_EQ(zeile(3), "Anlagen|Import Wirtschaftsgüter|Alle Mandanten|2|x");
    EXPECT_EQ(A::ausgewaehlt(admin()), 3);
    EXPECT_EQ(A::gesamt(admin()), 3);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleCopy, OnlyClicksIntoTheTickColumnOfADataRowCount) {
    A::click(admin(), 2, 0);
    EXPECT_EQ(zustand(), "Zeitplan für 2 von 3 Aufträgen kopieren.|-1|ABO");
    A::click(admin(), 0, 0);
    A::click(admin(), 1, 1);
    A::click(admin(), 3, 2);
    EXPECT_EQ(zustand(), "Zeitplan für 2 von 3 Aufträgen kopieren.|-1|ABO");
    A::click(admin(), 1, 0);
    A::click(admin(), 3, 0);
    EXPECT_EQ(zustand(), "Zeitplan für 0 von 3 Aufträgen kopieren.|255|A--");
    A::click(admin(), 2, 0);
    EXPECT_EQ(zustand(), "Zeitplan für 1 von 3 Aufträgen kopieren.|-1|ABO");
    A::waehlen(admin(), false);
    EXPECT_EQ(zustand(), "Zeitplan für 3 von 3 Aufträgen kopieren.|-1|-BO");
    EXPECT_EQ(zeile(1).right(1), "x");
    A::waehlen(admin(), true);
    EXPECT_EQ(zustand(), "Zeitplan für 0 von 3 Aufträgen kopieren.|255|A--");
    EXPECT_EQ(zeile(2).right(1), "-");
}

TEST_F(ScheduleCopy, ARunWritesTheTickedJobsAndReportsEachKindOfTarget) {
    // Names compare as on the server: without regard to case, umlauts included, and without
    // trailing blanks. "Kunden" has the name once, "Kanzlei" twice; "Anlagen" is unticked.
    w.sql(
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (3, 'FRÜH');"
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (4, 'früh ');"
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name) VALUES (4, 'Früh');");
    A::click(admin(), 3, 0);
    A::kopieren(admin(), 0);

    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.ui->boxes[0].text,
              "Der Kopiervorgang für den Zeitplan 'Früh' wurde mit folgendem Ergebnis beendet:\r\n"
              "\r\n"
              "2 Aufträge ausgewählt und vorhandene Zeitpläne nicht überschreiben.\r\n"
              "\r\n"
              "Zeitpläne erfolgreich kopiert: 1\r\n"
              "davon Zeitpläne überschrieben: 0\r\n"
              "davon Zeitpläne neu angelegt : 1\r\n"
              "Zeitplan für Auftrag nicht überschrieben: 1");
    EXPECT_EQ(w.ui->boxes[0].flags, 64);
    EXPECT_EQ(w.ui->boxes[0].title, "Hinweis");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule WHERE idAutoJob = 2")),
              "0");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT group_concat(Name, ',') FROM tAutoJobSchedule "
                                      "WHERE idAutoJob = 3")),
              "FRÜH");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule WHERE idAutoJob = 4")),
              "3");
    EXPECT_EQ(w.scalar(QStringLiteral(
                  "SELECT Name || '|' || Aktiviert || '|' || FreqencyType || '|' || "
                  "FrequencyInterval || '|' || ActiveStartTimeOfDay || '|' || ActiveStartDate || "
                  "'|' || ActiveEndDate || '|' || LetzteAenderung || '|' || Ps_Id FROM "
                  "tAutoJobSchedule WHERE idAutoJob = 4 ORDER BY idAutoJobSchedule DESC")),
              "Früh|1|4|3|53000|2026-12-01 00:00:00|9999-12-31 00:00:00|2026-11-22 10:00:00|1");
    EXPECT_FALSE(A::schedule(admin()));
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleCopy, ExactlyOneOfTheNameIsOverwrittenOnlyWithTheBoxTicked) {
    w.sql(
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name, FreqencyType) VALUES (2, 'fRÜh', 1);"
        "INSERT INTO tAutoJobSchedule (idAutoJob, Name, FreqencyType) VALUES (3, 'FrüH', 1);");
    A::waehlen(admin(), true);
    A::click(admin(), 2, 0);
    A::click(admin(), 3, 0);
    A::name(admin()) = QStringLiteral("frÜh");
    A::kopieren(admin(), 0);
    A::kopieren(admin(), 1);
    ASSERT_EQ(w.ui->boxes.size(), 2u);
    EXPECT_TRUE(w.ui->boxes[0].text.endsWith(
        QStringLiteral("nicht überschreiben.\r\n\r\nZeitpläne erfolgreich kopiert: 0\r\n"
                       "davon Zeitpläne überschrieben: 0\r\ndavon Zeitpläne neu angelegt : 0\r\n"
                       "Zeitplan für Auftrag nicht überschrieben: 2")));
    EXPECT_TRUE(w.ui->boxes[1].text.endsWith(
        QStringLiteral("Zeitpläne überschreiben.\r\n\r\nZeitpläne erfolgreich kopiert: 2\r\n"
                       "davon Zeitpläne überschrieben: 2\r\ndavon Zeitpläne neu angelegt : 0\r\n"
                       "Zeitplan für Auftrag nicht überschrieben: 0")));
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT group_concat(Name || FreqencyType, ',') FROM "
                                      "tAutoJobSchedule WHERE idAutoJob IN (2, 3)")),
              "frÜh4,frÜh4");
}

TEST_F(ScheduleCopy, AnApostropheBreaksTheLookupOfEachJobAndWritesNothing) {
    A::name(admin()) = QStringLiteral("Max' Lauf");
    A::kopieren(admin(), 1);

    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule")), "1");
    ASSERT_EQ(w.ui->reports.size(), 3u);
    for (const auto& r : w.ui->reports) {
        EXPECT_TRUE(r.source.endsWith(QStringLiteral(".cAdminJob.mZeitplanCopy")))
            << r.source.toStdString();
    }
    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_TRUE(w.ui->boxes[0].text.endsWith(QStringLiteral(
        "Zeitpläne erfolgreich kopiert: 0\r\ndavon Zeitpläne überschrieben: 0\r\n"
        "davon Zeitpläne neu angelegt : 0\r\nZeitplan für Auftrag nicht überschrieben: 0")));
    EXPECT_FALSE(A::schedule(admin()));
}

}  // namespace
