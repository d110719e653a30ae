#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <memory>

#include "forecast/ScheduleRule.h"

class ErrorExit;
class frmAusfuehrungsplan;

// The window "Ausführungsplan": the starts of the active schedules of active jobs over a day,
// a week or a month, each with job, schedule and client; starts of one client within 15
// minutes of each other marked; schedules whose codes give no run listed with the reason;
// what is not active left out and counted.
class cAusfuehrungsplan {
  public:
    cAusfuehrungsplan();
    ~cAusfuehrungsplan();

    // Shows the plan of all jobs, or of job lJobId alone when it is above 0, from the period
    // that holds today; returns when the window is closed.
    void zeigen(long lJobId);

    // Rows at most in the list; the summary tells how many more there are.
    static constexpr int kHoechstens = 2000;
    // Starts of one client this close (seconds) overlap.
    static constexpr qint64 kNaehe = 15 * 60;

  private:
    struct Zeitplan {
        long lJob = 0;
        long lZeitplan = 0;
        QString sAuftrag;
        QString sZeitplan;
        QString sMandant;
        long lDatenArt = 0;
        ScheduleRule regel;
    };

    void laden(long lJobId, ErrorExit& ex);
    void filterFuellen();
    void zeitraumSetzen(const QDate& dTag);
    void planFuellen();
    void onCommandButton(int index);

    std::unique_ptr<frmAusfuehrungsplan> mofrm;
    QList<Zeitplan> maZeitplaene;
    int miAuftraegeInaktiv = 0;
    int miZeitplaeneInaktiv = 0;
    QDate mdVon;
    QDate mdBis;  // excluded
};
