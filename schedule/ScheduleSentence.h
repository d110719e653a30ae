#pragma once

#include <QString>
#include <cstdint>

class cSchedule;

// The German sentence that describes a schedule in the grid and in the schedule dialog, e.g.
// "Jede 1. Woche am Sonntag, um 00:00:00". Unknown codes leave their piece empty; nothing here
// changes the record or reports anything.
QString intervallText(const cSchedule& oSchedule);

// "am Montag, Mittwoch" for a weekday bit mask, Sunday first; empty for an empty mask.
QString wochentageText(std::int32_t lWochentagBits);

// "1. " ... "4. ", "letzten " for an occurrence code.
QString vorkommenText(std::int32_t lVorkommen);

// "Sonntag" ... "Wochenendtag" for a weekday code of a relative monthly schedule.
QString wochentagCodeText(std::int32_t lWochentagCode);
