#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// A PostgreSQL database named as `postgresql://[user@][host][:port][/name][?key=value&...]`
// (or `postgres://`). What is left out comes from the usual PostgreSQL sources: PGHOST,
// PGPORT, PGUSER, PGDATABASE, the password from PGPASSWORD or the password file. A host
// starting with `/` (written as `%2F...` or as `?host=/...`) is the folder of a local socket.
struct PostgresAddress {
    QString user;
    QString host;
    int port = 0;  // 0: the default
    QString database;
    // Further connection settings (sslmode, connect_timeout, ...) as `key=value`.
    QStringList options;

    static bool isAddress(const QString& text);
    // Throws RaisedError, in the system's words, for an address it cannot read or one that
    // holds a password.
    static PostgresAddress parse(const QString& text);
    // The address as written with any password in it replaced by "***", for messages.
    static QString withoutPassword(const QString& text);
};
