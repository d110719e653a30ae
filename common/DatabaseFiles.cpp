#include "common/DatabaseFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <mutex>

#include <sys/stat.h>

namespace DatabaseFiles {

namespace {

// The agent of a test works in a thread of its own on its own connection.
std::mutex& guard() {
    static std::mutex m;
    return m;
}

QStringList& openPaths() {
    static QStringList paths;
    return paths;
}

const QStringList& companions() {
    static const QStringList suffixes{QString(), QStringLiteral("-wal"), QStringLiteral("-shm"),
                                      QStringLiteral("-journal")};
    return suffixes;
}

QString absolute(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool sameFile(const QString& a, const QString& b) {
    struct stat first {};
    struct stat second {};
    return ::stat(QFile::encodeName(a).constData(), &first) == 0 &&
           ::stat(QFile::encodeName(b).constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace

void opened(const QString& databasePath) {
    const std::lock_guard lock(guard());
    openPaths() << absolute(databasePath);
}

void closed(const QString& databasePath) {
    const std::lock_guard lock(guard());
    openPaths().removeOne(absolute(databasePath));
}

bool isDatabaseFile(const QString& path) {
    if (path.isEmpty()) {
        return false;
    }
    const QString candidate = absolute(path);
    const std::lock_guard lock(guard());
    for (const QString& database : openPaths()) {
        for (const QString& suffix : companions()) {
            const QString file = database + suffix;
            if (candidate == file || sameFile(candidate, file)) {
                return true;
            }
        }
    }
    return false;
}

QString refusal(const QString& path) {
    return QStringLiteral(
               "Die Datei %1 gehört zur geöffneten Datenbank des Programms. Sie wird "
               "nicht geöffnet, damit die Datenbank keinen Schaden nimmt; bitte "
               "wählen Sie eine andere Datei.")
        .arg(QDir::toNativeSeparators(absolute(path)));
}

}  // namespace DatabaseFiles
