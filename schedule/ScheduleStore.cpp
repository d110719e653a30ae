#include "schedule/ScheduleStore.h"

#include "app/cSchedule.h"
#include "common/Recordset.h"
#include "schedule/ScheduleRow.h"
#include "schedule/ScheduleTime.h"

namespace {

// A date as the whole number of days since 1899-12-30, rounded as the server rounds a date
// value: from noon on, the next day; exactly noon to the even day.
long tagesZahl(const QDateTime& dtDatum) {
    const qint64 lTage = zeroDate().date().daysTo(dtDatum.date());
    const int lSekunden = dtDatum.time().isValid() ? dtDatum.time().msecsSinceStartOfDay() : 0;
    constexpr int kMittag = 12 * 60 * 60 * 1000;
    const bool bAufrunden = lSekunden > kMittag || (lSekunden == kMittag && lTage % 2 != 0);
    return static_cast<long>(bAufrunden ? lTage + 1 : lTage);
}

}  // namespace

namespace ScheduleStore {

QString rowsQuery(const QString& sSchluessel, long lId) {
    return QStringLiteral(" select * from tAutoJobSchedule where ") + sSchluessel +
           QStringLiteral(" = ") + QString::number(lId);
}

QString jobSchedulesQuery(long lJobId) {
    return rowsQuery(QStringLiteral("idAutoJob"), lJobId) +
           QStringLiteral(" order by idAutoJobSchedule");
}

void readColumns(CRecordset& oTL, cSchedule& o) {
    o.psName = oTL.ReadText(QStringLiteral("Name"));
    o.pbyAktiviert = alsByte(oTL.ReadLong(QStringLiteral("Aktiviert")));
    leseZeitplanWiederholung(oTL, o);
}

void writeColumns(CRecordset& oTL, const cSchedule& o, long lJobId, long lMitarbeiter,
                  const QDateTime& dtJetzt) {
    oTL.WriteText(QStringLiteral("Name"), o.psName);
    oTL.WriteLong(QStringLiteral("Aktiviert"), o.pbyAktiviert);
    oTL.WriteLong(QStringLiteral("FreqencyType"), o.plFrequencyType);
    oTL.WriteDate(QStringLiteral("ActiveStartDate"), tagesBeginn(o.pdtActiveStartDate));
    oTL.WriteLong(QStringLiteral("ActiveStartTimeOfDay"), zeitAlsZahl(o.pvActiveStartTimeOfDay));
    oTL.WriteLong(QStringLiteral("idAutoJob"), lJobId);
    oTL.WriteDate(QStringLiteral("LetzteAenderung"), dtJetzt);
    oTL.WriteLong(QStringLiteral("Ps_Id"), lMitarbeiter);
    oTL.WriteLong(QStringLiteral("FrequencyRecurrenceFactor"), o.plFrequencyRecurreFactor);
    oTL.WriteLong(QStringLiteral("FrequencyInterval"), o.plFrequencyIntervall);
    oTL.WriteLong(QStringLiteral("FrequencyRelativeInterval"), o.plFrequencyRelativeIntervall);
    oTL.WriteLong(QStringLiteral("FrequencySubDayinterval"), o.plFrequencySubDayIntervall);
    oTL.WriteLong(QStringLiteral("FrequencySubDay"), o.plFrequencySubDay);
    oTL.WriteLong(QStringLiteral("ActiveEndTimeOfDay"), zeitAlsZahl(o.pvActiveEndTimeOfDay));
    // Unlike the start date, the end date goes in as a day count; the record set stores it as
    // the same kind of date.
    oTL.WriteLong(QStringLiteral("ActiveEndDate"), tagesZahl(o.pdtActiveEndDate));
}

void insert(CRecordset& oTL, const cSchedule& o, long lJobId, long lMitarbeiter,
            const QDateTime& dtJetzt) {
    oTL.OpenQuery(rowsQuery(QStringLiteral("idAutoJobSchedule"), -1), 2);
    oTL.AddNew();
    writeColumns(oTL, o, lJobId, lMitarbeiter, dtJetzt);
    oTL.Update(CRecordset::UpdateWrite, true);
    oTL.Close();
}

}  // namespace ScheduleStore
