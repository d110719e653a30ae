#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "tests/app/AppTestWorld.h"

namespace {

using app_test::kTitel;
using app_test::World;

class Application : public ::testing::Test {
  protected:
    World w;
};

TEST_F(Application, RegistersWithTheHostAndLoadsTheListOnTheFirstShow) {
    w.job(1, "Kunden Nord");
    w.start();

    EXPECT_EQ(w.host->anmeldungen,
              QStringList{"cMain ZPKyAutoJobVerw.cOIAutoJobVerw ZPKyAutoJobVerw.cUIAutoJobVerw "
                          "1160"});
    EXPECT_EQ(w.target.codes, std::vector<long>{503});
    EXPECT_EQ(w.props().psDocName, "Aufträge");
    EXPECT_EQ(w.browser().loadCount(), 1);
    EXPECT_EQ(w.host->fortschritt, (QStringList{"Daten werden geladen...|", "|Aufträge"}));
    EXPECT_TRUE(w.listWindow().Visible());
    EXPECT_TRUE(w.browser().Visible());
    EXPECT_FALSE(w.barMenu().Visible());
    EXPECT_EQ(w.listWindow().MousePointer(), 0);
    EXPECT_EQ(w.browser().Row(), 1);
    EXPECT_TRUE(w.browser().Focused());
    EXPECT_EQ(ApplicationTestAccess::status(w.app()), 2);
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(Application, TheListWindowIsWhatAnlegenGivesTheHost) {
    w.start();
    auto form = std::dynamic_pointer_cast<frmPakete>(w.frmMain);
    ASSERT_TRUE(form);
    EXPECT_EQ(form->TypeName(), "frmPakete");
    EXPECT_EQ(form, w.app().listWindow());
}

TEST_F(Application, TheBrowserIsSetUpForTheJobView) {
    w.start();
    HeadlessBrowser& b = w.browser();
    EXPECT_EQ(b.Titel(), kTitel);
    EXPECT_EQ(b.Schluessel(), "ZPK.Applications.System.AutoJob");
    EXPECT_EQ(b.Abfrage(), "SELECT * FROM V_ZPK_Applications_System_AutoJob");
    EXPECT_EQ(b.MitarbeiterId(), 1);
    EXPECT_EQ(b.MitarbeiterName(), "Anna Admin");
    EXPECT_EQ(b.Modus(), 1);
    EXPECT_TRUE(b.colHidden("JobId"));
    EXPECT_TRUE(b.colHidden("PSId"));
    EXPECT_FALSE(b.colHidden("Name"));
    for (const QString& spalte : b.SpaltenNamen()) {
        EXPECT_TRUE(b.Spalte(spalte)->SpalteFlagB) << spalte.toStdString();
    }
}

TEST_F(Application, AnInstallationOfOneClientKindListsOnlyTheClientsJobs) {
    w.daten.werte["AktenTyp"] = 2;
    w.daten.werte["ManId"] = 7;
    w.start();
    EXPECT_EQ(w.browser().Abfrage(),
              "SELECT * FROM V_ZPK_Applications_System_AutoJob WHERE PSId = 7");
}

TEST_F(Application, ASecondShowOnlyShowsAgain) {
    w.start();
    const auto antwort = w.notify(2);
    EXPECT_TRUE(antwort.ok);
    EXPECT_EQ(w.browser().loadCount(), 1);
    EXPECT_EQ(w.host->fortschritt.size(), 2);
}

TEST_F(Application, RestartReloadsTheList) {
    w.job(1, "A");
    w.start();
    w.job(2, "B");
    EXPECT_TRUE(w.notify(21).ok);
    EXPECT_EQ(w.browser().loadCount(), 2);
    EXPECT_EQ(w.browser().RecordCount(), 2);
}

TEST_F(Application, HidingWithoutPropertiesWindowDoesNothing) {
    w.start();
    const auto antwort = w.notify(3, 5);
    EXPECT_TRUE(antwort.ok);
    EXPECT_EQ(antwort.lParam, 5);
    EXPECT_TRUE(w.listWindow().Visible());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(Application, NoActionCodeAsksTheHostNothing) {
    w.start();
    w.host->istBeendet = true;
    const int fragen = w.host->istBeendetFragen;
    const auto antwort = w.notify(16203);
    EXPECT_TRUE(antwort.ok);
    EXPECT_EQ(antwort.lParam, 0);
    EXPECT_EQ(w.host->istBeendetFragen, fragen);
}

TEST_F(Application, UnknownCodesAskWhetherTheHostIsEnding) {
    w.start();
    const int fragenBeimStart = w.host->istBeendetFragen;  // code 25 asked too
    EXPECT_EQ(fragenBeimStart, 1);

    EXPECT_EQ(w.notify(77, 3).lParam, 3);
    w.host->istBeendet = true;
    const auto antwort = w.notify(77, 3);
    EXPECT_TRUE(antwort.ok);
    EXPECT_EQ(antwort.lParam, -1000);
    EXPECT_EQ(w.host->istBeendetFragen, fragenBeimStart + 2);
}

TEST_F(Application, ARefusedNotificationIsAnsweredWithOne402) {
    w.registrieren();
    w.host->basisNotify = false;
    const auto antwort = w.notify(2);
    EXPECT_FALSE(antwort.ok);
    EXPECT_EQ(std::count(w.target.codes.begin(), w.target.codes.end(), 402L), 1);
    EXPECT_EQ(w.browser().loadCount(), 0);
    EXPECT_FALSE(w.listWindow().Visible());
    EXPECT_EQ(ApplicationTestAccess::status(w.app()), 0);

    // Without a notifier there is no one to tell.
    long lParam = 0;
    QVariant vParam;
    w.main->gNotify(nullptr, 2, lParam, vParam);
    EXPECT_EQ(std::count(w.target.codes.begin(), w.target.codes.end(), 402L), 1);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(Application, ProgressGoesNowhereWithoutAFrame) {
    struct OhneRahmen : app_test::FakeBasis {
        using FakeBasis::FakeBasis;
        HostFrame* GetFrame() override { return nullptr; }
    };
    auto state = w.host;
    services().newBasisAbruf = [state] { return std::make_unique<OhneRahmen>(state); };
    w.start();
    EXPECT_TRUE(w.host->fortschritt.isEmpty());
    EXPECT_EQ(w.browser().loadCount(), 1);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(Application, DiscardingUnloadsTheListAndEndsTheController) {
    w.traceAntwort = 1;
    w.start();
    w.traces->clear();
    HeadlessWindow* liste = &w.listWindow();

    EXPECT_TRUE(w.notify(9).ok);
    EXPECT_TRUE(liste->isUnloaded());
    EXPECT_EQ(ApplicationTestAccess::adminJob(w.app()), nullptr);
    EXPECT_EQ(ApplicationTestAccess::properties(w.app()), nullptr);
    EXPECT_EQ(*w.traces, QStringList{"1 ZPKyAutoJobVerw.cAdminJob.Class_Terminate"});
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(Application, ClosingTheListWindowLeavesTheRestWorking) {
    w.job(1, "A");
    w.start();
    w.listWindow().userClose();
    EXPECT_TRUE(w.listWindow().isUnloaded());

    EXPECT_TRUE(w.notify(30).ok);
    EXPECT_TRUE(w.notify(9).ok);
    w.main.reset();
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(Application, EveryClassTracesItsBeginningAndEnd) {
    w.traceAntwort = 3;
    w.start();
    w.notify(9);
    w.properties.reset();
    w.frmMain.reset();
    w.main.reset();
    const QStringList erwartet{
        "1 ZPKyAutoJobVerw.cMain.Class_Initialize",
        "1 ZPKyAutoJobVerw.cUIAutoJobVerw.Class_Initialize",
        "1 ZPKyAutoJobVerw.cOIAutoJobVerw.Class_Initialize",
        "1 ZPKyAutoJobVerw.cProperties.Class_Initialize",
        "1 ZPKyAutoJobVerw.cAdminJob.Class_Initialize",
        "1 ZPKyAutoJobVerw.cAdminJob.Class_Terminate",
        "1 ZPKyAutoJobVerw.cProperties.Class_Terminate",
        // The host's base object lets go of the document and application objects first.
        "1 ZPKyAutoJobVerw.cOIAutoJobVerw.Class_Terminate",
        "1 ZPKyAutoJobVerw.cUIAutoJobVerw.Class_Terminate",
        "1 ZPKyAutoJobVerw.cMain.Class_Terminate",
    };
    EXPECT_EQ(*w.traces, erwartet);
}

TEST_F(Application, OnlyTheLowestBitSwitchesTheTraceOn) {
    w.traceAntwort = 2;
    w.start();
    EXPECT_TRUE(w.traces->isEmpty());
}

TEST_F(Application, HostToolsReachTheControllerOnlyOnceItExists) {
    w.registrieren();
    w.app().IUIApplikation_AktionBearbeiten("Unbekannt");
    EXPECT_EQ(w.browser().aktionen(), QStringList{"Unbekannt"});

    cUIAutoJobVerw ohneController;
    ohneController.IUIApplikation_AktionBearbeiten("Unbekannt");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(Application, InitialisingBeforeTheHostRegisteredReportsAndCreatesNoController) {
    w.main = std::make_unique<cMain>();
    auto* dokument = dynamic_cast<IOIDokInfo*>(w.basis().GetDokument().get());
    dokument->IOIDokInfo_Anlegen(false, &w.daten, w.properties);
    w.app().IUIApplikation_Anlegen(w.properties.get(), w.frmMain);
    w.app().IUIApplikation_Initialisieren(w.properties.get(), w.frmMain);

    EXPECT_EQ(ApplicationTestAccess::adminJob(w.app()), nullptr);
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith(
        "ZPKyAutoJobVerw.cUIAutoJobVerw.IUIApplikation_Initialisieren"));
}

TEST_F(Application, AnlegenWithoutWindowsReportsTheFailedCreation) {
    w.main = std::make_unique<cMain>();
    services().windows.reset();
    std::shared_ptr<HostObject> form;
    EXPECT_FALSE(w.app().IUIApplikation_Anlegen(nullptr, form));
    EXPECT_EQ(form, nullptr);
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].description.contains("Set moFrmPakete = New frmPakete"));
}

class DocumentObject : public ::testing::Test {
  protected:
    World w;
    cOIAutoJobVerw dokument;
    std::shared_ptr<HostObject> info;
    cProperties& props() { return dynamic_cast<cProperties&>(*info); }
};

TEST_F(DocumentObject, CopiesTheDocumentDataIntoANewRecord) {
    w.daten.werte = {{"ManId", 12},         {"MitId", "7"},   {"ManNr", "0042 Nord"},
                     {"ManKurz", "Nord"},   {"ZeitId", 3},    {"AktenJahr", 2026},
                     {"PropString", "x=1"}, {"DocId", 5},     {"DocVorlKey", 6},
                     {"DocVorlId", 8},      {"AktenTyp", 2.5}};
    dokument.IOIDokInfo_Anlegen(true, &w.daten, info);
    ASSERT_TRUE(info);
    EXPECT_EQ(props().plManId, 12);
    EXPECT_EQ(props().plMitId, 7);
    EXPECT_EQ(props().plManNr, 42);
    EXPECT_EQ(props().psManKurz, "Nord");
    EXPECT_EQ(props().plZeitId, 3);
    EXPECT_EQ(props().plAktenJahr, 2026);
    EXPECT_EQ(props().psPropString, "x=1");
    EXPECT_EQ(props().plDocId, 5);
    EXPECT_EQ(props().plDocVorlKey, 6);
    EXPECT_EQ(props().plDocVorlId, 8);
    EXPECT_EQ(props().plAktenTyp, 2);  // rounded half to even
    EXPECT_EQ(props().plContainer, 0);
    EXPECT_EQ(props().psDocName, "");
}

TEST_F(DocumentObject, BadDocumentDataLeavesAHalfFilledRecordAndOneReport) {
    w.daten.werte = {{"ManId", 12}, {"MitId", "sieben"}};
    dokument.IOIDokInfo_Anlegen(false, &w.daten, info);
    ASSERT_TRUE(info);
    EXPECT_EQ(props().plManId, 12);
    EXPECT_EQ(props().plMitId, 0);
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_EQ(w.ui->reports[0].number, ErrNumber::TypeMismatch);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith("cOIAutoJobVerw.IOIDokInfo_Anlegen"));
}

TEST_F(DocumentObject, TheContainerComesFromTheBaseObjectWhenTheHostGivesIt) {
    struct MitContainer : app_test::FakeBasis {
        using FakeBasis::FakeBasis;
        long Container() override { return 31; }
    };
    auto basis = std::make_shared<MitContainer>(w.host);
    dokument.fSetBasis(basis);
    dokument.IOIDokInfo_Anlegen(false, &w.daten, info);
    EXPECT_EQ(props().plContainer, 31);
}

TEST_F(DocumentObject, ADocumentIsAlwaysInOrder) {
    QString rueckmeldung = "unverändert";
    EXPECT_TRUE(dokument.IOIDokInfo_Pruefen(nullptr, rueckmeldung));
    EXPECT_EQ(rueckmeldung, "unverändert");
}

TEST_F(DocumentObject, ThePropertyTextIsKeptButNeverReportedAsChanged) {
    dokument.IOIDokInfo_Anlegen(false, &w.daten, info);
    EXPECT_FALSE(props().gbPropertiesAusStringLesen(""));
    EXPECT_TRUE(props().gbPropertiesAusStringLesen("Stand=1"));
    QString text;
    EXPECT_TRUE(props().gbPropertiesInStringSchreiben(text));
    EXPECT_EQ(text, "Stand=1");
    EXPECT_FALSE(props().gbPropertiesGeaendert("Stand=2"));
    EXPECT_FALSE(props().gbPropertiesGeaendert(""));
    props().gDestructor();
    EXPECT_TRUE(w.ui->reports.empty());
}

}  // namespace
