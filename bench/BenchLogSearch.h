#pragma once

#include <QString>
#include <functional>

// The viewer's search measured beside the raw query on the same full-text index: its first
// screen for a word in 0.1 % of the entries and for a word in none, in the job log. `viewer`
// opens the job log's browser on the statement and shows its first screen; `count` and `rows`
// run the raw side. Prints one line each.
namespace BenchLogSearch {

void measure(bool onServer, const std::function<void(const QString& statement)>& viewer,
             const std::function<void(const QString& sql)>& raw,
             const std::function<double(int runs, const std::function<void()>&)>& best,
             const std::function<void(const char*, double, double, const char*)>& line, int screen);

// The agent writing 1,000 entries into an empty log with the full-text index and without it,
// each entry committed on its own and all in one transaction. SQLite only.
void measureUpkeep(const QString& emptyPath,
                   const std::function<void(const char*, double, double, const char*)>& line);

}  // namespace BenchLogSearch
