// The controller's entry to the log data viewer: one cLogDaten per command.
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "logdata/cLogDaten.h"

void cAdminJob::mLogdatenShowCls(long lLogArt, bool bLoeschen, long lJobId) {
    ErrorExit ex(QStringLiteral("mLogdatenShowCls"), kKlasse);
    try {
        moLogDaten = std::make_shared<cLogDaten>();
        moLogDaten->evInitCBOAuftragsart =
            mLeben.guard([this](IComboBox& cboComboBox, long lDatenart, bool bAlle) {
                moLogDaten_evInitCBOAuftragsart(cboComboBox, lDatenart, bAlle);
            });
        if (moLogDaten->fbConstructor()) {
            long lMitId = moProperties ? moProperties->plMitId : 0;
            moLogDaten->setLogKontext(lMitId);
            moLogDaten->setLogKontext(msMitarbeiterName(lMitId));
            moLogDaten->setJobNameLog(msJobName);
            if (bLoeschen) {
                moLogDaten->mLogdatenDeleteAuswahl(lLogArt, lJobId);
            } else {
                moLogDaten->fLogDatenShow(lLogArt, lJobId);
            }
        }
        moLogDaten->fDestructor();
        moLogDaten.reset();
    } catch (...) {
        moLogDaten.reset();
        ex.fail();
    }
}
