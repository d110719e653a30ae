#pragma once

#include <QString>
#include <optional>

class Database;

// The change journal of jobs and schedules as CSV for auditors: semicolon-separated, UTF-8,
// a header line with German column names, one line per change in the order they were made.
namespace JournalCsv {

// The journal of one job (with its schedules) or, without an id, of all jobs.
QString text(Database& database, std::optional<long> jobId);

// --journal [JOB_ID]: writes the CSV to standard output; gives the program's exit code. An
// argument that is not a job id is reported on standard error and nothing is written.
int command(Database& database, const QString& jobArgument);

}  // namespace JournalCsv
