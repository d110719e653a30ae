#include "logdata/LogDatenSuche.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

const QString kAnsicht = QStringLiteral("SYS_JobAgentLogDaten_Anzeigen");

QString tagLiteral(const QDate& d) {
    return u'\'' + d.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(" 00:00:00'");
}

}  // namespace

namespace logsuche {

QStringList woerter(const QString& sEingabe) {
    static const QRegularExpression trenner(QStringLiteral("[^\\p{L}\\p{N}]+"));
    QStringList ergebnis;
    for (const QString& w : sEingabe.split(trenner, Qt::SkipEmptyParts)) {
        if (!ergebnis.contains(w, Qt::CaseInsensitive)) {
            ergebnis << w;
        }
    }
    return ergebnis;
}

std::optional<QDate> tag(const QString& sEingabe) {
    const QString s = sEingabe.trimmed();
    if (s.isEmpty()) {
        return QDate();
    }
    static const QRegularExpression form(QStringLiteral("^(\\d{1,2})\\.(\\d{1,2})\\.(\\d{4})$"));
    const QRegularExpressionMatch m = form.match(s);
    if (!m.hasMatch()) {
        return std::nullopt;
    }
    const QDate d(m.captured(3).toInt(), m.captured(2).toInt(), m.captured(1).toInt());
    if (!d.isValid()) {
        return std::nullopt;
    }
    return d;
}

QString msBedingung(const QStringList& woerter, const QDate& dtVon, const QDate& dtBis) {
    QString sBedingung;
    if (!woerter.isEmpty()) {
        QStringList begriffe;
        for (const QString& w : woerter) {
            begriffe << u'"' + w + QStringLiteral("*\"");
        }
        sBedingung += QStringLiteral(" AND (CONTAINS(") + kAnsicht + QStringLiteral(".*, N'") +
                      begriffe.join(QStringLiteral(" AND ")) + QStringLiteral("'))");
    }
    if (dtVon.isValid()) {
        sBedingung += QStringLiteral(" AND (") + kAnsicht + QStringLiteral(".[Datum/Uhrzeit] >= ") +
                      tagLiteral(dtVon) + u')';
    }
    if (dtBis.isValid()) {
        sBedingung += QStringLiteral(" AND (") + kAnsicht + QStringLiteral(".[Datum/Uhrzeit] < ") +
                      tagLiteral(dtBis.addDays(1)) + u')';
    }
    return sBedingung;
}

QString msTreffer(long lAnzahl) {
    return QLocale(QLocale::German).toString(static_cast<qlonglong>(lAnzahl)) +
           QStringLiteral(" Treffer");
}

}  // namespace logsuche
