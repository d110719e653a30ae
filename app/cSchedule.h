#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <cstdint>

#include "common/Recordset.h"

// One schedule of a job while it is looked at or edited: one row of tAutoJobSchedule.
// The codes are a contract with the agent service that runs the jobs (schedule/ScheduleCodes.h).
class cSchedule {
  public:
    QString psName;
    std::uint8_t pbyAktiviert = 0;
    std::int32_t plFrequencyType = 0;
    std::int32_t plFrequencyRecurreFactor = 0;
    std::int32_t plFrequencyIntervall = 0;
    std::int32_t plFrequencyRelativeIntervall = 0;
    std::int32_t plFrequencySubDayIntervall = 0;
    std::int32_t plFrequencySubDay = 0;
    // Decimal HHMMSS: digit text while a dialog holds it, a number once read from the table.
    QVariant pvActiveStartTimeOfDay;
    QVariant pvActiveEndTimeOfDay;
    QDateTime pdtActiveStartDate = zeroDate();
    // 9999-12-31 stands for "no end date".
    QDateTime pdtActiveEndDate = zeroDate();
};
