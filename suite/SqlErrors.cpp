#include "suite/SqlErrors.h"

namespace SqlErrors {

namespace {
// A text, then on a line of its own what follows it (the statement, the driver's words).
QString withStatement(const QString& text, const QString& sql) {
    return sql.isEmpty() ? text : text + QStringLiteral("\r\n") + sql.trimmed();
}
}  // namespace

RaisedError raised(long number, const QString& description) {
    return RaisedError(number, description, QString::fromLatin1(source));
}

RaisedError lockWait(long number, const QString& driverText) {
    return raised(number, withStatement(kLockWait, driverText));
}

RaisedError serverAway(const QString& driverText) {
    return raised(CantOpen, withStatement(kServerAway, driverText));
}

RaisedError serverBack(const QString& driverText) {
    return raised(CantOpen,
                  withStatement(QStringLiteral("Die Verbindung zum Datenbankserver war "
                                               "unterbrochen und ist wieder hergestellt. Bitte "
                                               "wiederholen Sie die Aktion; Ihre Eingaben bleiben "
                                               "erhalten."),
                                driverText));
}

RaisedError fromDriver(const QSqlError& error, const QString& sql) {
    bool ok = false;
    // The primary result code; the connection reports extended ones.
    long number = error.nativeErrorCode().toLong(&ok) & 0xff;
    if (!ok || number == 0) {
        number = ErrNumber::Database;
    }
    QString text = error.databaseText().trimmed();
    const QString driverText = error.driverText().trimmed();
    if (text.isEmpty()) {
        text = driverText;
    } else if (!driverText.isEmpty()) {
        text += QStringLiteral(" (") + driverText + u')';
    }
    // SQLITE_BUSY and SQLITE_LOCKED: another connection kept its lock past the wait.
    if (number == 5 || number == 6) {
        return lockWait(number, text);
    }
    return raised(number, withStatement(text, sql));
}

RaisedError typeMismatch(const QString& field) {
    return raised(ErrNumber::TypeMismatch,
                  QStringLiteral("Typen unverträglich (Feld \"%1\")").arg(field));
}

RaisedError overflow(const QString& field) {
    return raised(Overflow, QStringLiteral("Überlauf (Feld \"%1\")").arg(field));
}

RaisedError unknownField(const QString& field) {
    return raised(
        NotInCollection,
        QStringLiteral("Element wurde nicht in der Auflistung gefunden (Feld \"%1\")").arg(field));
}

RaisedError noCurrentRecord() {
    return raised(NoCurrentRecord,
                  QStringLiteral("Kein aktueller Datensatz: BOF oder EOF ist True, oder der "
                                 "aktuelle Datensatz wurde gelöscht."));
}

RaisedError notUpdatable(const QString& sql) {
    return raised(
        NotUpdatable,
        withStatement(QStringLiteral("Das Recordset unterstützt keine Aktualisierung."), sql));
}

RaisedError objectClosed() {
    return raised(ObjectClosed,
                  QStringLiteral("Der Vorgang ist für ein geschlossenes Objekt nicht zulässig."));
}

RaisedError noConnection() {
    return raised(NoConnection, QStringLiteral("Die Verbindung zur Datenbank besteht nicht."));
}

RaisedError invalidArgument(const QString& what, long value) {
    return raised(InvalidArgument,
                  QStringLiteral("Ungültiges Argument: %1 %2").arg(what).arg(value));
}

RaisedError moreThanOneStatement(const QString& sql) {
    return raised(ErrNumber::Database,
                  withStatement(QStringLiteral("Mehr als eine Anweisung in einem Aufruf; keine "
                                               "wurde ausgeführt."),
                                sql));
}

}  // namespace SqlErrors
