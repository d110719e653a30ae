#include "jobs/ClientKinds.h"

#include "jobs/JobTypes.h"

namespace {
constexpr long kAktenTypMandantenUndKanzleien = 4;
}

QString mandKanzText(long lMandKanz) {
    switch (lMandKanz) {
        case MandKanz::Mandant:
            return QStringLiteral("Mandant");
        case MandKanz::Kanzlei:
            return QStringLiteral("Kanzlei");
        case MandKanz::AlleMandanten:
            return QStringLiteral("Alle Mandanten");
        case MandKanz::AlleKanzleien:
            return QStringLiteral("Alle Kanzleien");
        case MandKanz::AlleMandantenKanzleien:
            return QStringLiteral("Alle Mandanten/Kanzleien");
        default:
            return {};
    }
}

bool mandKanzFuerAlle(long lMandKanz) {
    return lMandKanz >= MandKanz::AlleMandanten && lMandKanz <= MandKanz::AlleMandantenKanzleien;
}

bool mandKanzAlleAngeboten(long lDatenArt, long lAktenTyp) {
    if (lAktenTyp != kAktenTypMandantenUndKanzleien) {
        return false;
    }
    switch (lDatenArt) {
        case DatenArt::Buchungen:
        case DatenArt::Wirtschaftsgueter:
        case DatenArt::ScanDokumente:
        case DatenArt::Verschlagwortung:
        case DatenArt::Textdatei:
            return true;
        default:
            return false;
    }
}
