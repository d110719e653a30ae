// The controller's entry to "Ausführungsplan": one cAusfuehrungsplan per opening.
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "forecast/cAusfuehrungsplan.h"

void cAdminJob::mAusfuehrungsplanZeigen(long lJobId) {
    withErrorExit(QStringLiteral("mAusfuehrungsplanZeigen"), kKlasse, 0, [&](ErrorExit&) {
        if (lJobId < 0) {
            mlMsgBox(QStringLiteral("Bitte legen Sie zuerst einen Auftrag an."),
                     MsgStyle::Information);
            return 0;
        }
        cAusfuehrungsplan().zeigen(lJobId);
        return 0;
    });
}
