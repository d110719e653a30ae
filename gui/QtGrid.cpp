#include "gui/QtGrid.h"

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <memory>

namespace {

// A cell with a fore colour of its own keeps it when it is the current cell: its text stands
// in that colour on a lighter highlight, so that a link stays blue while it is marked.
class ForeColorDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QVariant fore = index.data(Qt::ForegroundRole);
        if (!(option->state & QStyle::State_Selected) || !fore.canConvert<QBrush>() ||
            fore.value<QBrush>().style() == Qt::NoBrush) {
            return;
        }
        const QColor highlight = option->palette.color(QPalette::Highlight);
        option->palette.setColor(QPalette::Highlight, highlight.lighter(185));
        option->palette.setColor(QPalette::HighlightedText, fore.value<QBrush>().color());
    }
};

}  // namespace

QtGrid::QtGrid(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    table_ = new QTableWidget(parent);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setSelectionBehavior(QAbstractItemView::SelectItems);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(table_->verticalHeader()->minimumSectionSize() +
                                                    4);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setAlternatingRowColors(true);
    table_->setItemDelegate(new ForeColorDelegate(table_));

    QObject::connect(table_, &QTableWidget::cellClicked, guard(),
                     [this](int r, int c) { userCellClicked(r, c, false); });
    QObject::connect(table_, &QTableWidget::cellDoubleClicked, guard(),
                     [this](int r, int c) { userCellClicked(r, c, true); });
    QObject::connect(table_->horizontalHeader(), &QHeaderView::sectionClicked, guard(),
                     [this](int c) {
                         if (!updating() && headingRows() == 1) {
                             WidgetCall::run([&] { HeadlessGrid::userGridClick(0, c, false); });
                         }
                     });
    QObject::connect(table_->horizontalHeader(), &QHeaderView::sectionDoubleClicked, guard(),
                     [this](int c) {
                         if (!updating() && headingRows() == 1) {
                             WidgetCall::run([&] { HeadlessGrid::userGridClick(0, c, true); });
                         }
                     });
    QObject::connect(table_, &QTableWidget::itemChanged, guard(), [this](QTableWidgetItem* item) {
        if (updating()) {
            return;
        }
        const int row = item->row() + headingRows();
        const int col = item->column();
        if (row < FixedRows() || col < FixedCols() || row >= Rows() || col >= Cols() ||
            !ColBoolean(col)) {
            return;
        }
        if ((item->checkState() == Qt::Checked) != CellChecked(row, col)) {
            WidgetCall::run([&] { HeadlessGrid::userGridToggle(row, col); });
        }
    });
    // The user's keys and clicks move the current cell; the grid's Row and Col follow, after
    // LeaveCell for the cell left.
    QObject::connect(table_, &QTableWidget::currentCellChanged, guard(), [this](int r, int c) {
        const int row = r + headingRows();
        if (updating() || r < 0 || c < 0 || row < FixedRows() || c < FixedCols() || row >= Rows() ||
            c >= Cols() || (row == Row() && c == Col())) {
            return;
        }
        setUpdating(true);
        WidgetCall::run([&] { userMoveCell(row, c); });
        setUpdating(false);
    });
    attach(table_, table_);
}

void QtGrid::userCellClicked(int tableRow, int col, bool doubleClick) {
    if (updating()) {
        return;
    }
    WidgetCall::run(
        [&] { HeadlessGrid::userGridClick(tableRow + headingRows(), col, doubleClick); });
}

void QtGrid::updateCell(int row, int col) {
    const HeadlessGridCell& c = cell(row, col);
    const int heading = headingRows();
    if (row < heading) {
        QTableWidgetItem* item = table_->horizontalHeaderItem(col);
        if (!item) {
            item = new QTableWidgetItem;
            table_->setHorizontalHeaderItem(col, item);
        }
        if (item->text() != c.text) {
            item->setText(c.text);
        }
        // A heading follows the alignment mark of its format string part; without one it
        // stays as the header draws it.
        const QChar mark = ColFormatAlignment(col);
        if (!mark.isNull()) {
            const Qt::Alignment horizontal = mark == QLatin1Char('>')   ? Qt::AlignRight
                                             : mark == QLatin1Char('^') ? Qt::AlignHCenter
                                                                        : Qt::AlignLeft;
            item->setTextAlignment(horizontal | Qt::AlignVCenter);
        }
        return;
    }
    const int tableRow = row - heading;
    QTableWidgetItem* item = table_->item(tableRow, col);
    // A new item is made whole before the table takes it: one change for the table, not one
    // for each of its properties.
    std::unique_ptr<QTableWidgetItem> made;
    if (!item) {
        made = std::make_unique<QTableWidgetItem>();
        item = made.get();
    }
    const bool fixed = row < FixedRows() || col < FixedCols();
    const bool box = !fixed && ColBoolean(col);
    Qt::ItemFlags flags = Qt::ItemIsEnabled;
    if (!fixed) {
        flags |= Qt::ItemIsSelectable;
    }
    if (box && Editable()) {
        flags |= Qt::ItemIsUserCheckable;
    }
    if (item->flags() != flags) {
        item->setFlags(flags);
    }
    if (item->text() != c.text) {
        item->setText(c.text);
    }
    if (box) {
        item->setCheckState(c.checked ? Qt::Checked : Qt::Unchecked);
    } else if (item->data(Qt::CheckStateRole).isValid()) {
        item->setData(Qt::CheckStateRole, QVariant());
    }
    QFont font = table_->font();
    font.setUnderline(c.underline);
    font.setBold(fixed);
    item->setFont(font);
    const QColor color = classicColor(c.foreColor);
    item->setForeground(color.isValid() ? QBrush(color) : QBrush());
    item->setBackground(fixed ? table_->palette().button() : QBrush());
    const QChar align = ColFormatAlignment(col);
    const Qt::Alignment horizontal = align == QLatin1Char('>')   ? Qt::AlignRight
                                     : align == QLatin1Char('^') ? Qt::AlignHCenter
                                                                 : Qt::AlignLeft;
    item->setTextAlignment(horizontal | Qt::AlignVCenter);
    if (made) {
        table_->setItem(tableRow, col, made.release());
    }
}

void QtGrid::refresh() {
    const QSignalBlocker blockHeader(table_->horizontalHeader());
    const int heading = headingRows();
    table_->horizontalHeader()->setVisible(heading == 1);
    if (table_->columnCount() != Cols()) {
        table_->setColumnCount(Cols());
    }
    if (table_->rowCount() != Rows() - heading) {
        table_->setRowCount(Rows() - heading);
    }
    for (int c = 0; c < Cols(); ++c) {
        table_->setColumnHidden(c, ColHidden(c));
        if (ColWidth(c) >= 0 && table_->columnWidth(c) != twipsToPixels(ColWidth(c))) {
            table_->setColumnWidth(c, twipsToPixels(ColWidth(c)));
        }
    }
    for (int r = 0; r < Rows(); ++r) {
        for (int c = 0; c < Cols(); ++c) {
            updateCell(r, c);
        }
    }
    if (Row() >= heading && Col() >= 0) {
        table_->setCurrentCell(Row() - heading, Col(), QItemSelectionModel::ClearAndSelect);
    } else {
        table_->setCurrentCell(-1, -1);
    }
}

void QtGrid::showCurrentCell() {
    const int heading = headingRows();
    const bool current = Row() >= heading && Col() >= 0;
    const int tableRow = current ? Row() - heading : -1;
    const int col = current ? Col() : -1;
    if (table_->currentRow() != tableRow || table_->currentColumn() != col) {
        table_->setCurrentCell(tableRow, col, QItemSelectionModel::ClearAndSelect);
    }
}

void QtGrid::rowsAppended(int first) {
    const int heading = headingRows();
    if (!table_ || first < heading || table_->rowCount() != first - heading ||
        table_->columnCount() != Cols()) {
        HeadlessGrid::rowsAppended(first);
        return;
    }
    const QSignalBlocker block(table_);
    const bool wasUpdating = updating();
    setUpdating(true);
    table_->setRowCount(Rows() - heading);
    for (int r = first; r < Rows(); ++r) {
        for (int c = 0; c < Cols(); ++c) {
            updateCell(r, c);
        }
    }
    showCurrentCell();
    setUpdating(wasUpdating);
}

void QtGrid::cellChanged(int row, int col) {
    if (!table_ || row >= Rows() || col >= Cols() || table_->rowCount() != Rows() - headingRows()) {
        HeadlessGrid::cellChanged(row, col);
        return;
    }
    const QSignalBlocker block(table_);
    setUpdating(true);
    updateCell(row, col);
    setUpdating(false);
}

void QtGrid::userGridClick(int row, int col, bool doubleClick) {
    if (row < 0 || row >= Rows() || col < 0 || col >= Cols()) {
        HeadlessGrid::userGridClick(row, col, doubleClick);  // refuses
        return;
    }
    throughWidget([&] {
        QHeaderView* header = table_->horizontalHeader();
        const int tableRow = row - headingRows();
        if (tableRow < 0) {
            doubleClick ? Q_EMIT header->sectionDoubleClicked(col)
                        : Q_EMIT header->sectionClicked(col);
        } else if (doubleClick) {
            Q_EMIT table_->cellDoubleClicked(tableRow, col);
        } else {
            Q_EMIT table_->cellClicked(tableRow, col);
        }
    });
}

void QtGrid::userGridToggle(int row, int col) {
    const bool dataCell = row >= FixedRows() && row < Rows() && col >= FixedCols() && col < Cols();
    if (!dataCell || !ColBoolean(col) || !Editable()) {
        HeadlessGrid::userGridToggle(row, col);  // refuses
        return;
    }
    QTableWidgetItem* item = table_->item(row - headingRows(), col);
    if (!item) {
        HeadlessGrid::userGridToggle(row, col);
        return;
    }
    throughWidget([item] {
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    });
}
