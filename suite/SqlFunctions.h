#pragma once

struct sqlite3;
class IClock;

// Registers the server's functions on a connection:
//   getdate()             now, from the clock at each call, as 'yyyy-MM-dd HH:mm:ss'
//   datediff(unit, a, b)  unit boundaries crossed from a to b (SqlDates.h); a and b are date
//                         texts or day numbers, NULL gives NULL
//   len(text)             length without trailing blanks
//   set_config(name, value, local) / current_setting(name, missing_ok)
//                         settings of the connection as on the server (the third and second
//                         argument are not used); an unknown name gives NULL
//   COLLATE NOCASE        replaced: texts compare as on the server, without regard to case
//                         (umlauts too) and without trailing blanks
// The clock must outlive the connection. Returns SQLite's result code.
int registerServerFunctions(sqlite3* db, const IClock* clock);
