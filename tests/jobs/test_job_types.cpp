#include <gtest/gtest.h>

#include "jobs/ClientKinds.h"
#include "jobs/JobTypes.h"
#include "jobs/Zusatzinfo.h"
#include "tests/app/AppTestWorld.h"

namespace {

using app_test::World;

class JobTypes : public ::testing::Test {
  protected:
    World w;
    void SetUp() override { w.start(); }
    cAdminJob& admin() { return w.admin(); }

    // A combo box of the in-memory kit.
    std::unique_ptr<IWindow> fenster;
    IComboBox& combo() {
        WindowDecl decl;
        decl.name = QStringLiteral("frmTest");
        ControlDecl cbo;
        cbo.name = QStringLiteral("cboComboBox");
        cbo.kind = ControlKind::ComboBox;
        cbo.visible = false;
        decl.controls << cbo;
        fenster = w.windows->create(decl);
        return fenster->get<IComboBox>(QStringLiteral("cboComboBox"));
    }
    static QStringList eintraege(const IComboBox& c) {
        QStringList e;
        for (int i = 0; i < c.ItemCount(); ++i) {
            e << QString::number(c.ItemKey(i)) + QLatin1Char(' ') + c.ItemTextAt(i);
        }
        return e;
    }
};

TEST_F(JobTypes, EveryKnownTypeHasItsLabelAndAnUnknownOneNone) {
    const std::vector<std::pair<long, QString>> labels{
        {17, "Import Kunden"},
        {18, "Import Lieferanten"},
        {4, "Import Buchungen"},
        {5, "Import Wirtschaftsgüter"},
        {28, "Import Buchungen Kesto (direkt)"},
        {30, "Import Nivora"},
        {20, "Übernahme Scan-Dokumente"},
        {21, "Verschlagwortung Belege"},
        {99, "Textdatei-Import"},
        {6, ""},
        {0, ""},
    };
    for (const auto& [art, label] : labels) {
        EXPECT_EQ(AdminJobTestAccess::auftragsart(admin(), art), label) << art;
    }
}

TEST_F(JobTypes, TheDirectImportLabelKeepsBothBlanksWithoutItsSuiteText) {
    w.sql("DELETE FROM tSuiteText WHERE TextId = 1236");
    EXPECT_EQ(AdminJobTestAccess::auftragsart(admin(), 28), "Import Buchungen  (direkt)");
}

TEST_F(JobTypes, TheListShowsTheSameLabelsAsTheSystemComposes) {
    w.job(1, "A", 1, 28);
    w.job(2, "B", 1, 20);
    w.notify(21);
    EXPECT_EQ(w.browser().cellText(1, "Auftragsart"), kestoDirektLabel());
    EXPECT_EQ(w.browser().cellText(2, "Auftragsart"), auftragsartLabel(20));
}

TEST_F(JobTypes, TheComboOffersTheTypesInOrderWithoutDirectImportOrNivora) {
    IComboBox& c = combo();
    AdminJobTestAccess::initCbo(admin(), c, 21, false);
    EXPECT_EQ(eintraege(c),
              (QStringList{"17 Import Kunden", "18 Import Lieferanten", "4 Import Buchungen",
                           "5 Import Wirtschaftsgüter", "20 Scan-Dokumente übernehmen",
                           "21 Verschlagwortung Belege", "99 Textdatei-Import"}));
    EXPECT_EQ(c.Key(), 21);
    EXPECT_TRUE(c.Visible());
}

TEST_F(JobTypes, ALocalInstallationAlsoOffersTheDirectImportAndAllIfAskedFor) {
    w.config->installationKind = 1;
    IComboBox& c = combo();
    c.AddItem(77, "alt");
    AdminJobTestAccess::initCboVonLogDaten(admin(), c, 0, true);
    EXPECT_EQ(eintraege(c),
              (QStringList{"0 Alle", "17 Import Kunden", "18 Import Lieferanten",
                           "4 Import Buchungen", "5 Import Wirtschaftsgüter",
                           "28 Import Buchungen Kesto (direkt)", "20 Scan-Dokumente übernehmen",
                           "21 Verschlagwortung Belege", "99 Textdatei-Import"}));
    EXPECT_EQ(c.Key(), 0);
}

TEST_F(JobTypes, ATypeNotOfferedSelectsNothing) {
    IComboBox& c = combo();
    AdminJobTestAccess::initCbo(admin(), c, 30, false);
    EXPECT_EQ(c.Key(), -1);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobTypes, TheTypeOfTheHistorysJobIsTakenFromTheListsText) {
    auto& arten = AdminJobTestAccess::auftragsarten(admin());
    arten = {{3, "A", "Import Kunden"},
             {8, "B", "Verschlagwortung Belege"},
             {9, "C", "Import Buchungen Kesto (direkt)"},
             {11, "D", "Import Nivora"}};
    auto frage = [&](long id) {
        AdminJobTestAccess::jobIdListe(admin()) = id;
        return QStringLiteral("%1%2%3")
            .arg(AdminJobTestAccess::archivJob(admin()))
            .arg(AdminJobTestAccess::kestoDirekt(admin()))
            .arg(AdminJobTestAccess::nivora(admin()));
    };
    EXPECT_EQ(frage(3), "000");
    EXPECT_EQ(frage(8), "100");
    EXPECT_EQ(frage(9), "010");
    EXPECT_EQ(frage(11), "001");
    EXPECT_EQ(frage(12), "000");
}

TEST_F(JobTypes, ClientNumbersOfOfficesBeginWithK) {
    w.sql(
        "INSERT INTO tMandant (ManId, ManNr, Kanzlei) VALUES (3, 4711, 0);"
        "INSERT INTO tMandant (ManId, ManNr, Kanzlei) VALUES (4, 12, 1);");
    EXPECT_EQ(AdminJobTestAccess::mandNr(admin(), 3), "4711");
    EXPECT_EQ(AdminJobTestAccess::mandNr(admin(), 4), "K12");
    EXPECT_EQ(AdminJobTestAccess::mandNr(admin(), 99), "");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST(ClientKinds, TextsAndWhenAllClientsAreOffered) {
    EXPECT_EQ(mandKanzText(1), "Mandant");
    EXPECT_EQ(mandKanzText(2), "Kanzlei");
    EXPECT_EQ(mandKanzText(3), "Alle Mandanten");
    EXPECT_EQ(mandKanzText(4), "Alle Kanzleien");
    EXPECT_EQ(mandKanzText(5), "Alle Mandanten/Kanzleien");
    EXPECT_EQ(mandKanzText(0), "");

    EXPECT_TRUE(mandKanzAlleAngeboten(99, 4));
    EXPECT_TRUE(mandKanzAlleAngeboten(20, 4));
    EXPECT_FALSE(mandKanzAlleAngeboten(17, 4));
    EXPECT_FALSE(mandKanzAlleAngeboten(4, 1));
    EXPECT_TRUE(mandKanzFuerAlle(5));
    EXPECT_FALSE(mandKanzFuerAlle(2));
}

TEST(ZusatzinfoText, TheTextImportSplitsIntoStaffScriptAndFiles) {
    const Zusatzinfo z = zusatzinfoLesen(99, "12|/daten/import.opt|");
    EXPECT_EQ(z.lMitarbeiterId, 12);
    EXPECT_EQ(z.sSkript, "/daten/import.opt");
    EXPECT_EQ(z.sTextdateien, "");

    const Zusatzinfo voll = zusatzinfoLesen(99, " 7 |s.opt|a.txt?b.txt|rest");
    EXPECT_EQ(voll.lMitarbeiterId, 7);
    EXPECT_EQ(voll.sTextdateien, "a.txt?b.txt");

    const Zusatzinfo nurZahl = zusatzinfoLesen(99, "3");
    EXPECT_EQ(nurZahl.lMitarbeiterId, 3);
    EXPECT_EQ(nurZahl.sSkript, "");
}

TEST(ZusatzinfoText, NumbersAreTheLeadingNumberOfTheTrimmedText) {
    EXPECT_EQ(zusatzinfoLesen(17, "  42abc").lMitarbeiterId, 42);
    EXPECT_EQ(zusatzinfoLesen(4, "abc").lMitarbeiterId, 0);
    EXPECT_EQ(zusatzinfoLesen(30, "2").lHaendlerSchluessel, 2);
    EXPECT_EQ(zusatzinfoLesen(5, "9").lMitarbeiterId, 0);
}

TEST(ZusatzinfoText, ComposingByType) {
    Zusatzinfo z;
    z.lMitarbeiterId = 4;
    z.lHaendlerSchluessel = 3;
    z.sSkript = "s.opt";
    z.sTextdateien = "a?b";
    EXPECT_EQ(zusatzinfoSchreiben(99, z), "4|s.opt|a?b");
    EXPECT_EQ(zusatzinfoSchreiben(28, z), "4");
    EXPECT_EQ(zusatzinfoSchreiben(30, z), "3");
    EXPECT_EQ(zusatzinfoSchreiben(20, z), "");
    EXPECT_EQ(zusatzinfoLesen(99, zusatzinfoSchreiben(99, z)).sTextdateien, "a?b");
}

TEST(ZusatzinfoText, AnEmptyTextTakesTheLastEditorForTypesWithAStaffMember) {
    EXPECT_EQ(zusatzinfoMitVorgabe(99, "", 8), "8");
    EXPECT_EQ(zusatzinfoMitVorgabe(18, "", 8), "8");
    EXPECT_EQ(zusatzinfoMitVorgabe(30, "", 8), "");
    EXPECT_EQ(zusatzinfoMitVorgabe(4, "5", 8), "5");
}

}  // namespace
