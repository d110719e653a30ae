#include "host/DatabaseOpenFailure.h"

#include <QDir>
#include <QFileInfo>

#include "common/PlatformUi.h"
#include "suite/PostgresAddress.h"

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

// A database on a server: no file to blame, the server, the network or the login.
QString serverCause(long number, const QString& message) {
    if (number == kCantOpen && message.contains(u"database") &&
        (message.contains(u"does not exist") || message.contains(u"existiert nicht"))) {
        return QStringLiteral(
            "Diese Datenbank gibt es auf dem Server nicht. Bitte prüfen Sie ihren Namen; eine "
            "neue Datenbank für das Büro legt der Verwalter des Servers an.");
    }
    if (number == kReadOnly) {
        return QStringLiteral(
            "Die Datenbank kann nur gelesen werden. Ohne Schreibrecht können Aufträge und "
            "Zeitpläne nicht gespeichert werden; das Programm öffnet sie deshalb nicht.");
    }
    if (number == kCantOpen) {
        return QStringLiteral(
            "Der Datenbankserver ist nicht erreichbar oder er lässt die Anmeldung nicht zu. "
            "Bitte prüfen Sie die Adresse, den Benutzer und sein Kennwort (~/.pgpass oder "
            "PGPASSWORD) und ob der Server läuft.");
    }
    return QStringLiteral("Beim Öffnen ist ein Fehler aufgetreten.");
}

}  // namespace

QString databaseOpenFailureText(const QString& path, const ErrObject& error) {
    const QString message = error.Description.section(u'\r', 0, 0).section(u'\n', 0, 0);
    QString shown = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    QString why;
    if (PostgresAddress::isAddress(path)) {
        shown = PostgresAddress::withoutPassword(path);
        why = serverCause(error.Number, message);
    } else {
        why = cause(path, error.Number);
    }
    return QStringLiteral(
               "Die Datenbank %1 kann nicht geöffnet werden.\r\n\r\n%2\r\n\r\n"
               "Meldung der Datenbank (Nr. %3): %4\r\n\r\nDas Programm wird beendet.")
        .arg(shown, why)
        .arg(error.Number)
        .arg(message.trimmed());
}

void showDatabaseOpenFailure(PlatformUi& ui, const QString& text) {
    ui.MsgBox(text, 16, QStringLiteral("Konfiguration automatischer Aufträge"));
}
