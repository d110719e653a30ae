#include "jobs/JobStore.h"

#include <QRegularExpression>
#include <cmath>

#include "app/JournalAnlass.h"
#include "common/ModuleHelpers.h"
#include "common/Password.h"
#include "common/Recordset.h"
#include "jobs/JobTypes.h"
#include "jobs/Zusatzinfo.h"

namespace {

// A text column holds a text, also when it is empty, never NULL.
QString text(const QString& sWert) {
    return sWert.isNull() ? QStringLiteral("") : sWert;
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

std::uint8_t alsByte(long lWert) {
    return static_cast<std::uint8_t>(lWert);
}

}  // namespace

namespace JobStore {

QString rowQuery(long lJobId) {
    return QStringLiteral("Select * from tAutoJobJob where idAutoJob = ") + QString::number(lJobId);
}

QString allRowsQuery() {
    return QStringLiteral("Select * from tAutoJobJob order by idAutoJob");
}

QString rowsQuery(const QString& sBedingung) {
    return QStringLiteral(" Select * FROM tAutoJobJob where idAutoJob") + sBedingung;
}

QString deleteStatement(const QString& sBedingung) {
    return QStringLiteral("delete from tAutoJobJob where idAutoJob") + sBedingung;
}

QString touchStatement(long lJobId, long lMitarbeiter, long lZeilenversion) {
    QString sSql =
        QStringLiteral("update tAutoJobJob set LetzteAenderung = getdate(), Ps_Id_Mitarbeiter=") +
        QString::number(lMitarbeiter) + QStringLiteral(" where idAutoJob like '") +
        QString::number(lJobId) + QStringLiteral("'");
    // Beyond the stamp as the editor has always written it: with the version its window read,
    // so that the stamp neither lands on a job another workstation changed meanwhile nor
    // hides that change from the window's next save.
    if (lZeilenversion != RowConflict::kNichtGelesen) {
        sSql += QStringLiteral(" and Zeilenversion = ") + QString::number(lZeilenversion);
    }
    return sSql;
}

void toggleActive(CRecordset& oTL) {
    const long lAktiv = oTL.ReadLong(QStringLiteral("Aktiviert"));
    const JournalAnlass anlass(
        oTL, lAktiv == 1 ? QStringLiteral("Deaktivieren") : QStringLiteral("Aktivieren"));
    oTL.WriteLong(QStringLiteral("Aktiviert"), lAktiv == 1 ? 0 : 1);
    oTL.Update(CRecordset::UpdateWrite, true);
}

void writeColumns(CRecordset& oTL, const JobRecord& rec, long lMitarbeiter,
                  const QDateTime& dtJetzt, bool bNeu) {
    if (bNeu) {
        oTL.WriteDate(QStringLiteral("Erstellt"), dtJetzt);
    }
    oTL.WriteText(QStringLiteral("Name"), text(rec.sName));
    oTL.WriteText(QStringLiteral("Beschreibung"), text(rec.sBeschreibung));
    oTL.WriteText(QStringLiteral("Aktiviert"), QString::number(rec.bytAktiviert));
    oTL.WriteLong(QStringLiteral("DatenArt"), rec.bytDatenArt);
    if (jobHatArchivAnmeldung(rec.bytDatenArt)) {
        oTL.WriteText(QStringLiteral("MTAPath"), QString::number(rec.lArchivMitarbeiter));
        oTL.WriteText(QStringLiteral("BackupPath"),
                      text(msPasswortKodieren(rec.sArchivKennwort, true)));
    } else {
        oTL.WriteText(QStringLiteral("MTAPath"), text(rec.sVerzeichnis1));
        oTL.WriteText(QStringLiteral("BackupPath"), text(rec.sVerzeichnis2));
    }
    oTL.WriteText(QStringLiteral("ErrorMTA"), text(rec.sVerzeichnis3));
    oTL.WriteText(QStringLiteral("Ps_Id_Mandant"), QString::number(rec.lMandant));
    oTL.WriteLong(QStringLiteral("MandKanz"), rec.bytMandKanz);
    oTL.WriteText(QStringLiteral("Ps_Id_Mitarbeiter"), QString::number(lMitarbeiter));
    oTL.WriteText(QStringLiteral("Zusatzinfo"), text(rec.sZusatzinfo));
    // The import options of a foreign format belong to the bookings import alone, and a
    // filter or mapping without the foreign format is never kept.
    const bool bBuchungen = rec.bytDatenArt == DatenArt::Buchungen;
    const bool bFremdFormat = bBuchungen && rec.bFremdFormat;
    oTL.WriteText(QStringLiteral("SingleLog"),
                  bBuchungen && rec.bSingleLog ? QStringLiteral("1") : QStringLiteral("0"));
    oTL.WriteBool(QStringLiteral("FremdFormat"), bFremdFormat);
    oTL.WriteText(QStringLiteral("FremdDateifilter"),
                  text(bFremdFormat ? rec.sFremdDateifilter : QString()));
    oTL.WriteText(QStringLiteral("FremdMapping"),
                  text(bFremdFormat ? rec.sFremdMapping : QString()));
    oTL.WriteText(QStringLiteral("LetzteAenderung"), msDatumZeit(dtJetzt));
}

void readColumns(CRecordset& oTL, JobRecord& rec) {
    rec.lMandant = oTL.ReadLong(QStringLiteral("Ps_Id_Mandant"));
    rec.bytMandKanz = alsByte(oTL.ReadLong(QStringLiteral("MandKanz")));
    rec.sName = oTL.ReadText(QStringLiteral("Name"));
    rec.sBeschreibung = oTL.ReadText(QStringLiteral("Beschreibung"));
    rec.bytAktiviert = alsByte(oTL.ReadLong(QStringLiteral("Aktiviert")));
    rec.bytDatenArt = alsByte(oTL.ReadLong(QStringLiteral("DatenArt")));
    if (jobHatArchivAnmeldung(rec.bytDatenArt)) {
        rec.lArchivMitarbeiter = ganzzahlAusText(oTL.ReadText(QStringLiteral("MTAPath")));
        rec.sArchivKennwort = msPasswortKodieren(oTL.ReadText(QStringLiteral("BackupPath")), false);
    } else {
        rec.sVerzeichnis1 = oTL.ReadText(QStringLiteral("MTAPath"));
        rec.sVerzeichnis2 = oTL.ReadText(QStringLiteral("BackupPath"));
    }
    rec.sVerzeichnis3 = oTL.ReadText(QStringLiteral("ErrorMTA"));
    rec.sZusatzinfo =
        zusatzinfoMitVorgabe(rec.bytDatenArt, oTL.ReadText(QStringLiteral("Zusatzinfo")),
                             oTL.ReadLong(QStringLiteral("Ps_Id_Mitarbeiter")));
    if (rec.bytDatenArt == DatenArt::Buchungen) {
        rec.bSingleLog = oTL.ReadBool(QStringLiteral("SingleLog"));
        rec.bFremdFormat = oTL.ReadBool(QStringLiteral("FremdFormat"));
        rec.sFremdDateifilter = oTL.ReadText(QStringLiteral("FremdDateifilter"));
        rec.sFremdMapping = oTL.ReadText(QStringLiteral("FremdMapping"));
    } else {
        rec.bSingleLog = false;
        rec.bFremdFormat = false;
        rec.sFremdDateifilter.clear();
        rec.sFremdMapping.clear();
    }
}

long insert(CRecordset& oTL, const JobRecord& rec, long lMitarbeiter, const QDateTime& dtJetzt) {
    oTL.OpenQuery(rowQuery(-1), 2);
    oTL.AddNew();
    writeColumns(oTL, rec, lMitarbeiter, dtJetzt, true);
    oTL.Update(CRecordset::UpdateWrite, true);
    const long lJobId = oTL.ReadLong(QStringLiteral("idAutoJob"));
    oTL.Close();
    return lJobId;
}

}  // namespace JobStore
