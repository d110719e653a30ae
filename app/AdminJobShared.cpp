// The controller's share of the common services: message box, staff names, progress texts
// and the list's browser.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "ui/Browser.h"

long cAdminJob::mlMsgBox(const QString& sText, long lFlags, const QString& sTitel,
                         const QString& sHelpDatei, long lKontext) {
    return moMeldungen.mlMsgBox(sText, lFlags, sTitel, sHelpDatei, lKontext);
}

QString cAdminJob::msMitarbeiterName(long& lMitId) {
    ErrorExit ex(QStringLiteral("msMitarbeiterName"), kKlasse);
    try {
        auto oMitarbeiter =
            ex.create(services().newMitarbeiter, QStringLiteral("hstaff.dll"),
                      QStringLiteral("Set oMitarbeiter = New hstaff.OIMitarbeiterClass"));
        if (lMitId == 0) {
            lMitId = required(moProperties).plMitId;
        }
        oMitarbeiter->SetId(lMitId);
        oMitarbeiter->Lesen();
        QString sName;
        if (!oMitarbeiter->KeinDatensatz()) {
            sName = oMitarbeiter->Anzeigename();
        }
        oMitarbeiter->Schliessen();
        return sName;
    } catch (...) {
        ex.fail();
    }
    return {};
}

void cAdminJob::mRaiseFortschritt(const QString& sHinweis, const QString& sEndeHinweis) {
    if (evFortschritt) {
        evFortschritt(sHinweis, sEndeHinweis);
    }
}

IBrowser& cAdminJob::mPakete() {
    return required(moPakete);
}
