// The rows of tAutoJobSchedule: one schedule written, one deleted after the question, and the
// schedules of a copied job repeated onto its pasted copy.
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrObject.h"
#include "common/ErrorExit.h"
#include "schedule/ScheduleRow.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTime.h"

RowConflict::Speicherung cAdminJob::mZeitplanSpeichern(long& lZeitplanId, long& lJobId,
                                                       cSchedule& oSchedule, long lGelesen) {
    using RowConflict::Entscheidung;
    using RowConflict::Speicherung;
    ErrorExit ex(QStringLiteral("mZeitplanSpeichern"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const QString sSql =
            ScheduleStore::rowsQuery(QStringLiteral("idAutoJobSchedule"), lZeitplanId);
        const bool bGefunden = oTL->OpenQuery(sSql, 2) >= 1;
        const Entscheidung entscheidung =
            mZeilenstandFragen(*oTL, bGefunden, lGelesen, QStringLiteral("Der Zeitplan"),
                               msZeitplanGelesen, QStringLiteral("Ps_Id"));
        if (entscheidung == Entscheidung::Abbrechen) {
            return Speicherung::NichtGespeichert;
        }
        if (entscheidung == Entscheidung::Verwerfen) {
            return Speicherung::Verworfen;
        }
        if (entscheidung == Entscheidung::NeuAnlegen) {
            oTL->AddNew();
        }
        ScheduleStore::writeColumns(*oTL, oSchedule, lJobId, required(moProperties).plMitId,
                                    clockNow());
        oTL->Update(CRecordset::UpdateWrite, true);
        oTL->Close();
        oTL->Disconnect();
        return Speicherung::Gespeichert;
    } catch (...) {
        ex.fail();
    }
    return RowConflict::Speicherung::NichtGespeichert;
}

void cAdminJob::mZeitplanEinfuegen(long lJobIdNeu) {
    ErrorExit ex(QStringLiteral("mZeitplanEinfuegen"), kKlasse);
    try {
        if (mlJobIdKopiert == 0) {
            return;
        }
        const QString sSql = ScheduleStore::rowsQuery(QStringLiteral("idAutoJob"), mlJobIdKopiert);
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
        const QString sSql =
            ScheduleStore::rowsQuery(QStringLiteral("idAutoJobSchedule"), mlZeitplanId);
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
