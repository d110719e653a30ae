#pragma once

#include <QChar>
#include <QVariant>
#include <vector>

#include "headless/HeadlessControl.h"

// One cell of the grid.
struct HeadlessGridCell {
    QString text;
    QVariant data;
    bool checked = false;
    bool underline = false;
    long foreColor = -1;
};

// The grid (VSFlexGrid-like). Starts with 1 row, 1 column, 1 fixed row, no fixed column,
// Editable as declared (ControlDecl::editable). Indexes outside the grid raise 381, bad sizes
// 380. The current cell: Row/Col, -1 when the grid has no data cell; when rows or columns are
// added to a grid without a current cell it moves to the first data cell, and it is pulled in
// when rows or columns go. Setting Row or Col by code raises nothing.
//
// For the Qt kit: cellChanged(row, col) follows a change of one cell, rowsAppended(first) rows
// added at the end (AddItem, more Rows) and rowDataChanged(row) a change of a row's data (their defaults call
// stateChanged()); every other change calls stateChanged(). A kit that draws the grid can so
// fill it row by row without touching the rows before.
class HeadlessGrid : public HeadlessControl, public IGrid {
  public:
    HeadlessGrid(const ControlDecl& decl, HeadlessWindow& window);

    int Rows() const override { return static_cast<int>(rows_.size()); }
    void setRows(int rows) override;
    int Cols() const override { return cols_; }
    void setCols(int cols) override;
    int FixedRows() const override { return fixedRows_; }
    // Rows grow to hold the fixed rows.
    void setFixedRows(int rows) override;
    int FixedCols() const override { return fixedCols_; }
    void setFixedCols(int cols) override;

    QString TextMatrix(int row, int col) const override;
    void setTextMatrix(int row, int col, const QString& text) override;
    // Appends a row; the cells from the tab-separated text, parts beyond Cols dropped.
    void AddItem(const QString& tabSeparated) override;
    void RemoveItem(int row) override;
    // Empties text, data, ticks and formats of every cell and the row data; Rows and Cols stay.
    void Clear() override;
    // "<Belegart|<Auswählen": Cols becomes the number of parts, row 0 takes the captions
    // without their leading alignment marks ('<' left, '>' right, '^' centre).
    void setFormatString(const QString& format) override;

    QVariant RowData(int row) const override;
    void setRowData(int row, const QVariant& data) override;
    QVariant CellData(int row, int col) const override;
    void setCellData(int row, int col, const QVariant& data) override;

    bool ColBoolean(int col) const override;
    void setColBoolean(int col, bool on) override;
    bool CellChecked(int row, int col) const override;
    void setCellChecked(int row, int col, bool on) override;
    bool CellUnderline(int row, int col) const override;
    void setCellUnderline(int row, int col, bool on) override;
    long CellForeColor(int row, int col) const override;
    void setCellForeColor(int row, int col, long color) override;

    // -1 is the default width.
    int ColWidth(int col) const override;
    void setColWidth(int col, int width) override;
    bool ColHidden(int col) const override;
    void setColHidden(int col, bool on) override;
    bool Editable() const override { return editable_; }
    void setEditable(bool on) override;

    int Row() const override { return row_; }
    void setRow(int row) override;
    int Col() const override { return col_; }
    void setCol(int col) override;

    void Refresh() override;

    // For the Qt kit and the tests.
    const HeadlessGridCell& cell(int row, int col) const;
    // The alignment mark of the column's format string part ('<', '>', '^'), or a null char.
    QChar ColFormatAlignment(int col) const;

    // The grid gets the focus (GotFocus if it did not have it), the current cell moves there
    // (not into fixed rows or columns; LeaveCell first when it changes), then Click or
    // DblClick with row and col.
    void userGridClick(int row, int col, bool doubleClick) override;
    // Toggles the tick of a data cell of a boolean column of an editable grid, after focus
    // and current cell as a click; then AfterEdit with row and col. Refused otherwise.
    void userGridToggle(int row, int col) override;

  protected:
    virtual void cellChanged(int row, int col);
    virtual void rowsAppended(int first);
    virtual void rowDataChanged(int row);
    // The user moves the current cell: LeaveCell with the cell it leaves, when there is one
    // and it differs, then the move.
    void userMoveCell(int row, int col);

  private:
    struct GridRow {
        QVariant data;
        std::vector<HeadlessGridCell> cells;
    };
    struct GridColumn {
        int width = -1;
        bool hidden = false;
        bool boolean = false;
        QChar alignment;
    };

    HeadlessGridCell& at(int row, int col, const char* what);
    const HeadlessGridCell& at(int row, int col, const char* what) const;
    void checkRow(int row, const char* what) const;
    void checkCol(int col, const char* what) const;
    GridRow newRow() const;
    void normalizeCursor();
    bool focusAndMove(int row, int col);

    std::vector<GridRow> rows_;
    std::vector<GridColumn> columns_;
    int cols_ = 1;
    int fixedRows_ = 1;
    int fixedCols_ = 0;
    bool editable_;
    int row_ = -1;
    int col_ = -1;
};
