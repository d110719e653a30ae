#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "tests/headless/HeadlessTestKit.h"

using namespace headless_test;

namespace {

class GridTest : public ::testing::Test {
  protected:
    static WindowDecl window() {
        WindowDecl d;
        d.name = QStringLiteral("frmEigenschaften");
        ControlDecl beleg = decl("grdBeleg", ControlKind::Grid);
        beleg.editable = true;
        d.controls << beleg << decl("grdZeitplan", ControlKind::Grid)
                   << decl("txtTextBox", ControlKind::TextBox, 0);
        return d;
    }
    Recorded w{window()};
    IGrid& beleg = w.get<IGrid>("grdBeleg");
    IGrid& zeitplan = w.get<IGrid>("grdZeitplan");

    // As mInitGRD_Belegarten sets it up, with three document types.
    void fillBeleg() {
        beleg.setFormatString(QStringLiteral("<Belegart|<Auswählen"));
        beleg.setRows(1);
        beleg.setCols(2);
        beleg.setColWidth(0, 3600);
        beleg.setColWidth(1, 750);
        beleg.setColBoolean(1, true);
        const char* names[] = {"Rechnung", "Gutschrift", "Kasse"};
        for (int i = 0; i < 3; ++i) {
            beleg.AddItem(QString());
            const int row = beleg.Rows() - 1;
            beleg.setTextMatrix(row, 0, QString::fromUtf8(names[i]));
            beleg.setRowData(row, 10 + i);
        }
    }
};

TEST_F(GridTest, FormatStringSetsTheHeadingWithoutAlignmentMarks) {
    beleg.setFormatString(QStringLiteral("<Belegart|^Auswählen|>Betrag"));
    EXPECT_EQ(beleg.Cols(), 3);
    EXPECT_EQ(beleg.TextMatrix(0, 0), "Belegart");
    EXPECT_EQ(beleg.TextMatrix(0, 1), "Auswählen");
    EXPECT_EQ(beleg.TextMatrix(0, 2), "Betrag");
    EXPECT_EQ(dynamic_cast<HeadlessGrid&>(beleg).ColFormatAlignment(1), QLatin1Char('^'));
}

TEST_F(GridTest, AddItemAppendsRowsAndTheCurrentCellMovesToTheFirstDataRow) {
    zeitplan.setCols(4);
    zeitplan.setRows(1);
    zeitplan.setFixedCols(0);
    zeitplan.setFixedRows(1);
    EXPECT_EQ(zeitplan.Row(), -1) << "no data row, no current row";
    zeitplan.AddItem(QStringLiteral("Nachts\tJa\t\t7\tzu viel"));
    zeitplan.AddItem(QStringLiteral("Mittags"));
    EXPECT_EQ(zeitplan.Rows(), 3);
    EXPECT_EQ(zeitplan.TextMatrix(1, 0), "Nachts");
    EXPECT_EQ(zeitplan.TextMatrix(1, 3), "7");
    EXPECT_EQ(zeitplan.TextMatrix(2, 1), "");
    EXPECT_EQ(zeitplan.Row(), 1);
    zeitplan.setRow(2);
    zeitplan.RemoveItem(2);
    EXPECT_EQ(zeitplan.Rows(), 2);
    EXPECT_EQ(zeitplan.Row(), 1);
    zeitplan.setRows(1);
    EXPECT_EQ(zeitplan.Row(), -1);
    EXPECT_TRUE(w.take().isEmpty()) << "changes by code raise nothing";
}

TEST_F(GridTest, ClearEmptiesEveryCellButKeepsTheSize) {
    fillBeleg();
    beleg.setCellChecked(1, 1, true);
    beleg.setCellData(2, 0, 5);
    beleg.Clear();
    EXPECT_EQ(beleg.Rows(), 4);
    EXPECT_EQ(beleg.Cols(), 2);
    EXPECT_EQ(beleg.TextMatrix(0, 0), "");
    EXPECT_EQ(beleg.TextMatrix(1, 0), "");
    EXPECT_FALSE(beleg.RowData(1).isValid());
    EXPECT_FALSE(beleg.CellData(2, 0).isValid());
    EXPECT_FALSE(beleg.CellChecked(1, 1));
    EXPECT_EQ(beleg.ColWidth(0), 3600) << "column settings stay";
}

TEST_F(GridTest, IndexesOutsideTheGridRaise381) {
    fillBeleg();
    try {
        beleg.TextMatrix(4, 0);
        FAIL() << "no error";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, 381);
    }
    EXPECT_THROW(beleg.setTextMatrix(1, 2, QString()), RaisedError);
    EXPECT_THROW(beleg.RowData(-1), RaisedError);
    EXPECT_THROW(beleg.ColHidden(2), RaisedError);
    EXPECT_THROW(beleg.setRow(4), RaisedError);
    EXPECT_THROW(beleg.setRows(-1), RaisedError);
}

TEST_F(GridTest, ToggleFlipsABooleanCellOfAnEditableGridThenAfterEdit) {
    fillBeleg();
    w.control("grdBeleg").userGridToggle(2, 1);
    EXPECT_TRUE(beleg.CellChecked(2, 1));
    EXPECT_EQ(beleg.Row(), 2);
    EXPECT_EQ(beleg.Col(), 1);
    EXPECT_EQ(w.take(), (QStringList{"GotFocus grdBeleg", "LeaveCell grdBeleg 1,0",
                                     "AfterEdit grdBeleg 2,1"}));
    w.control("grdBeleg").userGridToggle(2, 1);
    EXPECT_FALSE(beleg.CellChecked(2, 1));
    EXPECT_EQ(w.take(), QStringList{"AfterEdit grdBeleg 2,1"});

    EXPECT_THROW(w.control("grdBeleg").userGridToggle(2, 0), RaisedError) << "no boolean column";
    EXPECT_THROW(w.control("grdBeleg").userGridToggle(0, 1), RaisedError) << "heading";
    beleg.setEditable(false);
    EXPECT_THROW(w.control("grdBeleg").userGridToggle(2, 1), RaisedError) << "not editable";
    EXPECT_FALSE(beleg.CellChecked(2, 1));
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(GridTest, GridsAreNotEditableUnlessDeclaredSo) {
    EXPECT_TRUE(beleg.Editable());
    EXPECT_FALSE(zeitplan.Editable());
    zeitplan.setCols(2);
    zeitplan.setColBoolean(1, true);
    zeitplan.AddItem(QString());
    EXPECT_THROW(w.control("grdZeitplan").userGridToggle(1, 1), RaisedError);
}

TEST_F(GridTest, ClickGivesTheFocusOnceMovesTheCellThenClickOrDblClick) {
    zeitplan.setCols(4);
    zeitplan.AddItem(QStringLiteral("a"));
    zeitplan.AddItem(QStringLiteral("b"));
    w.get<ITextBox>("txtTextBox", 0).SetFocus();
    w.take();

    w.control("grdZeitplan").userGridClick(2, 1, false);
    // A move of the current cell is told first, with the cell it leaves.
    EXPECT_EQ(w.take(), (QStringList{"LostFocus txtTextBox(0)", "GotFocus grdZeitplan",
                                     "LeaveCell grdZeitplan 1,0", "Click grdZeitplan 2,1"}));
    EXPECT_EQ(zeitplan.Row(), 2);
    EXPECT_EQ(zeitplan.Col(), 1);
    EXPECT_TRUE(zeitplan.Focused());

    w.control("grdZeitplan").userGridClick(1, 0, true);
    EXPECT_EQ(w.take(), (QStringList{"LeaveCell grdZeitplan 2,1", "DblClick grdZeitplan 1,0"}));
    EXPECT_EQ(zeitplan.Row(), 1);

    // A click on the heading leaves the current row.
    w.control("grdZeitplan").userGridClick(0, 2, false);
    EXPECT_EQ(zeitplan.Row(), 1);
    EXPECT_EQ(zeitplan.Col(), 2);
    EXPECT_EQ(w.take(), (QStringList{"LeaveCell grdZeitplan 1,0", "Click grdZeitplan 0,2"}));

    EXPECT_THROW(w.control("grdZeitplan").userGridClick(3, 0, false), RaisedError);
    w.control("grdZeitplan").userKey(KeyCode::Delete, 0);
    EXPECT_EQ(w.take(), QStringList{"KeyDown grdZeitplan 46/0"});
}

TEST_F(GridTest, CellFormatsAndColumns) {
    fillBeleg();
    EXPECT_EQ(beleg.CellForeColor(1, 0), -1);
    beleg.setCellForeColor(1, 0, 0xFF0000);
    beleg.setCellUnderline(1, 0, true);
    beleg.setColHidden(1, true);
    EXPECT_EQ(beleg.CellForeColor(1, 0), 0xFF0000);
    EXPECT_TRUE(beleg.CellUnderline(1, 0));
    EXPECT_FALSE(beleg.CellUnderline(2, 0));
    EXPECT_TRUE(beleg.ColHidden(1));
    EXPECT_EQ(beleg.RowData(3).toInt(), 12);
    beleg.setCols(3);
    EXPECT_EQ(beleg.TextMatrix(3, 0), "Kasse") << "more columns keep the cells";
    EXPECT_EQ(beleg.TextMatrix(3, 2), "");
}

}  // namespace
