#pragma once

#include <QDateTime>
#include <QString>

#include "forecast/ScheduleRule.h"

class IGrid;

// The list "Nächste Ausführungen": a heading and the next ten starts of the rule from jetzt
// on, each with its mark of a clock change, in the machine's time zone; or one row that says
// why there is none (sFehler, else the rule's fault, else no start left).
void naechsteAusfuehrungenFuellen(IGrid& grd, const ScheduleRule& r, const QString& sFehler,
                                  const QDateTime& jetzt);
