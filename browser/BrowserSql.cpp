#include "browser/BrowserSql.h"

#include <QDateTime>

#include "common/Variants.h"

namespace BrowserSql {

namespace {

QString from(const QString& query) {
    return QStringLiteral(" FROM (") + inner(query) + QStringLiteral(") AS ajvZeilen");
}

QString orderBy(const Order& order) {
    QStringList parts;
    for (qsizetype i = 0; i < order.columns.size(); ++i) {
        QString part = name(order.columns[i]) +
                       (order.ascending ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
        // NULLs first in an ascending order, last in a descending one, on every database (the
        // places of rows are counted so, see relation()); SQLite does it by itself, PostgreSQL
        // the other way round. The key behind is never NULL.
        if (i + 1 < order.columns.size()) {
            part +=
                order.ascending ? QStringLiteral(" NULLS FIRST") : QStringLiteral(" NULLS LAST");
        }
        parts << part;
    }
    return QStringLiteral(" ORDER BY ") + parts.join(QStringLiteral(", "));
}

QString window(int limit, int offset) {
    QString s = QStringLiteral(" LIMIT %1").arg(limit);
    if (offset > 0) {
        s += QStringLiteral(" OFFSET %1").arg(offset);
    }
    return s;
}

QString tuple(const QStringList& parts) {
    return parts.size() == 1 ? parts.first() : u'(' + parts.join(QStringLiteral(", ")) + u')';
}

}  // namespace

QStringList relation(const Order& order, const QList<QVariant>& key, bool before) {
    // The key column (the last) is never NULL; a sort column before it may be, and NULLs
    // come first in an ascending and last in a descending order. Each part is a range an
    // index can serve (an OR of them could not), in the order the rows come.
    const QString k = name(order.columns.last());
    const QString kv = literal(key.last());
    const bool asc = order.ascending;
    const QLatin1String op(before ? (asc ? "<" : ">") : (asc ? ">=" : "<="));
    if (order.columns.size() == 1) {
        return {k + u' ' + op + u' ' + kv};
    }
    const QString s = name(order.columns.first());
    const QString isNull = s + QStringLiteral(" IS NULL");
    const QString notNull = s + QStringLiteral(" IS NOT NULL");
    if (!key.first().isNull()) {
        const QString compared =
            tuple({s, k}) + u' ' + op + u' ' + tuple({literal(key.first()), kv});
        if (asc == before) {
            return asc ? QStringList{isNull, compared} : QStringList{compared, isNull};
        }
        return {compared};
    }
    const QString nullPart = isNull + QStringLiteral(" AND ") + k + u' ' + op + u' ' + kv;
    if (asc) {
        return before ? QStringList{nullPart} : QStringList{nullPart, notNull};
    }
    return before ? QStringList{notNull, nullPart} : QStringList{nullPart};
}

QString name(const QString& column) {
    QString n = column;
    n.replace(u'"', QStringLiteral("\"\""));
    return u'"' + n + u'"';
}

QString literal(const QVariant& value) {
    if (value.isNull() || !value.isValid()) {
        return QStringLiteral("NULL");
    }
    switch (value.typeId()) {
        case QMetaType::Bool:
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        case QMetaType::Double:
        case QMetaType::Float:
            return QString::number(value.toDouble(), 'g', 17);
        case QMetaType::QDateTime:
            return literal(value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        default:
            break;
    }
    if (isNumberVariant(value)) {
        return QString::number(value.toLongLong());
    }
    QString text = value.toString();
    text.replace(u'\'', QStringLiteral("''"));
    return u'\'' + text + u'\'';
}

QString inner(const QString& query) {
    QString q = query;
    while (!q.isEmpty() && (q.back().isSpace() || q.back() == u';')) {
        q.chop(1);
    }
    return q;
}

QString count(const QString& query) {
    return QStringLiteral("SELECT count(*) AS Anzahl") + from(query);
}

QString columnsOnly(const QString& query) {
    return QStringLiteral("SELECT *") + from(query) + QStringLiteral(" LIMIT 0");
}

QString rows(const QString& query, const Order& order, int limit, int offset) {
    return QStringLiteral("SELECT *") + from(query) + orderBy(order) + window(limit, offset);
}

QString keys(const QString& query, const Order& order, int limit, int offset) {
    QStringList names;
    for (const QString& c : order.columns) {
        names << name(c);
    }
    return QStringLiteral("SELECT ") + names.join(QStringLiteral(", ")) + from(query) +
           orderBy(order) + window(limit, offset);
}

QString rowsWhere(const QString& query, const Order& order, const QString& condition, int limit) {
    return QStringLiteral("SELECT *") + from(query) + QStringLiteral(" WHERE ") + condition +
           orderBy(order) + window(limit, 0);
}

QString countWhere(const QString& query, const QString& condition, int limit) {
    if (limit <= 0) {
        return count(query) + QStringLiteral(" WHERE ") + condition;
    }
    return QStringLiteral("SELECT count(*) AS Anzahl FROM (SELECT 1") + from(query) +
           QStringLiteral(" WHERE ") + condition + window(limit, 0) +
           QStringLiteral(") AS ajvVorher");
}

QString firstKeyWhere(const QString& query, const Order& order, const QString& condition) {
    QStringList names;
    for (const QString& c : order.columns) {
        names << name(c);
    }
    return QStringLiteral("SELECT ") + names.join(QStringLiteral(", ")) + from(query) +
           QStringLiteral(" WHERE ") + condition + orderBy(order) + window(1, 0);
}

QString equals(const QString& column, const QVariant& value, bool exact) {
    const QString c = name(column);
    if (value.isNull() || !value.isValid()) {
        return u'(' + c + QStringLiteral(" IS NULL OR ") + c + QStringLiteral(" = '')");
    }
    if (exact || !isNumberVariant(value, true)) {
        return c + QStringLiteral(" = ") + literal(value);
    }
    // A number also finds the same number stored as text.
    QString text = literal(value);
    return u'(' + c + QStringLiteral(" = ") + text + QStringLiteral(" OR CAST(") + c +
           QStringLiteral(" AS TEXT) = '") + text + QStringLiteral("')");
}

}  // namespace BrowserSql
