#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "common/Clock.h"
#include "common/FileId.h"
#include "common/Services.h"

class SqlBackend;

// The suite's database, one connection: an SQLite file in WAL mode with a busy timeout and the
// server's functions (getdate, datediff, ...) registered on it, or a PostgreSQL database on a
// server, whose schema brings those functions. Record sets made by recordsetFactory() all work
// on this connection.
class Database : public std::enable_shared_from_this<Database> {
  public:
    // Opens the file, creating it when missing; ":memory:" gives a private in-memory
    // database; a `postgresql://` address (PostgresAddress.h) a database on a server.
    // getdate() answers from the clock. A statement that finds the file locked by
    // another writer waits up to busyTimeoutMs before it fails. Throws RaisedError on failure,
    // also when the file can only be read.
    static constexpr int kDefaultBusyTimeoutMs = 5000;
    static std::shared_ptr<Database> open(const QString& path, std::shared_ptr<IClock> clock,
                                          int busyTimeoutMs = kDefaultBusyTimeoutMs);
    ~Database();

    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const QString& connectionName() const { return connectionName_; }
    const QString& path() const { return path_; }
    // True for a database on a PostgreSQL server.
    bool onServer() const { return onServer_; }
    SqlBackend& backend() const { return *backend_; }
    IClock& clock() const { return *clock_; }

    // True when the database holds no table yet.
    bool isEmpty() const;
    // Runs the embedded schema (db/schema.sql, on a server db/schema.postgresql.sql), then
    // (applyDemoData) db/demo.sql. Throws on failure.
    void applySchema();
    // A database of an earlier version gets what this schema has more: missing tables,
    // indexes and views, and views that read otherwise. Its rows stay as they are.
    void upgradeSchema();
    // The demo's jobs keep their directories below folder (their "/srv/zpk" in the script),
    // which are created with it; gives the directories.
    QStringList applyDemoData(const QString& folder = QStringLiteral("/srv/zpk"));
    // Runs a whole script of several statements (schema, demo data, test set-up).
    void runScript(const QString& script);
    // Runs work in one transaction: all of its writes or, when it throws, none. Nothing of it
    // is repeated on a connection opened anew after a loss.
    void inTransaction(const std::function<void()>& work);

    Services::Factory<CRecordset> recordsetFactory();

    // Asked before a record set connects and before each statement; throws when the
    // connection must not be used as it is.
    void checkUsable();

  private:
    // Throws when the file the database was opened from has since been deleted or moved:
    // the connection would go on writing into a file nobody reads again.
    void checkStillThere() const;
    // Throws when SQLite's locks on the file are gone (something in the process closed a
    // descriptor of the database file or its -shm): the connection is opened anew, without
    // its closing touching the files, and the action that asked is not carried out, so that
    // nothing is written into files another program may already have deleted.
    void checkLocksHeld();

    Database(QString path, QString connectionName, std::shared_ptr<IClock> clock);
    void openSqlite(int busyTimeoutMs);
    void setUpSqlite();
    // The change journal's triggers on a SQLite connection (ChangeJournal.h).
    void installJournal();

    QString path_;
    QString connectionName_;
    std::shared_ptr<IClock> clock_;
    std::unique_ptr<SqlBackend> backend_;
    bool onServer_ = false;
    // SQLite in WAL mode, whose locks checkLocksHeld() watches.
    bool walMode_ = false;
    // The opened file; none for a database without a file.
    std::optional<FileId> fileId_;
};
