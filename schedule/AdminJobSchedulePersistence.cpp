// The rows of tAutoJobSchedule: one schedule written, one deleted after the question, and the
// schedules of a copied job repeated onto its pasted copy.
#include <limits>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleRow.h"
#include "schedule/ScheduleTime.h"

namespace {

const QString kTabelle = QStringLiteral("tAutoJobSchedule");

QString abfrage(const QString& sSchluessel, long lId) {
    return QStringLiteral(" select * from ") + kTabelle + QStringLiteral(" where ") + sSchluessel +
           QStringLiteral(" = ") + QString::number(lId);
}

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

bool cAdminJob::mZeitplanSpeichern(long& lZeitplanId, long& lJobId, cSchedule& oSchedule) {
    ErrorExit ex(QStringLiteral("mZeitplanSpeichern"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const QString sSql = abfrage(QStringLiteral("idAutoJobSchedule"), lZeitplanId);
        if (oTL->OpenQuery(sSql, 2) < 1) {
            oTL->AddNew();
        }
        oTL->WriteText(QStringLiteral("Name"), oSchedule.psName);
        oTL->WriteLong(QStringLiteral("Aktiviert"), oSchedule.pbyAktiviert);
        oTL->WriteLong(QStringLiteral("FreqencyType"), oSchedule.plFrequencyType);
        oTL->WriteDate(QStringLiteral("ActiveStartDate"),
                       tagesBeginn(oSchedule.pdtActiveStartDate));
        oTL->WriteLong(QStringLiteral("ActiveStartTimeOfDay"),
                       zeitAlsZahl(oSchedule.pvActiveStartTimeOfDay));
        oTL->WriteLong(QStringLiteral("idAutoJob"), lJobId);
        oTL->WriteDate(QStringLiteral("LetzteAenderung"), clockNow());
        oTL->WriteLong(QStringLiteral("Ps_Id"), required(moProperties).plMitId);
        oTL->WriteLong(QStringLiteral("FrequencyRecurrenceFactor"),
                       oSchedule.plFrequencyRecurreFactor);
        oTL->WriteLong(QStringLiteral("FrequencyInterval"), oSchedule.plFrequencyIntervall);
        oTL->WriteLong(QStringLiteral("FrequencyRelativeInterval"),
                       oSchedule.plFrequencyRelativeIntervall);
        oTL->WriteLong(QStringLiteral("FrequencySubDayinterval"),
                       oSchedule.plFrequencySubDayIntervall);
        oTL->WriteLong(QStringLiteral("FrequencySubDay"), oSchedule.plFrequencySubDay);
        oTL->WriteLong(QStringLiteral("ActiveEndTimeOfDay"),
                       zeitAlsZahl(oSchedule.pvActiveEndTimeOfDay));
        // Unlike the start date, the end date goes in as a day count; the record set stores
        // it as the same kind of date.
        oTL->WriteLong(QStringLiteral("ActiveEndDate"), tagesZahl(oSchedule.pdtActiveEndDate));
        oTL->Update(CRecordset::UpdateWrite, true);
        oTL->Close();
        oTL->Disconnect();
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}

void cAdminJob::mZeitplanEinfuegen(long lJobIdNeu) {
    ErrorExit ex(QStringLiteral("mZeitplanEinfuegen"), kKlasse);
    try {
        if (mlJobIdKopiert == 0) {
            return;
        }
        const QString sSql = abfrage(QStringLiteral("idAutoJob"), mlJobIdKopiert);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const long lAnzahl = oTL->OpenQuery(sSql, 2);
        for (long i = 0; i < lAnzahl; ++i) {
            cSchedule o;
            oTL->ReadLong(QStringLiteral("idAutoJobSchedule"));
            o.pbyAktiviert = alsByte(oTL->ReadLong(QStringLiteral("Aktiviert")));
            o.psName = oTL->ReadText(QStringLiteral("Name"));
            leseZeitplanWiederholung(*oTL, o);
            long lNeu = -1;
            mZeitplanSpeichern(lNeu, lJobIdNeu, o);
            oTL->Move(CRecordset::MoveNext);
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mZeitplanLoeschen() {
    ErrorExit ex(QStringLiteral("mZeitplanLoeschen"), kKlasse);
    try {
        if (mlZeitplanId <= 0) {
            return;
        }
        // Only a clear yes deletes: a box that could not be shown answers 0.
        if (mlMsgBox(QStringLiteral("Zeitplan löschen?"), MsgStyle::YesNo) != MsgAnswer::Yes) {
            return;
        }
        const QString sSql = abfrage(QStringLiteral("idAutoJobSchedule"), mlZeitplanId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        if (oTL->OpenQuery(sSql, 2) >= 1) {
            oTL->Update(CRecordset::UpdateDelete, true);
        }
        oTL->Close();
        oTL->Disconnect();
    } catch (...) {
        ex.fail();
    }
}
