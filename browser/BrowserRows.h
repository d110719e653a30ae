#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <list>
#include <vector>

#include "browser/BrowserSql.h"

// The rows of the browser's query as a view: it knows how many there are and the columns, and
// reads the rows asked for a page at a time, keeping only the last few pages. Near the end it
// reads backwards, far from both ends it first finds the key of the wanted row and then reads
// from that key on, so that an index serves rather than a long OFFSET.
//
// The first column of the query is the key of the rows: the rows are ordered by the sort
// column (if any), then by the key. Every failure of the database is thrown as RaisedError.
class BrowserRows {
  public:
    using Values = std::vector<QVariant>;

    static constexpr int kPageSize = 100;
    static constexpr int kPagesKept = 20;

    // Counts and reads the first page; on failure the former state stays.
    void open(const QString& query, const QString& sortColumn, bool ascending);
    // Same query, new order; the count stays.
    void reorder(const QString& sortColumn, bool ascending);
    // Forgets every row read; the next read goes to the database.
    void forget();

    const QStringList& columns() const { return columns_; }
    int count() const { return count_; }
    const QString& sortColumn() const { return sortColumn_; }
    bool ascending() const { return ascending_; }
    int column(const QString& name) const;

    // Row 1 .. count().
    const Values& row(int r) const;
    // The first row (in the order) where every column holds its value, 0 when none. `exact`:
    // see BrowserSql::equals. With `within` above 0 only that many rows are counted to place
    // the row, and -1 tells that it lies further down.
    int find(const QList<QPair<int, QVariant>>& values, bool exact, int within = 0) const;
    // How many pages are kept now (for tests).
    int pagesKept() const { return static_cast<int>(pages_.size()); }

  private:
    struct Page {
        int first = 0;  // row of the first entry, from 1
        std::vector<Values> rows;
    };

    BrowserSql::Order order() const;
    const Values* kept(int r) const;
    std::vector<Values> rowsFrom(const BrowserSql::Order& o, const QList<QVariant>& key,
                                 int n) const;
    int countBefore(const BrowserSql::Order& o, const QList<QVariant>& key, int limit) const;
    std::vector<Values> readBeside(int first, int n) const;
    std::vector<Values> read(int first, int n) const;
    std::vector<Values> readForward(const BrowserSql::Order& order, int offset, int n) const;

    QString query_;
    QString sortColumn_;
    bool ascending_ = true;
    QStringList columns_;
    int count_ = 0;
    mutable std::list<Page> pages_;  // most recently used first
};
