#include <gtest/gtest.h>
#include <QLabel>
#include <QTableWidget>
#include <QTest>

#include "QtTestKit.h"
#include "ui/windows/frmZeitplanCopy.h"

using namespace qt_test;

namespace {

// The copy dialog on Qt widgets, with two jobs in its grid and the events it raises kept as
// text.
struct QtCopy {
    QtCopy() {
        auto w = factory.create(frmZeitplanCopy::declaration());
        qt = dynamic_cast<QtWindow*>(w.get());
        form = std::make_unique<frmZeitplanCopy>(std::move(w));
        form->evZeitplanCopyOk = [this](std::uint8_t& by) {
            events << QStringLiteral("Ok %1").arg(by);
        };
        form->evZeitplanCopyCancel = [this] { events << QStringLiteral("Cancel"); };
        form->evZeitplanWaehlen = [this](bool& bAbwaehlen) {
            events << QStringLiteral("Waehlen %1").arg(bAbwaehlen ? "ab" : "aus");
        };
        form->grdAuftrag_Click = [this](int r, int c) {
            events << QStringLiteral("Click %1 %2").arg(r).arg(c);
        };
        IGrid& g = form->grdAuftrag();
        g.setFormatString(QStringLiteral("<|<Auftrag|<Typ|<Mandant/Kanzlei"));
        g.setRows(3);
        g.setColBoolean(0, true);
        g.setCellChecked(1, 0, true);
        g.setTextMatrix(1, 1, QStringLiteral("Kunden"));
        g.setTextMatrix(2, 1, QStringLiteral("Lieferanten"));
        g.Refresh();
        form->window().Show(false);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(qt->widget()));
    }
    QWidget* widget(const char* name) {
        QtControlView* v = qt->view(QString::fromUtf8(name), -1);
        return v ? v->widget() : nullptr;
    }

    QtWindowFactory factory;
    QtWindow* qt = nullptr;
    std::unique_ptr<frmZeitplanCopy> form;
    QStringList events;
};

TEST(QtFrmZeitplanCopy, EveryControlHasItsWidgetAndCaption) {
    QtCopy s;
    EXPECT_EQ(s.qt->widget()->windowTitle(), "Zeitplan kopieren");
    qt_test::expectDeclaredControlsShown(*s.qt, frmZeitplanCopy::declaration(), false);
    // The separators are lines.
    auto* line = qobject_cast<QLabel*>(s.widget("ctlSeparator"));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->frameShape(), QFrame::HLine);
}

TEST(QtFrmZeitplanCopy, TheTickColumnShowsCheckBoxesThatOnlyTheControllerTurns) {
    QtCopy s;
    auto* table = qobject_cast<QTableWidget*>(s.widget("grdAuftrag"));
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->item(0, 0)->checkState(), Qt::Checked);
    EXPECT_EQ(table->item(1, 0)->checkState(), Qt::Unchecked);
    EXPECT_FALSE(table->item(0, 0)->flags() & Qt::ItemIsUserCheckable);
    const QRect cell = table->visualItemRect(table->item(1, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(s.events, QStringList{"Click 2 0"});
    EXPECT_EQ(table->item(1, 0)->checkState(), Qt::Unchecked);
    s.form->grdAuftrag().setCellChecked(2, 0, true);
    EXPECT_EQ(table->item(1, 0)->checkState(), Qt::Checked);
}

TEST(QtFrmZeitplanCopy, ButtonsRaiseTheWindowsEventsAndTheInfoTurnsRed) {
    QtCopy s;
    QTest::mouseClick(s.widget("cmdAbwaehlen"), Qt::LeftButton);
    QTest::mouseClick(s.widget("cmdAuswaehlen"), Qt::LeftButton);
    s.form->chkUeberschreiben().setValue(1);
    QTest::mouseClick(s.widget("cmdOk"), Qt::LeftButton);
    QTest::mouseClick(s.widget("cmdAbbrechen"), Qt::LeftButton);
    EXPECT_EQ(s.events, (QStringList{"Waehlen ab", "Waehlen aus", "Ok 1", "Cancel"}));

    s.form->lblZeitplanCopyInfo().setForeColor(255);
    auto* info = qobject_cast<QLabel*>(s.widget("lblZeitplanCopyInfo"));
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

}  // namespace
