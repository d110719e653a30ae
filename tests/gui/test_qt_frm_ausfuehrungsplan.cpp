#include <gtest/gtest.h>
#include <QComboBox>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmAusfuehrungsplan.h"

using namespace qt_test;

namespace {

using P = frmAusfuehrungsplan;

// The plan window on Qt widgets with the events it raises kept as text.
struct QtPlan : QtForm<frmAusfuehrungsplan> {
    QtPlan() : QtForm(false) {
        form->evCommandButtonClicked = [this](int i) {
            events << QStringLiteral("Button %1").arg(i);
        };
        form->evComboboxClicked = [this](int i) { events << QStringLiteral("Combo %1").arg(i); };
        show();
    }
};

TEST(QtFrmAusfuehrungsplan, EveryControlHasItsWidgetAndCaption) {
    QtPlan p;
    EXPECT_EQ(p.qt->widget()->windowTitle(), "Ausführungsplan");
    qt_test::expectDeclaredControlsShown(*p.qt, frmAusfuehrungsplan::declaration(), false);
}

TEST(QtFrmAusfuehrungsplan, ButtonsPicksAndTheCloseBoxRaiseTheWindowsEvents) {
    QtPlan p;
    for (int i : {P::Cmd::Zurueck, P::Cmd::Vor, P::Cmd::Heute, P::Cmd::Schliessen}) {
        QTest::mouseClick(p.widget("cmdCommandButton", i), Qt::LeftButton);
    }
    IComboBox& zeitraum = p.form->cboComboBox(P::Cbo::Zeitraum);
    zeitraum.AddItem(1, QStringLiteral("Tag"));
    zeitraum.AddItem(7, QStringLiteral("Woche"));
    zeitraum.setKey(1);  // by code: silent
    auto* box = qobject_cast<QComboBox*>(p.widget("cboComboBox", P::Cbo::Zeitraum));
    ASSERT_NE(box, nullptr);
    Q_EMIT box->activated(1);
    p.qt->widget()->close();
    EXPECT_EQ(p.events,
              (QStringList{"Button 0", "Button 1", "Button 2", "Button 3", "Combo 0", "Button 3"}));
}

}  // namespace
