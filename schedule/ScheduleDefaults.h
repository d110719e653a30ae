#pragma once

#include <QDateTime>
#include <QString>

class cSchedule;

// What the schedule dialog shows for a new repeating schedule until the user has opened the
// recurrence dialog once. It has no blank after "1.", unlike the sentence of the same values.
inline const QString kStandardIntervallText =
    QStringLiteral("Jede 1.Woche am Sonntag, um 00:00:00");

// "Zeitplan" and the row count of the schedule grid, header row included, in two digits.
QString standardZeitplanName(long lZeilenGrdZeitplan);

// A new schedule: weekly, every week, on Sunday, once a day at 00:00:00, active from the day
// of dtJetzt without end.
void setzeStandardZeitplan(cSchedule& oSchedule, long lZeilenGrdZeitplan, const QDateTime& dtJetzt);

// Zeroes the recurrence fields so that no column keeps a value of an earlier frequency type.
// Name, active flag, times and dates stay.
void setzeWiederholungZurueck(cSchedule& oSchedule);
