#include "suite/SqliteFileLocks.h"

#include <QByteArrayList>

#include <cstdio>
#include <optional>

#include <sys/sysmacros.h>
#include <unistd.h>

namespace SqliteFileLocks {

namespace {

// /proc/locks reports a size of 0: read it to its end in pieces.
std::optional<QByteArray> readProcLocks() {
    std::FILE* file = std::fopen("/proc/locks", "re");
    if (file == nullptr) {
        return std::nullopt;
    }
    QByteArray text;
    char buffer[8192];
    size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
        text.append(buffer, static_cast<qsizetype>(n));
    }
    std::fclose(file);
    return text;
}

}  // namespace

// A line: "1: POSIX  ADVISORY  READ 3336 fe:00:10952905 1073741826 1073742335"; a waiting
// request has "->" after the number and holds nothing.
bool holds(const QByteArray& procLocks, long long pid, FileId file) {
    const QByteArray device = QByteArray::number(major(file.device), 16).rightJustified(2, '0') +
                              ':' +
                              QByteArray::number(minor(file.device), 16).rightJustified(2, '0');
    const QByteArray where = device + ':' + QByteArray::number(file.inode);
    const QByteArray owner = QByteArray::number(pid);
    for (const QByteArray& line : procLocks.split('\n')) {
        const QByteArrayList fields = line.simplified().split(' ');
        if (fields.size() < 6 || fields[1] != "POSIX") {
            continue;
        }
        if (fields[4] == owner && fields[5] == where) {
            return true;
        }
    }
    return false;
}

State ofThisProcess(const QString& databasePath) {
    const auto database = fileIdOf(databasePath);
    const auto shm = fileIdOf(databasePath + QStringLiteral("-shm"));
    if (!database || !shm) {
        return State::Lost;  // the files went away beneath the connection
    }
    const auto locks = readProcLocks();
    if (!locks) {
        return State::Unknown;
    }
    const long long pid = ::getpid();
    return holds(*locks, pid, *database) && holds(*locks, pid, *shm) ? State::Held : State::Lost;
}

}  // namespace SqliteFileLocks
