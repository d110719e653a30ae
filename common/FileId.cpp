#include "common/FileId.h"

#include <QFile>

#include <sys/stat.h>

std::optional<FileId> fileIdOf(const QString& path) {
    struct stat info {};
    if (path.isEmpty() || ::stat(QFile::encodeName(path).constData(), &info) != 0) {
        return std::nullopt;
    }
    return FileId{static_cast<unsigned long long>(info.st_dev),
                  static_cast<unsigned long long>(info.st_ino)};
}
