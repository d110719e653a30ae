// The program's help: the menu and F1 open its help window on the topic asked for.
#include <QTest>
#include <QTextBrowser>

#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"

using namespace real_input;

namespace {

QString helpText() {
    auto* text =
        findIn<QTextBrowser>(shownWindow(QStringLiteral("frmHilfe")), QStringLiteral("txtHilfe"));
    return text ? text->toPlainText() : QString();
}

}  // namespace

using HelpWindowTest = ProgramFixture;

TEST_F(HelpWindowTest, HelpMenuAndF1InTheListShowTheJobListsText) {
    chooseMenu(QStringLiteral("Hilfe"), QStringLiteral("Hilfe zu den automatischen Aufträgen"));
    ASSERT_TRUE(waitFor([] { return shownWindow(QStringLiteral("frmHilfe")) != nullptr; }));
    QWidget* help = shownWindow(QStringLiteral("frmHilfe"));
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Hilfe – Automatische Aufträge"));
    EXPECT_TRUE(helpText().contains(QStringLiteral("Die Liste zeigt alle Aufträge")));
    EXPECT_EQ(boxes_->shown(), QStringList());
    click(find(help, QStringLiteral("cmdSchliessen")));
    ASSERT_TRUE(waitFor([] { return shownWindow(QStringLiteral("frmHilfe")) == nullptr; }));

    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_F1);
    ASSERT_TRUE(waitFor([] { return shownWindow(QStringLiteral("frmHilfe")) != nullptr; }));
    EXPECT_TRUE(helpText().contains(QStringLiteral("Die Liste zeigt alle Aufträge")));
    shownWindow(QStringLiteral("frmHilfe"))->close();
}

TEST_F(HelpWindowTest, F1InThePropertiesWindowShowsTheGeneralPageAndTheSchedulesPage) {
    const int row =
        rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Lieferanten Autohaus Lindner"));
    ASSERT_GT(row, 0);
    QString general;
    QString schedules;
    bool done = false;
    // F1 goes where a person's key goes: to the control that has the focus.
    const auto pressF1 = [](QWidget* w) {
        QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, Qt::Key_F1);
    };
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        pressF1(w);
        waitFor([] { return shownWindow(QStringLiteral("frmHilfe")) != nullptr; });
        general = helpText();
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        pressF1(w);
        schedules = helpText();
        shownWindow(QStringLiteral("frmHilfe"))->close();
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), row);
    ASSERT_TRUE(waitFor([&] { return done; }));

    EXPECT_TRUE(general.contains(QStringLiteral("Auf dieser Seite legen Sie fest")));
    EXPECT_TRUE(schedules.contains(QStringLiteral("Ein Auftrag kann mehrere Zeitpläne haben")));
}
