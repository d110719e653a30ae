#pragma once

#include <QHash>

#include "suite/PostgresAddress.h"
#include "suite/PostgresConnection.h"
#include "suite/SqlBackend.h"

// PostgreSQL: the database an office shares on a server. The schema's names are all in lower
// case; rows are found again by their primary key; getdate, datediff, len and LIKE on numbers
// are the schema's own functions and operators.
class PostgresBackend : public SqlBackend {
  public:
    // Opens the connection under that name. A statement that waits for a lock longer than
    // busyTimeoutMs fails, as on SQLite. Throws RaisedError when the server cannot be reached.
    void connect(const QString& connectionName, const PostgresAddress& address, int busyTimeoutMs);

    QString translate(const QString& serverSql, const QDateTime& now) const override;
    std::optional<SqlTable> table(const QSqlDatabase& db, const QString& name,
                                  const QString& shown) override;
    QString quotedName(const QString& name) const override;
    QVariantList insert(const QSqlDatabase& db, const SqlTable& table, const QStringList& columns,
                        const QVariantList& values) override;
    std::optional<QVariantList> update(const QSqlDatabase& db, const SqlTable& table,
                                       const QStringList& columns, const QVariantList& values,
                                       const QVariantList& locator) override;
    QVariant value(const QVariant& read) const override;
    QString columnName(const QString& returned, const QString& statement) const override;
    RaisedError failure(const QSqlError& error, const QString& shown) const override;
    void ensureOpen(QSqlDatabase db) const override;
    Recovery recover(QSqlDatabase db, const QSqlError& error) const override;
    bool mayRepeat(const QString& sql, const QSqlError& error) const override;
    bool isEmpty(const QSqlDatabase& db) const override;
    void runScript(const QSqlDatabase& db, const QString& script) const override;
    void applySchema(const QSqlDatabase& db, const QString& script) const override;
    void upgradeSchema(const QSqlDatabase& db) const override;
    QString schemaResource() const override { return QStringLiteral(":/db/schema.postgresql.sql"); }

  private:
    PostgresConnection::Session session_;
    // Opens the lost connection again, waiting a bounded time; false when the server stays away.
    bool reopen(QSqlDatabase db) const;
    QHash<QString, std::optional<SqlTable>> tables_;
    mutable QString spelledFor_;
    mutable QHash<QString, QString> spelling_;
};

// The statements of a script, split at the `;` that end them; literals, quoted names,
// comments and dollar-quoted function bodies are kept whole.
QStringList splitPostgresScript(const QString& script);
