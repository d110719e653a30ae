#pragma once

#include <QDateTime>
#include <QList>
#include <QPair>
#include <QString>

// Files a scenario lays out in its temporary directory. Each function creates the missing
// parent directories, dates the file at the given moment (the scenario's clock) and throws
// ScenarioError naming the path when the file cannot be written.

void makeDirectory(const QString& dir);
// A file of that many bytes.
void makeFile(const QString& path, qint64 size, const QDateTime& modified);

// The binary log of a bookings import: one header record, then one entry record per marker,
// packed, little-endian; only the markers mean anything to the system, the other fields are
// filled with zeros and short texts.
void writeBookingsLog(const QString& path, const QList<int>& markers, const QDateTime& modified);
// The records alone, for the tests.
QByteArray bookingsLogBytes(const QList<int>& markers);

// An import script: one line "<table>=<text file>" per entry, in order.
void writeOptionFile(const QString& path, const QList<QPair<QString, QString>>& entries,
                     const QDateTime& modified);
