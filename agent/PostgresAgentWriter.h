#pragma once

#include <QSqlDatabase>

#include "agent/AgentWriter.h"

class SqlBackend;

// Writes over the database's QtSql connection to a PostgreSQL server. Rows are gathered and
// sent as one INSERT of many rows (kRowsPerStatement) with their values as literals: a round
// trip per row would make a bulk fill of millions of rows take hours. What is gathered goes
// out at the latest on commit.
class PostgresAgentWriter : public AgentWriter {
  public:
    static constexpr int kRowsPerStatement = 1000;

    explicit PostgresAgentWriter(const Database& database);

    void begin() override;
    void commit() override;
    void rollback() noexcept override;
    void writeRun(const AgentRun& run) override;
    void writeLog(const AgentLogEntry& entry) override;

  private:
    // The rows of one table gathered for one INSERT.
    struct Batch {
        QString insert;  // "INSERT INTO ... VALUES "
        QString text;    // the statement so far, empty without a row
        int rows = 0;
        void clear() {
            text.truncate(0);
            rows = 0;
        }
    };
    // Adds a row of values, already written as SQL, and sends the batch when it is full.
    void add(Batch& batch, const QStringList& values);
    void flush(Batch& batch);
    void execute(const QString& sql, const QString& shown);

    QSqlDatabase db_;
    const SqlBackend& backend_;
    Batch runs_;
    Batch logs_;
};
