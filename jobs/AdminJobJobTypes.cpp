// The controller's small questions about job types, client kinds and the selected job.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "jobs/JobTypes.h"
#include "ui/Controls.h"

namespace {
constexpr long kInstallationLokal = 1;
}

QString cAdminJob::msGetAuftragsart(long lDatenArt) {
    return withErrorExit(QStringLiteral("msGetAuftragsart"), kKlasse, QString(),
                         [&](ErrorExit&) { return auftragsartLabel(lDatenArt); });
}

void cAdminJob::mInitCBOAuftragsart(IComboBox& cboComboBox, std::uint8_t bytDatenart,
                                    bool bMitAlle) {
    withErrorExit(QStringLiteral("mInitCBOAuftragsart"), kKlasse, 0, [&](ErrorExit&) {
        const bool bLokal =
            required(services().coreGlobal).GetInstallationsArt() == kInstallationLokal;
        cboComboBox.setVisible(true);
        cboComboBox.Clear();
        for (const std::uint8_t lKey : auftragsartComboFolge(bMitAlle, bLokal, mbMitNivora)) {
            cboComboBox.AddItem(lKey, auftragsartComboText(lKey));
        }
        cboComboBox.setKey(bytDatenart);
        return 0;
    });
}

QString cAdminJob::msAuftragsartDerListe() {
    for (const Auftragsart& eintrag : maAuftragsarten) {
        if (eintrag.lId == mlJobIdListe) {
            return eintrag.sArt;
        }
    }
    return {};
}

bool cAdminJob::mbArchivJob() {
    return withErrorExit(QStringLiteral("mbArchivJob"), kKlasse, false, [this](ErrorExit&) {
        const QString sArt = msAuftragsartDerListe();
        return sArt == auftragsartLabel(DatenArt::ScanDokumente) ||
               sArt == auftragsartLabel(DatenArt::Verschlagwortung);
    });
}

bool cAdminJob::mbKestoDirekt() {
    return withErrorExit(QStringLiteral("mbKestoDirekt"), kKlasse, false, [this](ErrorExit&) {
        return msAuftragsartDerListe() == kestoDirektLabel();
    });
}

bool cAdminJob::mbNivora() {
    return withErrorExit(QStringLiteral("mbNivora"), kKlasse, false, [this](ErrorExit&) {
        return msAuftragsartDerListe() == auftragsartLabel(DatenArt::Nivora);
    });
}

bool cAdminJob::mbFirmaKanzlei() {
    return withErrorExit(QStringLiteral("mbFirmaKanzlei"), kKlasse, false, [this](ErrorExit&) {
        const long lAktenTyp = required(moProperties).plAktenTyp;
        return lAktenTyp == 1 || lAktenTyp == 2;
    });
}

QString cAdminJob::msMandNrErm(long lId) {
    ErrorExit ex(QStringLiteral("msMandNrErm"), kKlasse);
    try {
        auto oMandant = ex.create(services().newMandant, QStringLiteral("hclient.dll"),
                                  QStringLiteral("Set oMandant = New hclient.OIMandantClass"));
        oMandant->SetId(lId);
        oMandant->Lesen();
        QString sNr;
        if (oMandant->GetId() > 0) {
            sNr = (oMandant->IstKanzlei() ? QStringLiteral("K") : QString()) +
                  QString::number(oMandant->ManNr());
        }
        oMandant->Schliessen();
        return sNr;
    } catch (...) {
        ex.fail();
    }
    return {};
}
