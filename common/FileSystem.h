#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

// What the system asks of the file system (the script runtime's file system object).
class FileSystemObject {
  public:
    virtual ~FileSystemObject() = default;
    virtual bool FileExists(const QString& path) = 0;
    virtual bool FolderExists(const QString& path) = 0;
    // Names of the files of a folder (no sub-folders), sorted by name.
    virtual QStringList Files(const QString& folder) = 0;
    virtual qint64 FileSize(const QString& path) = 0;
    virtual QDateTime DateLastModified(const QString& path) = 0;
    // A file system that cannot create folders or tell creation times says so: false, and
    // an invalid time.
    virtual bool CreateFolder(const QString&) { return false; }
    virtual QDateTime DateCreated(const QString&) { return {}; }
};

// Starts programs. A program is started with an argument list, never through a shell.
class Shell {
  public:
    virtual ~Shell() = default;
    // Starts without waiting; windowStyle 2 is minimised with focus. False when it could not
    // be started.
    virtual bool Start(const QString& program, const QStringList& arguments, int windowStyle) = 0;
    // Opens a path with the desktop's default handler ("explorer " + path).
    virtual bool Open(const QString& path) = 0;
};
