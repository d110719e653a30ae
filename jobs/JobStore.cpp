#include "jobs/JobStore.h"

#include "common/ModuleHelpers.h"
#include "common/Password.h"
#include "common/Recordset.h"
#include "jobs/JobTypes.h"

namespace {

// A text column holds a text, also when it is empty, never NULL.
QString text(const QString& sWert) {
    return sWert.isNull() ? QStringLiteral("") : sWert;
}

}  // namespace

namespace JobStore {

QString rowQuery(long lJobId) {
    return QStringLiteral("Select * from tAutoJobJob where idAutoJob = ") + QString::number(lJobId);
}

QString rowsQuery(const QString& sBedingung) {
    return QStringLiteral(" Select * FROM tAutoJobJob where idAutoJob") + sBedingung;
}

QString deleteStatement(const QString& sBedingung) {
    return QStringLiteral("delete from tAutoJobJob where idAutoJob") + sBedingung;
}

void toggleActive(CRecordset& oTL) {
    const long lAktiv = oTL.ReadLong(QStringLiteral("Aktiviert"));
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
