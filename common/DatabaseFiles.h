#pragma once

#include <QString>

// The SQLite database files this process has open. SQLite's locks on them belong to the
// process, and closing any other descriptor of those files drops them: nothing in the program
// but SQLite may open the database, its -wal, -shm or -journal. Every place that opens a file
// the user named asks here first.
namespace DatabaseFiles {

// Kept by the database connection from its opening to its closing; a path may be opened
// more than once.
void opened(const QString& databasePath);
void closed(const QString& databasePath);

// True when path names an open database file or one of its companions, by name or as the
// same file under another name (a link). Looks only at names and the file's identity, never
// at its content.
bool isDatabaseFile(const QString& path);

// The refusal told to the user, in the system's words, and its number: "Fehler beim Zugriff
// auf Pfad/Datei" of the classic runtime.
QString refusal(const QString& path);
constexpr long kRefusalNumber = 75;

// Raises the refusal, under source, when path is a database file.
void refuse(const QString& path, const QString& source = QString());

}  // namespace DatabaseFiles
