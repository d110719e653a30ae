// The text file grid of a script with several text files, and the small window for the
// beginning of a name: filling the grid from the script and the stored pairs, choosing a
// row's file, path or name, and taking the rows over into the stored selection.
#include <algorithm>

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "jobs/AdminJobOptionFilesNames.h"
#include "ui/Grid.h"
#include "ui/Window.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmOptTextDatName.h"
#include "ui/windows/frmOptTextDateien.h"

namespace {

constexpr std::uint8_t kMandKanzEinzeln = 2;
constexpr int kBreiteTabelle = 2000;

enum Spalte { kTabelle = 0, kTextdatei = 1, kPfad = 2, kNamensAnfang = 3, kErweiterung = 4 };

const QChar kPaarTrenner = QLatin1Char('?');

void setFormIcon(WindowContract& form) {
    if (auto& texte = services().coreTexte) {
        texte->SetFormIcon(form.window(), kFensterSymbol);
    }
}

// The pattern of a row: path, beginning of the name, "*" unless the name is a fixed one,
// extension.
QString muster(const QString& sPfad, const QString& sName, const QString& sExt) {
    const bool bFest = sName.toLower().contains(QStringLiteral("_nodel"));
    return joinPath(sPfad, sName + (bFest ? QString() : QStringLiteral("*")) + sExt);
}

}  // namespace

void cAdminJob::mOptTxtDateiMultiAuswahl(const QList<OptionFileEntry>& colEintraege) {
    ErrorExit ex(QStringLiteral("mOptTxtDateiMultiAuswahl"), kKlasse);
    try {
        moFrmTextDateien = std::make_shared<frmOptTextDateien>(
            required(services().windows).create(frmOptTextDateien::declaration()));
        frmOptTextDateien& frm = *moFrmTextDateien;
        frm.evTextDateiAuswaehlen = mLeben.guard([this](int lZeile, int Index) {
            moFrmTextDateien_evTextDateiAuswaehlen(lZeile, Index);
        });
        frm.evTextDateienUebernehmen =
            mLeben.guard([this] { moFrmTextDateien_evTextDateienUebernehmen(); });

        const bool bMuster = mbytMandKanz > kMandKanzEinzeln;
        frm.ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).setVisible(false);
        frm.ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).setTabStop(false);
        if (bMuster) {
            frm.ctlOptTextDatei(frmOptTextDateien::Auswahl::Pfad)
                .setToolTip(QStringLiteral("Datenpfad auswählen"));
            frm.ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).setVisible(true);
            frm.ctlOptTextDatei(frmOptTextDateien::Auswahl::NamensAnfang).setTabStop(true);
        }
        setFormIcon(frm);

        IGrid& grd = frm.grdFileNames();
        grd.setRows(static_cast<int>(colEintraege.size()) + 1);
        grd.setCols(bMuster ? 5 : 2);
        grd.setFixedRows(1);
        grd.setColWidth(kTabelle, kBreiteTabelle);
        grd.setColWidth(kTextdatei, std::max(grd.Width() - kBreiteTabelle, 0));
        grd.setTextMatrix(0, kTabelle, QStringLiteral("Tabelle"));
        grd.setTextMatrix(0, kTextdatei, QStringLiteral("Textdatei"));
        if (bMuster) {
            grd.setColHidden(kPfad, true);
            grd.setColHidden(kNamensAnfang, true);
            grd.setColHidden(kErweiterung, true);
        }

        QString sPfad, sName, sExt;
        int lZeile = 1;
        for (const OptionFileEntry& oEintrag : colEintraege) {
            gStrSplitFileName(oEintrag.TextFileName, sPfad, sName, sExt);
            grd.setTextMatrix(lZeile, kTabelle, oEintrag.TableName);
            grd.setTextMatrix(lZeile, kTextdatei, mDateinameMitStern(oEintrag.TextFileName));
            if (bMuster) {
                grd.setTextMatrix(lZeile, kPfad, sPfad);
                grd.setTextMatrix(lZeile, kNamensAnfang, sName);
                grd.setTextMatrix(lZeile, kErweiterung, sExt);
            }
            ++lZeile;
        }

        if (!msTextDateien.isEmpty()) {
            const QStringList aTeile = msTextDateien.split(kPaarTrenner);
            for (int lRow = 1; lRow < grd.Rows(); ++lRow) {
                const qsizetype lTeil = aTeile.indexOf(grd.TextMatrix(lRow, kTabelle));
                if (lTeil < 0 || lTeil + 1 >= aTeile.size()) {
                    continue;
                }
                const QString& sDatei = aTeile.at(lTeil + 1);
                gStrSplitFileName(sDatei, sPfad, sName, sExt);
                grd.setTextMatrix(lRow, kTextdatei, sDatei);
                if (bMuster) {
                    grd.setTextMatrix(lRow, kPfad, sPfad);
                    grd.setTextMatrix(lRow, kNamensAnfang, QString(sName).remove(QLatin1Char('*')));
                    grd.setTextMatrix(lRow, kErweiterung, sExt);
                }
            }
        }

        grd.setRow(1);
        frm.window().Show(true);
        // The window may have gone while it was shown.
        if (moFrmTextDateien) {
            moFrmTextDateien->window().Unload();
        }
        moFrmTextDateien.reset();
    } catch (...) {
        moFrmTextDateien.reset();
        ex.fail();
    }
}

void cAdminJob::moFrmTextDateien_evTextDateiAuswaehlen(int lZeile, int Index) {
    if (Index == frmOptTextDateien::Auswahl::Pfad) {
        mOptTextDateiAuswaehlen(TextDateiPfad{}, lZeile);
    } else {
        mOptTextDateiAuswaehlen(TextDateiNamensAnfang{}, lZeile);
    }
}

void cAdminJob::moFrmTextDateien_evTextDateienUebernehmen() {
    mOptTextDateienUebernehmen();
}

void cAdminJob::moFrmTextDateiNamen_evTextDateienNamenUebernehmen(int lZeile) {
    mOptTextDateiAuswaehlen(TextDateiNamensAnfangUebernehmen{}, lZeile);
}

void cAdminJob::mOptTextDateiAuswaehlen(TextDateiPfad, int lZeile) {
    ErrorExit ex(QStringLiteral("mOptTextDateiAuswaehlen"), kKlasse);
    try {
        frmOptTextDateien& frm = required(moFrmTextDateien);
        IGrid& grd = frm.grdFileNames();
        if (mbytMandKanz <= kMandKanzEinzeln) {
            FileDialogSettings oSettings;
            const QString sDatei = grd.TextMatrix(lZeile, kTextdatei);
            if (!sDatei.isEmpty()) {
                QString sPfad, sName, sExt;
                gStrSplitFileName(sDatei, sPfad, sName, sExt);
                oSettings.initialDirectory = sPfad;
                oSettings.fileName = sDatei;
            }
            oSettings.filter =
                QStringList{QStringLiteral("Textdatei (*.txt;*.csv)"),
                            QStringLiteral("*.txt;*.csv"), QStringLiteral("Alle Dateien (*.*)"),
                            QStringLiteral("*.*")}
                    .join(QLatin1Char('|'));
            oSettings.title = QStringLiteral("TextDatei auswählen");
            const QString sGewaehlt = frm.ctlCommonDialog().ShowOpen(oSettings).value_or(QString());
            if (!sGewaehlt.isEmpty()) {
                grd.setTextMatrix(lZeile, kTextdatei, sGewaehlt);
            }
            return;
        }
        const auto sVerzeichnis =
            required(mofrmEigenschaften)
                .ctlDirDialog()
                .ShowDir(QStringLiteral("Datenpfad auswählen"), grd.TextMatrix(lZeile, kPfad));
        if (sVerzeichnis) {
            grd.setTextMatrix(lZeile, kPfad, *sVerzeichnis);
            grd.setTextMatrix(lZeile, kTextdatei,
                              muster(*sVerzeichnis, grd.TextMatrix(lZeile, kNamensAnfang),
                                     grd.TextMatrix(lZeile, kErweiterung)));
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mOptTextDateiAuswaehlen(TextDateiNamensAnfang, int lZeile) {
    ErrorExit ex(QStringLiteral("mOptTextDateiAuswaehlen"), kKlasse);
    try {
        if (mbytMandKanz <= kMandKanzEinzeln || !moFrmTextDateien) {
            return;
        }
        moFrmTextDateiNamen = std::make_shared<frmOptTextDatName>(
            required(services().windows).create(frmOptTextDatName::declaration()));
        frmOptTextDatName& frm = *moFrmTextDateiNamen;
        frm.evTextDateienNamenUebernehmen = mLeben.guard(
            [this](int lRow) { moFrmTextDateiNamen_evTextDateienNamenUebernehmen(lRow); });
        setFormIcon(frm);
        frm.ctlOptDateiNameBeginntMit().setText(
            moFrmTextDateien->grdFileNames().TextMatrix(lZeile, kNamensAnfang));
        frm.setRow(lZeile);
        frm.window().Show(true);
        if (moFrmTextDateiNamen) {
            moFrmTextDateiNamen->window().Unload();
        }
        moFrmTextDateiNamen.reset();
    } catch (...) {
        moFrmTextDateiNamen.reset();
        ex.fail();
    }
}

void cAdminJob::mOptTextDateiAuswaehlen(TextDateiNamensAnfangUebernehmen, int lZeile) {
    ErrorExit ex(QStringLiteral("mOptTextDateiAuswaehlen"), kKlasse);
    try {
        if (mbytMandKanz <= kMandKanzEinzeln || !moFrmTextDateien || !moFrmTextDateiNamen) {
            return;
        }
        IGrid& grd = moFrmTextDateien->grdFileNames();
        const QString sAnfang = moFrmTextDateiNamen->ctlOptDateiNameBeginntMit().Text();
        if (sAnfang != grd.TextMatrix(lZeile, kNamensAnfang)) {
            grd.setTextMatrix(lZeile, kNamensAnfang, sAnfang);
            grd.setTextMatrix(lZeile, kTextdatei,
                              muster(grd.TextMatrix(lZeile, kPfad), sAnfang,
                                     grd.TextMatrix(lZeile, kErweiterung)));
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mOptTextDateienUebernehmen() {
    ErrorExit ex(QStringLiteral("mOptTextDateienUebernehmen"), kKlasse);
    try {
        if (!moFrmTextDateien) {
            return;
        }
        IGrid& grd = moFrmTextDateien->grdFileNames();
        QString sErgebnis;
        QString sHinweis;
        for (int lZeile = 1; lZeile < grd.Rows(); ++lZeile) {
            if (!sErgebnis.isEmpty()) {
                sErgebnis += kPaarTrenner;
                sHinweis += QStringLiteral(" | ");
            }
            sErgebnis += grd.TextMatrix(lZeile, kTabelle) + kPaarTrenner +
                         grd.TextMatrix(lZeile, kTextdatei);
            sHinweis += grd.TextMatrix(lZeile, kTextdatei);
        }
        required(mofrmEigenschaften)
            .ctlOptFileName(frmEigenschaften::OptDatei::Textdatei)
            .setToolTip(sHinweis);
        if (sErgebnis != msTextDateien) {
            msTextDateien = sErgebnis;
            mEigenschaftenGeaendert();
        }
    } catch (...) {
        ex.fail();
    }
}
