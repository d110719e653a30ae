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
    void flushRuns();
    void flushLogs();
    void execute(const QString& sql, const QString& shown);

    QSqlDatabase db_;
    const SqlBackend& backend_;
    QString runs_;  // the INSERT of the runs gathered so far
    int runCount_ = 0;
    QString logs_;
    int logCount_ = 0;
};
