#pragma once

#include <gtest/gtest.h>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include "suite/Database.h"

// A database file with the schema and the demo's jobs and schedules, as the agent finds it.
struct AgentTestDatabase {
    AgentTestDatabase() {
        path = dir.filePath(QStringLiteral("agent.sqlite"));
        auto db = Database::open(path, std::make_shared<SystemClock>());
        db->applySchema();
        db->applyDemoData(dir.filePath(QStringLiteral("zpk")));
        db->runScript(
            QStringLiteral("DELETE FROM tAutoJobVerlauf; DELETE FROM SYS_JobAgentLogDaten"));
    }

    static qint64 count(const Database& db, const QString& sql) {
        QSqlQuery query(QSqlDatabase::database(db.connectionName(), false));
        EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
        return query.next() ? query.value(0).toLongLong() : -1;
    }

    QTemporaryDir dir;
    QString path;
};
