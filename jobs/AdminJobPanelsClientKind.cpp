// To whom a job applies: the client selection follows the client kind.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "jobs/ClientKinds.h"
#include "ui/windows/frmEigenschaften.h"

void cAdminJob::mMandKanz(std::uint8_t bytMandKanz) {
    withErrorExit(QStringLiteral("mMandKanz"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        ISelection& ctlMandant = mofrmEigenschaften->ctlMandant();
        constexpr long kModusMandant = 0;
        constexpr long kModusKanzlei = 1;
        const long lModusVorher = ctlMandant.Mode();
        ctlMandant.setEnabled(true);
        switch (bytMandKanz) {
            case MandKanz::Mandant:
                ctlMandant.setMode(kModusMandant);
                break;
            case MandKanz::Kanzlei:
                ctlMandant.setMode(kModusKanzlei);
                break;
            case MandKanz::AlleMandanten:
                ctlMandant.setMode(kModusMandant);
                ctlMandant.setEnabled(false);
                break;
            case MandKanz::AlleKanzleien:
            case MandKanz::AlleMandantenKanzleien:
                ctlMandant.setMode(kModusKanzlei);
                ctlMandant.setEnabled(false);
                break;
            default:
                break;
        }
        if (mandKanzFuerAlle(bytMandKanz)) {
            ctlMandant.setId(0);
        }
        // A client id means nothing among offices.
        if (ctlMandant.Mode() != lModusVorher) {
            ctlMandant.setId(0);
        }
        if (mbFirmaKanzlei()) {
            ctlMandant.setId(required(moProperties).plManId);
            ctlMandant.setEnabled(false);
        }
        mSetTextDateiauswahl(bytMandKanz, mbytDatenArt);
        return 0;
    });
}

void cAdminJob::mSetTextDateiauswahl(std::uint8_t bytMandKanz, std::uint8_t) {
    withErrorExit(QStringLiteral("mSetTextDateiauswahl"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        // For all clients the field holds a directory and a file name pattern.
        mofrmEigenschaften->ctlOptFileName(frmEigenschaften::OptDatei::Textdatei)
            .setCaption(bytMandKanz < MandKanz::AlleMandanten ? QStringLiteral("Textdatei")
                                                              : QStringLiteral("Textdatei (Pfad)"));
        return 0;
    });
}
