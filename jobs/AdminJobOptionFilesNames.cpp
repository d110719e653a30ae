#include "jobs/AdminJobOptionFilesNames.h"

#include <algorithm>

void gStrSplitFileName(const QString& sDatei, QString& sPfad, QString& sName, QString& sExt) {
    const qsizetype lTrenner =
        std::max(sDatei.lastIndexOf(QLatin1Char('/')), sDatei.lastIndexOf(QLatin1Char('\\')));
    sPfad = sDatei.left(lTrenner + 1);
    const QString sRest = sDatei.mid(lTrenner + 1);
    // A leading dot belongs to the name (".profile" has no extension).
    const qsizetype lPunkt = sRest.lastIndexOf(QLatin1Char('.'));
    if (lPunkt > 0) {
        sName = sRest.left(lPunkt);
        sExt = sRest.mid(lPunkt);
    } else {
        sName = sRest;
        sExt.clear();
    }
}

QString extOhnePunkt(const QString& sExt) {
    return sExt.startsWith(QLatin1Char('.')) ? sExt.mid(1) : sExt;
}
