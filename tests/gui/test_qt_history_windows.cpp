#include <gtest/gtest.h>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTest>

#include "QtTestKit.h"
#include "gui/QtBookingLogDisplay.h"
#include "gui/QtGrid.h"
#include "ui/windows/frmBuchLog.h"
#include "ui/windows/frmBuchLogAbfrage.h"
#include "ui/windows/frmVerlauf.h"
#include "ui/windows/frmVerlaufFilter.h"

using namespace qt_test;

namespace {

TEST(QtHistoryWindows, EveryControlHasItsWidgetAndCaption) {
    QtForm<frmVerlauf> verlauf;
    EXPECT_EQ(verlauf.qt->widget()->windowTitle(), "Auftragsverlauf");
    expectDeclaredControlsShown(*verlauf.qt, frmVerlauf::declaration(), false);
    QtForm<frmVerlaufFilter> filter;
    expectDeclaredControlsShown(*filter.qt, frmVerlaufFilter::declaration(), false);
    QtForm<frmBuchLog> buchLog;
    EXPECT_EQ(buchLog.qt->widget()->windowTitle(), "Logfiles für importierte Buchungen");
    expectDeclaredControlsShown(*buchLog.qt, frmBuchLog::declaration(), false);
    QtForm<frmBuchLogAbfrage> abfrage;
    expectDeclaredControlsShown(*abfrage.qt, frmBuchLogAbfrage::declaration(), false);
}

TEST(QtHistoryWindows, ButtonsAndGridRaiseTheHistorysEvents) {
    QtForm<frmVerlauf> s;
    s.form->evFrmVerlaufCMDButtonClicked = [&](int i) { s.events << QString::number(i); };
    s.form->evGrdDataClick = [&] { s.events << "Click"; };
    s.form->evGrdDataLeaveCell = [&] { s.events << "Leave"; };
    s.form->evGrdDataDblClick = [&] { s.events << "DblClick"; };
    for (int i : {0, 1, 2}) {
        QTest::mouseClick(s.widget("cmdCommandButton", i), Qt::LeftButton);
    }
    IGrid& grid = s.form->grdData();
    grid.setCols(3);
    grid.AddItem("a\tb\tc");
    grid.AddItem("d\te\tf");
    auto& qtGrid = dynamic_cast<QtGrid&>(grid);
    qtGrid.userGridClick(1, 1, false);
    qtGrid.userGridClick(2, 2, true);
    EXPECT_EQ(s.events, (QStringList{"0", "1", "2", "Leave", "Click", "Leave", "DblClick"}));
}

TEST(QtHistoryWindows, AMarkedCellKeepsItsColourWhileCurrent) {
    QtForm<frmVerlauf> s;
    IGrid& grid = s.form->grdData();
    grid.setCols(2);
    grid.AddItem("a\tb");
    grid.setRow(1);
    grid.setCol(1);
    grid.setCellUnderline(1, 1, true);
    grid.setCellForeColor(1, 1, 0xFF0000);
    QTableWidget* table = dynamic_cast<QtGrid&>(grid).table();
    QTableWidgetItem* item = table->item(0, 1);
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->font().underline());
    EXPECT_EQ(item->foreground().color(), QColor(0, 0, 255));
}

TEST(QtHistoryWindows, LogListDoubleClickActsAsOpenOnlyWhenItCan) {
    QtForm<frmBuchLog> s;
    s.form->evFrmBuLogCommandButtonClicked = [&](int i) { s.events << QString::number(i); };
    IGrid& grid = s.form->grdData();
    grid.setCols(4);
    grid.AddItem("x.Log\t1 KB\t\t");
    auto& qtGrid = dynamic_cast<QtGrid&>(grid);
    s.form->cmdCommandButton(frmBuchLog::Cmd::Oeffnen).setEnabled(false);
    qtGrid.userGridClick(1, 0, true);
    s.form->cmdCommandButton(frmBuchLog::Cmd::Oeffnen).setEnabled(true);
    qtGrid.userGridClick(1, 0, true);
    QTest::mouseClick(s.widget("cmdCommandButton", frmBuchLog::Cmd::Explorer), Qt::LeftButton);
    EXPECT_EQ(s.events, (QStringList{"1", "2"}));
    EXPECT_TRUE(s.form->txtTextBox().Locked());
}

TEST(QtHistoryWindows, TheQuestionShowsItsBoldMarksAndTellsTheAnswer) {
    QtForm<frmBuchLogAbfrage> s;
    s.form->ctlBuchunglog().setCaption("Wahl\r\n\r\n<b><Status></b>\t- Status");
    auto* label = dynamic_cast<QLabel*>(s.widget("ctlBuchunglog"));
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->text().contains("<b>&lt;Status&gt;</b>"));
    EXPECT_EQ(label->textFormat(), Qt::RichText);
    QTest::mouseClick(s.widget("cmdProtBuch", frmBuchLogAbfrage::Prot::Buchungen), Qt::LeftButton);
    EXPECT_TRUE(s.form->pbBuchProtokoll());
    EXPECT_FALSE(s.form->window().Visible());
}

TEST(QtHistoryWindows, TheViewerShowsWhatItWasGiven) {
    BookingLogView view;
    view.datei = "/log/a.mta";
    view.wirtschaftsjahr = 7;
    view.mitarbeiter = 3;
    view.buchungen = true;
    std::unique_ptr<QDialog> fenster(QtBookingLogDisplay::makeWindow(view));
    auto* text = fenster->findChild<QPlainTextEdit*>("txtInhalt");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->toPlainText(), "Datei nicht gefunden");
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_EQ(fenster->windowTitle(), "Importierte Buchungen");
    QStringList labels;
    for (auto* l : fenster->findChildren<QLabel*>()) {
        labels << l->text();
    }
    EXPECT_TRUE(labels.contains("/log/a.mta"));
    EXPECT_TRUE(labels.contains("7"));
    EXPECT_TRUE(labels.contains("Buchungen"));
    fenster->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(fenster.get()));
}

}  // namespace
