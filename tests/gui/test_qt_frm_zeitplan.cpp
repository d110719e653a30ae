#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmZeitplan.h"

using namespace qt_test;

namespace {

// The schedule dialog on Qt widgets with the events it raises kept as text.
struct QtSchedule {
    QtSchedule() {
        auto w = factory.create(frmZeitplan::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<frmZeitplan>(std::move(w));
        form->evFrmZeitplanCommandButtonClicked = [this](int i) {
            events << QStringLiteral("Button %1").arg(i);
        };
        form->evFRMZeitplanOptOptionClicked = [this](int i) {
            events << QStringLiteral("Option %1").arg(i);
        };
        form->evFRMZeitplanHilfe = [this] { events << QStringLiteral("Hilfe"); };
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name, int index = -1) {
        QtControlView* v = qt->view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<frmZeitplan> form;
    QStringList events;
};

TEST(QtFrmZeitplan, EveryControlHasItsWidgetAndCaption) {
    QtSchedule s;
    EXPECT_EQ(s.qt->widget()->windowTitle(), "Eigenschaften Zeitplan");
    qt_test::expectDeclaredControlsShown(*s.qt, frmZeitplan::declaration(), false);
}

TEST(QtFrmZeitplan, ClicksAndTheHelpKeyRaiseTheWindowsEvents) {
    QtSchedule s;
    QTest::mouseClick(s.widget("optOption", frmZeitplan::Opt::Einmal), Qt::LeftButton, {},
                      QPoint(8, s.widget("optOption", frmZeitplan::Opt::Einmal)->height() / 2));
    s.form->optOption(frmZeitplan::Opt::Wiederholt).setValue(true);
    QTest::mouseClick(s.widget("cmdCommandButton", frmZeitplan::Cmd::Ok), Qt::LeftButton);
    QTest::mouseClick(s.widget("cmdCommandButton", frmZeitplan::Cmd::Abbrechen), Qt::LeftButton);
    // The window sees the key before the focused name box does.
    QWidget* name = s.qt->view(QStringLiteral("txtTextBox"), 0)->keyTarget();
    s.form->txtTextBox(frmZeitplan::Txt::Name).SetFocus();
    QTest::keyClick(name, Qt::Key_F1);
    QTest::keyClick(name, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(s.events, (QStringList{"Option 2", "Option 3", "Button 0", "Button 1", "Hilfe"}));
    s.events.clear();

    // The close box is Abbrechen; the window stays until the controller unloads it.
    s.qt->widget()->close();
    EXPECT_EQ(s.events, QStringList{"Button 1"});
    EXPECT_TRUE(s.form->window().Visible());
    s.qt->shot(QStringLiteral("/tmp/frmZeitplan.png"));
}

}  // namespace
