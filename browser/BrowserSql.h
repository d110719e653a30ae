#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

// The statements the browser sends around its own query. The query is read as a sub-select,
// so that SQLite folds it into the outer statement and uses the indexes of its tables for the
// order, the range and the count.
namespace BrowserSql {

// The order of the rows: the columns with one direction for all of them. The last column is
// the key of the rows (the first column of the query), which makes the order total.
struct Order {
    QStringList columns;
    bool ascending = true;
    Order reversed() const { return {columns, !ascending}; }
};

// A double-quoted name, inner quotes doubled.
QString name(const QString& column);
// The value as an SQL literal: NULL, a number, or a quoted text.
QString literal(const QVariant& value);
// The query without trailing blanks and semicolons, so that it can stand in parentheses.
QString inner(const QString& query);

QString count(const QString& query);
// No row, only the columns.
QString columnsOnly(const QString& query);
// All columns of `limit` rows from `offset` on.
QString rows(const QString& query, const Order& order, int limit, int offset);
// Only the order's columns of `limit` rows from `offset` on.
QString keys(const QString& query, const Order& order, int limit, int offset);
// The rows from the one with these order values on (`before` false) or the rows before it
// (`before` true), as conditions that together give them, in the order the rows come.
QStringList relation(const Order& order, const QList<QVariant>& key, bool before);
// All columns of `limit` rows meeting the condition, in the order.
QString rowsWhere(const QString& query, const Order& order, const QString& condition, int limit);
// How many rows meet the condition; with a limit above 0 counting stops there.
QString countWhere(const QString& query, const QString& condition, int limit = 0);
// The order values of the first row that meets the condition.
QString firstKeyWhere(const QString& query, const Order& order, const QString& condition);

// The condition that the column equals the value: numbers numerically, everything else as
// text, NULL like an empty text. `exact` compares the stored value only, so that an index
// on the column serves.
QString equals(const QString& column, const QVariant& value, bool exact);

}  // namespace BrowserSql
