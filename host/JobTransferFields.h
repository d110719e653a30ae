#pragma once

#include <QString>

#include "common/ErrObject.h"
#include "jobs/JobTypes.h"

// The keys of the job transfer document and the small conversions both directions share.
namespace JobTransfer {

namespace Key {
inline const QString kFormat = QStringLiteral("format");
inline const QString kVersion = QStringLiteral("version");
inline const QString kAuftraege = QStringLiteral("auftraege");
inline const QString kName = QStringLiteral("name");
inline const QString kAuftragsart = QStringLiteral("auftragsart");
inline const QString kBeschreibung = QStringLiteral("beschreibung");
inline const QString kAktiviert = QStringLiteral("aktiviert");
inline const QString kVerzeichnis1 = QStringLiteral("verzeichnis1");
inline const QString kVerzeichnis2 = QStringLiteral("verzeichnis2");
inline const QString kVerzeichnis3 = QStringLiteral("verzeichnis3");
inline const QString kMandant = QStringLiteral("mandant");
inline const QString kMandKanz = QStringLiteral("mandKanz");
inline const QString kMitarbeiter = QStringLiteral("mitarbeiter");
inline const QString kHaendlerSchluessel = QStringLiteral("haendlerSchluessel");
inline const QString kSkript = QStringLiteral("skript");
inline const QString kTextdateien = QStringLiteral("textdateien");
inline const QString kEinzelLog = QStringLiteral("einzelLog");
inline const QString kFremdFormat = QStringLiteral("fremdFormat");
inline const QString kFremdDateifilter = QStringLiteral("fremdDateifilter");
inline const QString kFremdMapping = QStringLiteral("fremdMapping");
inline const QString kZeitplaene = QStringLiteral("zeitplaene");
inline const QString kTyp = QStringLiteral("typ");
inline const QString kIntervall = QStringLiteral("intervall");
inline const QString kWiederholung = QStringLiteral("wiederholung");
inline const QString kRelativesIntervall = QStringLiteral("relativesIntervall");
inline const QString kTagesEinheit = QStringLiteral("tagesEinheit");
inline const QString kTagesIntervall = QStringLiteral("tagesIntervall");
inline const QString kStartZeit = QStringLiteral("startZeit");
inline const QString kEndZeit = QStringLiteral("endZeit");
inline const QString kStartDatum = QStringLiteral("startDatum");
inline const QString kEndDatum = QStringLiteral("endDatum");
}  // namespace Key

// The job types whose extra information names a staff member.
inline bool zusatzinfoMitMitarbeiter(long art) {
    return art == DatenArt::Buchungen || art == DatenArt::Kunden || art == DatenArt::Lieferanten ||
           art == DatenArt::KestoDirekt || art == DatenArt::Textdatei;
}

// A time of day stored as decimal HHMMSS, as "HH:MM:SS".
inline QString timeText(int hhmmss) {
    return QStringLiteral("%1:%2:%3")
        .arg(hhmmss / 10000, 2, 10, QLatin1Char('0'))
        .arg(hhmmss / 100 % 100, 2, 10, QLatin1Char('0'))
        .arg(hhmmss % 100, 2, 10, QLatin1Char('0'));
}

[[noreturn]] inline void raiseError(const QString& text) {
    throw RaisedError(1, text, QStringLiteral("JobTransfer"));
}

}  // namespace JobTransfer
