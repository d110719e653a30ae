#include "suite/LocalFileSystem.h"

#include <QDir>
#include <QFileInfo>

bool LocalFileSystem::FileExists(const QString& path) {
    return QFileInfo(path).isFile();
}

bool LocalFileSystem::FolderExists(const QString& path) {
    return QFileInfo(path).isDir();
}

QStringList LocalFileSystem::Files(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

qint64 LocalFileSystem::FileSize(const QString& path) {
    return QFileInfo(path).size();
}

QDateTime LocalFileSystem::DateLastModified(const QString& path) {
    return QFileInfo(path).lastModified();
}

// Missing parents are made along with the folder: a fresh installation has none of them.
bool LocalFileSystem::CreateFolder(const QString& path) {
    return QDir().mkpath(path);
}

// Where the file system keeps no birth time, the last change of the file's metadata.
QDateTime LocalFileSystem::DateCreated(const QString& path) {
    const QFileInfo info(path);
    const QDateTime birth = info.birthTime();
    return birth.isValid() ? birth : info.metadataChangeTime();
}
