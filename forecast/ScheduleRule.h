#pragma once

#include <QDate>
#include <QString>
#include <cstdint>

// The codes of one row of tAutoJobSchedule that decide when the agent starts the job.
struct ScheduleRule {
    std::int32_t lFreqencyType = 0;
    std::int32_t lFrequencyInterval = 0;
    std::int32_t lFrequencyRecurrenceFactor = 0;
    std::int32_t lFrequencyRelativeInterval = 0;
    std::int32_t lFrequencySubDay = 0;
    std::int32_t lFrequencySubDayinterval = 0;
    std::int32_t lActiveStartTimeOfDay = 0;  // decimal HHMMSS
    std::int32_t lActiveEndTimeOfDay = 0;
    QDate dActiveStartDate;
    QDate dActiveEndDate;  // 9999-12-31: no end
};

// Why the rule gives no run at all: codes outside their tables, a zero interval or factor,
// a time that is none, an end before the start. Empty when the rule is sound.
QString ruleFault(const ScheduleRule& rule);
