// The job editor has one set of controls for every job type; the type decides which panel
// stands, which directory fields count and what they are called.
#include <algorithm>

#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "jobs/ClientKinds.h"
#include "jobs/JobTypes.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

// Where the staff selection stands in the directory frame, in twips.
constexpr int kMitarbeiterTop = 1320;
constexpr int kNivoraAbstand = 120;
// The selection's mode bits: 1 lists staff members; 4 is the archive login's own list.
constexpr long kModusMitarbeiter = 1;
constexpr long kModusArchiv = 4;
constexpr int kSuitePfad = 6;

const QString kBuchungsLog = QStringLiteral("ImportLogBuchungen.txt");
const QString kLogfiles = QStringLiteral("Logfiles");

void zeigen(IControl& c, bool bAn) {
    c.setVisible(bAn);
    c.setEnabled(bAn);
    c.setTabStop(bAn);
}

void freigeben(IControl& c, bool bAn) {
    c.setEnabled(bAn);
    c.setTabStop(bAn);
}

// The suite's own directory, where the booking import writes its log.
QString suitePfad(ErrorExit& ex) {
    auto oCoreTools = ex.create(services().newCoreTools, QStringLiteral("hcore.dll"),
                                QStringLiteral("Set oCoreTools = New hcore.CoreToolsClass"));
    return oCoreTools->GetPfad(kSuitePfad);
}

}  // namespace

void cAdminJob::mSetFraBuchungen(bool bShow) {
    withErrorExit(QStringLiteral("mSetFraBuchungen"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.fraBuchungen().setVisible(bShow);
        freigeben(f.chkFremdFormat(), bShow);
        freigeben(f.chkCheckBox(frmEigenschaften::Chk::EinfachesLog), bShow);
        freigeben(f.ctlFremdFilter(), bShow);
        freigeben(f.cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei), bShow);
        freigeben(f.ctlFremdMapping(), bShow);
        return 0;
    });
}

void cAdminJob::mSetFraImport(bool bEnable, bool bFrame) {
    withErrorExit(QStringLiteral("mSetFraImport"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.fraImport().setVisible(bFrame || bEnable);
        freigeben(f.txtTextBox(frmEigenschaften::Txt::Backup), bEnable);
        freigeben(f.txtTextBox(frmEigenschaften::Txt::Importdaten), bEnable);
        freigeben(f.txtTextBox(frmEigenschaften::Txt::Logfiles), bEnable);
        freigeben(f.cmdCommandButton(frmEigenschaften::Cmd::Importverzeichnis), bEnable);
        freigeben(f.cmdCommandButton(frmEigenschaften::Cmd::Backupverzeichnis), bEnable);
        freigeben(f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis), bEnable);
        freigeben(f.ctlMitarbeiterBuchProp(), bEnable);
        return 0;
    });
}

void cAdminJob::mSetFraScanDokumente(bool bShow) {
    withErrorExit(QStringLiteral("mSetFraScanDokumente"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.fraScandokumente().setVisible(bShow);
        freigeben(f.ctlMitarbeiter(), bShow);
        freigeben(f.ctlKennwort(), bShow);
        return 0;
    });
}

void cAdminJob::mSetFraNivora(bool bShow) {
    withErrorExit(QStringLiteral("mSetFraNivora"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.fraNivora().setVisible(bShow);
        freigeben(f.cboComboBox(frmEigenschaften::Cbo::Nivora), bShow);
        return 0;
    });
}

void cAdminJob::mSetPicBelegarten(bool bShow) {
    withErrorExit(QStringLiteral("mSetPicBelegarten"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.picBelegarten().setVisible(bShow);
        f.grdBeleg().setVisible(bShow);
        // The document types are ticked with the mouse; tabbing passes them by.
        f.grdBeleg().setTabStop(false);
        return 0;
    });
}

void cAdminJob::mSetFraTxtImport(bool bShow) {
    withErrorExit(QStringLiteral("mSetFraTxtImport"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        f.FraTxtImport().setVisible(bShow);
        for (int i = 0; i <= 1; ++i) {
            f.ctlOptFileName(i).setVisible(bShow);
            f.ctlOptFileName(i).setTabStop(bShow);
            f.cmdOptFileName(i).setVisible(bShow);
            f.cmdOptFileName(i).setTabStop(bShow);
        }
        return 0;
    });
}

void cAdminJob::mChangeMitFremdformat() {
    withErrorExit(QStringLiteral("mChangeMitFremdformat"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        const bool bFremd = f.chkFremdFormat().Value() == 1;
        f.ctlFremdFilter().setEnabled(bFremd);
        f.ctlFremdMapping().setEnabled(bFremd);
        f.cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei).setEnabled(bFremd);
        return 0;
    });
}

void cAdminJob::mDatenart(std::uint8_t bytDatenArt) {
    ErrorExit ex(QStringLiteral("mDatenart"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        ITextBox& txtImport = f.txtTextBox(frmEigenschaften::Txt::Importdaten);
        ITextBox& txtBackup = f.txtTextBox(frmEigenschaften::Txt::Backup);
        ITextBox& txtDritte = f.txtTextBox(frmEigenschaften::Txt::Logfiles);
        ISelection& ctlBuchProp = f.ctlMitarbeiterBuchProp();

        mSetFraBuchungen(false);
        mSetFraImport(true, true);
        mSetFraScanDokumente(false);
        txtImport.setToolTip(QStringLiteral("Verzeichnis der Importdaten auswählen"));
        if (bytDatenArt != DatenArt::Nivora) {
            mSetFraNivora(false);
            f.fraImport().setTop(mlFraImportHoehe);
        }
        if (bytDatenArt != DatenArt::KestoDirekt) {
            for (IControl* c : std::initializer_list<IControl*>{
                     &txtDritte, &f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis),
                     &txtImport, &f.cmdCommandButton(frmEigenschaften::Cmd::Importverzeichnis),
                     &txtBackup, &f.cmdCommandButton(frmEigenschaften::Cmd::Backupverzeichnis)}) {
                c->setVisible(true);
                c->setEnabled(true);
            }
        }
        mSetPicBelegarten(false);
        mSetFraTxtImport(false);
        zeigen(ctlBuchProp, false);

        auto mitarbeiterAuswahl = [&](int lTop) {
            ctlBuchProp.setTop(lTop);
            zeigen(ctlBuchProp, true);
            ctlBuchProp.setMode(kModusMitarbeiter);
        };

        switch (bytDatenArt) {
            case DatenArt::Buchungen: {
                mSetFraBuchungen(true);
                txtDritte.setEnabled(true);
                txtDritte.setCaption(QStringLiteral("Fehler-MTA"));
                f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(true);
                mitarbeiterAuswahl(kMitarbeiterTop);
                f.chkCheckBox(frmEigenschaften::Chk::EinfachesLog).setEnabled(true);
                f.lblLabel(frmEigenschaften::Lbl::BuchungsLog)
                    .setCaption(suitePfad(ex) + kBuchungsLog);
                f.chkFremdFormat().setEnabled(true);
                if (f.chkFremdFormat().Value() != 1) {
                    f.ctlFremdFilter().setEnabled(false);
                    f.ctlFremdMapping().setEnabled(false);
                    f.cmdCommandButton(frmEigenschaften::Cmd::Mappingdatei).setEnabled(false);
                }
                break;
            }
            case DatenArt::Wirtschaftsgueter:
                zeigen(txtImport, true);
                txtDritte.setCaption(kLogfiles);
                f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(true);
                break;
            case DatenArt::Kunden:
            case DatenArt::Lieferanten:
                f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(true);
                txtDritte.setEnabled(true);
                txtDritte.setCaption(kLogfiles);
                mitarbeiterAuswahl(kMitarbeiterTop);
                break;
            case DatenArt::ScanDokumente:
            case DatenArt::Verschlagwortung:
                txtDritte.setEnabled(true);
                txtDritte.setCaption(kLogfiles);
                txtImport.setEnabled(false);
                txtBackup.setEnabled(false);
                mSetFraImport(false, true);
                mSetFraScanDokumente(true);
                f.ctlMitarbeiter().setMode(f.ctlMitarbeiter().Mode() | kModusArchiv);
                break;
            case DatenArt::KestoDirekt:
                mSetPicBelegarten(true);
                zeigen(txtDritte, false);
                txtDritte.setText(QString());
                zeigen(f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis), false);
                zeigen(txtImport, true);
                zeigen(f.cmdCommandButton(frmEigenschaften::Cmd::Importverzeichnis), true);
                zeigen(txtBackup, false);
                txtBackup.setText(QString());
                zeigen(f.cmdCommandButton(frmEigenschaften::Cmd::Backupverzeichnis), false);
                mitarbeiterAuswahl(txtBackup.Top());
                break;
            case DatenArt::Nivora:
                mSetFraNivora(true);
                f.fraNivora().setTop(mlFraImportHoehe);
                f.fraImport().setTop(f.fraNivora().Top() + f.fraNivora().Height() + kNivoraAbstand);
                txtImport.setCaption(QStringLiteral("Lesen aus"));
                txtBackup.setCaption(QStringLiteral("Verschieben in"));
                txtDritte.setCaption(QStringLiteral("Temporäre Importdaten"));
                break;
            case DatenArt::Textdatei:
                mSetFraTxtImport(true);
                f.FraTxtImport().setTop(f.fraImport().Top());
                f.fraImport().setTop(f.fraImport().Top() + f.FraTxtImport().Height());
                txtImport.setCaption(QStringLiteral("Importformat"));
                txtImport.setToolTip(QStringLiteral("Verzeichnis für das Importformat"));
                txtDritte.setEnabled(true);
                txtDritte.setCaption(kLogfiles);
                f.cmdCommandButton(frmEigenschaften::Cmd::Logverzeichnis).setEnabled(true);
                mitarbeiterAuswahl(kMitarbeiterTop);
                mSetTextDateiauswahl(mbytMandKanz, bytDatenArt);
                break;
            default:
                break;
        }

        IComboBox& cboMandKanz = f.cboComboBox(frmEigenschaften::Cbo::MandKanz);
        long lKey = 0;
        if (cboMandKanz.ItemCount() > 0) {
            lKey = cboMandKanz.Key();
            if ((bytDatenArt == DatenArt::ScanDokumente ||
                 bytDatenArt == DatenArt::Verschlagwortung) &&
                (lKey == MandKanz::AlleMandanten || lKey == MandKanz::AlleKanzleien)) {
                lKey = MandKanz::Mandant;
            }
        }
        const long lVorher = cboMandKanz.Key();
        mInitCBO_MandKanz(static_cast<std::uint8_t>(std::max(0L, lKey)));
        // The combo is silent when selected by code: the client selection follows a kind
        // that the new type does not offer here. While a job is being filled the editor sets
        // the kind itself.
        const long lNachher = cboMandKanz.Key();
        if (!mbInitEigenschaften && lNachher > 0 && lNachher != lVorher) {
            mMandKanz(static_cast<std::uint8_t>(lNachher));
            mbytMandKanz = static_cast<std::uint8_t>(lNachher);
        }
    } catch (...) {
        ex.fail();
    }
}
