#include "common/DatabaseFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <mutex>

#include "common/ErrObject.h"
#include "common/FileId.h"

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
    const std::optional<FileId> first = fileIdOf(a);
    return first && first == fileIdOf(b);
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

void refuse(const QString& path, const QString& source) {
    if (isDatabaseFile(path)) {
        throw RaisedError(kRefusalNumber, refusal(path), source);
    }
}

}  // namespace DatabaseFiles
