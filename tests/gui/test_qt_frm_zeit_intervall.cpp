#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmZeitIntervall.h"

using namespace qt_test;

namespace {

// The recurrence dialog on Qt widgets with the events it raises kept as text.
struct QtDialog {
    QtDialog() {
        auto w = factory.create(frmZeitIntervall::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<frmZeitIntervall>(std::move(w));
        form->evFrmZeitintervallCommandButtonClicked = [this](int i) {
            events << QStringLiteral("Button %1").arg(i);
        };
        form->evFrmZeitintervallOptionHaeufigkeitClicked = [this](int i) {
            events << QStringLiteral("Haeufigkeit %1").arg(i);
        };
        form->evFrmZeitintervallOptionEnddatumClicked = [this](int i) {
            events << QStringLiteral("Enddatum %1").arg(i);
        };
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name, int index = -1) {
        QtControlView* v = qt->view(QString::fromUtf8(name), index);
        return v ? v->widget() : nullptr;
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<frmZeitIntervall> form;
    QStringList events;
};

TEST(QtFrmZeitIntervall, EveryControlHasItsWidgetAndCaption) {
    QtDialog d;
    EXPECT_EQ(d.qt->widget()->windowTitle(), "Zeitplan für wiederkehrende Aufträge bearbeiten");
    qt_test::expectDeclaredControlsShown(*d.qt, frmZeitIntervall::declaration(), false);
}

TEST(QtFrmZeitIntervall, OnlyTheChosenFrequencyFrameShowsInTheSharedPlace) {
    QtDialog d;
    for (int shown : {1, 5, 2}) {
        for (int index : {1, 5, 2}) {
            d.form->fraFrame(index).setVisible(index == shown);
        }
        QTest::qWait(20);
        EXPECT_TRUE(d.widget("fraFrame", shown)->isVisible());
        for (int index : {1, 5, 2}) {
            if (index != shown) {
                EXPECT_FALSE(d.widget("fraFrame", index)->isVisible());
                EXPECT_EQ(d.widget("fraFrame", index)->geometry().topLeft(),
                          d.widget("fraFrame", shown)->geometry().topLeft());
            }
        }
    }
}

TEST(QtFrmZeitIntervall, ClicksRaiseTheWindowsEvents) {
    QtDialog d;
    QTest::mouseClick(d.widget("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Taeglich),
                      Qt::LeftButton);
    QTest::mouseClick(d.widget("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Jede),
                      Qt::LeftButton);
    QTest::mouseClick(d.widget("optEnddatum", frmZeitIntervall::Enddatum::Ohne), Qt::LeftButton);
    QTest::mouseClick(d.widget("cmdCommandButton", frmZeitIntervall::Cmd::Ok), Qt::LeftButton);
    EXPECT_EQ(d.events, (QStringList{"Haeufigkeit 0", "Haeufigkeit 4", "Enddatum 1", "Button 0"}));
    EXPECT_TRUE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Taeglich).Value());
    EXPECT_TRUE(d.form->optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).Value());
}

}  // namespace
