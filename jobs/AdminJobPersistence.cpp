// Moving one job between the table tAutoJobJob and plain values: read, insert or update,
// paste a copied job, and the caption of its last change.
#include <QRegularExpression>
#include <cmath>

#include "app/LibraryObjects.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "common/Password.h"
#include "jobs/JobRecord.h"
#include "jobs/JobTypes.h"

namespace {

QString jobAbfrage(long lJobId) {
    return QStringLiteral("Select * from tAutoJobJob where idAutoJob = ") + QString::number(lJobId);
}

// The numeric value a text starts with, rounded to a whole number; 0 when there is none.
long ganzzahlAusText(const QString& sText) {
    static const QRegularExpression zahl(QStringLiteral(R"(^\s*([-+]?(\d+\.?\d*|\.\d+)))"));
    const QRegularExpressionMatch treffer = zahl.match(sText);
    if (!treffer.hasMatch()) {
        return 0;
    }
    return std::lround(treffer.captured(1).toDouble());
}

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

bool mitarbeiterAlsVorgabe(long lDatenArt) {
    return lDatenArt == DatenArt::Buchungen || lDatenArt == DatenArt::Kunden ||
           lDatenArt == DatenArt::Lieferanten || lDatenArt == DatenArt::KestoDirekt ||
           lDatenArt == DatenArt::Textdatei;
}

std::uint8_t alsByte(long lWert) {
    return static_cast<std::uint8_t>(lWert);
}

}  // namespace

bool cAdminJob::mAuftragLesen(JobRecord& rec) {
    ErrorExit ex(QStringLiteral("mAuftragLesen"), kKlasse);
    try {
        const QString sSql = jobAbfrage(rec.lJobId);
        auto oTL = neuesRecordset(ex);
        oTL->Connect();
        JobRecord neu = rec;
        const bool bGefunden = oTL->OpenQuery(sSql, 2) >= 1;
        if (bGefunden) {
            neu.lMandant = oTL->ReadLong(QStringLiteral("Ps_Id_Mandant"));
            neu.bytMandKanz = alsByte(oTL->ReadLong(QStringLiteral("MandKanz")));
            neu.sName = oTL->ReadText(QStringLiteral("Name"));
            neu.sBeschreibung = oTL->ReadText(QStringLiteral("Beschreibung"));
            neu.bytAktiviert = alsByte(oTL->ReadLong(QStringLiteral("Aktiviert")));
            neu.bytDatenArt = alsByte(oTL->ReadLong(QStringLiteral("DatenArt")));
            if (jobHatArchivAnmeldung(neu.bytDatenArt)) {
                neu.lArchivMitarbeiter = ganzzahlAusText(oTL->ReadText(QStringLiteral("MTAPath")));
                neu.sArchivKennwort =
                    msPasswortKodieren(oTL->ReadText(QStringLiteral("BackupPath")), false);
            } else {
                neu.sVerzeichnis1 = oTL->ReadText(QStringLiteral("MTAPath"));
                neu.sVerzeichnis2 = oTL->ReadText(QStringLiteral("BackupPath"));
            }
            neu.sVerzeichnis3 = oTL->ReadText(QStringLiteral("ErrorMTA"));
            const QDateTime dtGeaendert = oTL->ReadDate(QStringLiteral("LetzteAenderung"));
            const long lMitId = oTL->ReadLong(QStringLiteral("Ps_Id_Mitarbeiter"));
            neu.sLetzteAenderung = msGetLetzteAenderungText(dtGeaendert, lMitId);
            neu.sErstellt = datumText(oTL->ReadDate(QStringLiteral("Erstellt")));
            neu.sZusatzinfo = oTL->ReadText(QStringLiteral("Zusatzinfo"));
            if (neu.bytDatenArt == DatenArt::Buchungen) {
                neu.bSingleLog = oTL->ReadBool(QStringLiteral("SingleLog"));
                neu.bFremdFormat = oTL->ReadBool(QStringLiteral("FremdFormat"));
                neu.sFremdDateifilter = oTL->ReadText(QStringLiteral("FremdDateifilter"));
                neu.sFremdMapping = oTL->ReadText(QStringLiteral("FremdMapping"));
            } else {
                neu.bSingleLog = false;
                neu.bFremdFormat = false;
                neu.sFremdDateifilter.clear();
                neu.sFremdMapping.clear();
            }
            // Rows older than the staff member in Zusatzinfo show their last editor instead.
            if (mitarbeiterAlsVorgabe(neu.bytDatenArt) && neu.sZusatzinfo.isEmpty()) {
                neu.sZusatzinfo =
                    QString::number(oTL->ReadLong(QStringLiteral("Ps_Id_Mitarbeiter")));
            }
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

void cAdminJob::mAuftragSpeichern(JobRecord& rec) {
    ErrorExit ex(QStringLiteral("mAuftragSpeichern"), kKlasse);
    try {
        auto oTL = neuesRecordset(ex);
        const QString sSql = jobAbfrage(rec.lJobId);
        oTL->Connect();
        QString sNeuerName;
        const bool bNeu = oTL->OpenQuery(sSql, 2) < 1;
        if (bNeu) {
            oTL->AddNew();
            oTL->WriteDate(QStringLiteral("Erstellt"), clockNow());
            sNeuerName = rec.sName;
        }
        oTL->WriteText(QStringLiteral("Name"), rec.sName);
        oTL->WriteText(QStringLiteral("Beschreibung"), rec.sBeschreibung);
        oTL->WriteText(QStringLiteral("Aktiviert"), QString::number(rec.bytAktiviert));
        oTL->WriteLong(QStringLiteral("DatenArt"), rec.bytDatenArt);
        if (jobHatArchivAnmeldung(rec.bytDatenArt)) {
            oTL->WriteText(QStringLiteral("MTAPath"), QString::number(rec.lArchivMitarbeiter));
            oTL->WriteText(QStringLiteral("BackupPath"),
                           msPasswortKodieren(rec.sArchivKennwort, true));
        } else {
            oTL->WriteText(QStringLiteral("MTAPath"), rec.sVerzeichnis1);
            oTL->WriteText(QStringLiteral("BackupPath"), rec.sVerzeichnis2);
        }
        oTL->WriteText(QStringLiteral("ErrorMTA"), rec.sVerzeichnis3);
        oTL->WriteText(QStringLiteral("Ps_Id_Mandant"), QString::number(rec.lMandant));
        oTL->WriteLong(QStringLiteral("MandKanz"), rec.bytMandKanz);
        oTL->WriteText(QStringLiteral("Ps_Id_Mitarbeiter"),
                       QString::number(required(moProperties).plMitId));
        oTL->WriteText(QStringLiteral("Zusatzinfo"), rec.sZusatzinfo);
        // The import options of a foreign format belong to the bookings import alone, and a
        // filter or mapping without the foreign format is never kept.
        const bool bBuchungen = rec.bytDatenArt == DatenArt::Buchungen;
        const bool bFremdFormat = bBuchungen && rec.bFremdFormat;
        oTL->WriteText(QStringLiteral("SingleLog"),
                       bBuchungen && rec.bSingleLog ? QStringLiteral("1") : QStringLiteral("0"));
        oTL->WriteBool(QStringLiteral("FremdFormat"), bFremdFormat);
        oTL->WriteText(QStringLiteral("FremdDateifilter"),
                       bFremdFormat ? rec.sFremdDateifilter : QString());
        oTL->WriteText(QStringLiteral("FremdMapping"),
                       bFremdFormat ? rec.sFremdMapping : QString());
        oTL->WriteText(QStringLiteral("LetzteAenderung"), msDatumZeit(clockNow()));
        // The captions come from the record buffer before the write, the id only after it.
        const QString sLetzteAenderung =
            msGetLetzteAenderungText(oTL->ReadDate(QStringLiteral("LetzteAenderung")), 0);
        const QString sErstellt = datumText(oTL->ReadDate(QStringLiteral("Erstellt")));
        oTL->Update(CRecordset::UpdateWrite, true);
        const long lJobId = oTL->ReadLong(QStringLiteral("idAutoJob"));
        oTL->Close();
        oTL->Disconnect();
        oTL.reset();
        rec.lJobId = lJobId;
        rec.sLetzteAenderung = sLetzteAenderung;
        rec.sErstellt = sErstellt;
        if (bNeu) {
            msJobName = sNeuerName;
        }
    } catch (...) {
        ex.fail();
    }
}

QString cAdminJob::msGetJobName(long lJobId) {
    ErrorExit ex(QStringLiteral("msGetJobName"), kKlasse);
    try {
        const QString sSql = jobAbfrage(lJobId);
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
        const QString sSql =
            QStringLiteral(
                "update tAutoJobJob set LetzteAenderung = getdate(), Ps_Id_Mitarbeiter=") +
            QString::number(required(moProperties).plMitId) +
            QStringLiteral(" where idAutoJob like '") + QString::number(mlJobId) +
            QStringLiteral("'");
        oTL->Connect();
        oTL->Execute(sSql);
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
