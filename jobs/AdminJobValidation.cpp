// What must hold before a job may be saved: one test after another, one message for the
// first that fails, and the focus on the field concerned.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "jobs/ClientKinds.h"
#include "jobs/JobTypes.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

// The dealer data that needs no temporary directory.
constexpr long kNivoraOhneTempPfad = 3;

const QString kVerzeichnisFehlt =
    QStringLiteral("Das Verzeichnis existiert nicht oder ist nicht korrekt angegeben.");

bool istArchiv(long lArt) {
    return lArt == DatenArt::ScanDokumente || lArt == DatenArt::Verschlagwortung;
}

bool brauchtMitarbeiter(long lArt) {
    return lArt == DatenArt::Buchungen || lArt == DatenArt::Kunden ||
           lArt == DatenArt::Lieferanten || lArt == DatenArt::Textdatei;
}

bool ordnerFehlt(const QString& sPfad) {
    return !required(services().fileSystem).FolderExists(sPfad);
}

}  // namespace

bool cAdminJob::mbCheckEigenschaften() {
    ErrorExit ex(QStringLiteral("mbCheckEigenschaften"), kKlasse);
    bool bOk = true;
    try {
        if (!mofrmEigenschaften) {
            return bOk;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        // One message, the focus on its field, and the result is False.
        auto melden = [&](const QString& sText, IControl& fokus) {
            mlMsgBox(sText, MsgStyle::Information);
            bOk = false;
            fokus.SetFocus();
        };

        if (f.txtTextBox(frmEigenschaften::Txt::Name).Text().trimmed().isEmpty()) {
            mlMsgBox(QStringLiteral("Bitte geben Sie einen Namen für den Auftrag an."),
                     MsgStyle::Information);
            bOk = false;
            f.tabControl().setTab(frmEigenschaften::Tab::Allgemein);
            f.txtTextBox(frmEigenschaften::Txt::Name).SetFocus();
        }

        if (bOk) {
            const long lKanz = f.cboComboBox(frmEigenschaften::Cbo::MandKanz).Key();
            if ((lKanz == MandKanz::Mandant || lKanz == MandKanz::Kanzlei) &&
                f.ctlMandant().Id() == 0) {
                melden(lKanz == MandKanz::Mandant
                           ? QStringLiteral("Bitte wählen Sie einen Mandanten aus.")
                           : QStringLiteral("Bitte wählen Sie eine Kanzlei aus."),
                       f.ctlMandant());
            }
        }

        // A dealer job is offered in no list: its type stands in no item of the combo, and
        // the type the editor stands on counts.
        long lArt = f.cboComboBox(frmEigenschaften::Cbo::Auftragsart).Key();
        if (lArt < 0) {
            lArt = mbytDatenArt;
        }

        // The archive jobs keep no directories of their own; only the archive login counts.
        if (istArchiv(lArt)) {
            if (bOk && f.ctlMitarbeiter().Id() == 0) {
                melden(QStringLiteral("Mitarbeiter für Archivanmeldung fehlt."),
                       f.ctlMitarbeiter());
            }
            return bOk;
        }

        ITextBox& txtImport = f.txtTextBox(frmEigenschaften::Txt::Importdaten);
        ITextBox& txtBackup = f.txtTextBox(frmEigenschaften::Txt::Backup);
        ITextBox& txtDritte = f.txtTextBox(frmEigenschaften::Txt::Logfiles);

        if (lArt == DatenArt::Textdatei) {
            if (bOk && f.ctlOptFileName(frmEigenschaften::OptDatei::Skript).Text().isEmpty()) {
                melden(QStringLiteral(
                           "Bitte wählen sie eine Script-Datei für den Textdatei-Import aus."),
                       f.ctlOptFileName(frmEigenschaften::OptDatei::Skript));
            }
            if (bOk && f.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).Text().isEmpty()) {
                melden(
                    QStringLiteral("Bitte wählen sie eine Textdatei für den Textdatei-Import aus."),
                    f.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei));
            }
        }

        if (bOk && txtImport.Text().isEmpty()) {
            if (lArt == DatenArt::Nivora) {
                melden(QStringLiteral("Bitte wählen Sie das Verzeichnis aus dem die Belege "
                                      "übernommen werden."),
                       txtImport);
            } else if (lArt == DatenArt::Textdatei) {
                melden(QStringLiteral(
                           "Bitte wählen Sie das Verzeichnis für die Importformatdateien aus."),
                       txtImport);
            } else {
                melden(
                    QStringLiteral("Bitte wählen Sie das Verzeichnis für die Importdateien aus."),
                    txtImport);
            }
        }
        if (bOk && !txtImport.Text().isEmpty() && ordnerFehlt(txtImport.Text())) {
            melden(kVerzeichnisFehlt, txtImport);
        }

        if (lArt != DatenArt::KestoDirekt) {
            if (bOk && txtDritte.Text().isEmpty()) {
                if (lArt == DatenArt::Nivora) {
                    if (f.cboComboBox(frmEigenschaften::Cbo::Nivora).Key() != kNivoraOhneTempPfad) {
                        melden(QStringLiteral("Bitte wählen Sie das Verzeichnis für die "
                                              "temporären Buchungsdateien (MTA) aus."),
                               txtDritte);
                    }
                } else if (lArt == DatenArt::Buchungen) {
                    melden(
                        QStringLiteral("Bitte wählen Sie das Verzeichnis für die Fehler-MTA aus."),
                        txtDritte);
                } else {
                    melden(QStringLiteral("Bitte wählen Sie das Verzeichnis für die Logfiles aus."),
                           txtDritte);
                }
            }
            if (bOk && !txtDritte.Text().isEmpty() && ordnerFehlt(txtDritte.Text())) {
                melden(kVerzeichnisFehlt, txtDritte);
            }
        }

        if (lArt == DatenArt::Nivora) {
            if (bOk && txtBackup.Text().isEmpty()) {
                melden(QStringLiteral("Bitte wählen Sie das Verzeichnis in dem die "
                                      "Belegedateien gesichert werden."),
                       txtBackup);
            }
            if (bOk && !txtBackup.Text().isEmpty() && ordnerFehlt(txtBackup.Text())) {
                melden(kVerzeichnisFehlt, txtBackup);
            }
        }

        // Exact and case-sensitive: two spellings of one directory pass.
        if (lArt != DatenArt::KestoDirekt && bOk &&
            txtImport.Text().trimmed() == txtBackup.Text().trimmed()) {
            melden(lArt == DatenArt::Nivora
                       ? QStringLiteral("Das Verzeichnis aus dem die Belege gelesen werden darf "
                                        "nicht identisch sein mit Verzeichnis in dem die "
                                        "Belegdateien gesichert werden.")
                       : QStringLiteral("Das Verzeichnis für das Backup darf nicht identisch "
                                        "sein mit dem Pfad für die Importdaten."),
                   txtImport);
        }

        if (lArt != DatenArt::KestoDirekt && lArt != DatenArt::Nivora && bOk &&
            !mbCheckBackupPfadVorhanden()) {
            bOk = false;
        }

        if (bOk && brauchtMitarbeiter(lArt) && f.ctlMitarbeiterBuchProp().Id() == 0) {
            melden(QStringLiteral("Es wurde kein Mitarbeiter für die Verwendung der Importoptionen "
                                  "ausgewählt."),
                   f.ctlMitarbeiterBuchProp());
        }
        return bOk;
    } catch (...) {
        ex.fail();
    }
    return bOk;
}

bool cAdminJob::mbCheckBackupPfadVorhanden() {
    ErrorExit ex(QStringLiteral("mbCheckBackupPfadVorhanden"), kKlasse);
    bool bOk = true;
    try {
        if (mbBackupGefragt || !mofrmEigenschaften) {
            return true;
        }
        ITextBox& txtBackup = mofrmEigenschaften->txtTextBox(frmEigenschaften::Txt::Backup);
        if (txtBackup.Text().trimmed().isEmpty()) {
            const long lAntwort = mlMsgBox(
                QStringLiteral("Sie haben kein Verzeichnis für das Backup ausgewählt. In diesem "
                               "Fall werden die Importierten Dateien nach dem Import gelöscht.") +
                    QStringLiteral("\r\n\r\n") +
                    QStringLiteral("Wollen Sie ein Verzeichnis für das Backup ausgewählen?"),
                MsgStyle::YesNo);
            if (lAntwort == MsgAnswer::Yes) {
                bOk = false;
                txtBackup.SetFocus();
            }
        }
        mbBackupGefragt = true;
        return bOk;
    } catch (...) {
        ex.fail();
    }
    return bOk;
}
