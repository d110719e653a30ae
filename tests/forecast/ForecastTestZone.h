#pragma once

#include <QDateTime>
#include <QTimeZone>

#include "forecast/LocalClock.h"
#include "forecast/ScheduleRule.h"

// The tests compute in Europe/Berlin whatever the machine's zone.
inline QTimeZone berlin() {
    return QTimeZone(QByteArrayLiteral("Europe/Berlin"));
}

inline qint64 utcOf(const char* isoLocal) {
    return QDateTime(QDateTime::fromString(QString::fromLatin1(isoLocal), Qt::ISODate).date(),
                     QDateTime::fromString(QString::fromLatin1(isoLocal), Qt::ISODate).time(),
                     berlin())
        .toSecsSinceEpoch();
}

inline ScheduleRule rule(std::int32_t typ, std::int32_t intervall, std::int32_t faktor,
                         std::int32_t relativ, std::int32_t einheit, std::int32_t tagesIntervall,
                         std::int32_t start, std::int32_t ende, QDate von,
                         QDate bis = QDate(9999, 12, 31)) {
    ScheduleRule r;
    r.lFreqencyType = typ;
    r.lFrequencyInterval = intervall;
    r.lFrequencyRecurrenceFactor = faktor;
    r.lFrequencyRelativeInterval = relativ;
    r.lFrequencySubDay = einheit;
    r.lFrequencySubDayinterval = tagesIntervall;
    r.lActiveStartTimeOfDay = start;
    r.lActiveEndTimeOfDay = ende;
    r.dActiveStartDate = von;
    r.dActiveEndDate = bis;
    return r;
}
