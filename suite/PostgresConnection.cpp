#include "suite/PostgresConnection.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSysInfo>
#include <algorithm>

#include "common/ErrObject.h"
#include "suite/ChangeJournal.h"
#include "suite/SqlErrors.h"

namespace PostgresConnection {

namespace {

// SQLite's result code for a database that cannot be opened, which the system reports.

QString connectOptions(const PostgresAddress& address, const Session& session) {
    QStringList options = address.options;
    if (std::none_of(options.cbegin(), options.cend(),
                     [](const QString& o) { return o.startsWith(u"connect_timeout="); })) {
        options << QStringLiteral("connect_timeout=10");
    }
    if (!session.applicationName.isEmpty()) {
        options << QStringLiteral("application_name=") + session.applicationName;
    }
    return options.join(u';');
}

void forget(QSqlDatabase& db, const QString& connectionName) {
    db = QSqlDatabase();
    QSqlDatabase::removeDatabase(connectionName);
}

}  // namespace

QString addressOf(const QString& database) {
    return QStringLiteral("postgresql:///") + database;
}

QSqlDatabase open(const QString& connectionName, const PostgresAddress& address,
                  const Session& session) {
    QSqlDatabase db = QSqlDatabase::contains(connectionName)
                          ? QSqlDatabase::database(connectionName, false)
                          : QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), connectionName);
    if (!db.isValid()) {
        forget(db, connectionName);
        throw SqlErrors::raised(
            ErrNumber::Database,
            QStringLiteral("Der Datenbanktreiber QPSQL fehlt (Paket libqt6sql6-psql)."));
    }
    db.close();
    db.setHostName(address.host);
    db.setPort(address.port != 0 ? address.port : -1);
    db.setUserName(address.user);
    db.setDatabaseName(address.database);
    db.setConnectOptions(connectOptions(address, session));
    if (!db.open()) {
        const QSqlError error = db.lastError();
        forget(db, connectionName);
        throw SqlErrors::raised(SqlErrors::CantOpen, error.databaseText().trimmed().isEmpty()
                                                         ? error.text().trimmed()
                                                         : error.databaseText().trimmed());
    }
    applySession(db, session);
    return db;
}

QSqlDatabase open(const QString& connectionName, const QString& address, const Session& session) {
    return open(connectionName, PostgresAddress::parse(address), session);
}

void applySession(const QSqlDatabase& db, const Session& session) {
    QSqlQuery query(db);
    query.exec(QStringLiteral("SET lock_timeout = %1").arg(std::max(session.lockTimeoutMs, 0)));
    query.exec(QStringLiteral("SET datestyle = ISO, YMD"));
    query.exec(QStringLiteral("SET client_min_messages = warning"));
    query.exec(
        ChangeJournal::settingStatement(ChangeJournal::kArbeitsplatz, QSysInfo::machineHostName()));
}

}  // namespace PostgresConnection
