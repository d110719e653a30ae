// "Nächste Ausführungen" in the schedule dialog and the recurrence dialog: the next starts of
// the schedule as it stands in the window, with the starts a clock change moves marked.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cSchedule.h"
#include "common/ErrorExit.h"
#include "common/Services.h"
#include "forecast/NextRunsList.h"
#include "forecast/ScheduleRuleOf.h"
#include "schedule/ScheduleCodes.h"
#include "ui/Grid.h"
#include "ui/windows/frmZeitIntervall.h"
#include "ui/windows/frmZeitplan.h"

namespace {

const char* const kUnvollstaendig = "Die Uhrzeit ist nicht vollständig.";

bool vollstaendig(ITimeBox& box) {
    return box.Ziffern().size() == 4;
}

}  // namespace

void cAdminJob::mNaechsteAusfuehrungenZeigen() {
    withErrorExit(QStringLiteral("mNaechsteAusfuehrungenZeigen"), kKlasse, 0, [&](ErrorExit&) {
        if (mbLadeZeitplan || mbLadeZeitintervall || !moSchedule) {
            return 0;
        }
        if (mofrmzeitIntervall) {
            frmZeitIntervall& f = *mofrmzeitIntervall;
            // The dialog's fields as its OK would store them, without storing them.
            const cSchedule oGespeichert = *moSchedule;
            mSpeichernZeitintervall();
            const ScheduleRule r = scheduleRuleOf(*moSchedule);
            *moSchedule = oGespeichert;
            using Z = frmZeitIntervall::Zeit;
            const bool bZeit = r.lFrequencySubDay == TagesEinheit::kEinmalig
                                   ? vollstaendig(f.ctlMaskEdBox(Z::EinmaligUm))
                                   : vollstaendig(f.ctlMaskEdBox(Z::StartetUm)) &&
                                         vollstaendig(f.ctlMaskEdBox(Z::EndetUm));
            naechsteAusfuehrungenFuellen(f.grdNaechsteAusfuehrungen(), r,
                                         bZeit ? QString() : QString::fromUtf8(kUnvollstaendig),
                                         clockNow());
        }
        if (mofrmZeitplanEigenschaften) {
            frmZeitplan& f = *mofrmZeitplanEigenschaften;
            IGrid& grd = f.grdNaechsteAusfuehrungen();
            if (f.optOption(frmZeitplan::Opt::Einmal).Value()) {
                ScheduleRule r;
                r.lFreqencyType = 1;
                r.dActiveStartDate = f.ctlDatePicker().Value().value_or(QDate());
                r.dActiveEndDate = r.dActiveStartDate;
                const bool bZeit = vollstaendig(f.ctlMaskEdBox());
                r.lActiveStartTimeOfDay = bZeit ? f.ctlMaskEdBox().Ziffern().toInt() * 100 : 0;
                naechsteAusfuehrungenFuellen(
                    grd, r, bZeit ? QString() : QString::fromUtf8(kUnvollstaendig), clockNow());
            } else if (f.optOption(frmZeitplan::Opt::Wiederholt).Value()) {
                naechsteAusfuehrungenFuellen(grd, scheduleRuleOf(*moSchedule), QString(),
                                             clockNow());
            } else {
                grd.setRows(1);
            }
        }
        return 0;
    });
}
