// Which of the list's commands are enabled. The state lives in four places that are always
// set together: the browser's bar, its menu, the bands of the list window's bar and, through
// the host base object, the host's menu.
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "joblist/MenuStateTable.h"
#include "ui/Browser.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmPakete.h"

namespace {
constexpr int kMehrereAusgewaehlt = 2;
}

void cAdminJob::mMenuStatus() {
    ErrorExit ex(QStringLiteral("mMenuStatus"), kKlasse);
    try {
        if (!moPakete) {
            return;
        }
        const ISelectionObject& auswahl = moPakete->Auswahl();
        const auto setzen = [this](const ToolZustand& z, bool bEnabled) {
            switch (z.ort) {
                case ToolOrt::Tools:
                    mToolsSetzen(z.tool, bEnabled);
                    break;
                case ToolOrt::Menu:
                    mMenuSetzen(z.tool, bEnabled);
                    break;
                case ToolOrt::Band:
                    mBandSetzen(z.band, z.tool, bEnabled);
                    break;
            }
        };

        if (auswahl.RecordCount() == 0) {
            for (const ToolZustand& z : toolZustaende()) {
                setzen(z, z.a == ToolZiel::An);
            }
            return;
        }

        if (mofrmEigenschaften) {
            for (const ToolZustand& z : toolZustaende()) {
                if (z.b != ToolZiel::Bleibt) {
                    setzen(z, z.b == ToolZiel::An);
                }
            }
        } else {
            for (const ToolZustand& z : toolZustaende()) {
                if (z.c == ToolZiel::An || z.c == ToolZiel::AnDannNachAuswahl) {
                    setzen(z, true);
                }
            }
            const bool bEinzeln = auswahl.SelCount() < kMehrereAusgewaehlt;
            for (const ToolZustand& z : toolZustaende()) {
                if (z.c == ToolZiel::NachAuswahl || z.c == ToolZiel::AnDannNachAuswahl) {
                    setzen(z, bEinzeln);
                }
            }
            mEinfuegenStatus();
        }

        // Wherever the list has records, "Bearbeiten" is on, also with several rows selected:
        // editing then narrows the selection to the first job.
        mToolsSetzen(ListTool::Bearbeiten, true);
        mBandSetzen(MenuBand::Bearbeiten, ListTool::Bearbeiten, true);
    } catch (...) {
        ex.fail();
    }
}

void cAdminJob::mEinfuegenStatus() {
    withErrorExit(QStringLiteral("mEinfuegenStatus"), kKlasse, 0, [this](ErrorExit&) {
        const bool bEnabled = mlJobIdKopiert != 0;
        mToolsSetzen(ListTool::Einfuegen, bEnabled);
        mBandSetzen(MenuBand::Bearbeiten, ListTool::Einfuegen, bEnabled);
        return 0;
    });
}

void cAdminJob::mMenuBarStatus(const QString& sTool, const QString& sBand) {
    withErrorExit(QStringLiteral("mMenuBarStatus"), kKlasse, 0, [&](ErrorExit&) {
        if (auto oBasis = moBasis.lock()) {
            const bool bEnabled =
                required(required(moFrmPakete).barMenu().Tool(sBand, sTool)).Enabled();
            long lErgebnis = 0;
            oBasis->MenuStatus(sTool, sBand, bEnabled, lErgebnis);
        }
        return 0;
    });
}

void cAdminJob::mToolBarStatus(ITool* oTool) {
    withErrorExit(QStringLiteral("mToolBarStatus"), kKlasse, 0, [&](ErrorExit&) {
        if (moPakete && oTool) {
            moPakete->ToolStatus(oTool);
        }
        return 0;
    });
}

void cAdminJob::mToolsSetzen(const QString& sTool, bool bEnabled) {
    ITool& oTool = required(mPakete().Tools().Item(sTool));
    if (oTool.Enabled() != bEnabled) {
        oTool.setEnabled(bEnabled);
        mToolBarStatus(&oTool);
    }
}

void cAdminJob::mMenuSetzen(const QString& sTool, bool bEnabled) {
    ITool& oTool = required(mPakete().Menu().Item(sTool));
    if (oTool.Enabled() != bEnabled) {
        oTool.setEnabled(bEnabled);
    }
}

void cAdminJob::mBandSetzen(const QString& sBand, const QString& sTool, bool bEnabled) {
    ITool& oTool = required(required(moFrmPakete).barMenu().Tool(sBand, sTool));
    if (oTool.Enabled() != bEnabled) {
        oTool.setEnabled(bEnabled);
        mMenuBarStatus(sTool, sBand);
    }
}
