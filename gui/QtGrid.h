#pragma once

#include <QPointer>
#include <QTableWidget>

#include "gui/QtControl.h"
#include "headless/HeadlessGrid.h"

// The grid as a table widget. With one fixed row that row is the table's heading; otherwise
// fixed rows and columns stand in the table, drawn as headings. Boolean columns show check
// boxes that the user toggles when the grid is editable (AfterEdit); widths are in twips.
class QtGrid : public QtControl<HeadlessGrid> {
  public:
    QtGrid(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userGridClick(int row, int col, bool doubleClick) override;
    void userGridToggle(int row, int col) override;

    // The grid's row shown in a row of the table, and back.
    int headingRows() const { return FixedRows() == 1 ? 1 : 0; }
    QTableWidget* table() const { return table_; }

  protected:
    void refresh() override;
    void cellChanged(int row, int col) override;
    // Added rows touch those rows only, so that a fill takes time in step with its rows.
    void rowsAppended(int first) override;
    // Row data is not shown.
    void rowDataChanged(int /*row*/) override {}

  private:
    void updateCell(int row, int col);
    void showCurrentCell();
    void userCellClicked(int tableRow, int col, bool doubleClick);

    QPointer<QTableWidget> table_;
};

// Twips as pixels, 15 twips a pixel.
inline int twipsToPixels(int twips) {
    return twips / 15;
}
