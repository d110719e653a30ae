#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "common/Services.h"
#include "suite/Database.h"
#include "tests/headless/HeadlessTestKit.h"
#include "ui/windows/frmPakete.h"

using namespace headless_test;

namespace {

class BrowserTest : public ::testing::Test {
  protected:
    static Services world(const std::shared_ptr<Database>& db) {
        Services s;
        s.newRecordset = db->recordsetFactory();
        return s;
    }

    std::shared_ptr<FixedClock> clock =
        std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0)));
    std::shared_ptr<Database> db = [this] {
        auto d = Database::open(QStringLiteral(":memory:"), clock);
        d->runScript(QStringLiteral(
            "CREATE TABLE tJob (idJob INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT, Art TEXT, "
            "  Erstellt DATETIME);"
            "CREATE VIEW vJob AS SELECT idJob AS JobId, Name, Art AS Auftragsart, Erstellt "
            "  FROM tJob;"
            "INSERT INTO tJob (Name, Art, Erstellt) VALUES ('Erster', 'Import Kunden', "
            "  '2026-11-01 08:30:00');"
            "INSERT INTO tJob (Name, Art, Erstellt) VALUES ('Zweiter', 'Import Buchungen', NULL);"
            "INSERT INTO tJob (Name, Art, Erstellt) VALUES ('Dritter', 'Import Kunden', NULL);"));
        return d;
    }();
    ScopedServices scope{world(db)};
    Recorded w{frmPakete::declaration()};
    IBrowser& browser = w.get<IBrowser>("ctlPakete");
    ISelectionObject& sel = browser.Auswahl();
    HeadlessBrowser& kit = dynamic_cast<HeadlessBrowser&>(browser);

    void load() {
        browser.setAbfrage(QStringLiteral("SELECT * FROM vJob ORDER BY JobId"));
        browser.Load();
    }
};

TEST_F(BrowserTest, LoadFillsRowsBelowTheHeading) {
    EXPECT_EQ(sel.RowCount(), 1);
    EXPECT_TRUE(browser.SpaltenNamen().isEmpty()) << "no columns before a load";
    // Flags set before the load are kept for the column the load brings.
    browser.Spalte(QStringLiteral("jobid"))->SpalteFlagA = true;
    load();
    EXPECT_TRUE(browser.Spalte(QStringLiteral("JobId"))->SpalteFlagA);
    EXPECT_FALSE(browser.Spalte(QStringLiteral("Name"))->SpalteFlagA);
    EXPECT_EQ(sel.RecordCount(), 3);
    EXPECT_EQ(sel.RowCount(), 4);
    EXPECT_EQ(browser.SpaltenNamen(), (QStringList{"JobId", "Name", "Auftragsart", "Erstellt"}));
    EXPECT_EQ(sel.Row(), 0);
    EXPECT_EQ(sel.SelCount(), 0);
    const auto item = sel.Item(2);
    ASSERT_EQ(item.size(), 4);
    EXPECT_EQ(item[0].first, "JobId");
    EXPECT_EQ(item[0].second.toInt(), 2);
    EXPECT_EQ(item[1].second.toString(), "Zweiter");
    EXPECT_EQ(kit.cellText(1, QStringLiteral("Erstellt")), "2026-11-01 08:30:00");
    EXPECT_EQ(kit.cellText(2, QStringLiteral("Erstellt")), "");
    EXPECT_EQ(kit.cellText(3, QStringLiteral("jobid")), "3");
    EXPECT_THROW(sel.Item(4), RaisedError);
    EXPECT_THROW(kit.cellText(1, QStringLiteral("Nix")), RaisedError);
}

TEST_F(BrowserTest, AnEmptyResultGivesTheColumnsAndNoRecord) {
    browser.setAbfrage(QStringLiteral("SELECT * FROM vJob WHERE JobId = 99"));
    browser.Load();
    EXPECT_EQ(sel.RecordCount(), 0);
    EXPECT_EQ(sel.RowCount(), 1);
    EXPECT_EQ(browser.SpaltenNamen().size(), 4);
}

TEST_F(BrowserTest, AFailingQueryThrowsAndKeepsTheRows) {
    load();
    browser.setAbfrage(QStringLiteral("SELECT * FROM tGibtEsNicht"));
    EXPECT_THROW(browser.Load(), RaisedError);
    EXPECT_EQ(sel.RecordCount(), 3);
}

TEST_F(BrowserTest, RefreshKeepsTheColumnFlagsAndTheSelectedRecord) {
    load();
    BrowserColumn* id = browser.Spalte(QStringLiteral("JobId"));
    ASSERT_NE(id, nullptr);
    id->SpalteFlagA = true;
    browser.Spalte(QStringLiteral("Name"))->SpalteFlagB = true;
    sel.setRow(2);
    db->runScript(QStringLiteral("INSERT INTO tJob (Name, Art) VALUES ('Vierter', 'x');"));
    browser.Refresh(false);
    EXPECT_EQ(sel.RecordCount(), 4);
    EXPECT_EQ(browser.Spalte(QStringLiteral("JobId")), id) << "the same column object";
    EXPECT_TRUE(kit.colHidden(QStringLiteral("JobId")));
    EXPECT_TRUE(browser.Spalte(QStringLiteral("Name"))->SpalteFlagB);
    EXPECT_FALSE(kit.colHidden(QStringLiteral("Name")));
    EXPECT_EQ(sel.SelCount(), 1);
    EXPECT_EQ(sel.Row(), 2);
    EXPECT_EQ(kit.loadCount(), 2);
    db->runScript(QStringLiteral("DELETE FROM tJob WHERE idJob = 1;"));
    browser.Refresh(false);
    EXPECT_EQ(sel.Row(), 1) << "the record moved up";
    EXPECT_EQ(kit.cellText(1, QStringLiteral("Name")), "Zweiter");
    db->runScript(QStringLiteral("DELETE FROM tJob WHERE idJob = 2;"));
    browser.Refresh(false);
    EXPECT_EQ(sel.SelCount(), 0) << "its record is gone";
    EXPECT_EQ(sel.Row(), 0);
}

TEST_F(BrowserTest, SelectionKeepsItsOrderAndRowMakesTheOnlySelectedRow) {
    load();
    sel.SetSelected(3, true);
    sel.SetSelected(1, true);
    sel.SetSelected(3, true);
    EXPECT_EQ(sel.SelCount(), 2);
    EXPECT_EQ(sel.SelRow(0), 3);
    EXPECT_EQ(sel.SelRow(1), 1);
    sel.SetSelected(3, false);
    EXPECT_EQ(sel.SelRow(0), 1);
    EXPECT_THROW(sel.SelRow(1), RaisedError);

    sel.setRow(2);
    EXPECT_EQ(sel.Row(), 2);
    EXPECT_EQ(sel.SelCount(), 1);
    EXPECT_EQ(sel.SelRow(0), 2);
    EXPECT_TRUE(w.take().isEmpty()) << "selecting by code is silent";
    EXPECT_THROW(sel.setRow(4), RaisedError);
}

TEST_F(BrowserTest, FindRowComparesNumbersNumericallyAndTextExactly) {
    load();
    EXPECT_EQ(sel.FindRow({{QStringLiteral("JobId"), 2}}), 2);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("JobId"), QStringLiteral("3")}}), 3);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("JobId"), 2.0}}), 2);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Auftragsart"), QStringLiteral("Import Kunden")}}), 1);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Auftragsart"), QStringLiteral("Import Kunden")},
                           {QStringLiteral("Name"), QStringLiteral("Dritter")}}),
              3);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Name"), QStringLiteral("dritter")}}), 0);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("JobId"), 9}}), 0);
    EXPECT_EQ(sel.FindRow({{QStringLiteral("Nix"), 1}}), 0);
}

TEST_F(BrowserTest, TheUsersSelectionAndOpenRaiseTheirEvents) {
    load();
    w.control("ctlPakete").userBrowserSelect({3, 1});
    EXPECT_EQ(sel.Row(), 3);
    EXPECT_EQ(sel.SelCount(), 2);
    EXPECT_EQ(sel.SelRow(1), 1);
    EXPECT_EQ(w.take(), QStringList{"SelectionChanged ctlPakete"});

    w.control("ctlPakete").userBrowserOpen(2);
    EXPECT_EQ(sel.Row(), 2);
    EXPECT_EQ(sel.SelCount(), 1);
    EXPECT_EQ(w.take(), (QStringList{"SelectionChanged ctlPakete", "Open ctlPakete 2"}));
    w.control("ctlPakete").userBrowserOpen(2);
    EXPECT_EQ(w.take(), QStringList{"Open ctlPakete 2"}) << "already the only selected row";

    w.control("ctlPakete").userKey(KeyCode::F1, 0);
    EXPECT_EQ(w.take(), QStringList{"KeyDown ctlPakete 112/0"});
    EXPECT_THROW(w.control("ctlPakete").userBrowserSelect({4}), RaisedError);
    EXPECT_THROW(w.control("ctlPakete").userBrowserOpen(0), RaisedError);
}

TEST_F(BrowserTest, ToolsAddedToTheMenuAreTheSameTools) {
    ITool* neu = browser.Tools().Add(QStringLiteral("Neu"), 0, QStringLiteral("Neu"), 3);
    browser.Tools().Add(QStringLiteral("sep1"), 5, QString(), 0);
    browser.Menu().AddTool(neu);
    EXPECT_EQ(browser.Menu().Item(QStringLiteral("Neu")), neu);
    EXPECT_TRUE(browser.Tools().Item(QStringLiteral("sep1"))->IsSeparator());
    EXPECT_EQ(browser.Tools().Item(QStringLiteral("Fehlt")), nullptr);
    EXPECT_EQ(browser.Tools().Count(), 2);
    EXPECT_EQ(browser.Menu().At(0), neu);

    neu->setEnabled(false);
    EXPECT_FALSE(browser.Menu().Item(QStringLiteral("Neu"))->Enabled());
    EXPECT_THROW(w.control("ctlPakete").userTool(QStringLiteral("Menu"), QStringLiteral("Neu")),
                 RaisedError);
    EXPECT_THROW(w.control("ctlPakete").userTool(QStringLiteral("Tools"), QStringLiteral("Neu")),
                 RaisedError);
    EXPECT_TRUE(w.take().isEmpty());

    neu->setEnabled(true);
    w.control("ctlPakete").userTool(QStringLiteral("Menu"), QStringLiteral("Neu"));
    EXPECT_EQ(w.take(), QStringList{"ToolClick ctlPakete Neu"});
    EXPECT_THROW(w.control("ctlPakete").userTool(QStringLiteral("Tools"), QStringLiteral("sep1")),
                 RaisedError);
    EXPECT_THROW(w.control("ctlPakete").userTool(QStringLiteral("Menu"), QStringLiteral("Fehlt")),
                 RaisedError);
    EXPECT_THROW(w.control("ctlPakete").userTool(QStringLiteral("Bar"), QStringLiteral("Neu")),
                 RaisedError);
}

TEST_F(BrowserTest, ToolAktionIsKeptAndAttachHostLeavesThePointers) {
    browser.ToolAktion(QStringLiteral("Drucken"));
    EXPECT_EQ(kit.aktionen(), QStringList{"Drucken"});
    int a = 0;
    int b = 0;
    void* notify = &a;
    void* main = &b;
    browser.AttachHost(notify, main);
    EXPECT_EQ(notify, &a);
    EXPECT_EQ(main, &b);
}

TEST_F(BrowserTest, SortingReordersTheRowsAndTheSelectionFollows) {
    load();
    sel.setRow(1);  // "Erster"
    kit.sortBy(QStringLiteral("Name"), true);
    EXPECT_EQ(kit.cellText(1, QStringLiteral("Name")), "Dritter");
    EXPECT_EQ(kit.cellText(2, QStringLiteral("Name")), "Erster");
    EXPECT_EQ(sel.Row(), 2);
    EXPECT_EQ(sel.SelRow(0), 2);
    kit.sortBy(QStringLiteral("JobId"), false);
    EXPECT_EQ(kit.cellText(1, QStringLiteral("JobId")), "3");
    EXPECT_EQ(sel.Row(), 3);
}

TEST_F(BrowserTest, WithoutARecordsetFactoryLoadThrows) {
    ScopedServices none{Services{}};
    browser.setAbfrage(QStringLiteral("SELECT 1"));
    EXPECT_THROW(browser.Load(), RaisedError);
}

}  // namespace
