#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

// The search of the log data viewer: the words typed and an optional period become a
// condition on the viewer's statement. A word finds the entries with a word in their texts
// that begins with it, in any case (umlauts included); all words must be found.
namespace logsuche {

// The words of the typed text: letters and digits, everything else separates; each word once.
QStringList woerter(const QString& sEingabe);
// A day typed as "TT.MM.JJJJ" (or with one-digit day and month); empty text gives a null date,
// anything else that is no day nothing.
std::optional<QDate> tag(const QString& sEingabe);
// The condition to append to the viewer's statement, starting with " AND "; empty when there
// are neither words nor days. dtVon and dtBis bound the period by whole days, null for open.
QString msBedingung(const QStringList& woerter, const QDate& dtVon, const QDate& dtBis);
// The line under the search field: the hits, or why the period cannot be read.
QString msTreffer(long lAnzahl);
const QString kTagUngueltig = QStringLiteral("Bitte ein Datum in der Form TT.MM.JJJJ eingeben.");

}  // namespace logsuche
