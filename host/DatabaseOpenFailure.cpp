#include "host/DatabaseOpenFailure.h"

#include <QDir>
#include <QFileInfo>

#include "common/PlatformUi.h"

namespace {

// SQLite's primary result codes that have a cause of their own for the user.
constexpr long kReadOnly = 8;
constexpr long kCantOpen = 14;
constexpr long kNotADatabase = 26;

QString cause(const QString& path, long number) {
    const QFileInfo file(path);
    if (number == kNotADatabase) {
        return QStringLiteral(
            "Die Datei ist keine Datenbank dieses Programms oder sie ist "
            "beschädigt. Sie bleibt unverändert.");
    }
    if (number == kReadOnly) {
        return QStringLiteral(
            "Die Datei ist schreibgeschützt. Ohne Schreibrecht können "
            "Aufträge und Zeitpläne nicht gespeichert werden; das Programm "
            "öffnet sie deshalb nicht.");
    }
    if (!file.exists()) {
        return QStringLiteral(
                   "Die Datei kann im Verzeichnis %1 nicht angelegt werden. Bitte "
                   "prüfen Sie, ob das Verzeichnis besteht und beschrieben werden "
                   "darf.")
            .arg(QDir::toNativeSeparators(file.absolutePath()));
    }
    if (number == kCantOpen) {
        return QStringLiteral(
            "Die Datei kann nicht geöffnet werden. Bitte prüfen Sie die "
            "Zugriffsrechte auf die Datei und ihr Verzeichnis.");
    }
    return QStringLiteral("Beim Öffnen ist ein Fehler aufgetreten.");
}

}  // namespace

QString databaseOpenFailureText(const QString& path, const ErrObject& error) {
    const QString message = error.Description.section(u'\r', 0, 0).section(u'\n', 0, 0);
    return QStringLiteral(
               "Die Datenbank %1 kann nicht geöffnet werden.\r\n\r\n%2\r\n\r\n"
               "Meldung der Datenbank (Nr. %3): %4\r\n\r\nDas Programm wird beendet.")
        .arg(QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()),
             cause(path, error.Number))
        .arg(error.Number)
        .arg(message.trimmed());
}

void showDatabaseOpenFailure(PlatformUi& ui, const QString& text) {
    ui.MsgBox(text, 16, QStringLiteral("Konfiguration automatischer Aufträge"));
}
