#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

// A database of its own on the test server, for one test: created empty under a unique name,
// dropped again with every connection it opened. The server comes from the environment that
// libpq reads (PGHOST, PGPORT, PGUSER; ctest sets it, scripts/pg-test-server starts the server).
// Every failure throws std::runtime_error with the server's message.
class ServerDatabase {
  public:
    ServerDatabase();
    ~ServerDatabase();
    ServerDatabase(const ServerDatabase&) = delete;
    ServerDatabase& operator=(const ServerDatabase&) = delete;

    // Lower case, as the server folds it.
    const QString& name() const { return name_; }

    // A new connection (QPSQL) to the database, in the calling thread, under a name of its own;
    // closed and removed by the destructor, or earlier by disconnect().
    QSqlDatabase connect();
    static void disconnect(const QString& connectionName);

    // db/schema.postgresql.sql, the schema that the program embeds.
    void applySchema();
    // Runs a script of several statements at once.
    static void runScript(QSqlDatabase& db, const QString& script);
    // One value: the first column of the first row.
    static QVariant scalar(QSqlDatabase& db, const QString& sql);
    // Every row as its columns' texts joined by "|", NULL as "NULL", dates as
    // 'yyyy-MM-dd HH:mm:ss', so that rows of SQLite and of the server compare as texts.
    static QStringList rows(QSqlDatabase& db, const QString& sql);

  private:
    static QSqlDatabase adminConnection();

    QString name_;
    QStringList connections_;
};
