#include "scenario/ScenarioServerDatabase.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <atomic>

#include "common/ErrObject.h"
#include "scenario/ScenarioError.h"
#include "suite/PostgresConnection.h"

namespace {

bool onServer = false;

const QString kMaintenance = QStringLiteral("ajv-scenario-server");

// The connection that creates and drops the scenarios' databases, to the server's own
// database "postgres".
QSqlDatabase maintenance() {
    if (QSqlDatabase::contains(kMaintenance)) {
        QSqlDatabase db = QSqlDatabase::database(kMaintenance, false);
        if (db.isOpen()) {
            return db;
        }
    }
    try {
        return PostgresConnection::open(kMaintenance,
                                        PostgresConnection::addressOf(QStringLiteral("postgres")),
                                        {QStringLiteral("autojobverw-scenario")});
    } catch (const RaisedError& e) {
        scenarioFail(QStringLiteral("no PostgreSQL server (PGHOST=%1): %2")
                         .arg(qEnvironmentVariable("PGHOST"), e.err().Description));
    }
}

void run(const QString& sql) {
    QSqlQuery query(maintenance());
    if (!query.exec(sql)) {
        scenarioFail(QStringLiteral("%1 failed: %2").arg(sql, query.lastError().text()));
    }
}

}  // namespace

void ScenarioServerDatabase::use(bool server) {
    onServer = server;
}

bool ScenarioServerDatabase::inUse() {
    return onServer;
}

ScenarioServerDatabase::ScenarioServerDatabase() {
    static std::atomic<int> counter{0};
    name_ =
        QStringLiteral("ajv_scenario_%1_%2").arg(QCoreApplication::applicationPid()).arg(++counter);
    run(QStringLiteral("DROP DATABASE IF EXISTS %1").arg(name_));
    run(QStringLiteral("CREATE DATABASE %1 ENCODING 'UTF8' TEMPLATE template0").arg(name_));
}

ScenarioServerDatabase::~ScenarioServerDatabase() {
    QSqlQuery query(maintenance());
    query.exec(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name_));
}

QString ScenarioServerDatabase::address() const {
    return PostgresConnection::addressOf(name_);
}
