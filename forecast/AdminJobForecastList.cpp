// "Nächste Ausführungen" in the schedule dialog and the recurrence dialog: the next starts of
// the schedule as it stands in the window, with the starts a clock change moves marked.
#include <QTimeZone>

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cSchedule.h"
#include "common/ErrorExit.h"
#include "common/Services.h"
#include "forecast/RunForecast.h"
#include "forecast/ScheduleRuleOf.h"
#include "schedule/ScheduleCodes.h"
#include "ui/Grid.h"
#include "ui/windows/frmZeitIntervall.h"
#include "ui/windows/frmZeitplan.h"

namespace {

constexpr int kAnzahl = 10;
const char* const kUnvollstaendig = "Die Uhrzeit ist nicht vollständig.";

// Heading and rows: each start with its mark, or one row that says why there is none.
void fuelle(IGrid& grd, const ScheduleRule& r, const QString& sFehler) {
    grd.setRows(1);
    grd.setCols(2);
    grd.setFixedRows(1);
    grd.setTextMatrix(0, 0, QStringLiteral("Start"));
    grd.setTextMatrix(0, 1, QStringLiteral("Hinweis"));
    grd.setColWidth(0, 2400);
    grd.setColWidth(1, 3600);
    const QString sGrund = sFehler.isEmpty() ? ruleFault(r) : sFehler;
    if (!sGrund.isEmpty()) {
        grd.AddItem(QStringLiteral("Keine Ausführung\t") + sGrund);
        return;
    }
    LocalClock clock(QTimeZone::systemTimeZone());
    const qint64 jetzt = clockNow().toSecsSinceEpoch();
    const qint64 ende =
        QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC).toSecsSinceEpoch();
    const QList<ForecastRun> runs = RunForecast::runs(r, jetzt, ende, clock, kAnzahl);
    if (runs.isEmpty()) {
        grd.AddItem(QStringLiteral("Keine weitere Ausführung\t"));
    }
    for (const ForecastRun& run : runs) {
        grd.AddItem(RunForecast::runText(run) + u'\t' + RunForecast::changeText(run));
    }
}

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
            fuelle(f.grdNaechsteAusfuehrungen(), r,
                   bZeit ? QString() : QString::fromUtf8(kUnvollstaendig));
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
                fuelle(grd, r, bZeit ? QString() : QString::fromUtf8(kUnvollstaendig));
            } else if (f.optOption(frmZeitplan::Opt::Wiederholt).Value()) {
                fuelle(grd, scheduleRuleOf(*moSchedule), QString());
            } else {
                grd.setRows(1);
            }
        }
        return 0;
    });
}
