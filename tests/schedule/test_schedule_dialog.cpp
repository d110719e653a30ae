#include <gtest/gtest.h>

#include "headless/HeadlessWindow.h"
#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmZeitplan.h"

// The private parts of the controller that the schedule dialog touches.
class ScheduleDialogTestAccess {
  public:
    static long& jobId(cAdminJob& a) { return a.mlJobId; }
    static long& zeitplanId(cAdminJob& a) { return a.mlZeitplanId; }
    static IGrid*& grid(cAdminJob& a) { return a.moGridZeitplan; }
    static std::shared_ptr<frmEigenschaften>& editor(cAdminJob& a) { return a.mofrmEigenschaften; }
    static std::shared_ptr<frmZeitplan>& dialog(cAdminJob& a) {
        return a.mofrmZeitplanEigenschaften;
    }
    static std::unique_ptr<cSchedule>& schedule(cAdminJob& a) { return a.moSchedule; }
    static void show(cAdminJob& a, long lId) { a.mShowFRMZeitplanEigenschaften(lId, QString()); }
    static bool validTime(cAdminJob& a, const char* sZeit) {
        QString s = QString::fromUtf8(sZeit);
        return a.mbCheckValidTime(s);
    }
};

namespace {

using app_test::World;
using A = ScheduleDialogTestAccess;

class ScheduleDialog : public ::testing::Test {
  protected:
    World w;
    std::shared_ptr<frmEigenschaften> editor;

    void SetUp() override {
        w.start();
        editor = std::make_shared<frmEigenschaften>(
            services().windows->create(frmEigenschaften::declaration()));
        A::editor(admin()) = editor;
        A::grid(admin()) = &editor->grdZeitplan();
        editor->grdZeitplan().setRows(1);
    }
    void TearDown() override {
        A::dialog(admin()) = nullptr;
        A::grid(admin()) = nullptr;
        A::editor(admin()) = nullptr;
    }

    cAdminJob& admin() { return w.admin(); }
    // Without a scenario the in-memory kit returns from the modal showing at once and leaves
    // the window open for the test to play in.
    frmZeitplan& dialog() { return *A::dialog(admin()); }
    HeadlessWindow& window() { return dynamic_cast<HeadlessWindow&>(dialog().window()); }
    void click(const char* name, int index) {
        window().headlessControl(QString::fromUtf8(name), index)->userClick();
    }
};

TEST_F(ScheduleDialog, TimeCheckIsLooseOnPurposeButRefusesEmptyPlaces) {
    EXPECT_TRUE(A::validTime(admin(), "08:30:00"));
    EXPECT_TRUE(A::validTime(admin(), "_8:30:00"));
    EXPECT_TRUE(A::validTime(admin(), "29:30:00"));
    EXPECT_TRUE(A::validTime(admin(), "12:69:00"));
    // The first digit of the seconds is never looked at.
    EXPECT_TRUE(A::validTime(admin(), "12:30:99"));
    EXPECT_FALSE(A::validTime(admin(), "30:00:00"));
    EXPECT_FALSE(A::validTime(admin(), "12:70:00"));
    EXPECT_FALSE(A::validTime(admin(), "__:__:00"));
    EXPECT_FALSE(A::validTime(admin(), "8_:30:00"));
    EXPECT_FALSE(A::validTime(admin(), "_:30:00"));
    EXPECT_FALSE(A::validTime(admin(), "12:3_:00"));
    EXPECT_FALSE(A::validTime(admin(), "12:30:_0"));
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleDialog, TimeWithoutSecondsIsAFailureReportedOnce) {
    EXPECT_FALSE(A::validTime(admin(), "12:30"));
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.errorSources().first().startsWith(
        QStringLiteral("ZPKyAutoJobVerw.cAdminJob.mbCheckValidTime")))
        << w.errorSources().first().toStdString();
}

TEST_F(ScheduleDialog, NegativeJobTellsFirstThenOpensEmptyAndStoresUnderThatJob) {
    A::jobId(admin()) = -1;
    A::show(admin(), 0);

    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.ui->boxes[0].text, QStringLiteral("Bitte legen Sie zuerst einen Auftrag an."));
    EXPECT_EQ(w.ui->boxes[0].flags, 64);
    EXPECT_EQ(w.ui->boxes[0].title, app_test::kTitel);
    ASSERT_TRUE(A::dialog(admin()));
    EXPECT_TRUE(window().Visible());
    EXPECT_EQ(window().Icon(), 1000);
    EXPECT_FALSE(dialog().optOption(frmZeitplan::Opt::Einmal).Value());
    EXPECT_FALSE(dialog().optOption(frmZeitplan::Opt::Wiederholt).Value());
    EXPECT_EQ(dialog().txtTextBox(frmZeitplan::Txt::Name).Text(), QString());
    EXPECT_FALSE(dialog().ctlDatePicker().Enabled());
    EXPECT_FALSE(dialog().ctlMaskEdBox().Enabled());
    EXPECT_FALSE(dialog().cmdCommandButton(frmZeitplan::Cmd::Aendern).Enabled());
    EXPECT_FALSE(dialog().lblLabel(frmZeitplan::Lbl::Intervall).Visible());

    dialog().txtTextBox(frmZeitplan::Txt::Name).setText(QStringLiteral("Ohne Auftrag"));
    click("cmdCommandButton", frmZeitplan::Cmd::Ok);

    EXPECT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_FALSE(A::dialog(admin()));
    EXPECT_FALSE(A::schedule(admin()));
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT idAutoJob || '|' || Name || '|' || FreqencyType || "
                                      "'|' || Aktiviert FROM tAutoJobSchedule")),
              QStringLiteral("-1|Ohne Auftrag|0|0"));
    EXPECT_EQ(editor->grdZeitplan().Rows(), 1);
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join(QStringLiteral("\n")).toStdString();
}

TEST_F(ScheduleDialog, NewScheduleCountsTheListedRowsForItsName) {
    A::jobId(admin()) = 1;
    editor->grdZeitplan().setRows(3);
    A::show(admin(), 0);

    EXPECT_EQ(A::zeitplanId(admin()), 0);
    EXPECT_EQ(dialog().txtTextBox(frmZeitplan::Txt::Name).Text(), QStringLiteral("Zeitplan03"));
    // The sentence of the defaults, with the blank after "1.", unlike the fixed text.
    EXPECT_EQ(dialog().lblLabel(frmZeitplan::Lbl::Intervall).Caption(),
              QStringLiteral("Jede 1. Woche am Sonntag, um 00:00:00"));
    EXPECT_TRUE(w.ui->boxes.empty());
}

TEST_F(ScheduleDialog, CancelKeepsTheRecordUntilTheNextOpeningWithoutStoring) {
    w.job(1, "Abgleich");
    A::jobId(admin()) = 1;
    A::show(admin(), 0);
    click("optOption", frmZeitplan::Opt::Einmal);
    click("cmdCommandButton", frmZeitplan::Cmd::Abbrechen);

    EXPECT_FALSE(A::dialog(admin()));
    EXPECT_TRUE(A::schedule(admin()));
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule")),
              QStringLiteral("0"));
    EXPECT_EQ(w.scalar(QStringLiteral(
                  "SELECT count(*) FROM tAutoJobJob WHERE LetzteAenderung IS NOT NULL")),
              QStringLiteral("0"));
}

}  // namespace
