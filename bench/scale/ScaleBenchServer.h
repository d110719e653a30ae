#pragma once

#include <QString>
#include <functional>

// The scale bench on a PostgreSQL server (the one the PG* environment names): its data sets
// as databases of their own on the server, kept between runs like the cache files, and the
// raw side of each measurement as plain queries through QtSql's QPSQL driver. Failures throw
// RaisedError.
namespace ScaleBenchServer {

// `postgresql:///name`: everything else from the environment.
QString address(const QString& database);
// "PostgreSQL 15.4 auf /run/postgresql:5432", for the output.
QString describe();

// The database of that name, made by make(address) when the server does not have it yet. It
// is made under a name of its own and renamed when whole, then vacuumed and analyzed, so that
// a run broken off never leaves half a data set behind under the final name.
QString dataSet(const QString& database, const std::function<void(const QString&)>& make);
// A fresh copy of a database, replacing any database of the copy's name.
void copy(const QString& from, const QString& to);
void drop(const QString& database);

struct Timed {
    double ms = 0;
    qint64 rows = 0;
};
// Connecting and reading the job list view's first limit rows (all rows for -1).
Timed rawList(const QString& address, qint64 limit);
// The runs of job 1 since start ('yyyy-MM-dd HH:mm:ss'), connected beforehand.
Timed rawHistory(const QString& address, const QString& start);
// The statement run as it is, connected beforehand; rows is the number of rows it deleted.
Timed rawDelete(const QString& address, const QString& sql);

}  // namespace ScaleBenchServer
