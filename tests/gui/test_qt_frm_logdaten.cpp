#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QTest>
#include <QToolBar>

#include "QtTestKit.h"
#include "gui/QtToolBar.h"
#include "ui/windows/frmLogDaten.h"
#include "ui/windows/frmLogDatenDel.h"
#include "ui/windows/frmLogDatenDetails.h"

using namespace qt_test;

namespace {

// A window contract on Qt widgets, shown off screen, with the events it raises kept as text.
template <class Form>
struct QtForm {
    QtForm() {
        auto w = factory.create(Form::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<Form>(std::move(w));
    }
    void show() {
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name, int index = -1) {
        QtControlView* v = qt->view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<Form> form;
    QStringList events;
};

TEST(QtFrmLogDaten, TheBrowserFillsTheWindowAndTheCloseBoxEndsIt) {
    QtForm<frmLogDaten> f;
    f.form->evSchliessen = [&] { f.events << QStringLiteral("Schliessen"); };
    f.show();
    EXPECT_EQ(f.qt->widget()->windowTitle(), "Logdaten");
    QWidget* browser = f.widget("ctlLogDaten");
    ASSERT_NE(browser, nullptr);
    EXPECT_EQ(browser->geometry(), f.qt->widget()->rect());
    f.qt->widget()->resize(700, 400);
    EXPECT_EQ(browser->geometry(), f.qt->widget()->rect());
    f.qt->widget()->close();
    // The close request and the unload both tell.
    EXPECT_EQ(f.events, (QStringList{"Schliessen", "Schliessen"}));
    EXPECT_FALSE(f.form->window().Visible());
}

TEST(QtFrmLogDatenDel, EveryControlHasItsCaptionAndTheButtonsRaiseTheirIndex) {
    QtForm<frmLogDatenDel> f;
    f.form->evAktion = [&](int i) { f.events << QStringLiteral("Aktion %1").arg(i); };
    f.show();
    qt_test::expectDeclaredControlsShown(*f.qt, frmLogDatenDel::declaration(), false);
    QTest::mouseClick(f.widget("cmdAktion", frmLogDatenDel::Aktion::Ok), Qt::LeftButton);
    QTest::mouseClick(f.widget("cmdAktion", frmLogDatenDel::Aktion::Abbrechen), Qt::LeftButton);
    EXPECT_EQ(f.events, (QStringList{"Aktion 0", "Aktion 1"}));
}

TEST(QtFrmLogDatenDetails, FieldsAreLockedAndEveryToolButTheDisplayRaisesNavigation) {
    QtForm<frmLogDatenDetails> f;
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
