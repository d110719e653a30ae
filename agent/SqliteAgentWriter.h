#pragma once

#include "agent/AgentWriter.h"

struct sqlite3;
struct sqlite3_stmt;

// Writes through the raw SQLite handle of the database's connection: two prepared statements,
// bound and stepped per row, in immediate transactions.
class SqliteAgentWriter : public AgentWriter {
  public:
    // Throws RaisedError when the connection gives no SQLite handle.
    explicit SqliteAgentWriter(const Database& database);
    ~SqliteAgentWriter() override;

    SqliteAgentWriter(const SqliteAgentWriter&) = delete;
    SqliteAgentWriter& operator=(const SqliteAgentWriter&) = delete;

    void startBulk() override;
    void begin() override;
    void commit() override;
    void rollback() noexcept override;
    void writeRun(const AgentRun& run) override;
    void writeLog(const AgentLogEntry& entry) override;

  private:
    void prepare();

    sqlite3* db_ = nullptr;
    sqlite3_stmt* insertRun_ = nullptr;
    sqlite3_stmt* insertLog_ = nullptr;
};
