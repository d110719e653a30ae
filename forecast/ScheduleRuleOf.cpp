#include "forecast/ScheduleRuleOf.h"

#include "app/cSchedule.h"

namespace {

std::int32_t timeOf(const QVariant& v) {
    if (v.isNull() || v.toString().isEmpty()) {
        return 0;
    }
    bool ok = false;
    const qlonglong n = v.toLongLong(&ok);
    return ok && n >= 0 && n <= 235959 ? static_cast<std::int32_t>(n) : -1;
}

}  // namespace

ScheduleRule scheduleRuleOf(const cSchedule& o) {
    ScheduleRule r;
    r.lFreqencyType = o.plFrequencyType;
    r.lFrequencyInterval = o.plFrequencyIntervall;
    r.lFrequencyRecurrenceFactor = o.plFrequencyRecurreFactor;
    r.lFrequencyRelativeInterval = o.plFrequencyRelativeIntervall;
    r.lFrequencySubDay = o.plFrequencySubDay;
    r.lFrequencySubDayinterval = o.plFrequencySubDayIntervall;
    r.lActiveStartTimeOfDay = timeOf(o.pvActiveStartTimeOfDay);
    r.lActiveEndTimeOfDay = timeOf(o.pvActiveEndTimeOfDay);
    r.dActiveStartDate = o.pdtActiveStartDate.date();
    r.dActiveEndDate = o.pdtActiveEndDate.date();
    return r;
}
