// Opening, stepping and closing the properties window. Opening is the only way in: it settles
// unsaved input of the job on show before it moves to another.
#include <QList>
#include <QPair>

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "common/ModuleHelpers.h"
#include "common/Services.h"
#include "joblist/ListTools.h"
#include "jobs/PropertiesTools.h"
#include "ui/Browser.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

const QString kBand = QStringLiteral("barMain");

// The pictures of the bar's tools, by tool name.
QList<QPair<QString, long>> werkzeugBilder() {
    return {{PropertiesTool::New, 1091},
            {PropertiesTool::Save, 1162},
            {PropertiesTool::Delete, 1131},
            {PropertiesTool::First, 1185},
            {PropertiesTool::Previous, 1183},
            {PropertiesTool::Next, 1184},
            {PropertiesTool::Last, 1186},
            {ListTool::Verlauf, 1621},
            {ListTool::Ausfuehren, 1640},
            {ListTool::LogdatenDienst, 1794},
            {ListTool::LogdatenDienstLoeschen, 1795},
            {ListTool::LogdatenAuftraege, 1796},
            {ListTool::LogdatenAuftragLoeschen, 1797}};
}

}  // namespace

void cAdminJob::mShowFRMPakete(long lJobId, const QString& sName) {
    ErrorExit ex(QStringLiteral("mShowFRMPakete"), kKlasse);
    try {
        bool bErstesMal = false;
        if (mofrmEigenschaften) {
            long lAntwort = MsgAnswer::No;
            if (mlJobId != -1) {
                if (mofrmEigenschaften->cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen)
                        .Enabled()) {
                    lAntwort = mlMsgBox(QStringLiteral("Sollen die geänderten Daten für den neuen "
                                                       "Auftrag gespeichert werden?"),
                                        MsgStyle::YesNoCancelQuestion);
                }
            } else {
                lAntwort = mlMsgBox(
                    QStringLiteral("Sollen die Daten für den neuen Auftrag gespeichert werden?"),
                    MsgStyle::YesNoCancelQuestion);
            }
            // A step has already moved the list's selection and its row to the target; the
            // window stays on the job on show all the same, so the next step counts from the
            // target's row.
            if (lAntwort == MsgAnswer::Cancel) {
                return;
            }
            if (lAntwort == MsgAnswer::Yes) {
                if (!mbCheckEigenschaften() || !mEigenschaftenSpeichern(true)) {
                    return;
                }
            }
        } else {
            auto oWindow = ex.create<IWindow>(
                [] { return services().windows->create(frmEigenschaften::declaration()); },
                QStringLiteral("AutoJobVerw"),
                QStringLiteral("Set mofrmEigenschaften = New frmEigenschaften"));
            mofrmEigenschaften = std::make_shared<frmEigenschaften>(std::move(oWindow));
            mEigenschaftenVerbinden();
            moGridZeitplan = &mofrmEigenschaften->grdZeitplan();
            mlFraImportHoehe = mofrmEigenschaften->fraImport().Height();
            bErstesMal = true;
        }
        frmEigenschaften& form = *mofrmEigenschaften;

        mlJobId = lJobId;
        msJobName = sName;
        mbInitEigenschaften = true;
        mbBackupGefragt = false;

        form.cmdCommandButton(frmEigenschaften::Cmd::Uebernehmen).setEnabled(false);
        form.tbrMain().setToolEnabled(kBand, PropertiesTool::Save, false);
        form.tabControl().setTabEnabled(frmEigenschaften::Tab::Zeitplaene, lJobId >= 1);

        // The dealer data's remembered directory and key belong to the job on show.
        msNivoraTempPfad.clear();
        mlNivoraDaten = 0;

        mShowJobEigenschaften();
        mInitGridZeitplan();
        mFuelleGridZeitplan();

        form.tabControl().setTab(frmEigenschaften::Tab::Allgemein);
        mbInitEigenschaften = false;

        if (bErstesMal) {
            CoreTexteClass& texte = required(services().coreTexte);
            texte.SetFormIcon(form.window(), kFensterSymbol);
            // The kits' bars take their tools' pictures themselves; a bar that can't, leaves
            // them to its window.
            if (auto* oBar = dynamic_cast<PictureTarget*>(&form.tbrMain())) {
                texte.GetBilder(*oBar, werkzeugBilder());
            } else {
                texte.GetBilder(form.window(), werkzeugBilder());
            }
            form.window().Show(false);
            mMenuStatus();
        }
        mAktuFrmPakete(lJobId);
    } catch (...) {
        mbInitEigenschaften = false;
        ex.fail();
    }
}

void cAdminJob::mAktuFrmPakete(long lJobId) {
    ErrorExit ex(QStringLiteral("mAktuFrmPakete"), kKlasse);
    try {
        frmEigenschaften& form = required(mofrmEigenschaften);
        IToolBar& bar = form.tbrMain();
        const bool bGespeichert = lJobId != -1;
        for (const QString& sTool : {PropertiesTool::New, PropertiesTool::Delete, ListTool::Verlauf,
                                     ListTool::Ausfuehren}) {
            bar.setToolEnabled(kBand, sTool, bGespeichert);
        }
        if (bGespeichert) {
            mSetNavTools(mlJobZeile, mPakete().Auswahl().RowCount() - 1, &bar);
        } else {
            mSetNavTools(1, 1, &bar);
        }
        if (form.window().Visible()) {
            form.txtTextBox(frmEigenschaften::Txt::Name).SetFocus();
        }
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mSetFormCaption(const QString& sName) {
    ErrorExit ex(QStringLiteral("mSetFormCaption"), kKlasse);
    try {
        required(mofrmEigenschaften)
            .window()
            .setCaption(mlJobId >= 0 ? sName + QStringLiteral(" - Bearbeiten ")
                                     : QStringLiteral("Neuer Auftrag - Bearbeiten "));
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mPaketNav(const QString& sTool) {
    ErrorExit ex(QStringLiteral("mPaketNav"), kKlasse);
    try {
        if (!mofrmEigenschaften || !moPakete) {
            return;
        }
        ISelectionObject& auswahl = moPakete->Auswahl();
        const long lLetzte = auswahl.RowCount() - 1;
        long lZiel = 0;
        if (sTool == PropertiesTool::First && mlJobZeile > 1) {
            lZiel = 1;
        } else if (sTool == PropertiesTool::Previous && mlJobZeile > 1) {
            lZiel = mlJobZeile - 1;
        } else if (sTool == PropertiesTool::Next && mlJobZeile < lLetzte) {
            lZiel = mlJobZeile + 1;
        } else if (sTool == PropertiesTool::Last && mlJobZeile < lLetzte) {
            lZiel = lLetzte;
        }
        if (lZiel == 0) {
            mlMsgBox(QStringLiteral("Keine weiteren Aufträge vorhanden."), MsgStyle::Information,
                     mofrmEigenschaften->window().Caption());
            return;
        }
        if (auswahl.SelCount() >= 2) {
            for (int i = auswahl.SelCount() - 1; i >= 0; --i) {
                auswahl.SetSelected(auswahl.SelRow(i), false);
            }
        }
        // After a delete the row stood on may be gone from the list.
        if (mlJobZeile >= 1 && mlJobZeile <= lLetzte) {
            auswahl.SetSelected(static_cast<int>(mlJobZeile), false);
        }
        auswahl.SetSelected(static_cast<int>(lZiel), true);
        long lId = 0;
        QString sName;
        mJobIdErmitteln(lId, sName);
        mShowFRMPakete(lId, sName);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mEigenschaftenSchliessen(bool bAbbrechen) {
    ErrorExit ex(QStringLiteral("mEigenschaftenSchliessen"), kKlasse);
    try {
        if (!mofrmEigenschaften) {
            return;
        }
        if (!bAbbrechen) {
            // A job that could not be written keeps its window open with the input.
            if (!mbCheckEigenschaften() || !mEigenschaftenSpeichern(false)) {
                return;
            }
        }
        // Cut first: unloading raises Cancel once more, which must not come back here.
        mEigenschaftenTrennen();
        auto oForm = std::exchange(mofrmEigenschaften, nullptr);
        moGridZeitplan = nullptr;
        oForm->window().Unload();
        oForm.reset();

        mBrowserRefresh(false);
        fSetFocus();
        mMenuStatus();
    } catch (...) {
        ex.fail();
    }
}
