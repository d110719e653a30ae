#include "forecast/NextRunsList.h"

#include <QTimeZone>

#include "forecast/RunForecast.h"
#include "ui/Grid.h"

namespace {

constexpr int kAnzahl = 10;

}  // namespace

void naechsteAusfuehrungenFuellen(IGrid& grd, const ScheduleRule& r, const QString& sFehler,
                                  const QDateTime& jetzt) {
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
    const qint64 ende =
        QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC).toSecsSinceEpoch();
    const QList<ForecastRun> runs =
        RunForecast::runs(r, jetzt.toSecsSinceEpoch(), ende, clock, kAnzahl);
    if (runs.isEmpty()) {
        grd.AddItem(QStringLiteral("Keine weitere Ausführung\t"));
    }
    for (const ForecastRun& run : runs) {
        grd.AddItem(RunForecast::runText(run) + u'\t' + RunForecast::changeText(run));
    }
}
