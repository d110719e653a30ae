#pragma once

#include "common/FileSystem.h"

// The machine's own file system.
class LocalFileSystem : public FileSystemObject {
  public:
    bool FileExists(const QString& path) override;
    bool FolderExists(const QString& path) override;
    QStringList Files(const QString& folder) override;
    qint64 FileSize(const QString& path) override;
    QDateTime DateLastModified(const QString& path) override;
    bool CreateFolder(const QString& path) override;
    QDateTime DateCreated(const QString& path) override;
};
