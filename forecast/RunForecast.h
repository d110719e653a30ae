#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>
#include <functional>

#include "forecast/LocalClock.h"
#include "forecast/ScheduleRule.h"

// One start of a job as the agent makes it.
struct ForecastRun {
    qint64 utc = 0;      // the moment, seconds since 1970 UTC
    qint64 wall = 0;     // what the local clock shows then (LocalClock)
    qint64 planned = 0;  // the reading the schedule asked for; differs from wall when a clock
                         // change moved the start or merged it with an earlier one
    bool moved() const { return planned != wall; }
};

namespace RunForecast {

// The starts of the rule at or after fromUtc and before toUtc, ascending; at most limit of
// them when limit is above 0. A rule with a fault (ruleFault) gives none.
//
// The days from ActiveStartDate to ActiveEndDate that the frequency type picks open a window:
// type 1 the start date alone; 4 every FrequencyInterval-th day from the start date; 8 the
// weekdays of the mask in every FrequencyRecurrenceFactor-th week (Sunday to Saturday) from
// the start date's week; 16 day FrequencyInterval (the last day of a shorter month) and 32
// the FrequencyRelativeInterval-th weekday code FrequencyInterval, both in every
// FrequencyRecurrenceFactor-th month from the start date's month. A window starts once at
// ActiveStartTimeOfDay (sub-day unit 1, and always for type 1) or every
// FrequencySubDayinterval minutes (4) or hours (8) from it up to and including
// ActiveEndTimeOfDay; an end before the start carries the window past midnight. Readings of
// the local clock become moments as LocalClock::at says; readings that meet at one moment
// start once.
QList<ForecastRun> runs(const ScheduleRule& rule, qint64 fromUtc, qint64 toUtc, LocalClock& clock,
                        int limit = 0);

// The same starts handed one by one to take, until it gives false.
void eachRun(const ScheduleRule& rule, qint64 fromUtc, qint64 toUtc, LocalClock& clock,
             const std::function<bool(const ForecastRun&)>& take);

// "Mo 30.03.2026 03:00", the list's form of a start.
QString runText(const ForecastRun& run);
// "Zeitumstellung: 02:30 → 03:00" for a start that a clock change moved; empty otherwise.
QString changeText(const ForecastRun& run);
// "yyyy-MM-dd HH:mm:ss" of a wall clock reading.
QString storedText(qint64 wall);

}  // namespace RunForecast
