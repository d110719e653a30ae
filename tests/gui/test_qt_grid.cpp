#include <gtest/gtest.h>
#include <QHeaderView>
#include <QTableWidget>
#include <QTest>
#include <algorithm>

#include "QtTestKit.h"
#include "gui/QtGrid.h"

using namespace qt_test;

namespace {

WindowDecl gridWindow(bool editable) {
    WindowDecl d;
    d.name = QStringLiteral("frmGitter");
    d.width = 500;
    d.height = 300;
    ControlDecl grid = decl("grdBeleg", ControlKind::Grid);
    grid.editable = editable;
    d.controls << grid;
    d.controls << decl("txtTextBox", ControlKind::TextBox, 0, "Name");
    return d;
}

class QtGridTest : public ::testing::Test {
  protected:
    void SetUp() override {
        grid().setFormatString(QStringLiteral("<Belegart|^Auswählen|>Id"));
        grid().setColBoolean(1, true);
        grid().AddItem(QStringLiteral("Rechnung\t\t7"));
        grid().AddItem(QStringLiteral("Gutschrift\t\t8"));
        w.take();
    }
    HeadlessGrid& grid() { return w.window().get<HeadlessGrid>(QStringLiteral("grdBeleg")); }
    QTableWidget* table() { return qobject_cast<QTableWidget*>(w.view("grdBeleg").widget()); }

    RecordedWindow w{gridWindow(true)};
};

TEST_F(QtGridTest, OneFixedRowIsTheHeadingAndDataRowsFollow) {
    ASSERT_NE(table(), nullptr);
    EXPECT_EQ(table()->columnCount(), 3);
    EXPECT_EQ(table()->rowCount(), 2);
    EXPECT_EQ(table()->horizontalHeaderItem(0)->text(), "Belegart");
    EXPECT_EQ(table()->item(1, 0)->text(), "Gutschrift");
    EXPECT_EQ(table()->item(0, 1)->checkState(), Qt::Unchecked);
    EXPECT_TRUE(table()->item(0, 1)->flags() & Qt::ItemIsUserCheckable);
    EXPECT_EQ(table()->item(0, 2)->textAlignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
}

TEST_F(QtGridTest, CellFormatsWidthsAndHiddenColumnsShow) {
    grid().setTextMatrix(2, 0, QStringLiteral("Storno"));
    grid().setCellUnderline(1, 0, true);
    grid().setCellForeColor(1, 0, 0x0000FF);  // red as 0xBBGGRR
    grid().setCellChecked(2, 1, true);
    grid().setColWidth(0, 1500);
    grid().setColHidden(2, true);
    EXPECT_EQ(table()->item(1, 0)->text(), "Storno");
    EXPECT_TRUE(table()->item(0, 0)->font().underline());
    EXPECT_EQ(table()->item(0, 0)->foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(table()->item(1, 1)->checkState(), Qt::Checked);
    EXPECT_EQ(table()->columnWidth(0), 100);
    EXPECT_TRUE(table()->isColumnHidden(2));
    grid().Clear();
    EXPECT_EQ(table()->item(0, 0)->text(), "");
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(QtGridTest, ToggleOfABooleanCellRaisesAfterEdit) {
    grid().userGridToggle(2, 1);
    EXPECT_TRUE(grid().CellChecked(2, 1));
    EXPECT_EQ(table()->item(1, 1)->checkState(), Qt::Checked);
    EXPECT_EQ(w.take(), (QStringList{"GotFocus grdBeleg", "LeaveCell grdBeleg 1,0",
                                     "AfterEdit grdBeleg 2,1"}));

    // The user's tick in the widget takes the same way.
    table()->item(0, 1)->setCheckState(Qt::Checked);
    EXPECT_TRUE(grid().CellChecked(1, 1));
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(w.take(), (QStringList{"LeaveCell grdBeleg 2,1", "AfterEdit grdBeleg 1,1"}));
    EXPECT_THROW(grid().userGridToggle(1, 0), RaisedError);
}

TEST_F(QtGridTest, ClicksMoveTheCurrentCellAndRaiseClickOrDblClick) {
    w.show();
    grid().userGridClick(2, 0, false);
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_EQ(table()->currentRow(), 1);
    grid().userGridClick(1, 2, true);
    grid().userGridClick(0, 1, false);  // the heading
    // Each move of the current cell is told first with the cell it leaves.
    EXPECT_EQ(w.take(),
              (QStringList{"GotFocus grdBeleg", "LeaveCell grdBeleg 1,0", "Click grdBeleg 2,0",
                           "LeaveCell grdBeleg 2,0", "DblClick grdBeleg 1,2",
                           "LeaveCell grdBeleg 1,2", "Click grdBeleg 0,1"}));

    const QRect cell = table()->visualItemRect(table()->item(1, 0));
    // The real mouse: a click, and the second click of a double click.
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(w.take(), (QStringList{"LeaveCell grdBeleg 1,1", "Click grdBeleg 2,0"}));
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_TRUE(w.take().contains("DblClick grdBeleg 2,0"));
}

TEST_F(QtGridTest, AnAddedRowTouchesThatRowOnlyAndShowsWhole) {
    QTableWidgetItem* first = table()->item(0, 0);
    QList<int> touched;
    QObject::connect(table()->model(), &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& from, const QModelIndex& to) {
                         for (int r = from.row(); r <= to.row(); ++r) {
                             touched << r;
                         }
                     });
    grid().AddItem(QStringLiteral("Storno\t\t9"));
    grid().setRowData(3, QVariant(9));
    // More rows, as the copy's job list grows: the new row only.
    grid().setRows(grid().Rows() + 1);
    grid().setCellChecked(4, 1, true);
    EXPECT_TRUE(std::all_of(touched.begin(), touched.end(), [](int r) { return r >= 2; }))
        << touched.size();
    EXPECT_EQ(table()->item(0, 0), first);
    ASSERT_EQ(table()->rowCount(), 4);
    EXPECT_EQ(table()->item(3, 1)->checkState(), Qt::Checked);
    EXPECT_EQ(table()->item(3, 0)->text(), "");
    EXPECT_EQ(table()->item(2, 0)->text(), "Storno");
    EXPECT_EQ(table()->item(2, 1)->checkState(), Qt::Unchecked);
    EXPECT_TRUE(table()->item(2, 1)->flags() & Qt::ItemIsUserCheckable);
    EXPECT_EQ(table()->item(2, 2)->textAlignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_EQ(table()->currentRow(), 0);

    // Into an emptied grid the first added row becomes the current one.
    grid().setRows(1);
    EXPECT_EQ(table()->rowCount(), 0);
    grid().AddItem(QStringLiteral("Rechnung\t\t7"));
    EXPECT_EQ(table()->rowCount(), 1);
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(table()->currentRow(), 0);
    EXPECT_EQ(table()->currentColumn(), 0);
    EXPECT_TRUE(w.take().isEmpty());
}

TEST(QtGridReadOnly, WithoutEditableTheChecksCannotBeToggled) {
    RecordedWindow w(gridWindow(false));
    auto& grid = w.window().get<HeadlessGrid>(QStringLiteral("grdBeleg"));
    grid.setFormatString(QStringLiteral("Name|Aktiv"));
    grid.setColBoolean(1, true);
    grid.AddItem(QStringLiteral("A\t"));
    auto* table = qobject_cast<QTableWidget*>(w.view("grdBeleg").widget());
    EXPECT_FALSE(table->item(0, 1)->flags() & Qt::ItemIsUserCheckable);
    EXPECT_THROW(grid.userGridToggle(1, 1), RaisedError);
}

}  // namespace
