#include "browser/BrowserRows.h"

#include <algorithm>
#include <memory>

#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "common/Services.h"

namespace {

// From this offset on a page is found by its key first: counting keys along an index is far
// cheaper than reading whole rows that are thrown away.
constexpr int kKeysFrom = 1000;

struct Result {
    QStringList names;
    std::vector<BrowserRows::Values> rows;
};

Result run(const QString& sql) {
    const auto& factory = services().newRecordset;
    std::unique_ptr<CRecordset> rs = factory ? factory() : nullptr;
    if (!rs) {
        throw RaisedError(ErrNumber::CannotCreate,
                          QStringLiteral("Das Objekt hdata.CRecordset kann nicht erstellt werden."),
                          QStringLiteral("ctlBrowser"));
    }
    rs->Connect();
    Result result;
    const long n = rs->OpenQuery(sql, 0);
    result.names = rs->FieldNames();
    result.rows.reserve(std::max(0L, n));
    if (n > 0) {
        do {
            const QVariantList values = rs->ReadValues();
            result.rows.emplace_back(values.begin(), values.end());
        } while (rs->Move(CRecordset::MoveNext));
    }
    rs->Close();
    rs->Disconnect();
    return result;
}

bool sameKey(const BrowserRows::Values& a, const BrowserRows::Values& b) {
    for (size_t i = 0; i < a.size() && i < b.size(); ++i) {
        if (a[i].isNull() != b[i].isNull() || a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

void BrowserRows::open(const QString& query, const QString& sortColumn, bool ascending) {
    // The columns first (no row is read), as the order names the key column.
    const Result named = run(BrowserSql::columnsOnly(query));
    const Result counted = run(BrowserSql::count(query));
    const int count = counted.rows.empty() ? 0 : counted.rows.front().front().toInt();
    BrowserRows next;
    next.query_ = query;
    next.columns_ = named.names;
    next.count_ = count;
    next.sortColumn_ = next.column(sortColumn) >= 0 ? sortColumn : QString();
    next.ascending_ = next.sortColumn_.isEmpty() ? true : ascending;
    *this = std::move(next);
    if (count_ > 0) {
        row(1);
    }
}

void BrowserRows::reorder(const QString& sortColumn, bool ascending) {
    sortColumn_ = column(sortColumn) >= 0 ? sortColumn : QString();
    ascending_ = ascending;
    forget();
}

void BrowserRows::forget() {
    pages_.clear();
}

int BrowserRows::column(const QString& name) const {
    if (name.isEmpty()) {
        return -1;
    }
    for (int i = 0; i < columns_.size(); ++i) {
        if (columns_[i].compare(name, Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    return -1;
}

BrowserSql::Order BrowserRows::order() const {
    BrowserSql::Order o;
    o.ascending = ascending_;
    if (column(sortColumn_) > 0) {
        o.columns << columns_.at(column(sortColumn_));
    }
    if (!columns_.isEmpty()) {
        o.columns << columns_.first();
    }
    return o;
}

const BrowserRows::Values& BrowserRows::row(int r) const {
    if (r < 1 || r > count_) {
        throw RaisedError(ErrNumber::Internal,
                          QStringLiteral("Zeile %1 bei %2 Datensätzen").arg(r).arg(count_),
                          QStringLiteral("ctlBrowser"));
    }
    for (auto it = pages_.begin(); it != pages_.end(); ++it) {
        if (r >= it->first && r < it->first + static_cast<int>(it->rows.size())) {
            pages_.splice(pages_.begin(), pages_, it);
            return pages_.front().rows[r - pages_.front().first];
        }
    }
    const int first = (r - 1) / kPageSize * kPageSize + 1;
    Page page;
    page.first = first;
    page.rows = readBeside(first, std::min(kPageSize, count_ - first + 1));
    if (r - first >= static_cast<int>(page.rows.size())) {
        // The table lost rows since the count: the row is no longer there.
        throw RaisedError(ErrNumber::Internal,
                          QStringLiteral("Zeile %1 ist nicht mehr vorhanden").arg(r),
                          QStringLiteral("ctlBrowser"));
    }
    pages_.push_front(std::move(page));
    while (static_cast<int>(pages_.size()) > kPagesKept) {
        pages_.pop_back();
    }
    return pages_.front().rows[r - first];
}

const BrowserRows::Values* BrowserRows::kept(int r) const {
    for (const Page& page : pages_) {
        if (r >= page.first && r < page.first + static_cast<int>(page.rows.size())) {
            return &page.rows[r - page.first];
        }
    }
    return nullptr;
}

std::vector<BrowserRows::Values> BrowserRows::readBeside(int first, int n) const {
    // Scrolling reads the page next to one already read: it goes on from that page's edge
    // row, which needs no OFFSET even where no index serves the order.
    const BrowserSql::Order o = order();
    const auto goOn = [&](const Values& edge, const BrowserSql::Order& direction) {
        QList<QVariant> key;
        for (const QString& c : direction.columns) {
            key << edge.at(column(c));
        }
        if (key.last().isNull()) {
            return std::vector<Values>{};
        }
        std::vector<Values> rows = rowsFrom(direction, key, n + 1);
        if (rows.empty() || rows.front() != edge) {
            return std::vector<Values>{};  // the edge row changed meanwhile
        }
        rows.erase(rows.begin());
        return rows;
    };
    if (const Values* before = kept(first - 1)) {
        std::vector<Values> rows = goOn(*before, o);
        if (static_cast<int>(rows.size()) == n) {
            return rows;
        }
    } else if (const Values* after = kept(first + n)) {
        std::vector<Values> rows = goOn(*after, o.reversed());
        if (static_cast<int>(rows.size()) == n) {
            std::reverse(rows.begin(), rows.end());
            return rows;
        }
    }
    return read(first, n);
}

std::vector<BrowserRows::Values> BrowserRows::read(int first, int n) const {
    const int offset = first - 1;
    const BrowserSql::Order o = order();
    if (offset + n / 2 <= count_ / 2) {
        return readForward(o, offset, n);
    }
    // Nearer the end: read backwards from it.
    const int back = std::max(0, count_ - (offset + n));
    std::vector<Values> rows = readForward(o.reversed(), back, n);
    std::reverse(rows.begin(), rows.end());
    return rows;
}

std::vector<BrowserRows::Values> BrowserRows::readForward(const BrowserSql::Order& o, int offset,
                                                          int n) const {
    if (offset >= kKeysFrom) {
        // The keys of the row before and of the first row: when they differ, the first row is
        // the first with its key and the rows can be read from that key on.
        const Result keys = run(BrowserSql::keys(query_, o, 2, offset - 1));
        if (keys.rows.size() == 2 && !keys.rows[1].back().isNull() &&
            !sameKey(keys.rows[0], keys.rows[1])) {
            const QList<QVariant> key(keys.rows[1].begin(), keys.rows[1].end());
            return rowsFrom(o, key, n);
        }
    }
    return run(BrowserSql::rows(query_, o, n, offset)).rows;
}

std::vector<BrowserRows::Values> BrowserRows::rowsFrom(const BrowserSql::Order& o,
                                                       const QList<QVariant>& key, int n) const {
    std::vector<Values> rows;
    for (const QString& part : BrowserSql::relation(o, key, false)) {
        const int missing = n - static_cast<int>(rows.size());
        if (missing <= 0) {
            break;
        }
        for (Values& v : run(BrowserSql::rowsWhere(query_, o, part, missing)).rows) {
            rows.push_back(std::move(v));
        }
    }
    return rows;
}

int BrowserRows::countBefore(const BrowserSql::Order& o, const QList<QVariant>& key,
                             int limit) const {
    int before = 0;
    for (const QString& part : BrowserSql::relation(o, key, true)) {
        const int left = limit > 0 ? limit - before : 0;
        const Result counted = run(BrowserSql::countWhere(query_, part, left));
        before += counted.rows.empty() ? 0 : counted.rows.front().front().toInt();
        if (limit > 0 && before >= limit) {
            return -1;
        }
    }
    return before;
}

int BrowserRows::find(const QList<QPair<int, QVariant>>& values, bool exact, int within) const {
    if (columns_.isEmpty() || count_ == 0) {
        return 0;
    }
    QStringList conditions;
    for (const auto& [c, value] : values) {
        conditions << BrowserSql::equals(columns_.at(c), value, exact);
    }
    const BrowserSql::Order o = order();
    const QString where =
        conditions.isEmpty() ? QStringLiteral("1 = 1") : conditions.join(QStringLiteral(" AND "));
    const Result found = run(BrowserSql::firstKeyWhere(query_, o, where));
    if (found.rows.empty()) {
        return 0;
    }
    const QList<QVariant> key(found.rows.front().begin(), found.rows.front().end());
    const int before = countBefore(o, key, within);
    if (before < 0) {
        return -1;
    }
    return before + 1 <= count_ ? before + 1 : 0;
}
