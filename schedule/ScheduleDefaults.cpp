#include "schedule/ScheduleDefaults.h"

#include "app/cSchedule.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleTime.h"

QString standardZeitplanName(long lZeilenGrdZeitplan) {
    return QStringLiteral("Zeitplan") +
           QStringLiteral("%1").arg(lZeilenGrdZeitplan, 2, 10, QLatin1Char('0'));
}

void setzeStandardZeitplan(cSchedule& oSchedule, long lZeilenGrdZeitplan,
                           const QDateTime& dtJetzt) {
    oSchedule.psName = standardZeitplanName(lZeilenGrdZeitplan);
    oSchedule.pbyAktiviert = 1;
    oSchedule.plFrequencyType = Haeufigkeit::kWoechentlich;
    oSchedule.plFrequencyRecurreFactor = 1;
    oSchedule.plFrequencyIntervall = WochentagBit::kSonntag;
    oSchedule.plFrequencyRelativeIntervall = 0;
    oSchedule.plFrequencySubDayIntervall = 1;
    oSchedule.plFrequencySubDay = TagesEinheit::kEinmalig;
    oSchedule.pvActiveStartTimeOfDay = kMitternacht;
    oSchedule.pvActiveEndTimeOfDay = kTagesende;
    oSchedule.pdtActiveStartDate = tagesBeginn(dtJetzt);
    oSchedule.pdtActiveEndDate = keinEndDatum();
}

void setzeWiederholungZurueck(cSchedule& oSchedule) {
    oSchedule.plFrequencyType = 0;
    oSchedule.plFrequencyRecurreFactor = 0;
    oSchedule.plFrequencyIntervall = 0;
    oSchedule.plFrequencyRelativeIntervall = 0;
    oSchedule.plFrequencySubDayIntervall = 0;
    oSchedule.plFrequencySubDay = 0;
}
