#include "tests/postgresql/ServerDatabase.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QRandomGenerator>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <atomic>
#include <mutex>
#include <stdexcept>

#include "common/ErrObject.h"
#include "suite/PostgresConnection.h"

namespace {

std::mutex connectionsMutex;
std::atomic<int> connectionCounter{0};

[[noreturn]] void fail(const QString& what, const QSqlError& error) {
    throw std::runtime_error(
        QStringLiteral("%1: %2").arg(what, error.text()).toUtf8().toStdString());
}

QString nextConnectionName() {
    return QStringLiteral("ajv_pg_test_%1").arg(++connectionCounter);
}

QSqlDatabase openConnection(const QString& connectionName, const QString& databaseName) {
    // Host, port and user stay empty: libpq takes them from the environment. The tests' own
    // sessions are told apart from the program's, which some tests cut off.
    try {
        return PostgresConnection::open(connectionName, PostgresConnection::addressOf(databaseName),
                                        {QStringLiteral("autojobverw-test")});
    } catch (const RaisedError& e) {
        throw std::runtime_error(
            QStringLiteral("connecting to %1 (PGHOST=%2): %3")
                .arg(databaseName, qEnvironmentVariable("PGHOST"), e.err().Description)
                .toUtf8()
                .toStdString());
    }
}

void execute(QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    if (!query.exec(sql)) {
        fail(sql.left(200), query.lastError());
    }
}

}  // namespace

QSqlDatabase ServerDatabase::adminConnection() {
    return openConnection(nextConnectionName(), QStringLiteral("postgres"));
}

ServerDatabase::ServerDatabase() {
    name_ = QStringLiteral("ajv_test_%1_%2_%3")
                .arg(QCoreApplication::applicationPid())
                .arg(QDateTime::currentMSecsSinceEpoch())
                .arg(QRandomGenerator::global()->bounded(1000000));
    QString admin;
    {
        QSqlDatabase db = adminConnection();
        admin = db.connectionName();
        execute(db, QStringLiteral("CREATE DATABASE %1").arg(name_));
    }
    QSqlDatabase::removeDatabase(admin);
}

ServerDatabase::~ServerDatabase() {
    QStringList open;
    {
        std::lock_guard lock(connectionsMutex);
        open.swap(connections_);
    }
    for (const QString& c : open) {
        disconnect(c);
    }
    QString admin;
    try {
        QSqlDatabase db = adminConnection();
        admin = db.connectionName();
        QSqlQuery(db).exec(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name_));
    } catch (const std::exception&) {
        // The server is gone: its throwaway cluster goes with it.
    }
    if (!admin.isEmpty()) {
        QSqlDatabase::removeDatabase(admin);
    }
}

QSqlDatabase ServerDatabase::connect() {
    QSqlDatabase db = openConnection(nextConnectionName(), name_);
    std::lock_guard lock(connectionsMutex);
    connections_ << db.connectionName();
    return db;
}

void ServerDatabase::disconnect(const QString& connectionName) {
    {
        QSqlDatabase db = QSqlDatabase::database(connectionName, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(connectionName);
}

void ServerDatabase::applySchema() {
    QFile file(QStringLiteral(":/db/schema.postgresql.sql"));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the resource :/db/schema.postgresql.sql is missing");
    }
    const QString script = QString::fromUtf8(file.readAll());
    QString connection;
    {
        QSqlDatabase db = connect();
        connection = db.connectionName();
        runScript(db, script);
    }
    {
        std::lock_guard lock(connectionsMutex);
        connections_.removeAll(connection);
    }
    disconnect(connection);
}

void ServerDatabase::runScript(QSqlDatabase& db, const QString& script) {
    // Without bound values the driver sends the text as it is, and the server runs each
    // statement in turn.
    execute(db, script);
}

QVariant ServerDatabase::scalar(QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    if (!query.exec(sql)) {
        fail(sql.left(200), query.lastError());
    }
    return query.next() ? query.value(0) : QVariant();
}

QStringList ServerDatabase::rows(QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    if (!query.exec(sql)) {
        fail(sql.left(200), query.lastError());
    }
    QStringList result;
    while (query.next()) {
        QStringList columns;
        for (int i = 0; i < query.record().count(); ++i) {
            const QVariant v = query.value(i);
            if (v.isNull()) {
                columns << QStringLiteral("NULL");
            } else if (v.typeId() == QMetaType::QDateTime) {
                columns << v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
            } else {
                columns << v.toString();
            }
        }
        result << columns.join(u'|');
    }
    return result;
}
