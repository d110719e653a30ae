// The job editor: filling it from a job, marking it as changed, saving it back, and the combo
// boxes for the job type and the client kind.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "jobs/ClientKinds.h"
#include "jobs/JobRecord.h"
#include "jobs/JobTypes.h"
#include "jobs/PropertiesTools.h"
#include "jobs/Zusatzinfo.h"
#include "ui/Browser.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

constexpr long kModusMandant = 0;
constexpr long kModusKanzlei = 1;
constexpr long kAktenTypNurKanzleien = 2;

std::uint8_t alsByte(long lWert) {
    return static_cast<std::uint8_t>(lWert < 0 || lWert > 255 ? 0 : lWert);
}

bool mitMitarbeiterBuchProp(long lDatenArt) {
    return lDatenArt == DatenArt::Buchungen || lDatenArt == DatenArt::KestoDirekt ||
           lDatenArt == DatenArt::Kunden || lDatenArt == DatenArt::Lieferanten;
}

bool archivTyp(long lDatenArt) {
    return lDatenArt == DatenArt::ScanDokumente || lDatenArt == DatenArt::Verschlagwortung;
}

}  // namespace

void cAdminJob::mShowJobEigenschaften() {
    ErrorExit ex(QStringLiteral("mShowJobEigenschaften"), kKlasse);
    try {
        frmEigenschaften& form = required(mofrmEigenschaften);
        JobRecord rec;
        rec.lJobId = mlJobId;
        rec.lMandant = mlMandantId;
        mAuftragLesen(rec);
        mlAuftragZeilenversion = rec.lZeilenversion;
        mlMandantId = rec.lMandant;
        const long lDatenArt = rec.bytDatenArt;

        QString sBelegarten;
        long lHaendlerSchluessel = 0;
        long lMitarbeiterBuchProp = 0;
        if (lDatenArt == DatenArt::KestoDirekt) {
            sBelegarten = std::exchange(rec.sVerzeichnis2, QString());
        }
        const Zusatzinfo zusatz = zusatzinfoLesen(lDatenArt, rec.sZusatzinfo);
        if (lDatenArt == DatenArt::Nivora) {
            lHaendlerSchluessel = zusatz.lHaendlerSchluessel;
        }
        if (mitMitarbeiterBuchProp(lDatenArt)) {
            lMitarbeiterBuchProp = zusatz.lMitarbeiterId;
        }

        mSetFormCaption(rec.sName);
        form.txtTextBox(frmEigenschaften::Txt::Name).setText(rec.sName);
        form.lblLabel(frmEigenschaften::Lbl::ErstelltDatum).setCaption(rec.sErstellt);
        form.txtTextBox(frmEigenschaften::Txt::Beschreibung).setText(rec.sBeschreibung);
        if (!archivTyp(lDatenArt)) {
            form.txtTextBox(frmEigenschaften::Txt::Importdaten).setText(rec.sVerzeichnis1);
            form.txtTextBox(frmEigenschaften::Txt::Backup).setText(rec.sVerzeichnis2);
        } else {
            form.ctlMitarbeiter().setId(rec.lArchivMitarbeiter);
            form.ctlKennwort().setText(rec.sArchivKennwort);
        }
        form.txtTextBox(frmEigenschaften::Txt::Logfiles).setText(rec.sVerzeichnis3);
        form.chkCheckBox(frmEigenschaften::Chk::Aktiviert).setValue(rec.bytAktiviert);

        cProperties& properties = required(moProperties);
        std::uint8_t bytMandKanz = rec.bytMandKanz;
        if (mbFirmaKanzlei() && properties.plAktenTyp == kAktenTypNurKanzleien) {
            bytMandKanz = MandKanz::Kanzlei;
        }
        form.ctlMandant().setMode(bytMandKanz == MandKanz::Kanzlei ? kModusKanzlei : kModusMandant);
        if (mbFirmaKanzlei()) {
            // An installation of one client kind has its client fixed.
            if (mlJobId == -1) {
                mlMandantId = properties.plManId;
            }
            form.ctlMandant().setEnabled(false);
        }
        form.ctlMandant().setId(mlMandantId);
        form.lblLetzteAenderung().setCaption(rec.sLetzteAenderung);
        if (mitMitarbeiterBuchProp(lDatenArt)) {
            form.ctlMitarbeiterBuchProp().setId(lMitarbeiterBuchProp);
        }

        msTextDateien.clear();
        if (lDatenArt == DatenArt::Textdatei && !rec.sZusatzinfo.isEmpty()) {
            form.ctlMitarbeiterBuchProp().setId(zusatz.lMitarbeiterId);
            form.ctlOptFileName(frmEigenschaften::OptDatei::Skript).setText(zusatz.sSkript);
            msTextDateien = zusatz.sTextdateien;
        }
        mOptDateienSetzen(QString());

        if (lDatenArt == DatenArt::Buchungen) {
            form.chkCheckBox(frmEigenschaften::Chk::EinfachesLog).setValue(rec.bSingleLog ? 1 : 0);
            form.chkFremdFormat().setValue(rec.bFremdFormat ? 1 : 0);
            form.ctlFremdFilter().setText(rec.sFremdDateifilter);
            form.ctlFremdMapping().setText(rec.sFremdMapping);
            form.ctlFremdFilter().setEnabled(rec.bFremdFormat);
            form.ctlFremdMapping().setEnabled(rec.bFremdFormat);
            form.cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei).setEnabled(rec.bFremdFormat);
        }

        mInitCBODaten(rec.bytDatenArt);
        mInitCBO_MandKanz(bytMandKanz);
        mInitCBO_NivoraDaten(lHaendlerSchluessel);
        mInitGRD_Belegarten();
        mFillBelegGrid(sBelegarten);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mInitCBODaten(std::uint8_t bytDatenArt) {
    ErrorExit ex(QStringLiteral("mInitCBODaten"), kKlasse);
    try {
        mInitCBOAuftragsart(
            required(mofrmEigenschaften).cboComboBox(frmEigenschaften::Cbo::Auftragsart),
            bytDatenArt, false);
        mDatenart(bytDatenArt);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mInitCBO_MandKanz(std::uint8_t bytKey) {
    ErrorExit ex(QStringLiteral("mInitCBO_MandKanz"), kKlasse);
    try {
        frmEigenschaften& form = required(mofrmEigenschaften);
        IComboBox& cbo = form.cboComboBox(frmEigenschaften::Cbo::MandKanz);
        const long lAktenTyp = required(moProperties).plAktenTyp;
        cbo.setVisible(true);
        cbo.Clear();
        std::uint8_t bytTop = 0;
        std::uint8_t bytEinzeln = 0;
        if (lAktenTyp == 1 || lAktenTyp == 4) {
            cbo.AddItem(MandKanz::Mandant, mandKanzText(MandKanz::Mandant));
            cbo.setEnabled(false);
            bytTop = bytEinzeln = MandKanz::Mandant;
        }
        if (lAktenTyp == 2 || lAktenTyp == 4) {
            cbo.AddItem(MandKanz::Kanzlei, mandKanzText(MandKanz::Kanzlei));
            cbo.setEnabled(false);
            bytTop = bytEinzeln = MandKanz::Kanzlei;
        }
        const bool bFirmaKanzlei = mbFirmaKanzlei();
        if (!bFirmaKanzlei) {
            cbo.setEnabled(true);
            const long lDatenArt = form.cboComboBox(frmEigenschaften::Cbo::Auftragsart).Key();
            if (lDatenArt == DatenArt::Textdatei || lDatenArt == DatenArt::Wirtschaftsgueter ||
                lDatenArt == DatenArt::Verschlagwortung || lDatenArt == DatenArt::Buchungen ||
                lDatenArt == DatenArt::ScanDokumente) {
                for (std::uint8_t key : {MandKanz::AlleMandanten, MandKanz::AlleKanzleien,
                                         MandKanz::AlleMandantenKanzleien}) {
                    cbo.AddItem(key, mandKanzText(key));
                }
                bytTop = MandKanz::AlleMandantenKanzleien;
            }
        }
        if (bytKey == 0) {
            bytKey = bFirmaKanzlei ? bytEinzeln : MandKanz::Mandant;
        }
        cbo.setKey(bytKey <= bytTop ? bytKey : bytTop);
        // The combo box stays silent when code selects: the panels follow the kind here.
        const long lGewaehlt = cbo.Key();
        if (lGewaehlt > 0) {
            mbytMandKanz = alsByte(lGewaehlt);
            mMandKanz(mbytMandKanz);
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mofrmEigenschaften_evFrmEigenschaftenComboBoxClicked(int Index) {
    ErrorExit ex(QStringLiteral("mofrmEigenschaften_evFrmEigenschaftenComboBoxClicked"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        const long lKey = mofrmEigenschaften->cboComboBox(Index).Key();
        switch (Index) {
            case frmEigenschaften::Cbo::Auftragsart: {
                const std::uint8_t bytKey = alsByte(lKey);
                mDatenart(bytKey);
                if (bytKey != mbytDatenArt) {
                    mEigenschaftenGeaendert();
                    mbytDatenArt = bytKey;
                }
                break;
            }
            case frmEigenschaften::Cbo::MandKanz: {
                const std::uint8_t bytKey = alsByte(lKey);
                mMandKanz(bytKey);
                if (bytKey != mbytMandKanz) {
                    mEigenschaftenGeaendert();
                    // A selection of several text files does not carry over to another kind.
                    if (mbytDatenArt == DatenArt::Textdatei &&
                        msTextDateien.contains(QLatin1Char('?'))) {
                        msTextDateien.clear();
                    }
                    mbytMandKanz = bytKey;
                }
                break;
            }
            case frmEigenschaften::Cbo::Nivora:
                mNivoraDaten(lKey);
                break;
            default:
                break;
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mEigenschaftenGeaendert() {
    ErrorExit ex(QStringLiteral("mEigenschaftenGeaendert"), kKlasse);
    try {
        if (mbInitEigenschaften || !mofrmEigenschaften) {
            return;
        }
        mofrmEigenschaften->cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen).setEnabled(true);
        mofrmEigenschaften->tbrMain().setToolEnabled(QStringLiteral("barMain"),
                                                     PropertiesTool::Save, true);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mEigenschaftenNeuLesen() {
    ErrorExit ex(QStringLiteral("mEigenschaftenNeuLesen"), kKlasse);
    try {
        // Without input to keep, the window is filled as on opening, without the question.
        required(mofrmEigenschaften)
            .cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen)
            .setEnabled(false);
        mShowFRMPakete(mlJobId, msGetJobName(mlJobId));
    } catch (...) {
        ex.fail();
    }
}

bool cAdminJob::mEigenschaftenSpeichern(bool bUebernehmen) {
    ErrorExit ex(QStringLiteral("mEigenschaftenSpeichern"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return false;
        }
        frmEigenschaften& form = *mofrmEigenschaften;
        JobRecord rec;
        rec.lJobId = mlJobId;
        // A type that stands in no list (an old dealer data job) leaves the combo without a
        // selection; the job keeps the type it was shown with.
        const long lTypKey = form.cboComboBox(frmEigenschaften::Cbo::Auftragsart).Key();
        rec.bytDatenArt = lTypKey < 0 ? mbytDatenArt : alsByte(lTypKey);
        rec.sName = form.txtTextBox(frmEigenschaften::Txt::Name).Text();
        rec.sBeschreibung = form.txtTextBox(frmEigenschaften::Txt::Beschreibung).Text();
        rec.bytAktiviert = alsByte(form.chkCheckBox(frmEigenschaften::Chk::Aktiviert).Value());
        const long lDatenArt = rec.bytDatenArt;
        if (!archivTyp(lDatenArt)) {
            rec.sVerzeichnis1 = form.txtTextBox(frmEigenschaften::Txt::Importdaten).Text();
            rec.sVerzeichnis2 = lDatenArt == DatenArt::KestoDirekt
                                    ? msGetBelegarten()
                                    : form.txtTextBox(frmEigenschaften::Txt::Backup).Text();
        } else {
            rec.lArchivMitarbeiter = form.ctlMitarbeiter().Id();
            rec.sArchivKennwort = form.ctlKennwort().Text();
        }
        if (lDatenArt == DatenArt::Textdatei &&
            mlCheckImportSkript(form.ctlOptFileName(frmEigenschaften::OptDatei::Skript).Text()) <
                2) {
            msTextDateien = form.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text();
        }

        Zusatzinfo zusatz;
        if (lDatenArt == DatenArt::Nivora) {
            zusatz.lHaendlerSchluessel = form.cboComboBox(frmEigenschaften::Cbo::Nivora).Key();
        } else if (mitMitarbeiterBuchProp(lDatenArt) || lDatenArt == DatenArt::Textdatei) {
            zusatz.lMitarbeiterId = form.ctlMitarbeiterBuchProp().Id();
        }
        if (lDatenArt == DatenArt::Textdatei) {
            zusatz.sSkript = form.ctlOptFileName(frmEigenschaften::OptDatei::Skript).Text();
            zusatz.sTextdateien = msTextDateien;
        }
        rec.sZusatzinfo = zusatzinfoSchreiben(lDatenArt, zusatz);

        rec.bytMandKanz = alsByte(form.cboComboBox(frmEigenschaften::Cbo::MandKanz).Key());
        rec.sVerzeichnis3 = form.txtTextBox(frmEigenschaften::Txt::Logfiles).Text();
        if (lDatenArt == DatenArt::Buchungen) {
            rec.bSingleLog = form.chkCheckBox(frmEigenschaften::Chk::EinfachesLog).Value() == 1;
            rec.bFremdFormat = form.chkFremdFormat().Value() == 1;
            if (rec.bFremdFormat) {
                rec.sFremdDateifilter = form.ctlFremdFilter().Text();
                rec.sFremdMapping = form.ctlFremdMapping().Text();
            }
        }
        rec.lMandant = form.ctlMandant().Id();

        rec.lZeilenversion = mlAuftragZeilenversion;
        // After a failure (reported once, e.g. the database locked by another writer) or the
        // user's cancel the window is not filled again from the table, so that the input
        // stays and "Übernehmen" stays enabled for the next try.
        const RowConflict::Speicherung ergebnis = mAuftragSpeichern(rec);
        if (ergebnis == RowConflict::Speicherung::Verworfen) {
            mEigenschaftenNeuLesen();
            return false;
        }
        if (ergebnis != RowConflict::Speicherung::Gespeichert) {
            return false;
        }
        const bool bNeuAngelegt = rec.lJobId != mlJobId;
        mlJobId = rec.lJobId;
        mlAuftragZeilenversion = rec.lZeilenversion;
        if (bNeuAngelegt && moGridZeitplan) {
            // A job made anew after another workstation deleted it has no schedules yet.
            mInitGridZeitplan();
            mFuelleGridZeitplan();
        }
        form.lblLetzteAenderung().setCaption(rec.sLetzteAenderung);
        form.lblLabel(frmEigenschaften::Lbl::ErstelltDatum).setCaption(rec.sErstellt);
        msJobName = rec.sName;

        if (bUebernehmen) {
            form.tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, true);
            form.cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen).setEnabled(false);
            form.tbrMain().setToolEnabled(QStringLiteral("barMain"), PropertiesTool::Save, false);
            mBrowserRefresh(false);
            // The step row becomes the list's last one, where a job saved for the first time
            // stands; the step tools and the next step count from there.
            if (moPakete && moPakete->Auswahl().RecordCount() >= 1) {
                mlJobZeile = moPakete->Auswahl().RowCount() - 1;
            }
            mAktuFrmPakete(mlJobId);
        }
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}
