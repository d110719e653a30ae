#include "bench/BenchRawSqlite.h"

#include <stdexcept>

RawSqlite::RawSqlite(const QString& path) {
    if (sqlite3_open_v2(path.toUtf8().constData(), &db_, SQLITE_OPEN_READWRITE, nullptr) !=
        SQLITE_OK) {
        throw std::runtime_error("cannot open " + path.toStdString());
    }
    sqlite3_busy_timeout(db_, 5000);
}

RawSqlite::~RawSqlite() {
    sqlite3_close(db_);
}

long long RawSqlite::run(const QString& sql) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK) {
        throw std::runtime_error(std::string(sqlite3_errmsg(db_)) + ": " + sql.toStdString());
    }
    long long rows = 0;
    int rc = 0;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        ++rows;
        const int n = sqlite3_column_count(stmt);
        for (int c = 0; c < n; ++c) {
            if (sqlite3_column_type(stmt, c) == SQLITE_TEXT) {
                sqlite3_column_text(stmt, c);
            } else {
                sqlite3_column_int64(stmt, c);
            }
        }
    }
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) {
        throw std::runtime_error(std::string(sqlite3_errmsg(db_)) + ": " + sql.toStdString());
    }
    return rows > 0 ? rows : sqlite3_changes64(db_);
}

long long RawSqlite::number(const QString& sql) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK) {
        throw std::runtime_error(std::string(sqlite3_errmsg(db_)) + ": " + sql.toStdString());
    }
    long long value = 0;
    if (sqlite3_step(stmt) == SQLITE_ROW) {
        value = sqlite3_column_int64(stmt, 0);
    }
    sqlite3_finalize(stmt);
    return value;
}
