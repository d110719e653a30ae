#pragma once

#include "forecast/ScheduleRule.h"

class cSchedule;

// The codes of a schedule record as the forecast reads them; a time that is no number reads
// as -1, which the forecast refuses.
ScheduleRule scheduleRuleOf(const cSchedule& o);
