#include "headless/HeadlessGrid.h"

#include <QStringList>

#include "headless/HeadlessWindow.h"

HeadlessGrid::HeadlessGrid(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), editable_(decl.editable) {
    columns_.resize(cols_);
    rows_.push_back(newRow());
    normalizeCursor();
}

HeadlessGrid::GridRow HeadlessGrid::newRow() const {
    GridRow r;
    r.cells.resize(cols_);
    return r;
}

void HeadlessGrid::checkRow(int row, const char* what) const {
    if (row < 0 || row >= Rows()) {
        badIndex(QStringLiteral("%1: Zeile %2 bei %3 Zeilen")
                     .arg(QLatin1String(what))
                     .arg(row)
                     .arg(Rows()));
    }
}

void HeadlessGrid::checkCol(int col, const char* what) const {
    if (col < 0 || col >= cols_) {
        badIndex(QStringLiteral("%1: Spalte %2 bei %3 Spalten")
                     .arg(QLatin1String(what))
                     .arg(col)
                     .arg(cols_));
    }
}

HeadlessGridCell& HeadlessGrid::at(int row, int col, const char* what) {
    checkRow(row, what);
    checkCol(col, what);
    return rows_[row].cells[col];
}

const HeadlessGridCell& HeadlessGrid::at(int row, int col, const char* what) const {
    checkRow(row, what);
    checkCol(col, what);
    return rows_[row].cells[col];
}

void HeadlessGrid::normalizeCursor() {
    const int rows = Rows();
    if (row_ >= rows) {
        row_ = rows > fixedRows_ ? rows - 1 : -1;
    }
    if (row_ < 0 && rows > fixedRows_) {
        row_ = fixedRows_;
    }
    if (col_ >= cols_) {
        col_ = cols_ > fixedCols_ ? cols_ - 1 : -1;
    }
    if (col_ < 0 && cols_ > fixedCols_) {
        col_ = fixedCols_;
    }
}

void HeadlessGrid::cellChanged(int, int) {
    stateChanged();
}

void HeadlessGrid::rowsAppended(int) {
    stateChanged();
}

void HeadlessGrid::rowDataChanged(int) {
    stateChanged();
}

// --- size ---

void HeadlessGrid::setRows(int rows) {
    if (rows < 0) {
        badValue(QStringLiteral("Rows %1").arg(rows));
    }
    const int before = Rows();
    rows_.resize(rows, newRow());
    if (fixedRows_ > rows) {
        fixedRows_ = rows;
    }
    normalizeCursor();
    if (rows > before) {
        rowsAppended(before);
    } else {
        stateChanged();
    }
}

void HeadlessGrid::setCols(int cols) {
    if (cols < 0) {
        badValue(QStringLiteral("Cols %1").arg(cols));
    }
    cols_ = cols;
    columns_.resize(cols);
    for (GridRow& r : rows_) {
        r.cells.resize(cols);
    }
    if (fixedCols_ > cols) {
        fixedCols_ = cols;
    }
    normalizeCursor();
    stateChanged();
}

void HeadlessGrid::setFixedRows(int rows) {
    if (rows < 0) {
        badValue(QStringLiteral("FixedRows %1").arg(rows));
    }
    fixedRows_ = rows;
    if (Rows() < rows) {
        rows_.resize(rows, newRow());
    }
    if (row_ >= 0 && row_ < fixedRows_) {
        row_ = -1;
    }
    normalizeCursor();
    stateChanged();
}

void HeadlessGrid::setFixedCols(int cols) {
    if (cols < 0) {
        badValue(QStringLiteral("FixedCols %1").arg(cols));
    }
    if (cols > cols_) {
        setCols(cols);
    }
    fixedCols_ = cols;
    if (col_ >= 0 && col_ < fixedCols_) {
        col_ = -1;
    }
    normalizeCursor();
    stateChanged();
}

// --- content ---

QString HeadlessGrid::TextMatrix(int row, int col) const {
    return at(row, col, "TextMatrix").text;
}

void HeadlessGrid::setTextMatrix(int row, int col, const QString& text) {
    at(row, col, "TextMatrix").text = text;
    cellChanged(row, col);
}

void HeadlessGrid::AddItem(const QString& tabSeparated) {
    GridRow r = newRow();
    const QStringList parts = tabSeparated.split(QLatin1Char('\t'));
    for (int c = 0; c < cols_ && c < parts.size(); ++c) {
        r.cells[c].text = parts[c];
    }
    rows_.push_back(std::move(r));
    normalizeCursor();
    rowsAppended(Rows() - 1);
}

void HeadlessGrid::RemoveItem(int row) {
    checkRow(row, "RemoveItem");
    rows_.erase(rows_.begin() + row);
    if (fixedRows_ > Rows()) {
        fixedRows_ = Rows();
    }
    normalizeCursor();
    stateChanged();
}

void HeadlessGrid::Clear() {
    for (GridRow& r : rows_) {
        r.data = QVariant();
        for (HeadlessGridCell& c : r.cells) {
            c = HeadlessGridCell{};
        }
    }
    stateChanged();
}

void HeadlessGrid::setFormatString(const QString& format) {
    const QStringList parts = format.section(QLatin1Char(';'), 0, 0).split(QLatin1Char('|'));
    setCols(static_cast<int>(parts.size()));
    if (rows_.empty()) {
        rows_.push_back(newRow());
        normalizeCursor();
    }
    for (int c = 0; c < parts.size(); ++c) {
        QString caption = parts[c];
        QChar alignment;
        while (!caption.isEmpty() &&
               (caption[0] == QLatin1Char('<') || caption[0] == QLatin1Char('>') ||
                caption[0] == QLatin1Char('^'))) {
            alignment = caption[0];
            caption.remove(0, 1);
        }
        columns_[c].alignment = alignment;
        rows_[0].cells[c].text = caption;
    }
    stateChanged();
}

QVariant HeadlessGrid::RowData(int row) const {
    checkRow(row, "RowData");
    return rows_[row].data;
}

void HeadlessGrid::setRowData(int row, const QVariant& data) {
    checkRow(row, "RowData");
    rows_[row].data = data;
    rowDataChanged(row);
}

QVariant HeadlessGrid::CellData(int row, int col) const {
    return at(row, col, "CellData").data;
}

void HeadlessGrid::setCellData(int row, int col, const QVariant& data) {
    at(row, col, "CellData").data = data;
    cellChanged(row, col);
}

// --- columns and formats ---

bool HeadlessGrid::ColBoolean(int col) const {
    checkCol(col, "ColBoolean");
    return columns_[col].boolean;
}

void HeadlessGrid::setColBoolean(int col, bool on) {
    checkCol(col, "ColBoolean");
    columns_[col].boolean = on;
    stateChanged();
}

bool HeadlessGrid::CellChecked(int row, int col) const {
    return at(row, col, "CellChecked").checked;
}

void HeadlessGrid::setCellChecked(int row, int col, bool on) {
    at(row, col, "CellChecked").checked = on;
    cellChanged(row, col);
}

bool HeadlessGrid::CellUnderline(int row, int col) const {
    return at(row, col, "CellUnderline").underline;
}

void HeadlessGrid::setCellUnderline(int row, int col, bool on) {
    at(row, col, "CellUnderline").underline = on;
    cellChanged(row, col);
}

long HeadlessGrid::CellForeColor(int row, int col) const {
    return at(row, col, "CellForeColor").foreColor;
}

void HeadlessGrid::setCellForeColor(int row, int col, long color) {
    at(row, col, "CellForeColor").foreColor = color;
    cellChanged(row, col);
}

int HeadlessGrid::ColWidth(int col) const {
    checkCol(col, "ColWidth");
    return columns_[col].width;
}

void HeadlessGrid::setColWidth(int col, int width) {
    checkCol(col, "ColWidth");
    if (width < -1) {
        badValue(QStringLiteral("ColWidth %1").arg(width));
    }
    columns_[col].width = width;
    stateChanged();
}

bool HeadlessGrid::ColHidden(int col) const {
    checkCol(col, "ColHidden");
    return columns_[col].hidden;
}

void HeadlessGrid::setColHidden(int col, bool on) {
    checkCol(col, "ColHidden");
    columns_[col].hidden = on;
    stateChanged();
}

QChar HeadlessGrid::ColFormatAlignment(int col) const {
    checkCol(col, "ColFormatAlignment");
    return columns_[col].alignment;
}

void HeadlessGrid::setEditable(bool on) {
    editable_ = on;
    stateChanged();
}

// --- current cell ---

void HeadlessGrid::setRow(int row) {
    if (row < -1 || row >= Rows()) {
        badValue(QStringLiteral("Row %1 bei %2 Zeilen").arg(row).arg(Rows()));
    }
    row_ = row;
    stateChanged();
}

void HeadlessGrid::setCol(int col) {
    if (col < -1 || col >= cols_) {
        badValue(QStringLiteral("Col %1 bei %2 Spalten").arg(col).arg(cols_));
    }
    col_ = col;
    stateChanged();
}

void HeadlessGrid::Refresh() {
    stateChanged();
}

const HeadlessGridCell& HeadlessGrid::cell(int row, int col) const {
    return at(row, col, "cell");
}

// --- the user ---

bool HeadlessGrid::focusAndMove(int row, int col) {
    if (!Focused() && !window().moveFocus(*this)) {
        return false;
    }
    userMoveCell(row >= fixedRows_ ? row : row_, col >= fixedCols_ ? col : col_);
    return true;
}

void HeadlessGrid::userMoveCell(int row, int col) {
    if (row == row_ && col == col_) {
        return;
    }
    if (row_ >= 0 && col_ >= 0) {
        ControlEvent e = makeEvent(EventType::LeaveCell);
        e.row = row_;
        e.col = col_;
        raise(e);
    }
    if (row >= 0 && row < Rows()) {
        row_ = row;
    }
    if (col >= 0 && col < cols_) {
        col_ = col;
    }
    stateChanged();
}

void HeadlessGrid::userGridClick(int row, int col, bool doubleClick) {
    if (row < 0 || row >= Rows() || col < 0 || col >= cols_) {
        refuse(QStringLiteral("die Zelle (%1, %2) liegt außerhalb von %3 Zeilen und %4 Spalten")
                   .arg(row)
                   .arg(col)
                   .arg(Rows())
                   .arg(cols_));
    }
    if (!focusAndMove(row, col)) {
        return;
    }
    ControlEvent e = makeEvent(doubleClick ? EventType::DblClick : EventType::Click);
    e.row = row;
    e.col = col;
    raise(e);
}

void HeadlessGrid::userGridToggle(int row, int col) {
    if (row < fixedRows_ || row >= Rows() || col < fixedCols_ || col >= cols_) {
        refuse(QStringLiteral("die Zelle (%1, %2) ist keine Datenzelle").arg(row).arg(col));
    }
    if (!columns_[col].boolean) {
        refuse(QStringLiteral("die Spalte %1 hat keine Kontrollkästchen").arg(col));
    }
    if (!editable_) {
        refuse(QStringLiteral("das Gitter ist nicht bearbeitbar (Editable)"));
    }
    if (!focusAndMove(row, col)) {
        return;
    }
    HeadlessGridCell& c = rows_[row].cells[col];
    c.checked = !c.checked;
    cellChanged(row, col);
    ControlEvent e = makeEvent(EventType::AfterEdit);
    e.row = row;
    e.col = col;
    raise(e);
}
