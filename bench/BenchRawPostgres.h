#pragma once

#include <QString>
#include <QStringList>

// The server itself as the yardstick: plain statements through QtSql's QPSQL driver on one
// connection of its own, every row of a result read with every column, as a program using
// QtSql directly would. Failures throw RaisedError.
class RawPostgres {
  public:
    // `address` as the program takes it (`postgresql:///name`, the rest from the PG*
    // environment).
    explicit RawPostgres(const QString& address);
    ~RawPostgres();
    RawPostgres(const RawPostgres&) = delete;
    RawPostgres& operator=(const RawPostgres&) = delete;

    // Runs the statement; gives the rows it returned, or the rows it changed for a DELETE.
    long long run(const QString& sql);
    // The first column of the first row as a number.
    long long number(const QString& sql);
    // The first column of every row as text.
    QStringList texts(const QString& sql);

  private:
    QString connection_;
};
