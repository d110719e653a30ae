// A job or schedule that another workstation changed or deleted while a window of this one
// held it: the user decides before anything is written.
#include "app/RowConflict.h"
#include "app/cAdminJob.h"
#include "common/MessageBox.h"
#include "common/Recordset.h"

RowConflict::Entscheidung cAdminJob::mZeilenstandFragen(CRecordset& oTL, bool bGefunden,
                                                        long lGelesen, const QString& sWas,
                                                        const QString& sGelesenerName,
                                                        const QString& sMitarbeiterFeld) {
    using RowConflict::Entscheidung;
    if (lGelesen == RowConflict::kNichtGelesen) {
        return bGefunden ? Entscheidung::Schreiben : Entscheidung::NeuAnlegen;
    }
    if (!bGefunden) {
        return mlMsgBox(RowConflict::geloeschtFrage(sWas, sGelesenerName),
                        MsgStyle::YesNoQuestion) == MsgAnswer::Yes
                   ? Entscheidung::NeuAnlegen
                   : Entscheidung::Abbrechen;
    }
    if (RowConflict::version(oTL) == lGelesen) {
        return Entscheidung::Schreiben;
    }
    long lMitId = oTL.ReadLong(sMitarbeiterFeld);
    // Id 0 would name the user of this workstation; a writer without a name is someone else.
    const QString sMitarbeiter = lMitId == 0 ? QString() : msMitarbeiterName(lMitId);
    const QString sFrage = RowConflict::geaendertFrage(
        sWas, oTL.ReadText(QStringLiteral("Name")),
        sMitarbeiter.isEmpty() ? QStringLiteral("einem anderen Mitarbeiter") : sMitarbeiter,
        oTL.ReadDate(QStringLiteral("LetzteAenderung")));
    switch (mlMsgBox(sFrage, MsgStyle::YesNoCancelQuestion)) {
        case MsgAnswer::Yes:
            return Entscheidung::Schreiben;
        case MsgAnswer::No:
            return Entscheidung::Verwerfen;
        default:
            return Entscheidung::Abbrechen;
    }
}
