#pragma once

#include <QSqlError>
#include <QString>

#include "common/ErrObject.h"

// Failures of the database and the record set, raised with the numbers of the suite's data
// library and under its name as source.
namespace SqlErrors {

inline constexpr const char* source = "hdata.CRecordset";

// Numbers of the data library beyond those of common/ErrObject.h.
constexpr long Overflow = 6;
// SQLite's "unable to open": also a server that refuses the connection or is away.
constexpr long CantOpen = 14;
constexpr long InvalidArgument = 3001;
constexpr long NoCurrentRecord = 3021;
constexpr long NotInCollection = 3265;
constexpr long NotUpdatable = 3251;
constexpr long ObjectClosed = 3704;
constexpr long NoConnection = 3709;

RaisedError raised(long number, const QString& description);
// A lock wait that ended without the lock (SQLite busy, a server's lock timeout): what the
// user can do, then the driver's own words on a line of their own; never the statement.
inline const QString kLockWait = QStringLiteral(
    "Die Daten werden gerade an einem anderen Arbeitsplatz gespeichert. Bitte versuchen Sie es "
    "in einigen Sekunden erneut; Ihre Eingaben bleiben erhalten.");
RaisedError lockWait(long number, const QString& driverText);
// The server could not be reached again after the connection was lost: what the user can do,
// then the driver's words on a line of their own.
inline const QString kServerAway = QStringLiteral(
    "Die Verbindung zum Datenbankserver ist unterbrochen. Ihre Eingaben bleiben erhalten; bitte "
    "versuchen Sie es erneut, sobald der Server wieder erreichbar ist.");
RaisedError serverAway(const QString& driverText);
// The connection was lost during a statement that may not be repeated, and is open again.
RaisedError serverBack(const QString& driverText);
// A failure of the driver: number is SQLite's error code, the description names the
// statement.
RaisedError fromDriver(const QSqlError& error, const QString& sql);

RaisedError typeMismatch(const QString& field);
RaisedError overflow(const QString& field);
RaisedError unknownField(const QString& field);
RaisedError noCurrentRecord();
RaisedError notUpdatable(const QString& sql);
RaisedError objectClosed();
RaisedError noConnection();
RaisedError invalidArgument(const QString& what, long value);
RaisedError moreThanOneStatement(const QString& sql);

}  // namespace SqlErrors
