// Moving one job between the table tAutoJobJob and plain values: read, insert or update,
// paste a copied job, and the caption of its last change.
#include "app/JournalAnlass.h"
#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "jobs/JobRecord.h"
#include "jobs/JobStore.h"
#include "jobs/JobTypes.h"

namespace {

// A date as the captions show it: day, month and year, with the time of day when there is one.
// A date that was never set gives the empty text.
QString datumText(const QDateTime& dtWert) {
    if (!dtWert.isValid() || dtWert == zeroDate()) {
        return {};
    }
    if (dtWert.time() == QTime(0, 0)) {
        return dtWert.toString(QStringLiteral("dd.MM.yyyy"));
    }
    return dtWert.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
}

std::uint8_t alsByte(long lWert) {
    return static_cast<std::uint8_t>(lWert);
}

}  // namespace

bool cAdminJob::mAuftragLesen(JobRecord& rec) {
    ErrorExit ex(QStringLiteral("mAuftragLesen"), kKlasse);
    try {
        const QString sSql = JobStore::rowQuery(rec.lJobId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        JobRecord neu = rec;
        const bool bGefunden = oTL->OpenQuery(sSql, 2) >= 1;
        if (bGefunden) {
            JobStore::readColumns(*oTL, neu);
            neu.lZeilenversion = RowConflict::version(*oTL);
            const QDateTime dtGeaendert = oTL->ReadDate(QStringLiteral("LetzteAenderung"));
            const long lMitId = oTL->ReadLong(QStringLiteral("Ps_Id_Mitarbeiter"));
            neu.sLetzteAenderung = msGetLetzteAenderungText(dtGeaendert, lMitId);
            neu.sErstellt = datumText(oTL->ReadDate(QStringLiteral("Erstellt")));
        } else {
            neu.sErstellt.clear();
            neu.sName.clear();
            neu.sBeschreibung.clear();
            neu.bytAktiviert = 1;
            neu.bSingleLog = false;
            neu.bFremdFormat = false;
            neu.sFremdDateifilter.clear();
            neu.sFremdMapping.clear();
            neu.bytDatenArt = DatenArt::Kunden;
            neu.sLetzteAenderung = QStringLiteral("Letzte Änderung: Keine Angaben");
            neu.lMandant = 0;
            neu.lZeilenversion = RowConflict::kNichtGelesen;
        }
        oTL->Close();
        oTL->Disconnect();
        oTL.reset();
        rec = neu;
        mbytDatenArt = rec.bytDatenArt;
        mbytMandKanz = rec.bytMandKanz;
        return bGefunden;
    } catch (...) {
        ex.fail();
    }
    return false;
}

RowConflict::Speicherung cAdminJob::mAuftragSpeichern(JobRecord& rec) {
    using RowConflict::Entscheidung;
    using RowConflict::Speicherung;
    ErrorExit ex(QStringLiteral("mAuftragSpeichern"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        const QString sSql = JobStore::rowQuery(rec.lJobId);
        oTL->Connect();
        QString sNeuerName;
        const bool bGefunden = oTL->OpenQuery(sSql, 2) >= 1;
        // The record set's write holds on to the version it read here, so that nothing
        // written between this question and the write is undone.
        const Entscheidung entscheidung =
            mZeilenstandFragen(*oTL, bGefunden, rec.lZeilenversion, QStringLiteral("Der Auftrag"),
                               msJobName, QStringLiteral("Ps_Id_Mitarbeiter"));
        if (entscheidung == Entscheidung::Abbrechen) {
            return Speicherung::NichtGespeichert;
        }
        if (entscheidung == Entscheidung::Verwerfen) {
            return Speicherung::Verworfen;
        }
        const bool bNeu = entscheidung == Entscheidung::NeuAnlegen;
        if (bNeu) {
            oTL->AddNew();
            sNeuerName = rec.sName;
        }
        JobStore::writeColumns(*oTL, rec, required(moProperties).plMitId, clockNow(), bNeu);
        // The captions come from the record buffer before the write, the id only after it.
        const QString sLetzteAenderung =
            msGetLetzteAenderungText(oTL->ReadDate(QStringLiteral("LetzteAenderung")), 0);
        const QString sErstellt = datumText(oTL->ReadDate(QStringLiteral("Erstellt")));
        oTL->Update(CRecordset::UpdateWrite, true);
        const long lJobId = oTL->ReadLong(QStringLiteral("idAutoJob"));
        const long lVersion = RowConflict::version(*oTL);
        oTL->Close();
        oTL->Disconnect();
        oTL.reset();
        rec.lJobId = lJobId;
        rec.lZeilenversion = lVersion;
        rec.sLetzteAenderung = sLetzteAenderung;
        rec.sErstellt = sErstellt;
        if (bNeu) {
            msJobName = sNeuerName;
        }
        return Speicherung::Gespeichert;
    } catch (...) {
        ex.fail();
    }
    return RowConflict::Speicherung::NichtGespeichert;
}

bool cAdminJob::mbAuftragVorhanden(long lJobId) {
    ErrorExit ex(QStringLiteral("mbAuftragVorhanden"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const bool bVorhanden = oTL->OpenQuery(JobStore::rowQuery(lJobId), 0) >= 1;
        oTL->Close();
        oTL->Disconnect();
        return bVorhanden;
    } catch (...) {
        ex.fail();
    }
    return true;  // reported once; the write that follows tells for itself
}

QString cAdminJob::msGetJobName(long lJobId) {
    ErrorExit ex(QStringLiteral("msGetJobName"), kKlasse);
    try {
        const QString sSql = JobStore::rowQuery(lJobId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        QString sName;
        if (oTL->OpenQuery(sSql, 2) >= 1) {
            sName = oTL->ReadText(QStringLiteral("Name"));
            mlAuftragMitarbeiter = oTL->ReadLong(QStringLiteral("Ps_Id_Mitarbeiter"));
            mbytAuftragMandKanz = alsByte(oTL->ReadLong(QStringLiteral("MandKanz")));
            if (mbytAuftragMandKanz == 1 || mbytAuftragMandKanz == 2) {
                msAuftragMandNr = msMandNrErm(oTL->ReadLong(QStringLiteral("Ps_Id_Mandant")));
            }
        }
        oTL->Disconnect();
        return sName;
    } catch (...) {
        ex.fail();
    }
    return {};
}

void cAdminJob::mUpdateLetztAenderung() {
    ErrorExit ex(QStringLiteral("mUpdateLetztAenderung"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        const QString sSql = JobStore::touchStatement(mlJobId, required(moProperties).plMitId,
                                                      mlAuftragZeilenversion);
        oTL->Connect();
        // The window's own stamp does not count against its next save; a job another
        // workstation wrote meanwhile keeps that stamp, and the next save asks.
        if (oTL->Execute(sSql) == 1 && mlAuftragZeilenversion != RowConflict::kNichtGelesen) {
            ++mlAuftragZeilenversion;
        }
        // Disconnect comes before Close here, unlike everywhere else.
        oTL->Disconnect();
        oTL->Close();
    } catch (...) {
        ex.fail();
    }
}

QString cAdminJob::msGetLetzteAenderungText(const QDateTime& dtDatum, long lMitId) {
    ErrorExit ex(QStringLiteral("msGetLetzteAenderungText"), kKlasse);
    try {
        const QDate datum = dtDatum.date();
        return QStringLiteral("Letzte Änderung: ") + datum.toString(QStringLiteral("dd.MM.")) +
               QString::number(datum.year()) + QStringLiteral(" / ") + msMitarbeiterName(lMitId);
    } catch (...) {
        ex.fail();
    }
    return {};
}

void cAdminJob::mAuftragEinfuegen() {
    ErrorExit ex(QStringLiteral("mAuftragEinfuegen"), kKlasse);
    try {
        if (mlJobIdKopiert <= 0) {
            return;
        }
        JobRecord rec;
        rec.lJobId = mlJobIdKopiert;
        if (!mAuftragLesen(rec)) {
            return;
        }
        rec.lJobId = -1;
        rec.lZeilenversion = RowConflict::kNichtGelesen;
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        const JournalAnlass anlass(*oTL, QStringLiteral("Einfügen"));
        mAuftragSpeichern(rec);
        if (rec.lJobId <= 0) {
            return;  // the save has reported its failure
        }
        mZeitplanEinfuegen(rec.lJobId);
        mlJobId = rec.lJobId;
        mBrowserRefresh(false);
    } catch (...) {
        ex.fail();
    }
}
