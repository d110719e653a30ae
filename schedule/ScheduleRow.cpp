#include "schedule/ScheduleRow.h"

#include <QString>
#include <limits>

#include "app/cSchedule.h"
#include "common/ErrObject.h"
#include "common/Recordset.h"

std::int32_t alsLong32(long lWert) {
    if (lWert < std::numeric_limits<std::int32_t>::min() ||
        lWert > std::numeric_limits<std::int32_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::int32_t>(lWert);
}

std::uint8_t alsByte(long lWert) {
    if (lWert < 0 || lWert > std::numeric_limits<std::uint8_t>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<std::uint8_t>(lWert);
}

void leseZeitplanWiederholung(CRecordset& oTL, cSchedule& o) {
    o.plFrequencyType = alsLong32(oTL.ReadLong(QStringLiteral("FreqencyType")));
    o.plFrequencySubDay = alsLong32(oTL.ReadLong(QStringLiteral("FrequencySubDay")));
    o.plFrequencyIntervall = alsLong32(oTL.ReadLong(QStringLiteral("FrequencyInterval")));
    o.plFrequencyRecurreFactor =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencyRecurrenceFactor")));
    o.plFrequencyRelativeIntervall =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencyRelativeInterval")));
    o.pvActiveStartTimeOfDay = alsLong32(oTL.ReadLong(QStringLiteral("ActiveStartTimeOfDay")));
    o.plFrequencySubDayIntervall =
        alsLong32(oTL.ReadLong(QStringLiteral("FrequencySubDayinterval")));
    o.pdtActiveStartDate = oTL.ReadDate(QStringLiteral("ActiveStartDate"));
    o.pvActiveEndTimeOfDay = alsLong32(oTL.ReadLong(QStringLiteral("ActiveEndTimeOfDay")));
    o.pdtActiveEndDate = oTL.ReadDate(QStringLiteral("ActiveEndDate"));
}
