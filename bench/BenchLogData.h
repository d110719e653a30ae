#pragma once

#include <QString>

class RawSqlite;

// The bench's log: `total` entries of the agent service spread evenly over five years from
// 2021-01-01, types 1 to 3 (six in ten of a job), 300 jobs of every job type, 25 staff
// members and the texts the service writes. Entry i (from 1) always gets the same values, so
// that deleted entries can be written again.
namespace BenchLogData {

constexpr int kJobs = 300;

// Creates the file with the program's schema, the jobs, the staff and the entries.
void create(const QString& path, long long total);
// Writes entries from..to (ids) again.
void fill(RawSqlite& db, long long from, long long to, long long total);

}  // namespace BenchLogData
