#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <atomic>

#include "suite/Database.h"

// A database of its own on the PostgreSQL server the environment names (PGHOST, PGPORT,
// PGUSER), created and dropped through a connection to the server's database "postgres".
// With the demo's staff, clients, jobs and schedules, as the agent finds them: the demo script
// is written for SQLite, so they are made in an SQLite file first (kept in sqlitePath()) and
// copied over row by row.
class ServerTestDatabase {
  public:
    enum class Content { Empty, DemoJobs };

    explicit ServerTestDatabase(Content content = Content::DemoJobs) {
        static std::atomic<int> counter{0};
        name_ = QStringLiteral("ajv_agent_test_%1_%2").arg(::getpid()).arg(++counter);
        run(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name_));
        run(QStringLiteral("CREATE DATABASE %1 ENCODING 'UTF8' TEMPLATE template0").arg(name_));
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

    ~ServerTestDatabase() {
        run(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name_));
        QSqlDatabase::removeDatabase(maintenanceName());
    }

    ServerTestDatabase(const ServerTestDatabase&) = delete;
    ServerTestDatabase& operator=(const ServerTestDatabase&) = delete;

    QString address() const { return QStringLiteral("postgresql:///") + name_; }
    // The SQLite file with the same jobs and schedules, nothing else written to it.
    QString sqlitePath() const { return dir_.filePath(QStringLiteral("demo.sqlite")); }

  private:
    QString maintenanceName() const { return name_ + QStringLiteral("_maintenance"); }

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

    void run(const QString& sql) {
        QSqlDatabase db =
            QSqlDatabase::contains(maintenanceName())
                ? QSqlDatabase::database(maintenanceName(), false)
                : QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), maintenanceName());
        db.setDatabaseName(QStringLiteral("postgres"));
        ASSERT_TRUE(db.isOpen() || db.open())
            << "no PostgreSQL server (PGHOST=" << qEnvironmentVariable("PGHOST").toStdString()
            << "): " << db.lastError().text().toStdString();
        QSqlQuery query(db);
        query.exec(QStringLiteral("SET client_min_messages = warning"));
        EXPECT_TRUE(query.exec(sql))
            << sql.toStdString() << ": " << query.lastError().text().toStdString();
    }

    QTemporaryDir dir_;
    QString name_;
};
