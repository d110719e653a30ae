#include <gtest/gtest.h>

#include "tests/app/AppTestWorld.h"

namespace {

using app_test::World;

// The state of the list's commands in the browser's bar and menu, the list window's bands and
// the host's menu.
class MenuState : public ::testing::Test {
  protected:
    World w;

    QStringList toolsAn() { return w.toolsAn(w.browser().Tools()); }
    QStringList menuAn() { return w.toolsAn(w.browser().Menu()); }
    QStringList hostAn() {
        QStringList an;
        for (const auto& [tool, on] : w.host->menu) {
            if (on) {
                an << tool;
            }
        }
        return an;
    }
    void zweiJobs() {
        w.job(1, "A");
        w.job(2, "B");
        w.start();
    }
    // A properties window, as far as the list's state is concerned.
    void eigenschaftenOeffnen() {
        AdminJobTestAccess::eigenschaften(w.admin()) = std::make_shared<frmEigenschaften>(
            w.windows->create(frmEigenschaften::declaration()));
    }
};

TEST_F(MenuState, AnEmptyListOffersOnlyNew) {
    w.start();
    EXPECT_EQ(toolsAn(), QStringList{"Neu"});
    EXPECT_EQ(menuAn(), QStringList{"Neu"});
    EXPECT_EQ(w.bandAn("Bearbeiten"),
              (QStringList{"Neu", "Logdaten Dienst löschen", "Logdaten Auftrag löschen"}));
    EXPECT_EQ(w.bandAn("Ansicht"), (QStringList{"Logdaten Dienst", "Logdaten Aufträge"}));
    // Only changes reach the host: the bands start enabled, so only what went off is sent.
    EXPECT_EQ(w.host->menu.count("Bearbeiten.Neu"), 0u);
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Bearbeiten"));
    EXPECT_FALSE(w.host->menu.at("Ansicht.Auftragsverlauf"));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Auftragsverlauf"));
}

TEST_F(MenuState, TheListAloneWithOneSelectedJobOffersEverythingButPaste) {
    zweiJobs();
    EXPECT_EQ(toolsAn(), (QStringList{"Neu", "Bearbeiten", "Löschen", "Kopieren"}));
    EXPECT_EQ(menuAn(),
              (QStringList{"Neu", "Bearbeiten", "Löschen", "Kopieren", "Deaktivieren/Aktivieren",
                           "Auftragsverlauf", "Auftrag ausführen"}));
    EXPECT_EQ(w.bandAn("Bearbeiten"),
              (QStringList{"Neu", "Bearbeiten", "Löschen", "Kopieren", "Deaktivieren/Aktivieren",
                           "Auftragsverlauf", "Auftrag ausführen", "Logdaten Dienst löschen",
                           "Logdaten Auftrag löschen"}));
    EXPECT_EQ(w.bandAn("Ansicht"),
              (QStringList{"Auftragsverlauf", "Logdaten Dienst", "Logdaten Aufträge"}));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Einfügen"));
}

TEST_F(MenuState, SeveralSelectedJobsCanBeDeletedAndFlippedButNotCopiedRunOrShown) {
    zweiJobs();
    w.select({1, 2});
    EXPECT_EQ(toolsAn(), (QStringList{"Neu", "Bearbeiten", "Löschen"}));
    EXPECT_EQ(menuAn(), (QStringList{"Neu", "Bearbeiten", "Löschen", "Deaktivieren/Aktivieren"}));
    EXPECT_EQ(
        w.bandAn("Bearbeiten"),
        (QStringList{"Neu", "Bearbeiten", "Löschen", "Deaktivieren/Aktivieren", "Auftragsverlauf",
                     "Logdaten Dienst löschen", "Logdaten Auftrag löschen"}));
    EXPECT_TRUE(w.bandAn("Ansicht").contains("Auftragsverlauf"));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Kopieren"));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Auftrag ausführen"));
    // "Bearbeiten" went off by the selection and on again at the end: the host heard both.
    EXPECT_TRUE(w.host->menu.at("Bearbeiten.Bearbeiten"));

    w.select({2});
    EXPECT_EQ(toolsAn(), (QStringList{"Neu", "Bearbeiten", "Löschen", "Kopieren"}));
    EXPECT_TRUE(w.host->menu.at("Bearbeiten.Auftrag ausführen"));
}

TEST_F(MenuState, AStateThatDoesNotChangeSendsNothing) {
    zweiJobs();
    const int gesendet = w.host->menuMeldungen;
    w.select({2});
    w.select({1});
    EXPECT_EQ(w.host->menuMeldungen, gesendet);
}

TEST_F(MenuState, PasteFollowsCopyAndGoesOffAfterPasting) {
    zweiJobs();
    w.tool("Kopieren");
    EXPECT_TRUE(toolsAn().contains("Einfügen"));
    EXPECT_TRUE(w.bandAn("Bearbeiten").contains("Einfügen"));
    EXPECT_TRUE(w.host->menu.at("Bearbeiten.Einfügen"));

    w.tool("Einfügen");
    EXPECT_EQ(AdminJobTestAccess::jobIdKopiert(w.admin()), 0);
    EXPECT_FALSE(toolsAn().contains("Einfügen"));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Einfügen"));

    w.tool("Kopieren");
    EXPECT_TRUE(toolsAn().contains("Einfügen"));
    EXPECT_TRUE(w.host->menu.at("Bearbeiten.Einfügen"));
}

TEST_F(MenuState, WithThePropertiesWindowOpenTheListKeepsOnlyEditing) {
    zweiJobs();
    w.select({1, 2});
    eigenschaftenOeffnen();
    AdminJobTestAccess::menuStatus(w.admin());
    EXPECT_EQ(toolsAn(), QStringList{"Bearbeiten"});
    EXPECT_EQ(menuAn(), QStringList{"Bearbeiten"});
    // Band "Bearbeiten" keeps "Auftragsverlauf" as it was; band "Ansicht" turns it off.
    EXPECT_EQ(w.bandAn("Bearbeiten"),
              (QStringList{"Bearbeiten", "Auftragsverlauf", "Logdaten Dienst löschen",
                           "Logdaten Auftrag löschen"}));
    EXPECT_FALSE(w.bandAn("Ansicht").contains("Auftragsverlauf"));
    EXPECT_FALSE(w.host->menu.at("Bearbeiten.Neu"));
}

TEST_F(MenuState, ThePropertiesWindowHidesAndShowsWithTheDocumentAndGoesWithoutAQuestion) {
    zweiJobs();
    eigenschaftenOeffnen();
    HeadlessWindow* fenster = w.windows->find("frmEigenschaften");
    fenster->Show(false);
    w.notify(3);
    EXPECT_FALSE(fenster->Visible());
    w.notify(2);
    EXPECT_TRUE(fenster->Visible());
    w.notify(9);
    // The controller ends with the document and its windows with it.
    EXPECT_EQ(w.windows->find("frmEigenschaften"), nullptr);
    EXPECT_TRUE(w.ui->boxes.empty());
}

}  // namespace
