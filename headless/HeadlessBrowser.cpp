#include "headless/HeadlessBrowser.h"

#include <QDateTime>
#include <algorithm>
#include <numeric>

#include "common/ErrObject.h"
#include "common/Services.h"
#include "common/Variants.h"

namespace {

bool isNumberType(const QVariant& v) {
    return isNumberVariant(v, true);
}

// Both as numbers when one of them is a number and the other reads as one.
bool asNumbers(const QVariant& a, const QVariant& b, double& x, double& y) {
    if (!isNumberType(a) && !isNumberType(b)) {
        return false;
    }
    bool okA = false;
    bool okB = false;
    x = a.toDouble(&okA);
    y = b.toDouble(&okB);
    return okA && okB && !a.isNull() && !b.isNull();
}

bool sameValue(const QVariant& cell, const QVariant& wanted) {
    double x = 0;
    double y = 0;
    if (asNumbers(cell, wanted, x, y)) {
        return x == y;
    }
    return HeadlessBrowser::valueText(cell) == HeadlessBrowser::valueText(wanted);
}

}  // namespace

HeadlessBrowser::HeadlessBrowser(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window),
      tools_(QStringLiteral("Tools")),
      menu_(QStringLiteral("Menu")) {
    tools_.onChanged = [this] { toolsChanged(); };
    menu_.onChanged = [this] { toolsChanged(); };
}

void HeadlessBrowser::dataChanged() {
    stateChanged();
}

void HeadlessBrowser::selectionStateChanged() {
    stateChanged();
}

void HeadlessBrowser::toolsChanged() {
    stateChanged();
}

// --- properties ---

void HeadlessBrowser::setTitel(const QString& text) {
    titel_ = text;
    stateChanged();
}

void HeadlessBrowser::setSchluessel(const QString& key) {
    schluessel_ = key;
    stateChanged();
}

void HeadlessBrowser::setAbfrage(const QString& sql) {
    abfrage_ = sql;
    stateChanged();
}

void HeadlessBrowser::setMitarbeiterId(long id) {
    mitarbeiterId_ = id;
    stateChanged();
}

void HeadlessBrowser::setMitarbeiterName(const QString& name) {
    mitarbeiterName_ = name;
    stateChanged();
}

void HeadlessBrowser::setModus(long mode) {
    modus_ = mode;
    stateChanged();
}

// --- loading ---

void HeadlessBrowser::Load() {
    const auto& factory = services().newRecordset;
    std::unique_ptr<CRecordset> rs = factory ? factory() : nullptr;
    if (!rs) {
        throw RaisedError(ErrNumber::CannotCreate,
                          QStringLiteral("Das Objekt hdata.CRecordset kann nicht erstellt werden."),
                          QStringLiteral("ctlBrowser"));
    }
    rs->Connect();
    const long count = rs->OpenQuery(abfrage_, 0);
    const QStringList names = rs->FieldNames();
    std::vector<std::vector<QVariant>> records;
    if (count > 0) {
        do {
            std::vector<QVariant> values;
            values.reserve(names.size());
            for (const QString& name : names) {
                values.push_back(rs->ReadValue(name));
            }
            records.push_back(std::move(values));
        } while (rs->Move(CRecordset::MoveNext));
    }
    rs->Close();
    rs->Disconnect();

    // The columns of this load, keeping the objects (and flags) of those known before.
    std::vector<std::unique_ptr<BrowserColumn>> columns;
    for (const QString& name : names) {
        std::unique_ptr<BrowserColumn> column;
        for (auto* known : {&columns_, &retired_}) {
            for (auto& old : *known) {
                if (!column && old && old->name.compare(name, Qt::CaseInsensitive) == 0) {
                    column = std::move(old);
                }
            }
        }
        if (!column) {
            column = std::make_unique<BrowserColumn>();
        }
        column->name = name;
        columns.push_back(std::move(column));
    }
    // Columns the query no longer gives are dropped; their objects are kept aside so that a
    // pointer the logic still holds stays valid.
    for (auto& old : columns_) {
        if (old) {
            retired_.push_back(std::move(old));
        }
    }
    std::erase(retired_, nullptr);
    columns_ = std::move(columns);
    records_ = std::move(records);
    selected_.clear();
    row_ = 0;
    ++loadCount_;
    dataChanged();
}

void HeadlessBrowser::Refresh(bool) {
    Load();
}

void HeadlessBrowser::AttachHost(void*&, void*&) {}

void HeadlessBrowser::ToolAktion(const QString& tool) {
    aktionen_ << tool;
}

void HeadlessBrowser::ToolStatus(ITool*) {
    toolsChanged();
}

QStringList HeadlessBrowser::SpaltenNamen() const {
    QStringList names;
    for (const auto& c : columns_) {
        names << c->name;
    }
    return names;
}

int HeadlessBrowser::columnIndex(const QString& name) const {
    for (size_t i = 0; i < columns_.size(); ++i) {
        if (columns_[i]->name.compare(name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

BrowserColumn* HeadlessBrowser::Spalte(const QString& name) {
    const int i = columnIndex(name);
    if (i >= 0) {
        return columns_[i].get();
    }
    // A column asked for before the query gives it: its flags wait for the load that brings
    // it.
    for (auto& waiting : retired_) {
        if (waiting && waiting->name.compare(name, Qt::CaseInsensitive) == 0) {
            return waiting.get();
        }
    }
    auto column = std::make_unique<BrowserColumn>();
    column->name = name;
    retired_.push_back(std::move(column));
    return retired_.back().get();
}

// --- selection ---

void HeadlessBrowser::checkRow(int row, const char* what) const {
    if (row < 1 || row > RecordCount()) {
        badIndex(QStringLiteral("%1(%2) bei %3 Datensätzen")
                     .arg(QLatin1String(what))
                     .arg(row)
                     .arg(RecordCount()));
    }
}

int HeadlessBrowser::SelRow(int i) const {
    if (i < 0 || i >= selected_.size()) {
        badIndex(QStringLiteral("SelRow(%1) bei %2 gewählten Zeilen").arg(i).arg(selected_.size()));
    }
    return selected_[i];
}

void HeadlessBrowser::setRow(int row) {
    if (row < 0 || row > RecordCount()) {
        badValue(QStringLiteral("Row %1 bei %2 Datensätzen").arg(row).arg(RecordCount()));
    }
    row_ = row;
    selected_.clear();
    if (row > 0) {
        selected_ << row;
    }
    selectionStateChanged();
}

void HeadlessBrowser::SetSelected(int row, bool on) {
    checkRow(row, "SetSelected");
    if (on && !selected_.contains(row)) {
        selected_ << row;
    } else if (!on) {
        selected_.removeAll(row);
    }
    selectionStateChanged();
}

QList<QPair<QString, QVariant>> HeadlessBrowser::Item(int row) const {
    checkRow(row, "Item");
    QList<QPair<QString, QVariant>> pairs;
    const auto& values = records_[row - 1];
    for (size_t i = 0; i < columns_.size(); ++i) {
        pairs.append({columns_[i]->name, values[i]});
    }
    return pairs;
}

int HeadlessBrowser::FindRow(const CValues& values) const {
    QList<int> indexes;
    for (const auto& v : values) {
        const int i = columnIndex(v.first);
        if (i < 0) {
            return 0;
        }
        indexes << i;
    }
    for (int r = 0; r < RecordCount(); ++r) {
        bool all = true;
        for (int k = 0; k < values.size() && all; ++k) {
            all = sameValue(records_[r][indexes[k]], values[k].second);
        }
        if (all) {
            return r + 1;
        }
    }
    return 0;
}

// --- cells ---

QString HeadlessBrowser::valueText(const QVariant& value) {
    if (value.isNull() || !value.isValid()) {
        return {};
    }
    switch (value.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float: {
            const double d = value.toDouble();
            if (d == static_cast<double>(static_cast<qint64>(d))) {
                return QString::number(static_cast<qint64>(d));
            }
            return QString::number(d, 'g', 15);
        }
        case QMetaType::Bool:
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        case QMetaType::QDateTime:
            return value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        case QMetaType::QDate:
            return value.toDate().toString(QStringLiteral("yyyy-MM-dd"));
        default:
            return value.toString();
    }
}

QVariant HeadlessBrowser::cellValue(int row, const QString& column) const {
    const int c = columnIndex(column);
    if (c < 0) {
        badIndex(QStringLiteral("keine Spalte \"%1\"").arg(column));
    }
    if (row == 0) {
        return columns_[c]->name;
    }
    checkRow(row, "Cell");
    return records_[row - 1][c];
}

QString HeadlessBrowser::cellText(int row, const QString& column) const {
    return valueText(cellValue(row, column));
}

bool HeadlessBrowser::colHidden(const QString& column) const {
    const int c = columnIndex(column);
    if (c < 0) {
        badIndex(QStringLiteral("keine Spalte \"%1\"").arg(column));
    }
    return columns_[c]->SpalteFlagA;
}

void HeadlessBrowser::sortBy(const QString& column, bool ascending) {
    const int c = columnIndex(column);
    if (c < 0) {
        badIndex(QStringLiteral("keine Spalte \"%1\"").arg(column));
    }
    std::vector<int> order(records_.size());
    std::iota(order.begin(), order.end(), 0);
    auto less = [&](int a, int b) {
        const QVariant& x = records_[a][c];
        const QVariant& y = records_[b][c];
        double dx = 0;
        double dy = 0;
        if (asNumbers(x, y, dx, dy)) {
            return dx < dy;
        }
        if (x.isNull() != y.isNull()) {
            return x.isNull();
        }
        return valueText(x).compare(valueText(y), Qt::CaseInsensitive) < 0;
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return ascending ? less(a, b) : less(b, a); });
    std::vector<std::vector<QVariant>> sorted;
    sorted.reserve(records_.size());
    std::vector<int> newRowOf(records_.size() + 1, 0);
    for (size_t i = 0; i < order.size(); ++i) {
        sorted.push_back(std::move(records_[order[i]]));
        newRowOf[order[i] + 1] = static_cast<int>(i) + 1;
    }
    records_ = std::move(sorted);
    for (int& r : selected_) {
        r = newRowOf[r];
    }
    row_ = newRowOf[row_];
    dataChanged();
}

// --- the user ---

void HeadlessBrowser::userBrowserSelect(const QList<int>& rows) {
    QList<int> selection;
    for (int r : rows) {
        if (r < 1 || r > RecordCount()) {
            refuse(
                QStringLiteral("es gibt keine Zeile %1 (%2 Datensätze)").arg(r).arg(RecordCount()));
        }
        if (!selection.contains(r)) {
            selection << r;
        }
    }
    selected_ = selection;
    row_ = selection.isEmpty() ? 0 : selection.first();
    selectionStateChanged();
    raise(EventType::SelectionChanged);
}

void HeadlessBrowser::userBrowserOpen(int row) {
    if (row < 1 || row > RecordCount()) {
        refuse(
            QStringLiteral("es gibt keine Zeile %1 (%2 Datensätze)").arg(row).arg(RecordCount()));
    }
    if (row_ != row || selected_ != QList<int>{row}) {
        row_ = row;
        selected_ = {row};
        selectionStateChanged();
        if (!raise(EventType::SelectionChanged)) {
            return;
        }
    }
    ControlEvent e = makeEvent(EventType::Open);
    e.row = row;
    raise(e);
}

void HeadlessBrowser::userTool(const QString& band, const QString& tool) {
    HeadlessToolList* list = nullptr;
    if (band.compare(QLatin1String("Tools"), Qt::CaseInsensitive) == 0) {
        list = &tools_;
    } else if (band.compare(QLatin1String("Menu"), Qt::CaseInsensitive) == 0) {
        list = &menu_;
    } else {
        refuse(
            QStringLiteral("ein Browser hat nur \"Tools\" und \"Menu\", nicht \"%1\"").arg(band));
    }
    ITool* t = list->Item(tool);
    if (!t || t->IsSeparator()) {
        refuse(QStringLiteral("%1 hat kein Werkzeug \"%2\"").arg(list->name(), tool));
    }
    if (!t->Enabled()) {
        refuse(QStringLiteral("das Werkzeug \"%1\" in %2 ist deaktiviert").arg(tool, list->name()));
    }
    ControlEvent e = makeEvent(EventType::ToolClick);
    e.tool = t->Name();
    raise(e);
}
