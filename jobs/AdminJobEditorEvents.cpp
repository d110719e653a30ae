// The editor's events: their wiring to this controller and the handlers, the buttons among
// them.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "ui/Grid.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

using Cmd = frmEigenschaften::Cmd;
using Txt = frmEigenschaften::Txt;

namespace ZeitplanSpalte {
constexpr int Name = 0;
constexpr int Id = 3;
}  // namespace ZeitplanSpalte

}  // namespace

void cAdminJob::mEigenschaftenVerbinden() {
    frmEigenschaften& form = required(mofrmEigenschaften);
    form.evFrmEigenschaftenCommandButtonClicked = mLeben.guard(
        [this](int Index) { mofrmEigenschaften_evFrmEigenschaftenCommandButtonClicked(Index); });
    form.evZeitplanEdit =
        mLeben.guard([this](int lRow) { mofrmEigenschaften_evZeitplanEdit(lRow); });
    form.evFrmEigenschaftenComboBoxClicked = mLeben.guard(
        [this](int Index) { mofrmEigenschaften_evFrmEigenschaftenComboBoxClicked(Index); });
    form.evCTLMandantChange = mLeben.guard([this] { mofrmEigenschaften_evCTLMandantChange(); });
    form.evGeaendert = mLeben.guard([this] { mofrmEigenschaften_evGeaendert(); });
    form.evImportfileChanged = mLeben.guard([this] { mofrmEigenschaften_evImportfileChanged(); });
    form.evGrdBelegAfterEdit =
        mLeben.guard([this](int lRow) { mofrmEigenschaften_evGrdBelegAfterEdit(lRow); });
    form.evToolClick =
        mLeben.guard([this](const QString& sTool) { mofrmEigenschaften_evToolClick(sTool); });
    form.evOptDateiAuswaehlen =
        mLeben.guard([this](int Index) { mofrmEigenschaften_evOptDateiAuswaehlen(Index); });
    form.evMitFremdformat = mLeben.guard([this] { mofrmEigenschaften_evMitFremdformat(); });
    form.grdZeitplan_KeyDown =
        mLeben.guard([this](int iKeyCode, int) { moGridZeitplan_KeyDown(iKeyCode); });
}

void cAdminJob::mEigenschaftenTrennen() {
    if (!mofrmEigenschaften) {
        return;
    }
    frmEigenschaften& form = *mofrmEigenschaften;
    form.evFrmEigenschaftenCommandButtonClicked = nullptr;
    form.evZeitplanEdit = nullptr;
    form.evFrmEigenschaftenComboBoxClicked = nullptr;
    form.evCTLMandantChange = nullptr;
    form.evGeaendert = nullptr;
    form.evImportfileChanged = nullptr;
    form.evGrdBelegAfterEdit = nullptr;
    form.evToolClick = nullptr;
    form.evOptDateiAuswaehlen = nullptr;
    form.evMitFremdformat = nullptr;
    form.grdZeitplan_KeyDown = nullptr;
}

void cAdminJob::mofrmEigenschaften_evFrmEigenschaftenCommandButtonClicked(int Index) {
    mPaketeCMDClick(Index);
}

void cAdminJob::mofrmEigenschaften_evZeitplanEdit(int) {
    withErrorExit(QStringLiteral("mofrmEigenschaften_evZeitplanEdit"), kKlasse, 0,
                  [this](ErrorExit&) {
                      mZeitplanDerZeileBearbeiten();
                      return 0;
                  });
}

void cAdminJob::mofrmEigenschaften_evCTLMandantChange() {
    if (!mbInitEigenschaften) {
        mEigenschaftenGeaendert();
    }
}

void cAdminJob::mofrmEigenschaften_evGeaendert() {
    mEigenschaftenGeaendert();
}

// Typing is noticed through its keys, so a text set by code marks nothing.
void cAdminJob::mofrmEigenschaften_evImportfileChanged() {}

void cAdminJob::mofrmEigenschaften_evToolClick(const QString& sTool) {
    mEigenschaftenTool(sTool);
}

void cAdminJob::mofrmEigenschaften_evOptDateiAuswaehlen(int Index) {
    mOptDateiAuswaehlen(Index);
}

void cAdminJob::mofrmEigenschaften_evMitFremdformat() {
    withErrorExit(QStringLiteral("mofrmEigenschaften_evMitFremdformat"), kKlasse, 0,
                  [this](ErrorExit&) {
                      mChangeMitFremdformat();
                      mEigenschaftenGeaendert();
                      return 0;
                  });
}

void cAdminJob::mZeitplanDerZeileBearbeiten() {
    ErrorExit ex(QStringLiteral("mZeitplanDerZeileBearbeiten"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        IGrid& grid = mofrmEigenschaften->grdZeitplan();
        const int lRow = grid.Row();
        if (lRow >= 1) {
            mShowFRMZeitplanEigenschaften(grid.TextMatrix(lRow, ZeitplanSpalte::Id).toLong(),
                                          grid.TextMatrix(lRow, ZeitplanSpalte::Name));
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mPaketeCMDClick(int Index) {
    ErrorExit ex(QStringLiteral("mPaketeCMDClick"), kKlasse);
    try {
        if (Index < 0 || Index >= Cmd::Anzahl || !mofrmEigenschaften) {
            return;
        }
        if (Index == Cmd::Ausfuehrungsplan) {
            mAusfuehrungsplanZeigen(mlJobId);
            return;
        }
        // Every button but copying counts as a change, even Cancel.
        if (Index != Cmd::ZeitplanKopieren) {
            mEigenschaftenGeaendert();
        }
        switch (Index) {
            case Cmd::Ok:
                mEigenschaftenSchliessen(false);
                break;
            case Cmd::Abbrechen:
                mEigenschaftenSchliessen(true);
                break;
            case Cmd::Importverzeichnis:
                mShowFileSystemPfad(Txt::Importdaten);
                break;
            case Cmd::ZeitplanNeu:
                mShowFRMZeitplanEigenschaften(0, QString());
                break;
            case Cmd::ZeitplanBearbeiten:
                mZeitplanDerZeileBearbeiten();
                break;
            case Cmd::ZeitplanLoeschen:
                mLoescheZeitplan();
                break;
            case Cmd::Backupverzeichnis:
                mShowFileSystemPfad(Txt::Backup);
                break;
            case Cmd::Uebernehmen:
                if (mbCheckEigenschaften()) {
                    mEigenschaftenSpeichern(true);
                    mMenuStatus();
                }
                break;
            case Cmd::Logverzeichnis:
                mShowFileSystemPfad(Txt::Logfiles);
                break;
            case Cmd::ZeitplanKopieren: {
                // Without a schedule row the dialog opens all the same, on id 0 and no name.
                IGrid& grid = mofrmEigenschaften->grdZeitplan();
                const int lRow = grid.Row();
                long lZeitplanId = 0;
                QString sName;
                if (lRow >= 1) {
                    lZeitplanId = grid.TextMatrix(lRow, ZeitplanSpalte::Id).toLong();
                    sName = grid.TextMatrix(lRow, ZeitplanSpalte::Name);
                }
                mShowZeitPlanKopieren(lZeitplanId, sName);
                break;
            }
            case Cmd::Mappingdatei:
                mMappingDateiAuswaehlen();
                break;
            default:
                break;
        }
    } catch (...) {
        ex.fail();
    }
}
