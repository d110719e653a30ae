#include "app/RowConflict.h"

#include "common/Recordset.h"

namespace RowConflict {

long version(CRecordset& oTL) {
    return oTL.ReadLong(QStringLiteral("Zeilenversion"));
}

QString geaendertFrage(const QString& sWas, const QString& sName, const QString& sMitarbeiter,
                       const QDateTime& dtGeaendert) {
    return sWas + QStringLiteral(" „") + sName + QStringLiteral("“ wurde inzwischen von ") +
           sMitarbeiter + QStringLiteral(" am ") +
           dtGeaendert.toString(QStringLiteral("dd.MM.yyyy")) + QStringLiteral(" um ") +
           dtGeaendert.toString(QStringLiteral("HH:mm:ss")) +
           QStringLiteral(
               " Uhr geändert.\n\nSollen Ihre Eingaben trotzdem gespeichert werden?\n\nJa: Ihre "
               "Eingaben ersetzen diese Änderungen.\nNein: Die gespeicherte Fassung wird "
               "angezeigt, Ihre Eingaben werden verworfen.\nAbbrechen: Weiter bearbeiten.");
}

QString geloeschtFrage(const QString& sWas, const QString& sName) {
    return sWas + QStringLiteral(" „") + sName +
           QStringLiteral(
               "“ wurde inzwischen an einem anderen Arbeitsplatz gelöscht.\n\nSoll er "
               "mit Ihren Eingaben neu angelegt werden?");
}

}  // namespace RowConflict
