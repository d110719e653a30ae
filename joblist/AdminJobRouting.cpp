// Commands arrive by tool name: from the list (its bar, its menu, the host's menu) and from
// the bar of the properties window.
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "joblist/ListTools.h"
#include "jobs/PropertiesTools.h"
#include "ui/Browser.h"
#include "ui/windows/frmEigenschaften.h"

namespace {

namespace LogArt {
constexpr long Dienst = 1;
constexpr long Auftraege = 2;
}  // namespace LogArt
}  // namespace

void cAdminJob::fToolClick(const QString& sToolName) {
    ErrorExit ex(QStringLiteral("fToolClick"), kKlasse);
    try {
        // "Neu" and "Bearbeiten" leave the focus to the properties window.
        if (sToolName == ListTool::Neu) {
            mPaketBearbeiten(PaketAktion::Neu);
            return;
        }
        if (sToolName == ListTool::Bearbeiten) {
            mPaketBearbeiten(PaketAktion::Bearbeiten);
            return;
        }
        if (sToolName == ListTool::HilfeDokument || sToolName == ListTool::HilfeEigenschaften) {
            gShowWikiHelpExterneProgramme(HelpKeys::kJobList);
            return;
        }

        if (sToolName == ListTool::Loeschen) {
            mPaketBearbeiten(PaketAktion::Loeschen);
        } else if (sToolName == ListTool::AktivUmschalten) {
            mPaketBearbeiten(PaketAktion::AktivUmschalten);
        } else if (sToolName == ListTool::Verlauf) {
            mPaketBearbeiten(PaketAktion::Verlauf);
        } else if (sToolName == ListTool::Kopieren) {
            mofrmPakete_evAuftragKopieren();
        } else if (sToolName == ListTool::Einfuegen) {
            if (mlJobIdKopiert > 0) {
                mAuftragEinfuegen();
                mlJobIdKopiert = 0;
                mEinfuegenStatus();
            }
        } else if (sToolName == ListTool::LogdatenDienst) {
            mLogdatenShowCls(LogArt::Dienst, false, 0);
        } else if (sToolName == ListTool::LogdatenAuftraege) {
            mLogdatenShowCls(LogArt::Auftraege, false, 0);
        } else if (sToolName == ListTool::LogdatenDienstLoeschen) {
            mLogdatenShowCls(LogArt::Dienst, true, 0);
        } else if (sToolName == ListTool::LogdatenAuftragLoeschen) {
            mLogdatenShowCls(LogArt::Auftraege, true, 0);
        } else if (sToolName == ListTool::Ausfuehren) {
            long lJobId = 0;
            mJobStartenExe(lJobId);
        } else {
            mPakete().ToolAktion(sToolName);
            return;
        }
        fSetFocus();
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mEigenschaftenTool(const QString& sTool) {
    ErrorExit ex(QStringLiteral("mEigenschaftenTool"), kKlasse);
    try {
        if (sTool == PropertiesTool::Save) {
            mPaketeCMDClick(frmEigenschaften::Cmd::Uebernehmen);
        } else if (sTool == PropertiesTool::New) {
            mShowFRMPakete(-1, QString());
        } else if (sTool == PropertiesTool::First || sTool == PropertiesTool::Previous ||
                   sTool == PropertiesTool::Next || sTool == PropertiesTool::Last) {
            mPaketNav(sTool);
        } else if (sTool == PropertiesTool::Delete) {
            // Deletes the job on show and steps to a neighbour, also when the user said no.
            mPaketBearbeiten(PaketAktion::Loeschen);
            const ISelectionObject& auswahl = mPakete().Auswahl();
            mlJobZeile = 0;
            if (auswahl.SelCount() >= 1) {
                mlJobZeile = auswahl.SelRow(auswahl.SelCount() - 1);
            }
            if (mlJobZeile == 0) {
                mEigenschaftenSchliessen(true);
                return;
            }
            // mPaketNav refuses a target equal to the row it stands on; starting it one row
            // off makes it move to the neighbour.
            QString sNav;
            if (mlJobZeile == 1) {
                mlJobZeile = 2;
                sNav = PropertiesTool::First;
            } else if (mlJobZeile == auswahl.RowCount() - 1) {
                mlJobZeile = auswahl.RowCount() - 2;
                sNav = PropertiesTool::Last;
            } else {
                mlJobZeile = mlJobZeile - 1;
                sNav = PropertiesTool::Next;
            }
            mPaketNav(sNav);
        } else if (sTool == ListTool::Verlauf) {
            mPaketBearbeiten(PaketAktion::Verlauf);
        } else if (sTool == ListTool::Ausfuehren) {
            mJobStartenExe(mlJobId);
        } else if (sTool == ListTool::LogdatenAuftraege) {
            mLogdatenShowCls(LogArt::Auftraege, false, mlJobId);
        } else if (sTool == ListTool::LogdatenAuftragLoeschen) {
            mLogdatenShowCls(LogArt::Auftraege, true, mlJobId);
        } else if (sTool == ListTool::LogdatenDienst) {
            mLogdatenShowCls(LogArt::Dienst, false, mlJobId);
        } else if (sTool == ListTool::LogdatenDienstLoeschen) {
            mLogdatenShowCls(LogArt::Dienst, true, mlJobId);
        }
    } catch (...) {
        ex.fail();
    }
}
