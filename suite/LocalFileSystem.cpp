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
