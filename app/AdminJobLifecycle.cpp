// The controller's life: creation, the objects the application object hands over, the first
// loading of the list, showing and hiding, focus and the end.
#include "app/PendingMessages.h"
#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmPakete.h"
#include "ui/windows/frmZeitplan.h"

namespace {

constexpr long kRgbGrau = 200 + 200 * 0x100 + 200 * 0x10000;
constexpr int kMauszeigerNormal = 0;
constexpr int kMauszeigerSanduhr = 11;

template <class Fenster>
void fensterEntladen(std::shared_ptr<Fenster>& fenster) {
    if (auto oFenster = std::exchange(fenster, nullptr)) {
        oFenster->window().Unload();
    }
}

}  // namespace

cAdminJob::cAdminJob() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moTrace.initialize(ex);
        mlVorgabe = 2;
        mlGrau = kRgbGrau;
        return 0;
    });
}

cAdminJob::~cAdminJob() {
    // Windows that unload now must not call back into a controller that is ending.
    mLeben.end();
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        fensterEntladen(mofrmEigenschaften);
        mFrmPaketeEntladen();
        fensterEntladen(mofrmzeitIntervall);
        fensterEntladen(mofrmZeitplanEigenschaften);
        moBasis.reset();
        moTrace.terminate();
        return 0;
    });
}

void cAdminJob::fSetFrmPakete(std::shared_ptr<frmPakete> oForm) {
    withErrorExit(QStringLiteral("fSetFrmPakete"), kKlasse, 0, [&](ErrorExit&) {
        if (moFrmPakete) {
            mFrmPaketeEntladen();
        }
        moFrmPakete = std::move(oForm);
        if (moFrmPakete) {
            mFrmPaketeVerbinden();
        }
        return 0;
    });
}

void cAdminJob::fSetPakete(std::shared_ptr<IBrowser> oBrowser) {
    moPakete.reset();
    moPakete = std::move(oBrowser);
}

void cAdminJob::fSetProperties(std::shared_ptr<cProperties> oProperties) {
    moProperties.reset();
    moProperties = std::move(oProperties);
}

void cAdminJob::fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis) {
    moBasis = std::move(oBasis);
}

bool cAdminJob::gbInit() {
    return withErrorExit(QStringLiteral("gbInit"), kKlasse, false, [this](ErrorExit&) {
        maAuftragsarten.assign(1, Auftragsart{});
        mInitLogFileLinks();
        return mInitApplication();
    });
}

void cAdminJob::fStart(bool& bRestart) {
    withErrorExit(QStringLiteral("fStart"), kKlasse, 0, [&](ErrorExit&) {
        if (bRestart) {
            mBrowserRefresh(false);
        } else {
            IBrowser& pakete = mPakete();
            frmPakete& form = required(moFrmPakete);
            pakete.setVisible(false);
            // The bar only carries the state of the list's commands for the host's menu.
            form.barMenu().setVisible(false);
            form.window().Show(false);
            letPendingMessagesRun();

            form.window().setMousePointer(kMauszeigerSanduhr);
            mRaiseFortschritt(QStringLiteral("Daten werden geladen..."), QString());
            pakete.Load();
            mSpaltenKennzeichnen();
            if (pakete.Auswahl().RecordCount() >= 1) {
                pakete.Auswahl().setRow(1);
            }
            form.window().setMousePointer(kMauszeigerNormal);
            pakete.setVisible(true);
        }
        mMenuStatus();
        mRaiseFortschritt(QString(), required(moProperties).psDocName);
        fSetFocus();
        return 0;
    });
}

void cAdminJob::fShowHide(bool& bShow) {
    withErrorExit(QStringLiteral("fShowHide"), kKlasse, 0, [&](ErrorExit&) {
        if (mofrmEigenschaften) {
            if (bShow) {
                mofrmEigenschaften->window().Show(false);
            } else {
                mofrmEigenschaften->window().Hide();
            }
        }
        return 0;
    });
}

void cAdminJob::fSetFocus() {
    // A focus that cannot be set is no error worth a word.
    try {
        if (!moFrmPakete || !moFrmPakete->window().Visible()) {
            return;
        }
        if (moPakete && moPakete->Visible()) {
            moPakete->SetFocus();
        }
    } catch (...) {
    }
}

void cAdminJob::fDestructor() {
    withErrorExit(QStringLiteral("fDestructor"), kKlasse, 0, [this](ErrorExit&) {
        moPakete.reset();
        moProperties.reset();
        if (moFrmPakete) {
            mFrmPaketeEntladen();
        }
        return 0;
    });
}

void cAdminJob::mFrmPaketeEntladen() {
    auto oForm = std::exchange(moFrmPakete, nullptr);
    if (!oForm) {
        return;
    }
    // The window may outlive this controller in the application object: it keeps no way
    // back here.
    oForm->evFrmPaketeCommandButtonClicked = nullptr;
    oForm->ctlPakete_ToolClick = nullptr;
    oForm->ctlPakete_SelectionChanged = nullptr;
    oForm->ctlPakete_Open = nullptr;
    oForm->ctlPakete_KeyDown = nullptr;
    oForm->window().Unload();
}

void cAdminJob::mFrmPaketeVerbinden() {
    frmPakete& form = *moFrmPakete;
    form.evFrmPaketeCommandButtonClicked =
        mLeben.guard([this] { moFrmPakete_evFrmPaketeCommandButtonClicked(); });
    form.ctlPakete_ToolClick =
        mLeben.guard([this](const QString& sTool) { moPakete_ToolClick(sTool); });
    form.ctlPakete_SelectionChanged = mLeben.guard([this] { moPakete_SelectionChanged(); });
    form.ctlPakete_Open = mLeben.guard([this] { moPakete_Open(); });
    form.ctlPakete_KeyDown =
        mLeben.guard([this](int iKeyCode, int iShift) { moPakete_KeyDown(iKeyCode, iShift); });
}
