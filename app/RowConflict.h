#pragma once

#include <QDateTime>
#include <QString>

class CRecordset;

// Jobs and schedules count the writes of each row in the column Zeilenversion, whoever makes
// them. A window remembers the version it read; on saving it learns what became of the row
// meanwhile and lets the user decide.
namespace RowConflict {

// The version of a row the window has not read from the table (a new job or schedule).
constexpr long kNichtGelesen = -1;

// What the user decided for a row that changed or went since the window read it.
enum class Entscheidung {
    Schreiben,   // the row is as read, or the user's input replaces the other changes
    NeuAnlegen,  // the row is gone; the input becomes a new row
    Verwerfen,   // the stored row is to be shown, the input goes
    Abbrechen,   // nothing is written; the window stays as it is
};

// What became of a save: written, not written with the input kept, or not written with the
// stored row to be shown instead.
enum class Speicherung { Gespeichert, NichtGespeichert, Verworfen };

// The version of the record set's current row.
long version(CRecordset& oTL);

// The questions of a row that changed or went; sWas is "Der Auftrag" or "Der Zeitplan".
QString geaendertFrage(const QString& sWas, const QString& sName, const QString& sMitarbeiter,
                       const QDateTime& dtGeaendert);
QString geloeschtFrage(const QString& sWas, const QString& sName);

}  // namespace RowConflict
