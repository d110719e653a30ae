#pragma once

#include <QString>

class RawPostgres;

// The bench's log on a PostgreSQL server: the same entries as BenchLogData writes into the
// file (entry i always gets the same values), written by the server itself from a series.
namespace BenchLogDataServer {

// Applies the program's schema to the (empty) database at `address` and writes the jobs, the
// staff and the entries.
void create(const QString& address, long long total);
// Writes entries from..to (ids) again.
void fill(RawPostgres& db, long long from, long long to, long long total);
// Vacuums and analyzes the log after entries were deleted and written again, so that the
// next run finds the table as it was built: dead rows gone, the visibility map whole (which
// counting through an index relies on) and fresh statistics.
void settle(RawPostgres& db);

}  // namespace BenchLogDataServer
