#pragma once

#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>

#include "suite/Database.h"
#include "suite/PostgresConnection.h"
#include "tests/postgresql/ServerDatabase.h"

// A database of its own on the PostgreSQL test server (ServerDatabase.h), with the demo's staff,
// clients, jobs and schedules, as the agent finds them: the demo script is written for SQLite, so
// they are made in an SQLite file first (kept in sqlitePath()) and copied over row by row.
class ServerTestDatabase {
  public:
    enum class Content { Empty, DemoJobs };

    explicit ServerTestDatabase(Content content = Content::DemoJobs) {
        if (content == Content::DemoJobs) {
            auto lite = Database::open(sqlitePath(), std::make_shared<SystemClock>());
            lite->applySchema();
            lite->applyDemoData(dir_.filePath(QStringLiteral("zpk")));
            lite->runScript(
                QStringLiteral("DELETE FROM tAutoJobVerlauf; DELETE FROM SYS_JobAgentLogDaten"));
            auto db = Database::open(address(), std::make_shared<SystemClock>());
            db->applySchema();
            QString copy;
            for (const QString table :
                 {"tMitarbeiter", "tMandant", "tAutoJobJob", "tAutoJobSchedule"}) {
                copy += insertsOf(*lite, table);
            }
            db->runScript(copy);
        }
    }

    ServerTestDatabase(const ServerTestDatabase&) = delete;
    ServerTestDatabase& operator=(const ServerTestDatabase&) = delete;

    QString address() const { return PostgresConnection::addressOf(server_.name()); }
    // The SQLite file with the same jobs and schedules, nothing else written to it.
    QString sqlitePath() const { return dir_.filePath(QStringLiteral("demo.sqlite")); }

  private:
    // Every row of the table as an INSERT with literal values.
    static QString insertsOf(const Database& db, const QString& table) {
        QSqlQuery query(QSqlDatabase::database(db.connectionName(), false));
        EXPECT_TRUE(query.exec(QStringLiteral("SELECT * FROM %1").arg(table)));
        QString script;
        while (query.next()) {
            QStringList columns;
            QStringList values;
            for (int c = 0; c < query.record().count(); ++c) {
                const QVariant v = query.value(c);
                columns << query.record().fieldName(c);
                values << (v.isNull() ? QStringLiteral("NULL")
                           : v.typeId() == QMetaType::QString
                               ? u'\'' + v.toString().replace(u'\'', QStringLiteral("''")) + u'\''
                               : v.toString());
            }
            script += QStringLiteral("INSERT INTO %1 (%2) VALUES (%3);\n")
                          .arg(table, columns.join(u','), values.join(u','));
        }
        return script;
    }

    ServerDatabase server_;
    QTemporaryDir dir_;
};
