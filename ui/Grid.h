#pragma once

#include <QString>
#include <QVariant>

#include "ui/Controls.h"

// The grid: rows and columns of cell text, fixed heading rows, per-row and per-cell data,
// boolean (check box) columns, underline and fore colour per cell, column widths and hiding,
// a current row and column. Rows count from 0; with one fixed row, data rows start at 1.
class IGrid : public virtual IControl {
  public:
    virtual int Rows() const = 0;
    virtual void setRows(int rows) = 0;
    virtual int Cols() const = 0;
    virtual void setCols(int cols) = 0;
    virtual int FixedRows() const = 0;
    virtual void setFixedRows(int rows) = 0;
    virtual int FixedCols() const = 0;
    virtual void setFixedCols(int cols) = 0;

    virtual QString TextMatrix(int row, int col) const = 0;
    virtual void setTextMatrix(int row, int col, const QString& text) = 0;
    // Appends a row; the text holds the cells separated by tabs.
    virtual void AddItem(const QString& tabSeparated) = 0;
    virtual void RemoveItem(int row) = 0;
    // Empties the text and data of every cell, fixed ones included; Rows and Cols stay.
    virtual void Clear() = 0;
    // Sets the heading from a format string "<Belegart|<Auswählen" (alignment marks dropped).
    virtual void setFormatString(const QString& format) = 0;

    virtual QVariant RowData(int row) const = 0;
    virtual void setRowData(int row, const QVariant& data) = 0;
    virtual QVariant CellData(int row, int col) const = 0;
    virtual void setCellData(int row, int col, const QVariant& data) = 0;

    // A boolean column shows check boxes that the user can toggle.
    virtual bool ColBoolean(int col) const = 0;
    virtual void setColBoolean(int col, bool on) = 0;
    virtual bool CellChecked(int row, int col) const = 0;
    virtual void setCellChecked(int row, int col, bool on) = 0;
    virtual bool CellUnderline(int row, int col) const = 0;
    virtual void setCellUnderline(int row, int col, bool on) = 0;
    virtual long CellForeColor(int row, int col) const = 0;
    virtual void setCellForeColor(int row, int col, long color) = 0;

    virtual int ColWidth(int col) const = 0;
    virtual void setColWidth(int col, int width) = 0;
    virtual bool ColHidden(int col) const = 0;
    virtual void setColHidden(int col, bool on) = 0;
    // Whether the user may edit cells (boolean columns are toggled, others typed).
    virtual bool Editable() const = 0;
    virtual void setEditable(bool on) = 0;

    virtual int Row() const = 0;
    virtual void setRow(int row) = 0;
    virtual int Col() const = 0;
    virtual void setCol(int col) = 0;

    // Redraws; a no-op where drawing follows every change.
    virtual void Refresh() = 0;
};
