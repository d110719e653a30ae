#include "jobs/Zusatzinfo.h"

#include <QStringList>

#include "app/VariantConvert.h"
#include "jobs/JobTypes.h"

namespace {

const QChar kTrenner = QLatin1Char('|');

bool mitMitarbeiter(long lDatenArt) {
    switch (lDatenArt) {
        case DatenArt::Buchungen:
        case DatenArt::Kunden:
        case DatenArt::Lieferanten:
        case DatenArt::KestoDirekt:
            return true;
        default:
            return false;
    }
}

}  // namespace

Zusatzinfo zusatzinfoLesen(long lDatenArt, const QString& sZusatzinfo) {
    Zusatzinfo werte;
    if (mitMitarbeiter(lDatenArt)) {
        werte.lMitarbeiterId = leadingNumber(sZusatzinfo);
    } else if (lDatenArt == DatenArt::Nivora) {
        werte.lHaendlerSchluessel = leadingNumber(sZusatzinfo);
    } else if (lDatenArt == DatenArt::Textdatei) {
        const QStringList felder = sZusatzinfo.split(kTrenner);
        werte.lMitarbeiterId = leadingNumber(felder.value(0));
        werte.sSkript = felder.value(1);
        werte.sTextdateien = felder.value(2);
    }
    return werte;
}

QString zusatzinfoSchreiben(long lDatenArt, const Zusatzinfo& werte) {
    if (mitMitarbeiter(lDatenArt)) {
        return QString::number(werte.lMitarbeiterId);
    }
    if (lDatenArt == DatenArt::Nivora) {
        return QString::number(werte.lHaendlerSchluessel);
    }
    if (lDatenArt == DatenArt::Textdatei) {
        return QString::number(werte.lMitarbeiterId) + kTrenner + werte.sSkript + kTrenner +
               werte.sTextdateien;
    }
    return {};
}

QString zusatzinfoMitVorgabe(long lDatenArt, const QString& sZusatzinfo, long lPsIdMitarbeiter) {
    if (sZusatzinfo.isEmpty() && (mitMitarbeiter(lDatenArt) || lDatenArt == DatenArt::Textdatei)) {
        return QString::number(lPsIdMitarbeiter);
    }
    return sZusatzinfo;
}
