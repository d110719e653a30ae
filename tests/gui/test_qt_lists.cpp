#include <gtest/gtest.h>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QTableView>
#include <QTest>
#include <QToolBar>

#include "QtTestKit.h"
#include "common/Clock.h"
#include "gui/QtBrowser.h"
#include "gui/QtSelection.h"
#include "gui/QtToolBar.h"
#include "suite/Database.h"
#include "ui/windows/frmPakete.h"

using namespace qt_test;

namespace {

// A world whose record sets answer from canned tables.
class QtListsTest : public ::testing::Test {
  protected:
    QtListsTest() : scope_(makeServices()) {}

    Services makeServices() {
        Services s;
        FakeTable jobs{
            {QStringLiteral("JobId"), QStringLiteral("Name"), QStringLiteral("Auftragsart")},
            {{1, QStringLiteral("Zweiter"), QStringLiteral("Import Kunden")},
             {2, QStringLiteral("Erster"), QStringLiteral("Import Buchungen")},
             {3, QStringLiteral("Dritter"), QStringLiteral("Textdatei-Import")}}};
        FakeTable staff{{QStringLiteral("MitId"), QStringLiteral("Name")},
                        {{1, QStringLiteral("Anna Admin")}, {2, QStringLiteral("Bert Buch")}}};
        FakeTable offices{
            {QStringLiteral("ManId"), QStringLiteral("ManNr"), QStringLiteral("Name")},
            {{5, 7, QStringLiteral("Kanzlei Nord")}}};
        FakeTable clients{
            {QStringLiteral("ManId"), QStringLiteral("ManNr"), QStringLiteral("Name")},
            {{3, 101, QStringLiteral("Bäckerei")}}};
        QList<QPair<QString, FakeTable>> tables{
            {QStringLiteral("V_ZPK_Applications_System_AutoJob"), jobs},
            {QStringLiteral("tMitarbeiter"), staff},
            {QStringLiteral("Kanzlei = 1"), offices},
            {QStringLiteral("Kanzlei = 0"), clients}};
        s.newRecordset = [this, tables] {
            return std::make_unique<FakeRecordset>(tables, &queries);
        };
        return s;
    }

    QStringList queries;
    ScopedServices scope_;
};

WindowDecl barWindow() {
    WindowDecl d;
    d.name = QStringLiteral("frmBar");
    d.controls << decl("tbrMain", ControlKind::ToolBar);
    d.tools << ToolDecl{QStringLiteral("tbrMain"),      QStringLiteral("barMain"),
                        QStringLiteral("new"),          QStringLiteral("&Neu"),
                        QStringLiteral("Neu (Strg-N)"), 0};
    d.tools << ToolDecl{QStringLiteral("tbrMain"), QStringLiteral("barMain"), {}, {}, {}, 0};
    d.tools << ToolDecl{QStringLiteral("tbrMain"),   QStringLiteral("barMain"),
                        QStringLiteral("save"),      QStringLiteral("&Speichern"),
                        QStringLiteral("Speichern"), 0};
    d.controls << decl("ctlMandant", ControlKind::Selection);
    d.controls << decl("ctlMitarbeiterBuchProp", ControlKind::Selection, -1, "",
                       "Mitarbeiter für die Verwendung der Importoptionen");
    return d;
}

TEST_F(QtListsTest, ToolBarShowsItsToolsAndRaisesToolClick) {
    RecordedWindow w(barWindow());
    auto& bar = w.window().get<QtToolBar>(QStringLiteral("tbrMain"));
    QAction* save = bar.action(QStringLiteral("barMain"), QStringLiteral("save"));
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->text(), "&Speichern");
    EXPECT_EQ(bar.action(QStringLiteral("barMain"), QStringLiteral("new"))->toolTip(),
              "Neu (Strg-N)");
    auto* toolBar = qobject_cast<QToolBar*>(w.view("tbrMain").widget());
    EXPECT_EQ(toolBar->actions().size(), 3);
    EXPECT_TRUE(toolBar->actions().at(1)->isSeparator());

    save->trigger();
    bar.userTool(QStringLiteral("barMain"), QStringLiteral("new"));
    EXPECT_EQ(w.take(), (QStringList{"ToolClick tbrMain save", "ToolClick tbrMain new"}));

    bar.setToolEnabled(QStringLiteral("barMain"), QStringLiteral("save"), false);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_THROW(bar.userTool(QStringLiteral("barMain"), QStringLiteral("save")), RaisedError);
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(QtListsTest, SelectionListsClientsOfficesOrStaffAndKeepsTheId) {
    RecordedWindow w(barWindow());
    auto& client = w.window().get<QtSelection>(QStringLiteral("ctlMandant"));
    auto* clients = qobject_cast<QComboBox*>(w.view("ctlMandant").widget());
    EXPECT_FALSE(client.staff());
    EXPECT_EQ(clients->itemText(1), "101 Bäckerei");
    client.setMode(1);
    client.setId(5);
    EXPECT_EQ(clients->currentText(), "K7 Kanzlei Nord");
    EXPECT_TRUE(queries.last().contains(QStringLiteral("Kanzlei = 1")));

    auto& staff = w.window().get<QtSelection>(QStringLiteral("ctlMitarbeiterBuchProp"));
    auto* people = qobject_cast<QComboBox*>(w.view("ctlMitarbeiterBuchProp").widget());
    EXPECT_TRUE(staff.staff());
    EXPECT_EQ(people->toolTip(), "Mitarbeiter für die Verwendung der Importoptionen");
    w.take();
    staff.userSelect(2);
    EXPECT_EQ(staff.Id(), 2);
    EXPECT_EQ(people->currentText(), "Bert Buch");
    staff.setId(9);  // not in the list: shown by its number
    EXPECT_EQ(people->currentText(), "9");
    EXPECT_EQ(w.take(),
              (QStringList{"Change ctlMitarbeiterBuchProp", "Change ctlMitarbeiterBuchProp"}));
}

// The browser reads through the database, so its tests have a real one.
class QtBrowserDb : public ::testing::Test {
  protected:
    static Services world(const std::shared_ptr<Database>& db) {
        Services s;
        s.newRecordset = db->recordsetFactory();
        return s;
    }

    std::shared_ptr<Database> db_ = [] {
        auto d = Database::open(QStringLiteral(":memory:"),
                                std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), {})));
        d->runScript(QStringLiteral(
            "CREATE TABLE tJob (idJob INTEGER PRIMARY KEY, Name TEXT, Art TEXT);"
            "CREATE VIEW V_ZPK_Applications_System_AutoJob AS SELECT idJob AS JobId, Name, "
            "  Art AS Auftragsart FROM tJob;"
            "INSERT INTO tJob VALUES (1, 'Zweiter', 'Import Kunden');"
            "INSERT INTO tJob VALUES (2, 'Erster', 'Import Buchungen');"
            "INSERT INTO tJob VALUES (3, 'Dritter', 'Textdatei-Import');"));
        return d;
    }();
    ScopedServices scope_{world(db_)};
};

class QtBrowserTest : public QtBrowserDb {
  protected:
    QtBrowserTest() {
        w.show();
        browser().setAbfrage(QStringLiteral("SELECT * FROM V_ZPK_Applications_System_AutoJob"));
        browser().Load();
        w.take();
    }
    QtBrowser& browser() { return w.window().get<QtBrowser>(QStringLiteral("ctlPakete")); }
    QTableView* view() { return browser().view(); }
    QList<int> viewSelection() {
        QList<int> rows;
        for (const QModelIndex& i : view()->selectionModel()->selectedRows()) {
            rows << i.row() + 1;
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    RecordedWindow w{frmPakete::declaration()};
};

TEST_F(QtBrowserTest, RowsOfTheQueryShowWithTheirHeadings) {
    EXPECT_EQ(view()->model()->rowCount(), 3);
    EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), "Name");
    EXPECT_EQ(view()->model()->index(1, 1).data().toString(), "Erster");
    browser().Spalte(QStringLiteral("JobId"))->SpalteFlagA = true;
    browser().Refresh(false);
    EXPECT_TRUE(view()->isColumnHidden(0));
    EXPECT_FALSE(view()->isColumnHidden(1));
}

TEST_F(QtBrowserTest, SelectionOfTheUserAndByCodeShowInTheView) {
    browser().userBrowserSelect({3, 1});
    EXPECT_EQ(browser().SelCount(), 2);
    EXPECT_EQ(browser().SelRow(0), 3);
    EXPECT_EQ(browser().SelRow(1), 1);
    EXPECT_EQ(browser().Row(), 3);
    EXPECT_EQ(viewSelection(), (QList<int>{1, 3}));
    EXPECT_EQ(w.take(), QStringList{"SelectionChanged ctlPakete"});

    browser().setRow(2);  // by code: silent
    EXPECT_EQ(viewSelection(), QList<int>{2});
    EXPECT_TRUE(w.take().isEmpty());

    const QRect cell = view()->visualRect(view()->model()->index(0, 1));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::ControlModifier, cell.center());
    EXPECT_EQ(browser().selectedRows(), (QList<int>{1, 2}));
    EXPECT_EQ(w.take(), QStringList{"SelectionChanged ctlPakete"});
}

TEST_F(QtBrowserTest, DoubleClickAndEnterOpenOtherKeysRaiseKeyDown) {
    browser().userBrowserOpen(2);
    EXPECT_EQ(w.take(), (QStringList{"SelectionChanged ctlPakete", "Open ctlPakete 2"}));
    QTest::keyClick(view(), Qt::Key_Return);
    QTest::keyClick(view(), Qt::Key_F1);
    browser().userKey(46, 0);
    EXPECT_EQ(w.take(), (QStringList{"Open ctlPakete 2", "KeyDown ctlPakete 112/0",
                                     "KeyDown ctlPakete 46/0"}));
    EXPECT_EQ(browser().Row(), 2);
    EXPECT_THROW(browser().userBrowserOpen(4), RaisedError);
}

TEST_F(QtBrowserTest, ToolsStandAboveAndMenuIsTheContextMenu) {
    ITool* neu = browser().Tools().Add(QStringLiteral("Neu"), 0, QStringLiteral("Neu"), 0);
    browser().Tools().Add(QStringLiteral("sep"), 5, {}, 0);
    browser().Menu().AddTool(neu);
    browser().Menu().Add(QStringLiteral("Auftragsverlauf"), 0, QStringLiteral("Auftragsverlauf"),
                         0);
    EXPECT_EQ(browser().toolBar()->actions().size(), 2);
    EXPECT_TRUE(browser().toolBar()->actions().at(1)->isSeparator());
    EXPECT_EQ(browser().menu()->actions().size(), 2);
    EXPECT_FALSE(browser().toolBar()->isHidden());

    browser().toolAction(QStringLiteral("Tools"), QStringLiteral("Neu"))->trigger();
    browser().userTool(QStringLiteral("Menu"), QStringLiteral("Auftragsverlauf"));
    EXPECT_EQ(w.take(),
              (QStringList{"ToolClick ctlPakete Neu", "ToolClick ctlPakete Auftragsverlauf"}));

    neu->setEnabled(false);
    EXPECT_FALSE(browser().toolAction(QStringLiteral("Menu"), QStringLiteral("Neu"))->isEnabled());
    EXPECT_THROW(browser().userTool(QStringLiteral("Tools"), QStringLiteral("Neu")), RaisedError);
}

TEST_F(QtBrowserTest, HeadingOfASortableColumnSorts) {
    browser().Spalte(QStringLiteral("Name"))->SpalteFlagB = true;
    browser().setRow(1);
    view()->horizontalHeader()->sectionClicked(1);
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Name")), "Dritter");
    EXPECT_EQ(view()->model()->index(0, 1).data().toString(), "Dritter");
    EXPECT_EQ(browser().cellText(browser().Row(), QStringLiteral("Name")), "Zweiter");
    view()->horizontalHeader()->sectionClicked(1);
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Name")), "Zweiter");
    view()->horizontalHeader()->sectionClicked(2);  // not sortable
    EXPECT_EQ(browser().cellText(1, QStringLiteral("Name")), "Zweiter");
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(QtBrowserDb, JobListFillsItsWindowWithTheBrowserAndHidesItsBar) {
    QtWindowFactory factory;
    frmPakete list(factory.create(frmPakete::declaration()));
    QStringList raised;
    list.ctlPakete_Open = [&] { raised << QStringLiteral("Open"); };
    list.ctlPakete_SelectionChanged = [&] { raised << QStringLiteral("SelectionChanged"); };
    list.ctlPakete_KeyDown = [&](int code, int) {
        raised << QStringLiteral("KeyDown %1").arg(code);
    };
    list.ctlPakete_ToolClick = [&](const QString& t) { raised << QStringLiteral("Tool ") + t; };

    QWidget* root = widgetOf(list.window());
    list.window().Show(false);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(root));
    auto& browser = dynamic_cast<QtBrowser&>(list.ctlPakete());
    EXPECT_EQ(root->size(), QSize(900, 560));
    EXPECT_EQ(browser.widget()->geometry(), root->rect());
    EXPECT_FALSE(dynamic_cast<QtControlView&>(list.barMenu()).widget()->isVisible());
    EXPECT_EQ(list.barMenu().Bands(), (QStringList{"Bearbeiten", "Ansicht"}));

    browser.setAbfrage(QStringLiteral("SELECT * FROM V_ZPK_Applications_System_AutoJob"));
    browser.Load();
    browser.Tools().Add(QStringLiteral("Neu"), 0, QStringLiteral("Neu"), 0);
    browser.userBrowserOpen(1);
    QTest::keyClick(browser.view(), Qt::Key_F1);
    browser.userTool(QStringLiteral("Tools"), QStringLiteral("Neu"));
    EXPECT_EQ(raised, (QStringList{"SelectionChanged", "Open", "KeyDown 112", "Tool Neu"}));
}

}  // namespace
