#include <gtest/gtest.h>

#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmEigenschaften.h"

class EditorTestAccess {
  public:
    static void paketNav(cAdminJob& a, const QString& sTool) { a.mPaketNav(sTool); }
    static void speichern(cAdminJob& a, bool bUebernehmen) {
        a.mEigenschaftenSpeichern(bUebernehmen);
    }
    static void comboKlick(cAdminJob& a, int index) {
        a.mofrmEigenschaften_evFrmEigenschaftenComboBoxClicked(index);
    }
    static void initMandKanz(cAdminJob& a, std::uint8_t key) { a.mInitCBO_MandKanz(key); }
    static QString& textDateien(cAdminJob& a) { return a.msTextDateien; }
    static std::uint8_t& datenArt(cAdminJob& a) { return a.mbytDatenArt; }
    static long jobZeile(cAdminJob& a) { return a.mlJobZeile; }
    static bool init(cAdminJob& a) { return a.mbInitEigenschaften; }
};

namespace {

using app_test::World;

class Editor : public ::testing::Test {
  protected:
    World w;

    cAdminJob& admin() { return w.admin(); }
    std::shared_ptr<frmEigenschaften> form() { return AdminJobTestAccess::eigenschaften(admin()); }
    HeadlessWindow* fenster() { return w.windows->find(QStringLiteral("frmEigenschaften")); }
    bool speichernAn() {
        return form()->tbrMain().Tool(QStringLiteral("barMain"), QStringLiteral("save"))->Enabled();
    }
    void oeffnen(int row) {
        w.select({row});
        w.tool(QStringLiteral("Bearbeiten"));
    }
    void dreiJobs() {
        w.job(1, "A");
        w.job(2, "B");
        w.job(3, "C");
        w.start();
    }
};

TEST_F(Editor, OpeningFromTheListCreatesTheWindowOnceWithIconAndPictures) {
    dreiJobs();
    oeffnen(2);
    ASSERT_TRUE(form());
    EXPECT_EQ(form()->window().Caption(), "B - Bearbeiten ");
    EXPECT_TRUE(form()->window().Visible());
    EXPECT_EQ(form()->window().Icon(), 1000);
    ITool* save = form()->tbrMain().Tool(QStringLiteral("barMain"), QStringLiteral("save"));
    EXPECT_EQ(save->Picture(), 1162);
    EXPECT_EQ(form()->tbrMain().Tool(QStringLiteral("barMain"), QStringLiteral("last"))->Picture(),
              1186);
    EXPECT_FALSE(EditorTestAccess::init(admin()));
    EXPECT_EQ(EditorTestAccess::jobZeile(admin()), 2);

    // Stepping reuses the window.
    const frmEigenschaften* erstes = form().get();
    AdminJobTestAccess::eigenschaftenTool(admin(), QStringLiteral("next"));
    EXPECT_EQ(form().get(), erstes);
    EXPECT_EQ(form()->window().Caption(), "C - Bearbeiten ");
    EXPECT_EQ(AdminJobTestAccess::jobId(admin()), 3);
    EXPECT_TRUE(w.ui->boxes.empty());
}

TEST_F(Editor, TheClockLineShowsTheClockAtEachTick) {
    dreiJobs();
    oeffnen(1);
    fenster()->tickTimers();
    EXPECT_EQ(form()->lblLabel(frmEigenschaften::Lbl::RechnerDatum).Caption(),
              "Aktuelles Rechnerdatum: 22.11.2026 10:00:00");
    w.clock->set(QDateTime(QDate(2026, 11, 23), QTime(7, 5, 9)));
    fenster()->tickTimers();
    EXPECT_EQ(form()->lblLabel(frmEigenschaften::Lbl::RechnerDatum).Caption(),
              "Aktuelles Rechnerdatum: 23.11.2026 07:05:09");
}

TEST_F(Editor, StepsBeyondEitherEndAreRefusedWithAMessage) {
    dreiJobs();
    oeffnen(3);
    EditorTestAccess::paketNav(admin(), QStringLiteral("next"));
    EditorTestAccess::paketNav(admin(), QStringLiteral("last"));
    ASSERT_EQ(w.ui->boxes.size(), 2u);
    EXPECT_EQ(w.ui->boxes[0].text, "Keine weiteren Aufträge vorhanden.");
    EXPECT_EQ(w.ui->boxes[0].flags, 64);
    EXPECT_EQ(w.ui->boxes[0].title, "C - Bearbeiten ");
    EXPECT_EQ(AdminJobTestAccess::jobId(admin()), 3);

    EditorTestAccess::paketNav(admin(), QStringLiteral("first"));
    EXPECT_EQ(AdminJobTestAccess::jobId(admin()), 1);
    EditorTestAccess::paketNav(admin(), QStringLiteral("previous"));
    EditorTestAccess::paketNav(admin(), QStringLiteral("first"));
    EXPECT_EQ(w.ui->boxes.size(), 4u);
    EXPECT_EQ(form()->window().Caption(), "A - Bearbeiten ");
}

TEST_F(Editor, SavingOnTheWayOutThatFailsTheChecksKeepsTheJobAndTheList) {
    dreiJobs();
    oeffnen(1);
    form()->txtTextBox(frmEigenschaften::Txt::Name).SetFocus();
    dynamic_cast<UserActions&>(form()->txtTextBox(frmEigenschaften::Txt::Name)).userType(QString());
    EXPECT_TRUE(speichernAn());
    w.ui->answers = {6, 1};
    AdminJobTestAccess::eigenschaftenTool(admin(), QStringLiteral("next"));
    ASSERT_EQ(w.ui->boxes.size(), 2u);
    EXPECT_EQ(w.ui->boxes[0].text,
              "Sollen die geänderten Daten für den neuen Auftrag gespeichert werden?");
    EXPECT_EQ(w.ui->boxes[0].flags, 35);
    EXPECT_EQ(w.ui->boxes[1].text, "Bitte geben Sie einen Namen für den Auftrag an.");
    EXPECT_EQ(AdminJobTestAccess::jobId(admin()), 1);
    EXPECT_EQ(form()->txtTextBox(frmEigenschaften::Txt::Name).Text(), "");
    EXPECT_TRUE(speichernAn());
    // The step had already moved the list to its target; it stays there.
    EXPECT_EQ(EditorTestAccess::jobZeile(admin()), 2);
    EXPECT_EQ(w.browser().Auswahl().SelCount(), 1);
    EXPECT_EQ(w.browser().Auswahl().SelRow(0), 2);
}

TEST_F(Editor, ACancelledStepLeavesTheListOnItsTargetSoTheNextStepCountsFromThere) {
    dreiJobs();
    oeffnen(2);
    form()->txtTextBox(frmEigenschaften::Txt::Beschreibung).SetFocus();
    dynamic_cast<UserActions&>(form()->txtTextBox(frmEigenschaften::Txt::Beschreibung))
        .userType(QStringLiteral("neu"));
    w.ui->answers = {2, 1, 1};
    EditorTestAccess::paketNav(admin(), QStringLiteral("previous"));
    EXPECT_EQ(form()->window().Caption(), "B - Bearbeiten ");
    EXPECT_EQ(form()->txtTextBox(frmEigenschaften::Txt::Beschreibung).Text(), "neu");
    EXPECT_EQ(EditorTestAccess::jobZeile(admin()), 1);
    EXPECT_EQ(w.browser().Auswahl().SelRow(0), 1);
    // From the first row there is nothing before.
    EditorTestAccess::paketNav(admin(), QStringLiteral("first"));
    EditorTestAccess::paketNav(admin(), QStringLiteral("previous"));
    ASSERT_EQ(w.ui->boxes.size(), 3u);
    EXPECT_EQ(w.ui->boxes[0].text,
              "Sollen die geänderten Daten für den neuen Auftrag gespeichert werden?");
    EXPECT_EQ(w.ui->boxes[1].text, "Keine weiteren Aufträge vorhanden.");
    EXPECT_EQ(w.ui->boxes[1].title, "B - Bearbeiten ");
    EXPECT_EQ(w.ui->boxes[2].text, "Keine weiteren Aufträge vorhanden.");
    EXPECT_EQ(AdminJobTestAccess::jobId(admin()), 2);
}

TEST_F(Editor, OkThatFailsTheChecksKeepsTheWindowOpen) {
    dreiJobs();
    oeffnen(1);
    form()->txtTextBox(frmEigenschaften::Txt::Name).setText(QString());
    w.ui->answers = {1};
    dynamic_cast<UserActions&>(form()->cmdCommandButton(frmEigenschaften::Cmd::Ok)).userClick();
    ASSERT_TRUE(form());
    EXPECT_EQ(w.ui->boxes.back().text, "Bitte geben Sie einen Namen für den Auftrag an.");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT Name FROM tAutoJobJob WHERE idAutoJob = 1")), "A");
}

TEST_F(Editor, ABookingsJobStoresItsFlagsAndTheForeignFormatOnlyWhenTicked) {
    w.start();
    w.tool(QStringLiteral("Neu"));
    ASSERT_TRUE(form());
    frmEigenschaften& f = *form();
    f.cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(4);
    EditorTestAccess::comboKlick(admin(), 0);
    EXPECT_TRUE(speichernAn());
    f.txtTextBox(frmEigenschaften::Txt::Name).setText(QStringLiteral("Buchungen"));
    f.chkCheckBox(frmEigenschaften::Chk::EinfachesLog).setValue(1);
    f.chkFremdFormat().setValue(0);
    f.ctlFremdFilter().setText(QStringLiteral("*.csv"));
    f.ctlFremdMapping().setText(QStringLiteral("konten.txt"));
    f.ctlMitarbeiterBuchProp().setId(1);
    EditorTestAccess::speichern(admin(), false);
    const long lId = AdminJobTestAccess::jobId(admin());
    ASSERT_GE(lId, 1);
    const QString sWo = QStringLiteral(" FROM tAutoJobJob WHERE idAutoJob = %1").arg(lId);
    EXPECT_EQ(w.scalar("SELECT DatenArt" + sWo), "4");
    EXPECT_EQ(w.scalar("SELECT SingleLog" + sWo), "1");
    EXPECT_EQ(w.scalar("SELECT FremdFormat" + sWo), "0");
    EXPECT_EQ(w.scalar("SELECT FremdDateifilter" + sWo), "");
    EXPECT_EQ(w.scalar("SELECT FremdMapping" + sWo), "");
    EXPECT_EQ(w.scalar("SELECT Zusatzinfo" + sWo), "1");

    f.chkFremdFormat().setValue(1);
    EditorTestAccess::speichern(admin(), false);
    EXPECT_EQ(w.scalar("SELECT count(*) FROM tAutoJobJob"), "1");
    EXPECT_EQ(w.scalar("SELECT FremdFormat" + sWo), "1");
    EXPECT_EQ(w.scalar("SELECT FremdDateifilter" + sWo), "*.csv");
    EXPECT_EQ(w.scalar("SELECT FremdMapping" + sWo), "konten.txt");
}

TEST_F(Editor, AnInstallationOfOneClientKindFixesKindAndClient) {
    w.daten.werte[QStringLiteral("AktenTyp")] = 1;
    w.daten.werte[QStringLiteral("ManId")] = 9;
    w.start();
    w.tool(QStringLiteral("Neu"));
    ASSERT_TRUE(form());
    IComboBox& cbo = form()->cboComboBox(frmEigenschaften::Cbo::MandKanz);
    EXPECT_EQ(cbo.ItemCount(), 1);
    EXPECT_EQ(cbo.Key(), 1);
    EXPECT_EQ(cbo.ItemText(), "Mandant");
    EXPECT_FALSE(cbo.Enabled());
    EXPECT_FALSE(form()->ctlMandant().Enabled());
    EXPECT_EQ(form()->ctlMandant().Id(), 9);
}

TEST_F(Editor, AllClientsAreOfferedOnlyForTheTypesThatKnowThem) {
    w.start();
    w.tool(QStringLiteral("Neu"));
    IComboBox& cbo = form()->cboComboBox(frmEigenschaften::Cbo::MandKanz);
    EXPECT_TRUE(cbo.Enabled());
    EXPECT_EQ(cbo.ItemCount(), 2);  // type 17

    form()->cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(99);
    EditorTestAccess::initMandKanz(admin(), 5);
    EXPECT_EQ(cbo.ItemCount(), 5);
    EXPECT_EQ(cbo.Key(), 5);
    EXPECT_EQ(cbo.ItemText(), "Alle Mandanten/Kanzleien");
    // A kind above what the type offers falls back to the highest offered.
    form()->cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(17);
    EditorTestAccess::initMandKanz(admin(), 5);
    EXPECT_EQ(cbo.Key(), 2);
}

TEST_F(Editor, AnotherClientKindDropsASelectionOfSeveralTextFiles) {
    w.start();
    w.tool(QStringLiteral("Neu"));
    EditorTestAccess::datenArt(admin()) = 99;
    form()->cboComboBox(frmEigenschaften::Cbo::Auftragsart).setKey(99);
    EditorTestAccess::initMandKanz(admin(), 1);
    EditorTestAccess::textDateien(admin()) = QStringLiteral("a.txt?b.txt");
    form()->cboComboBox(frmEigenschaften::Cbo::MandKanz).setKey(3);
    EditorTestAccess::comboKlick(admin(), 2);
    EXPECT_EQ(EditorTestAccess::textDateien(admin()), "");
    EXPECT_TRUE(speichernAn());

    EditorTestAccess::textDateien(admin()) = QStringLiteral("einzeln.txt");
    form()->cboComboBox(frmEigenschaften::Cbo::MandKanz).setKey(1);
    EditorTestAccess::comboKlick(admin(), 2);
    EXPECT_EQ(EditorTestAccess::textDateien(admin()), "einzeln.txt");
}

TEST_F(Editor, TheCloseBoxEndsTheWindowAndGivesTheListItsCommandsBack) {
    dreiJobs();
    oeffnen(1);
    EXPECT_FALSE(w.toolsAn(w.browser().Tools()).contains("Neu"));
    dynamic_cast<UserActions&>(form()->txtTextBox(frmEigenschaften::Txt::Beschreibung))
        .userType(QStringLiteral("weg"));
    fenster()->userClose();
    EXPECT_FALSE(form());
    EXPECT_TRUE(w.ui->boxes.empty());
    EXPECT_TRUE(w.toolsAn(w.browser().Tools()).contains("Neu"));
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 1")),
              "");
}

}  // namespace
