#pragma once

#include <QDateTime>
#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <optional>

class QSqlError;
class RaisedError;

// A table as the record set writes to it.
struct SqlTable {
    QString name;                  // as the database knows it
    QHash<QString, bool> columns;  // lower-case column name -> is a date column
    QStringList locator;           // expressions that find one row again (rowid or the key)
    QStringList locatorColumns;    // the lower-case column each of them is, empty for none
};

// What differs between the databases the program runs on: how statements are translated, how
// a table is described, how a row is inserted and values come back, how failures read. One per
// connection, used on its thread only.
class SqlBackend {
  public:
    virtual ~SqlBackend() = default;

    virtual QString translate(const QString& serverSql, const QDateTime& now) const = 0;
    // The table of that name; nullopt for a view or anything else.
    virtual std::optional<SqlTable> table(const QSqlDatabase& db, const QString& name,
                                          const QString& shown) = 0;
    virtual QString quotedName(const QString& name) const = 0;
    // Inserts one row and gives the locator values of the new row.
    virtual QVariantList insert(const QSqlDatabase& db, const SqlTable& table,
                                const QStringList& columns, const QVariantList& values) = 0;
    // Updates the row found by its locator; gives its locator afterwards, nullopt when no row
    // was found.
    virtual std::optional<QVariantList> update(const QSqlDatabase& db, const SqlTable& table,
                                               const QStringList& columns,
                                               const QVariantList& values,
                                               const QVariantList& locator) = 0;
    // A value as read, in the form the system expects of every database: dates as the stored
    // text 'yyyy-MM-dd HH:mm:ss', whole numbers as 64-bit integers.
    virtual QVariant value(const QVariant& read) const { return read; }
    // A result column's name as the system spells it; statement is the one the caller wrote.
    virtual QString columnName(const QString& returned, const QString& /*statement*/) const {
        return returned;
    }
    virtual RaisedError failure(const QSqlError& error, const QString& shown) const = 0;

    // What became of a connection after a failure.
    enum class Recovery {
        NotLost,   // the connection stands; the failure is the statement's own
        Reopened,  // it was lost and is open again
        Away,      // it was lost and the server did not answer within the waiting time
    };
    // Before a statement: a connection found closed is opened again, waiting a bounded time;
    // throws the message of a server that stays away.
    virtual void ensureOpen(QSqlDatabase /*db*/) const {}
    // After a failure: a connection the server dropped (a restart at night, a network cut) is
    // opened again, so that the failure is reported once and the next action works.
    virtual Recovery recover(QSqlDatabase /*db*/, const QSqlError& /*error*/) const {
        return Recovery::NotLost;
    }
    // Whether the statement that failed with the lost connection can be run again on the new
    // one: nothing of it can have been committed. Never within a transaction, whose earlier
    // statements went with the connection.
    virtual bool mayRepeat(const QString& /*sql*/, const QSqlError& /*error*/) const {
        return false;
    }
    // The program's transactions on the connection mark themselves, so that nothing of them
    // is repeated on another connection.
    void transactionBegun() const { ++transactions_; }
    void transactionEnded() const { transactions_ = transactions_ > 0 ? transactions_ - 1 : 0; }
    bool inTransaction() const { return transactions_ > 0; }

    // True when the database holds no table yet.
    virtual bool isEmpty(const QSqlDatabase& db) const = 0;
    // Runs a script of several statements in one transaction.
    virtual void runScript(const QSqlDatabase& db, const QString& script) const = 0;
    // Runs the schema on a database found empty; where several workstations may start at once
    // on a new database, only the first one applies it.
    virtual void applySchema(const QSqlDatabase& db, const QString& script) const {
        runScript(db, script);
    }
    virtual QString schemaResource() const = 0;
    // Brings a database made by an earlier version up to the schema; where several
    // workstations may start at once, only one upgrades. SQLite's is derived from the schema.
    virtual void upgradeSchema(const QSqlDatabase& /*db*/) const {}

  private:
    mutable int transactions_ = 0;
};

class QSqlQuery;
// Runs one statement, with values bound to its `?` marks; `shown` is the statement as the
// caller wrote it, named in the failure.
QSqlQuery runSql(const SqlBackend& backend, const QSqlDatabase& db, const QString& sql,
                 const QVariantList& values, const QString& shown);
// Runs work in one transaction of the connection: all of its writes or, when it throws, none.
void runInTransaction(const SqlBackend& backend, QSqlDatabase db,
                      const std::function<void()>& work);
// `<locator 1> = ? AND ...`, for the locator's values.
QString locatorCondition(const SqlTable& table);
