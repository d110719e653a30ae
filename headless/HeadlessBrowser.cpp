#include "headless/HeadlessBrowser.h"

#include <QDateTime>
#include <algorithm>

#include "common/ErrObject.h"
#include "common/ErrorReport.h"
#include "common/Services.h"
#include "common/Variants.h"

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

void HeadlessBrowser::setSuchWoerter(const QStringList& words) {
    suchWoerter_ = words;
    stateChanged();
}

// --- loading ---

void HeadlessBrowser::Load() {
    // The user's sort is a convenience: a list must open even when it can't be read.
    BrowserSettings settings;
    try {
        settings = readBrowserSettings(schluessel_, mitarbeiterId_);
    } catch (const RaisedError&) {
        settings = {};
    }
    BrowserRows rows = rows_;
    rows.open(abfrage_, settings.sortColumn, settings.ascending);
    takeColumns(rows.columns());
    rows_ = std::move(rows);
    settings_ = settings;
    selected_.clear();
    row_ = 0;
    ++loadCount_;
    dataChanged();
}

void HeadlessBrowser::takeColumns(const QStringList& names) {
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
}

void HeadlessBrowser::Refresh(bool) {
    const Marks before = marks();
    BrowserRows rows = rows_;
    rows.open(abfrage_, rows_.sortColumn(), rows_.ascending());
    takeColumns(rows.columns());
    rows_ = std::move(rows);
    ++loadCount_;
    restore(before);
    dataChanged();
}

HeadlessBrowser::Marks HeadlessBrowser::marks() const {
    Marks m;
    if (rows_.columns().isEmpty()) {
        return m;
    }
    // A selection of more rows than a user picks by hand is not carried over.
    if (selected_.size() <= kMarksKept) {
        for (int r : selected_) {
            m.selected << rows_.row(r).front();
        }
    }
    if (row_ > 0) {
        m.current = rows_.row(row_).front();
    }
    return m;
}

void HeadlessBrowser::restore(const Marks& m, int within) {
    selected_.clear();
    row_ = 0;
    if (rows_.columns().isEmpty() || rows_.count() == 0) {
        return;
    }
    auto rowOf = [this, within](const QVariant& key) {
        return key.isNull() ? 0 : std::max(0, rows_.find({{0, key}}, true, within));
    };
    for (const QVariant& key : m.selected) {
        const int r = rowOf(key);
        if (r > 0 && !selected_.contains(r)) {
            selected_ << r;
        }
    }
    if (m.current.isValid()) {
        row_ = rowOf(m.current);
    }
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
    const auto& values = rows_.row(row);
    for (size_t i = 0; i < columns_.size(); ++i) {
        pairs.append({columns_[i]->name, values[i]});
    }
    return pairs;
}

int HeadlessBrowser::FindRow(const CValues& values) const {
    QList<QPair<int, QVariant>> wanted;
    for (const auto& v : values) {
        const int i = columnIndex(v.first);
        if (i < 0) {
            return 0;
        }
        wanted.append({i, v.second});
    }
    // The stored values first, where an index serves; then numbers also as text.
    const int exact = rows_.find(wanted, true);
    return exact > 0 ? exact : rows_.find(wanted, false);
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
    return rows_.row(row)[c];
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
    const Marks before = marks();
    rows_.reorder(columns_[c]->name, ascending);
    // Placing a record in the new order means counting the rows before it; on a list of
    // millions that is done for records near the top only, the others leave the selection.
    restore(before, kSortFollowsWithin);
    settings_.sortColumn = columns_[c]->name;
    settings_.ascending = ascending;
    store();
    dataChanged();
}

void HeadlessBrowser::keepColumns(const QList<BrowserSettings::Column>& columns) {
    if (settings_.columns == columns) {
        return;
    }
    settings_.columns = columns;
    store();
}

void HeadlessBrowser::store() {
    try {
        writeBrowserSettings(schluessel_, mitarbeiterId_, settings_);
    } catch (const RaisedError& e) {
        // Reported the first time only: the list works on without its settings.
        if (!storeFailed_) {
            storeFailed_ = true;
            ErrObject err = e.err();
            Core_gErrorHandling(err);
        }
    }
}

QString HeadlessBrowser::displayText(const QVariant& value) {
    if (value.typeId() == QMetaType::QDateTime) {
        return value.toDateTime().toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
    }
    if (value.typeId() == QMetaType::QDate) {
        return value.toDate().toString(QStringLiteral("dd.MM.yyyy"));
    }
    const QString text = valueText(value);
    // A date as the database keeps it: yyyy-MM-dd, maybe with HH:mm[:ss].
    const auto digits = [&text](int from, int n) {
        for (int i = from; i < from + n; ++i) {
            if (!text.at(i).isDigit()) {
                return false;
            }
        }
        return true;
    };
    const qsizetype n = text.size();
    if ((n == 10 || n == 16 || n == 19) && digits(0, 4) && text.at(4) == u'-' && digits(5, 2) &&
        text.at(7) == u'-' && digits(8, 2)) {
        const QString german = text.mid(8, 2) + u'.' + text.mid(5, 2) + u'.' + text.left(4);
        if (n == 10) {
            return german;
        }
        if (text.at(10) == u' ' && digits(11, 2) && text.at(13) == u':' && digits(14, 2) &&
            (n == 16 || (text.at(16) == u':' && digits(17, 2)))) {
            return german + text.mid(10) + (n == 16 ? QStringLiteral(":00") : QString());
        }
    }
    return text;
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
