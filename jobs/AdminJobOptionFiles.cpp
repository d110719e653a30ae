// The script and text file fields of a text import: reading a script, choosing its file or
// the text file by dialog, and what the text file field shows after the script has changed.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "jobs/AdminJobOptionFilesNames.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

// The suite's directory of import scripts, and its data root for the text files.
constexpr long kPfadImportSkripte = 5;
constexpr long kPfadDaten = 83;
constexpr std::uint8_t kMandKanzEinzeln = 2;

const QString kFilterTrenner = QStringLiteral("|");

QString filter(const QStringList& teile) {
    return teile.join(kFilterTrenner);
}

}  // namespace

long cAdminJob::mlCheckImportSkript(const QString& sSkript) {
    std::optional<QList<OptionFileEntry>> colEintraege;
    return mlCheckImportSkript(sSkript, colEintraege);
}

long cAdminJob::mlCheckImportSkript(const QString& sSkript,
                                    std::optional<QList<OptionFileEntry>>& colEintraege) {
    ErrorExit ex(QStringLiteral("mlCheckImportSkript"), kKlasse);
    colEintraege.reset();
    try {
        auto oReader =
            ex.create(services().newOptionFileReader, QStringLiteral("OptionFileReader.dll"),
                      QStringLiteral("Set oReader = New OptionFileReader.OptionFileReader"));
        colEintraege = oReader->Entries(sSkript);
        return static_cast<long>(colEintraege->size());
    } catch (...) {
        ex.fail();
    }
    return 0;
}

QString cAdminJob::mDateinameMitStern(const QString& sDatei) {
    return withErrorExit(QStringLiteral("mDateinameMitStern"), kKlasse, sDatei, [&](ErrorExit&) {
        QString sPfad, sName, sExt;
        gStrSplitFileName(sDatei, sPfad, sName, sExt);
        // "_nodel" marks a fixed name that the agent takes as it stands.
        if (!sName.contains(QStringLiteral("_nodel"), Qt::CaseInsensitive) &&
            mbytMandKanz > kMandKanzEinzeln) {
            return sPfad + sName + QStringLiteral("*") + sExt;
        }
        return sDatei;
    });
}

void cAdminJob::mOptDateiAuswaehlen(int Index) {
    ErrorExit ex(QStringLiteral("mOptDateiAuswaehlen"), kKlasse);
    try {
        using OptDatei = frmEigenschaften::OptDatei;
        frmEigenschaften& frm = required(mofrmEigenschaften);
        FileDialogSettings oSettings;
        std::optional<QList<OptionFileEntry>> colEintraege;

        const QString sSkript = frm.ctlOptFileName(frmEigenschaften::OptDatei::Skript).Text();
        if (Index == OptDatei::Textdatei && !sSkript.isEmpty() &&
            mlCheckImportSkript(sSkript, colEintraege) > 1) {
            mOptTxtDateiMultiAuswahl(*colEintraege);
            mOptDateienSetzen(QString());
            return;
        }
        const QString sSkriptVorher = sSkript;

        QString sDatei = frm.ctlOptFileName(Index).Text();
        if (sDatei.isEmpty() && colEintraege) {
            for (const OptionFileEntry& oEintrag : *colEintraege) {
                if (!oEintrag.TextFileName.isEmpty()) {
                    sDatei = oEintrag.TextFileName;
                }
            }
        }

        QString sPfad, sName, sExt;
        if (sDatei.isEmpty()) {
            auto oCoreTools =
                ex.create(services().newCoreTools, QStringLiteral("hcore.dll"),
                          QStringLiteral("Set oCoreTools = New hcore.CoreToolsClass"));
            sPfad =
                oCoreTools->GetPfad(Index == OptDatei::Skript ? kPfadImportSkripte : kPfadDaten);
        } else {
            gStrSplitFileName(sDatei, sPfad, sName, sExt);
        }

        if (Index == OptDatei::Textdatei && mbytMandKanz > kMandKanzEinzeln) {
            // All clients: only the directory is chosen; the name stays a pattern.
            const auto sVerzeichnis =
                frm.ctlDirDialog().ShowDir(QStringLiteral("Datenpfad auswählen"), sPfad);
            if (sVerzeichnis) {
                frm.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei)
                    .setText(joinPath(*sVerzeichnis, sName + sExt));
            }
            return;
        }

        if (Index == OptDatei::Skript) {
            oSettings.filter =
                filter({QStringLiteral("Import Optionen (*.opt)"), QStringLiteral("*.opt")});
        } else if (sExt.isEmpty()) {
            oSettings.filter =
                filter({QStringLiteral("Textdatei (*.txt;*.csv)"), QStringLiteral("*.txt;*.csv"),
                        QStringLiteral("Alle Dateien (*.*)"), QStringLiteral("*.*")});
        } else {
            const QString sMuster = QStringLiteral("*.") + extOhnePunkt(sExt);
            oSettings.filter =
                filter({QStringLiteral("Textdatei (") + sMuster + QStringLiteral(")"), sMuster});
        }
        oSettings.initialDirectory = sPfad;
        if (!sDatei.isEmpty()) {
            oSettings.fileName = sDatei;
        }
        oSettings.title = Index == OptDatei::Skript ? QStringLiteral("Skript-Datei auswählen")
                                                    : QStringLiteral("TextDatei auswählen");
        const QString sGewaehlt = frm.ctlCommonDialog().ShowOpen(oSettings).value_or(QString());

        if (!sGewaehlt.isEmpty()) {
            frm.ctlOptFileName(Index).setText(sGewaehlt);
            if (Index == OptDatei::Textdatei) {
                msTextDateien = sGewaehlt;
            } else {
                mOptDateienSetzen(sSkriptVorher);
            }
            mEigenschaftenGeaendert();
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mOptDateienSetzen(const QString& sSkriptVorher) {
    ErrorExit ex(QStringLiteral("mOptDateienSetzen"), kKlasse);
    try {
        frmEigenschaften& frm = required(mofrmEigenschaften);
        const QString sSkript = frm.ctlOptFileName(frmEigenschaften::OptDatei::Skript).Text();
        long lAnzahl = 0;
        if (!sSkript.isEmpty()) {
            lAnzahl = mlCheckImportSkript(sSkript);
        }
        frm.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).setEnabled(lAnzahl < 2);
        if (lAnzahl < 2) {
            // Pairs of another script do not fit this one.
            if (!sSkriptVorher.isEmpty() && sSkriptVorher != sSkript &&
                msTextDateien.contains(QLatin1Char('?'))) {
                msTextDateien.clear();
            }
            frm.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei).setText(msTextDateien);
        } else {
            frm.ctlOptFileName(frmEigenschaften::OptDatei::Textdatei)
                .setText(QStringLiteral("Das Importskript benötigt ") + QString::number(lAnzahl) +
                         QStringLiteral(" Textdateien."));
        }
    } catch (...) {
        ex.fail();
    }
}
