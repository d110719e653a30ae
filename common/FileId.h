#pragma once

#include <QString>
#include <optional>

// A file by the device and inode that stat gives: the same file under any of its names, and a
// different one once it was deleted or replaced.
struct FileId {
    unsigned long long device = 0;
    unsigned long long inode = 0;
    bool operator==(const FileId&) const = default;
};

// The identity of the file at path; none when there is no such file.
std::optional<FileId> fileIdOf(const QString& path);
