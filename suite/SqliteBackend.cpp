#include "suite/SqliteBackend.h"

#include <sqlite3.h>

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

#include "suite/SqlDialect.h"
#include "suite/SqlErrors.h"
#include "suite/SqlFullText.h"

namespace {

void execute(sqlite3* db, const char* sql) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw sqliteFailure(db, QString::fromUtf8(sql));
    }
}

// Runs the statements of a script one after the other, so that a failure names its statement.
void runStatements(sqlite3* db, const QByteArray& script) {
    const char* tail = script.constData();
    while (*tail != '\0') {
        const char* start = tail;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db, start, -1, &statement, &tail) != SQLITE_OK) {
            throw sqliteFailure(db, QString::fromUtf8(start).left(200));
        }
        if (statement == nullptr) {
            continue;  // blanks or comments only
        }
        int rc = SQLITE_ROW;
        while (rc == SQLITE_ROW) {
            rc = sqlite3_step(statement);
        }
        sqlite3_finalize(statement);
        if (rc != SQLITE_DONE) {
            throw sqliteFailure(db, QString::fromUtf8(start, static_cast<int>(tail - start)));
        }
    }
}

const QString rowid = QStringLiteral("_rowid_");

}  // namespace

sqlite3* sqliteHandle(const QSqlDatabase& db) {
    const QVariant handle = db.driver() ? db.driver()->handle() : QVariant();
    if (handle.isValid() && qstrcmp(handle.typeName(), "sqlite3*") == 0) {
        return *static_cast<sqlite3* const*>(handle.constData());
    }
    return nullptr;
}

RaisedError sqliteFailure(sqlite3* db, const QString& statement) {
    return SqlErrors::raised(
        sqlite3_errcode(db) & 0xff,
        QString::fromUtf8(sqlite3_errmsg(db)) + QStringLiteral("\r\n") + statement.trimmed());
}

QString SqliteBackend::translate(const QString& serverSql, const QDateTime& now) const {
    return SqlDialect::translate(SqlFullText::rewrite(serverSql, SqlDialect::Target::Sqlite), now);
}

std::optional<SqlTable> SqliteBackend::table(const QSqlDatabase& db, const QString& name,
                                             const QString& shown) {
    QSqlQuery kind = runSql(
        *this, db, QStringLiteral("SELECT type FROM sqlite_master WHERE lower(name) = lower(?)"),
        {name}, shown);
    if (!kind.next() || kind.value(0).toString() != u"table") {
        return std::nullopt;
    }
    SqlTable info;
    info.name = name;
    QSqlQuery query =
        runSql(*this, db, QStringLiteral("PRAGMA table_info(%1)").arg(quotedName(name)), {}, shown);
    int keys = 0;
    QString identity;
    while (query.next()) {
        const QString column = query.value(1).toString().toLower();
        const QString type = query.value(2).toString().toUpper();
        info.columns.insert(column, type.contains(u"DATE") || type.contains(u"TIME"));
        if (query.value(5).toInt() > 0) {
            ++keys;
            identity = type == u"INTEGER" ? column : QString();
        }
    }
    info.locator = QStringList{rowid};
    // The INTEGER PRIMARY KEY is the rowid itself: writing it moves the row.
    info.locatorColumns = QStringList{keys == 1 ? identity : QString()};
    return info;
}

QString SqliteBackend::quotedName(const QString& name) const {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QVariantList SqliteBackend::insert(const QSqlDatabase& db, const SqlTable& table,
                                   const QStringList& columns, const QVariantList& values) {
    QStringList names;
    QStringList marks;
    for (const QString& column : columns) {
        names << quotedName(column);
        marks << QStringLiteral("?");
    }
    const QString insert =
        names.isEmpty()
            ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(quotedName(table.name))
            : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                  .arg(quotedName(table.name), names.join(u", "), marks.join(u", "));
    const QSqlQuery query = runSql(*this, db, insert, values, insert);
    return {query.lastInsertId().toLongLong()};
}

std::optional<QVariantList> SqliteBackend::update(const QSqlDatabase& db, const SqlTable& table,
                                                  const QStringList& columns,
                                                  const QVariantList& values,
                                                  const QVariantList& locator) {
    QStringList sets;
    QVariantList bound = values;
    QVariantList after = locator;
    for (qsizetype c = 0; c < columns.size(); ++c) {
        sets << quotedName(columns[c]) + QStringLiteral(" = ?");
        if (!table.locatorColumns.value(0).isEmpty() &&
            columns[c].toLower() == table.locatorColumns.value(0)) {
            after = {values[c].toLongLong()};
        }
    }
    bound << locator;
    const QString update =
        QStringLiteral("UPDATE %1 SET %2 WHERE %3")
            .arg(quotedName(table.name), sets.join(u", "), locatorCondition(table));
    const QSqlQuery query = runSql(*this, db, update, bound, update);
    if (query.numRowsAffected() < 1) {
        return std::nullopt;
    }
    return after;
}

RaisedError SqliteBackend::failure(const QSqlError& error, const QString& shown) const {
    return SqlErrors::fromDriver(error, shown);
}

bool SqliteBackend::isEmpty(const QSqlDatabase& db) const {
    const QString sql = QStringLiteral(
        "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
    QSqlQuery query = runSql(*this, db, sql, {}, sql);
    return query.next() && query.value(0).toLongLong() == 0;
}

void SqliteBackend::runScript(const QSqlDatabase& connection, const QString& script) const {
    sqlite3* db = sqliteHandle(connection);
    if (db == nullptr) {
        throw SqlErrors::noConnection();
    }
    // One transaction for the whole script: it applies completely or not at all. A script
    // therefore holds no transaction statements of its own.
    const bool ownTransaction = sqlite3_get_autocommit(db) != 0;
    if (ownTransaction) {
        execute(db, "BEGIN");
    }
    try {
        runStatements(db, script.toUtf8());
    } catch (...) {
        if (ownTransaction) {
            sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        }
        throw;
    }
    if (ownTransaction) {
        execute(db, "COMMIT");
    }
}
