#pragma once

#include <QString>

#include "common/FileId.h"

// SQLite in WAL mode holds, for as long as a connection is open, a read lock on the database
// file and one on its -shm. These are POSIX advisory locks: they belong to the process, and
// closing any descriptor of those files, opened by anything in the process, drops them all.
// Another program then takes the database for unused and deletes its -wal and -shm under this
// one, whose saves from then on go into deleted files. This tells, from the kernel's list of
// locks, whether this process still holds both.
namespace SqliteFileLocks {

enum class State {
    Held,
    Lost,
    Unknown,  // the kernel's list of locks cannot be read (not Linux)
};

// The locks of this process on databasePath and databasePath + "-shm".
State ofThisProcess(const QString& databasePath);

// The same from a text in the form of /proc/locks, for the process pid and one file.
bool holds(const QByteArray& procLocks, long long pid, FileId file);

}  // namespace SqliteFileLocks
