#pragma once

#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include "tests/postgresql/ServerDatabase.h"

// A test on a database of its own with db/schema.postgresql.sql applied, and one connection.
class ServerTest : public ::testing::Test {
  protected:
    void SetUp() override {
        server_.applySchema();
        db_ = server_.connect();
    }

    QVariant value(const QString& sql) { return ServerDatabase::scalar(db_, sql); }
    void run(const QString& sql) { ServerDatabase::runScript(db_, sql); }

    ServerDatabase server_;
    // Declared after server_, so that it is released before the database is dropped.
    QSqlDatabase db_;
};
