#include "gui/QtBrowser.h"

#include "gui/QtSearchMarks.h"

#include <QHeaderView>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "common/ErrorReport.h"
#include "common/Variants.h"
#include "gui/QtToolBar.h"

namespace {

// Room beside the widest value of a column, so that the columns do not touch.
constexpr int kColumnPadding = 24;

}  // namespace

// --- model ---

BrowserModel::BrowserModel(const HeadlessBrowser& browser, QObject* parent)
    : QAbstractTableModel(parent), browser_(&browser) {}

void BrowserModel::failed(const RaisedError& e) const {
    // Painting asks for every cell in sight; the error is shown once per load, after painting.
    if (reported_) {
        return;
    }
    reported_ = true;
    QTimer::singleShot(0, this, [err = e.err()]() mutable { Core_gErrorHandling(err); });
}

void BrowserModel::reload() {
    reported_ = false;
    beginResetModel();
    columns_ = browser_ ? browser_->SpaltenNamen() : QStringList();
    rows_ = browser_ ? browser_->RecordCount() : 0;
    endResetModel();
}

void BrowserModel::detach() {
    browser_ = nullptr;
    reload();
}

int BrowserModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int BrowserModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant BrowserModel::data(const QModelIndex& index, int role) const {
    if (!browser_ || !index.isValid() || index.row() >= rows_ ||
        index.column() >= columns_.size()) {
        return {};
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::TextAlignmentRole) {
        return {};
    }
    QVariant value;
    try {
        value = browser_->cellValue(index.row() + 1, columns_[index.column()]);
    } catch (const RaisedError& e) {
        failed(e);
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return isNumberVariant(value) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                      : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return HeadlessBrowser::displayText(value);
}

QVariant BrowserModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < columns_.size()) {
        return columns_[section];
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

// --- browser ---

QtBrowser::QtBrowser(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    auto* box = new QWidget(parent);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    title_ = new QLabel(box);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    title_->setContentsMargins(6, 4, 6, 4);
    toolBar_ = new QToolBar(box);
    toolBar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    view_ = new QTableView(box);
    model_ = new BrowserModel(*this, view_);
    view_->setModel(model_);
    view_->setItemDelegate(new QtSearchMarks([this] { return SuchWoerter(); }, view_));
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setAlternatingRowColors(true);
    view_->setWordWrap(false);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->verticalHeader()->hide();
    view_->verticalHeader()->setDefaultSectionSize(view_->verticalHeader()->minimumSectionSize() +
                                                   4);
    // Column widths are measured on the first page of rows only, not on a thousand.
    view_->horizontalHeader()->setResizeContentsPrecision(BrowserRows::kPageSize);
    view_->horizontalHeader()->setSectionsClickable(true);
    view_->horizontalHeader()->setHighlightSections(false);
    view_->horizontalHeader()->setStretchLastSection(true);
    menu_ = new QMenu(view_);
    column->addWidget(title_);
    column->addWidget(toolBar_);
    column->addWidget(view_, 1);

    QObject::connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, guard(),
                     [this] {
                         if (!updating()) {
                             userSelectionChanged();
                         }
                     });
    QObject::connect(view_, &QTableView::doubleClicked, guard(), [this](const QModelIndex& i) {
        if (!updating() && i.isValid()) {
            WidgetCall::run([&] { HeadlessBrowser::userBrowserOpen(i.row() + 1); });
        }
    });
    QObject::connect(view_->horizontalHeader(), &QHeaderView::sectionClicked, guard(),
                     [this](int section) { sortByHeading(section); });
    // Widths and order the user gives the columns are kept a moment after the last change.
    keepTimer_ = new QTimer(view_);
    keepTimer_->setSingleShot(true);
    keepTimer_->setInterval(500);
    QObject::connect(keepTimer_, &QTimer::timeout, guard(), [this] { keepColumns(); });
    QObject::connect(view_->horizontalHeader(), &QHeaderView::sectionMoved, guard(), [this] {
        if (!updating()) {
            keepTimer_->start();
        }
    });
    // The last column stretches with the window: that is no choice of the user.
    QObject::connect(view_->horizontalHeader(), &QHeaderView::sectionResized, guard(),
                     [this](int logical) {
                         QHeaderView* header = view_->horizontalHeader();
                         if (!updating() && header->visualIndex(logical) < header->count() - 1) {
                             keepTimer_->start();
                         }
                     });
    QObject::connect(view_, &QTableView::customContextMenuRequested, guard(),
                     [this](const QPoint& pos) {
                         if (!menu_->actions().isEmpty()) {
                             menu_->popup(view_->viewport()->mapToGlobal(pos));
                         }
                     });
    attach(box, view_);
    toolsChanged();
    dataChanged();
}

QtBrowser::~QtBrowser() {
    if (keepTimer_ && keepTimer_->isActive()) {
        keepColumns();
    }
    if (model_) {
        model_->detach();
    }
}

void QtBrowser::refresh() {
    view_->viewport()->update();  // the marks of a search
    title_->setText(Titel());
    title_->setVisible(!Titel().isEmpty());
    toolBar_->setVisible(Tools().Count() > 0);
}

int QtBrowser::firstVisibleColumn() const {
    for (int c = 0; c < model_->columnCount(); ++c) {
        if (!view_->isColumnHidden(c)) {
            return c;
        }
    }
    return 0;
}

void QtBrowser::dataChanged() {
    if (!view_ || !model_) {
        return;
    }
    const bool was = updating();
    setUpdating(true);
    const QStringList before = model_->columns();
    model_->reload();
    const QStringList& columns = model_->columns();
    for (int c = 0; c < columns.size(); ++c) {
        view_->setColumnHidden(c, colHidden(columns[c]));
    }
    QHeaderView* header = view_->horizontalHeader();
    const int sorted = sortColumn().isEmpty() ? -1 : columns.indexOf(sortColumn());
    header->setSortIndicatorShown(sorted >= 0);
    if (sorted >= 0) {
        header->setSortIndicator(sorted,
                                 sortAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    if (columns != before) {
        // Only the rows in sight are measured (the header's precision), never the whole list.
        view_->resizeColumnsToContents();
        for (int c = 0; c < columns.size(); ++c) {
            view_->setColumnWidth(c, view_->columnWidth(c) + kColumnPadding);
        }
        applyKeptColumns();
    }
    showSelection();
    setUpdating(was);
}

void QtBrowser::selectionStateChanged() {
    if (!view_ || !model_) {
        return;
    }
    const bool was = updating();
    setUpdating(true);
    showSelection();
    setUpdating(was);
}

void QtBrowser::showSelection() {
    QItemSelectionModel* sm = view_->selectionModel();
    const int rows = model_->rowCount();
    const int last = model_->columnCount() - 1;
    QItemSelection selection;
    if (last >= 0) {
        for (int r : selectedRows()) {
            if (r >= 1 && r <= rows) {
                selection.select(model_->index(r - 1, 0), model_->index(r - 1, last));
            }
        }
    }
    sm->select(selection, QItemSelectionModel::ClearAndSelect);
    if (Row() >= 1 && Row() <= rows && last >= 0) {
        sm->setCurrentIndex(model_->index(Row() - 1, firstVisibleColumn()),
                            QItemSelectionModel::NoUpdate);
        view_->scrollTo(sm->currentIndex());
    } else {
        sm->clearCurrentIndex();
    }
}

void QtBrowser::userSelectionChanged() {
    QItemSelectionModel* sm = view_->selectionModel();
    QList<int> now;
    for (const QModelIndex& i : sm->selectedRows()) {
        now << i.row() + 1;
    }
    std::sort(now.begin(), now.end());
    QList<int> order;
    QList<int> pending = pendingOrder_.value_or(QList<int>{});
    std::sort(pending.begin(), pending.end());
    if (pendingOrder_ && pending == now) {
        order = *pendingOrder_;
    } else {
        // The current row first, then those selected before in their order, then the new ones.
        const int current = sm->currentIndex().isValid() ? sm->currentIndex().row() + 1 : 0;
        if (now.contains(current)) {
            order << current;
        }
        for (int r : selectedRows()) {
            if (now.contains(r) && !order.contains(r)) {
                order << r;
            }
        }
        for (int r : now) {
            if (!order.contains(r)) {
                order << r;
            }
        }
    }
    WidgetCall::run([&] { HeadlessBrowser::userBrowserSelect(order); });
}

void QtBrowser::sortByHeading(int section) {
    if (updating() || section < 0 || section >= model_->columns().size()) {
        return;
    }
    const QString name = model_->columns().at(section);
    const BrowserColumn* column = Spalte(name);
    if (!column || !column->SpalteFlagB) {
        return;
    }
    const bool ascending =
        sortColumn().compare(name, Qt::CaseInsensitive) == 0 ? !sortAscending() : true;
    WidgetCall::run([&] { sortBy(name, ascending); });
}

void QtBrowser::applyKeptColumns() {
    QHeaderView* header = view_->horizontalHeader();
    const QStringList& columns = model_->columns();
    int visual = 0;
    for (const BrowserSettings::Column& kept : settings().columns) {
        const int logical = columns.indexOf(kept.name);
        if (logical < 0) {
            continue;
        }
        header->moveSection(header->visualIndex(logical), visual++);
        if (kept.width > 0) {
            header->resizeSection(logical, kept.width);
        }
    }
}

void QtBrowser::keepColumns() {
    if (!view_ || !model_) {
        return;
    }
    QHeaderView* header = view_->horizontalHeader();
    const QStringList& columns = model_->columns();
    QList<BrowserSettings::Column> kept;
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (logical >= 0 && logical < columns.size()) {
            kept.append({columns[logical], header->sectionSize(logical)});
        }
    }
    HeadlessBrowser::keepColumns(kept);
}

void QtBrowser::rebuildTools(HeadlessToolList& list, QWidget* holder, QList<ToolAction>& actions) {
    const QList<ITool*> tools = list.tools();
    bool same = tools.size() == actions.size();
    for (int i = 0; same && i < tools.size(); ++i) {
        same = actions[i].tool == tools[i] && actions[i].action;
    }
    if (!same) {
        for (const ToolAction& a : actions) {
            if (a.action) {
                holder->removeAction(a.action);
                a.action->deleteLater();
            }
        }
        actions.clear();
        for (ITool* tool : tools) {
            auto* action = new QAction(holder);
            holder->addAction(action);
            actions << ToolAction{tool, action};
            if (tool->IsSeparator()) {
                continue;
            }
            QObject::connect(action, &QAction::triggered, guard(),
                             [this, band = list.name(), name = tool->Name()] {
                                 WidgetCall::run([&] { HeadlessBrowser::userTool(band, name); });
                             });
        }
    }
    for (const ToolAction& a : actions) {
        applyTool(*a.action, *a.tool);
    }
}

void QtBrowser::toolsChanged() {
    if (!toolBar_ || !menu_) {
        return;
    }
    rebuildTools(static_cast<HeadlessToolList&>(Tools()), toolBar_, toolActions_);
    rebuildTools(static_cast<HeadlessToolList&>(Menu()), menu_, menuActions_);
    toolBar_->setVisible(Visible() && Tools().Count() > 0);
}

QAction* QtBrowser::toolAction(const QString& band, const QString& tool) const {
    const QList<ToolAction>* actions = nullptr;
    if (band.compare(QLatin1String("Tools"), Qt::CaseInsensitive) == 0) {
        actions = &toolActions_;
    } else if (band.compare(QLatin1String("Menu"), Qt::CaseInsensitive) == 0) {
        actions = &menuActions_;
    } else {
        return nullptr;
    }
    for (const ToolAction& a : *actions) {
        if (a.tool->Name().compare(tool, Qt::CaseInsensitive) == 0) {
            return a.action;
        }
    }
    return nullptr;
}

void QtBrowser::userBrowserSelect(const QList<int>& rows) {
    QList<int> order;
    for (int r : rows) {
        if (r < 1 || r > model_->rowCount()) {
            HeadlessBrowser::userBrowserSelect(rows);  // refuses
            return;
        }
        if (!order.contains(r)) {
            order << r;
        }
    }
    QItemSelectionModel* sm = view_->selectionModel();
    if (order.isEmpty() || model_->columnCount() == 0) {
        if (sm->hasSelection()) {
            throughWidget([sm] { sm->clearSelection(); });
        } else {
            HeadlessBrowser::userBrowserSelect(order);
        }
        return;
    }
    setUpdating(true);
    sm->clearSelection();
    sm->setCurrentIndex(model_->index(order.first() - 1, firstVisibleColumn()),
                        QItemSelectionModel::NoUpdate);
    setUpdating(false);
    QItemSelection selection;
    for (int r : order) {
        selection.select(model_->index(r - 1, 0), model_->index(r - 1, model_->columnCount() - 1));
    }
    std::weak_ptr<void> life = this->window().lifeToken();
    pendingOrder_ = order;
    struct Done {
        QtBrowser* browser;
        std::weak_ptr<void> life;
        ~Done() {
            if (!life.expired()) {
                browser->pendingOrder_.reset();
            }
        }
    } done{this, life};
    throughWidget([&] { sm->select(selection, QItemSelectionModel::Select); });
}

void QtBrowser::userBrowserOpen(int row) {
    if (row < 1 || row > model_->rowCount() || model_->columnCount() == 0) {
        HeadlessBrowser::userBrowserOpen(row);  // refuses, or opens without columns to show
        return;
    }
    const QModelIndex index = model_->index(row - 1, firstVisibleColumn());
    throughWidget([&] { Q_EMIT view_->doubleClicked(index); });
}

void QtBrowser::userTool(const QString& band, const QString& tool) {
    QAction* action = toolAction(band, tool);
    if (!action || !action->isEnabled() || action->isSeparator()) {
        HeadlessBrowser::userTool(band, tool);  // refuses
        return;
    }
    throughWidget([action] { action->trigger(); });
}

bool QtBrowser::keyPressed(int keyCode, int shift, KeyRoute route) {
    if (keyCode == KeyCode::Return && route == KeyRoute::User) {
        if (Row() >= 1) {
            HeadlessBrowser::userBrowserOpen(Row());
        }
        return true;
    }
    return QtControl::keyPressed(keyCode, shift, route);
}
