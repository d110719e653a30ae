#pragma once

#include "suite/SqlBackend.h"

struct sqlite3;

// SQLite: the embedded database of one workstation. Rows are found again by their rowid.
class SqliteBackend : public SqlBackend {
  public:
    QString translate(const QString& serverSql, const QDateTime& now) const override;
    std::optional<SqlTable> table(const QSqlDatabase& db, const QString& name,
                                  const QString& shown) override;
    QString quotedName(const QString& name) const override;
    QVariantList insert(const QSqlDatabase& db, const SqlTable& table, const QStringList& columns,
                        const QVariantList& values) override;
    std::optional<QVariantList> update(const QSqlDatabase& db, const SqlTable& table,
                                       const QStringList& columns, const QVariantList& values,
                                       const QVariantList& locator) override;
    RaisedError failure(const QSqlError& error, const QString& shown) const override;
    bool isEmpty(const QSqlDatabase& db) const override;
    void runScript(const QSqlDatabase& db, const QString& script) const override;
    QString schemaResource() const override { return QStringLiteral(":/db/schema.sql"); }
};

// The SQLite handle under a connection of the QSQLITE driver, nullptr for any other.
sqlite3* sqliteHandle(const QSqlDatabase& db);
// A failure of SQLite on that handle, naming the statement.
RaisedError sqliteFailure(sqlite3* db, const QString& statement);
