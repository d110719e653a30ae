#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QTest>
#include <QToolBar>

#include "QtTestKit.h"
#include "gui/QtBrowser.h"
#include "gui/QtSearchMarks.h"
#include "gui/QtToolBar.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDel.h"
#include "ui/windows/frmLogDatenDetails.h"

using namespace qt_test;

namespace {

TEST(QtFrmLogDaten, TheBrowserFillsTheWindowBelowTheSearchAndTheCloseBoxEndsIt) {
    QtForm<frmLogDaten> f(false);
    f.form->evSchliessen = [&] { f.events << QStringLiteral("Schliessen"); };
    f.form->evSuchen = [&] { f.events << QStringLiteral("Suchen"); };
    f.show();
    EXPECT_EQ(f.qt->widget()->windowTitle(), "Logdaten");
    qt_test::expectDeclaredControlsShown(*f.qt, frmLogDaten::declaration(), true);
    QWidget* browser = f.widget("ctlLogDaten");
    QWidget* search = f.widget("txtSuchen");
    ASSERT_NE(browser, nullptr);
    ASSERT_NE(search, nullptr);
    for (const QSize size : {QSize(960, 560), QSize(700, 400)}) {
        f.qt->widget()->resize(size);
        QApplication::processEvents();
        const QRect below =
            f.qt->widget()->rect().adjusted(0, search->geometry().bottom() + 1, 0, 0);
        EXPECT_EQ(browser->geometry().bottom(), below.bottom());
        EXPECT_EQ(browser->geometry().width(), below.width());
        EXPECT_GT(browser->geometry().top(), search->geometry().bottom());
        EXPECT_LT(browser->geometry().top(), search->geometry().bottom() + 12);
    }
    // Typing searches nothing yet; Enter does.
    QTest::keyClicks(search, "Rechnung");
    EXPECT_EQ(f.events.count("Suchen"), 0);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(f.events.count("Suchen"), 1);
    f.events.clear();
    f.qt->widget()->close();
    // The close request and the unload both tell.
    EXPECT_EQ(f.events, (QStringList{"Schliessen", "Schliessen"}));
    EXPECT_FALSE(f.form->window().Visible());
}

TEST(QtFrmLogDaten, CtrlFInTheBrowserFocusesTheSearchAndEscapeEndsIt) {
    QtForm<frmLogDaten> f(false);
    f.form->evSucheBeenden = [&] { f.events << QStringLiteral("Beenden"); };
    f.show();
    auto* browser = dynamic_cast<QtBrowser*>(f.qt->view(QStringLiteral("ctlLogDaten")));
    ASSERT_NE(browser, nullptr);
    browser->view()->setFocus();
    QTest::keyClick(browser->view(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(f.widget("txtSuchen")->hasFocus());
    EXPECT_TRUE(f.form->txtSuchen().Focused());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(f.events, QStringList{"Beenden"});
}

TEST(QtSearchMarksTest, MarksEveryWordThatBeginsWithASearchedWordInAnyCase) {
    using Marks = QList<QPair<int, int>>;
    EXPECT_EQ(QtSearchMarks::marks("Rechnungsstapel März, märz-Rechnung", {"märz", "RECHNUNG"}),
              (Marks{{0, 8}, {16, 4}, {22, 4}, {27, 8}}));
    // Inside a word is no beginning.
    EXPECT_EQ(QtSearchMarks::marks("Rechnungsstapel", {"stapel"}), Marks{});
    EXPECT_EQ(QtSearchMarks::marks("", {"a"}), Marks{});
}

TEST(QtFrmLogDatenDel, EveryControlHasItsCaptionAndTheButtonsRaiseTheirIndex) {
    QtForm<frmLogDatenDel> f(false);
    f.form->evAktion = [&](int i) { f.events << QStringLiteral("Aktion %1").arg(i); };
    f.show();
    qt_test::expectDeclaredControlsShown(*f.qt, frmLogDatenDel::declaration(), false);
    QTest::mouseClick(f.widget("cmdAktion", frmLogDatenDel::Aktion::Ok), Qt::LeftButton);
    QTest::mouseClick(f.widget("cmdAktion", frmLogDatenDel::Aktion::Abbrechen), Qt::LeftButton);
    EXPECT_EQ(f.events, (QStringList{"Aktion 0", "Aktion 1"}));
}

TEST(QtFrmLogDatenDetails, FieldsAreLockedAndEveryToolButTheDisplayRaisesNavigation) {
    QtForm<frmLogDatenDetails> f(false);
    f.form->evNavigation = [&](const QString& tool) { f.events << tool; };
    f.form->evSchliessen = [&] { f.events << QStringLiteral("Schliessen"); };
    f.show();
    qt_test::expectDeclaredControlsShown(*f.qt, frmLogDatenDetails::declaration(), false);
    for (int i = 0; i < frmLogDatenDetails::kFelder; ++i) {
        EXPECT_TRUE(f.form->txtDetails(i).Locked()) << i;
    }
    auto* bar = dynamic_cast<QtToolBar*>(f.qt->view(QStringLiteral("tbrMain")));
    ASSERT_NE(bar, nullptr);
    auto* toolBar = qobject_cast<QToolBar*>(bar->widget());
    ASSERT_NE(toolBar, nullptr);
    for (const char* tool : {"first", "previous", "next", "last"}) {
        QWidget* button = toolBar->widgetForAction(bar->action("barMain", tool));
        ASSERT_NE(button, nullptr) << tool;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    f.form->tbrMain().Tool("barMain", "AktVon")->setCaption(QStringLiteral("4/9"));
    QWidget* anzeige = toolBar->widgetForAction(bar->action("barMain", "AktVon"));
    ASSERT_NE(anzeige, nullptr);
    EXPECT_EQ(bar->action("barMain", "AktVon")->text(), "4/9");
    EXPECT_TRUE(anzeige->testAttribute(Qt::WA_TransparentForMouseEvents));
    f.qt->widget()->close();
    EXPECT_EQ(f.events,
              (QStringList{"first", "previous", "next", "last", "Schliessen", "Schliessen"}));
}

}  // namespace
