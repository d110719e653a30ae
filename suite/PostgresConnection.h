#pragma once

#include <QSqlDatabase>
#include <QString>

#include "suite/PostgresAddress.h"

// The one way to a PostgreSQL server. Every connection, the record set's (and so the agent's
// and the scenarios'), the benches' and the tests' own, is opened here: with the same connect
// options and session settings, and failing with the same text.
namespace PostgresConnection {

// Who a session is and how long its statements wait.
struct Session {
    // Shown by the server in pg_stat_activity; the program's own sessions are "autojobverw",
    // helpers beside it name themselves so that they can be told apart.
    QString applicationName = QStringLiteral("autojobverw");
    // A statement that waits longer for a lock fails, as on SQLite; 0 waits as long as it takes.
    int lockTimeoutMs = 0;
};

// The address of a database on the server that the PG* environment names.
QString addressOf(const QString& database);

// Opens the QtSql connection `connectionName` (added, or taken again when it is there) to the
// database. A server that does not answer within 10 seconds counts as unreachable, unless the
// address sets its own connect_timeout. Throws RaisedError: ErrNumber::Database when the driver
// is missing, SQLite's "cannot open" (14) with the server's own words when the server refuses;
// the connection is removed again then.
QSqlDatabase open(const QString& connectionName, const PostgresAddress& address,
                  const Session& session = {});
// The same for an address as written (PostgresAddress::parse, which throws for one it cannot read).
QSqlDatabase open(const QString& connectionName, const QString& address,
                  const Session& session = {});

// The session settings, again on a connection that was lost and opened anew.
void applySession(const QSqlDatabase& db, const Session& session);

}  // namespace PostgresConnection
