#pragma once

#include <sqlite3.h>
#include <QString>

// SQLite itself on the bench's file, as the yardstick: each statement is prepared, stepped
// to the end with every column read, and finalized, as a program using SQLite directly would.
class RawSqlite {
  public:
    explicit RawSqlite(const QString& path);
    ~RawSqlite();
    RawSqlite(const RawSqlite&) = delete;
    RawSqlite& operator=(const RawSqlite&) = delete;

    // Runs the statement; gives the rows it returned, or the rows it changed for a DELETE.
    long long run(const QString& sql);
    // The first column of the first row as a number.
    long long number(const QString& sql);
    sqlite3* handle() const { return db_; }

  private:
    sqlite3* db_ = nullptr;
};
