#include "app/cUIAutoJobVerw.h"

#include "app/Required.h"
#include "app/cAdminJob.h"
#include "app/cMain.h"
#include "app/cProperties.h"
#include "common/ErrorExit.h"
#include "ui/windows/frmPakete.h"

namespace {

const QString kKlasse = QStringLiteral("cUIAutoJobVerw");

// Host notification codes.
namespace Code {
constexpr long Anmelden = 1;
constexpr long Zeigen = 2;
constexpr long Verbergen = 3;
constexpr long Verwerfen = 9;
constexpr long Neustart = 21;
constexpr long AnmeldenNeu = 25;
constexpr long Fokus = 30;
constexpr long KeineAktion = 16203;
constexpr long DokumentName = 503;
}  // namespace Code

constexpr long kHostBeendet = -1000;

[[noreturn]] void typenUnvertraeglich() {
    throw RaisedError(ErrNumber::TypeMismatch, QStringLiteral("Typen unverträglich"));
}

}  // namespace

cUIAutoJobVerw::cUIAutoJobVerw() {
    withErrorExit(QStringLiteral("Class_Initialize"), kKlasse, 0, [this](ErrorExit& ex) {
        moTrace.initialize(ex);
        return 0;
    });
}

cUIAutoJobVerw::~cUIAutoJobVerw() {
    withErrorExit(QStringLiteral("Class_Terminate"), kKlasse, 0, [this](ErrorExit&) {
        moTrace.terminate();
        return 0;
    });
}

void cUIAutoJobVerw::fSetBasis(std::weak_ptr<ZPKyBasisAbruf> oBasis) {
    moBasis = std::move(oBasis);
}

void cUIAutoJobVerw::fSetMain(cMain* oMain) {
    moMain = oMain;
}

void cUIAutoJobVerw::IUIApplikation_AktionBearbeiten(const QString& sAktion) {
    withErrorExit(QStringLiteral("IUIApplikation_AktionBearbeiten"), kKlasse, 0, [&](ErrorExit&) {
        if (moAdminJob) {
            moAdminJob->fToolClick(sAktion);
        }
        return 0;
    });
}

bool cUIAutoJobVerw::IUIApplikation_Anlegen(HostObject*, std::shared_ptr<HostObject>& ofrmMain) {
    ErrorExit ex(QStringLiteral("IUIApplikation_Anlegen"), kKlasse);
    try {
        const Services::Factory<frmPakete> neuesFenster = [] {
            return std::make_unique<frmPakete>(
                required(services().windows).create(frmPakete::declaration()));
        };
        moFrmPakete = ex.create(neuesFenster, QStringLiteral("frmPakete"),
                                QStringLiteral("Set moFrmPakete = New frmPakete"));
        ofrmMain = moFrmPakete;
        // The browser lives in the window: holding it keeps the window's object alive.
        moPakete = std::shared_ptr<IBrowser>(moFrmPakete, &moFrmPakete->ctlPakete());
        return true;
    } catch (...) {
        ex.fail();
    }
    return false;
}

void cUIAutoJobVerw::IUIApplikation_EigenschaftenGeaendert(HostObject*) {}

void cUIAutoJobVerw::IUIApplikation_Initialisieren(HostObject* oDokumentInfo,
                                                   std::shared_ptr<HostObject> ofrmMain) {
    withErrorExit(QStringLiteral("IUIApplikation_Initialisieren"), kKlasse, 0, [&](ErrorExit&) {
        auto* oProperties = dynamic_cast<cProperties*>(oDokumentInfo);
        if (!oProperties) {
            typenUnvertraeglich();
        }
        moProperties = oProperties->shared_from_this();

        long lParam = 0;
        QVariant vParam = QString();
        required(moNotify).gNotify(moMain, Code::DokumentName, lParam, vParam);
        moProperties->psDocName = vParam.toString();

        moAdminJob = std::make_unique<cAdminJob>();
        moAdminJob->evFortschritt = [this](const QString& sHinweis, const QString& sEnde) {
            moAdminJob_evFortschritt(sHinweis, sEnde);
        };

        if (ofrmMain && ofrmMain->TypeName() == QLatin1String("form")) {
            auto oForm = std::dynamic_pointer_cast<frmPakete>(ofrmMain);
            if (!oForm) {
                typenUnvertraeglich();
            }
            moAdminJob->fSetFrmPakete(oForm);
        } else if (moFrmPakete) {
            moAdminJob->fSetFrmPakete(moFrmPakete);
        }

        moAdminJob->fSetProperties(moProperties);
        moAdminJob->fSetPakete(moPakete);
        moAdminJob->fSetBasis(moBasis);
        moAdminJob->gbInit();
        return 0;
    });
}

void cUIAutoJobVerw::IUIFrmAbruf_Anlegen(HostObject*) {
    withErrorExit(QStringLiteral("IFrmAbruf_Anlegen"), kKlasse, 0, [](ErrorExit&) { return 0; });
}

bool cUIAutoJobVerw::IUIFrmAbruf_AusgabeVorbereiten(HostObject*) {
    return withErrorExit(QStringLiteral("IFrmAbruf_AusgabeVorbereiten"), kKlasse, false,
                         [](ErrorExit&) { return true; });
}

void cUIAutoJobVerw::IUIFrmAbruf_Beenden(HostObject*) {
    withErrorExit(QStringLiteral("IFrmAbruf_Beenden"), kKlasse, 0, [](ErrorExit&) { return 0; });
}

void cUIAutoJobVerw::IUIFrmAbruf_EingabenUebertragen(HostObject*) {
    withErrorExit(QStringLiteral("IFrmAbruf_EingabenUebertragen"), kKlasse, 0,
                  [](ErrorExit&) { return 0; });
}

bool cUIAutoJobVerw::fbNotify(UIInterfaceClass* oNotify, long lCode, long& lParam,
                              QVariant& vParam) {
    return withErrorExit(QStringLiteral("fbNotify"), kKlasse, false, [&](ErrorExit&) {
        if (lCode == Code::Anmelden || lCode == Code::AnmeldenNeu) {
            moNotify = oNotify;
            auto oBasis = moBasis.lock();
            moFrame = required(oBasis).GetFrame();
            moDokument = oBasis->GetDokument();
        }

        bool bOk = false;
        auto oBasis = moBasis.lock();
        required(oBasis).BasisNotify(oNotify, lCode, lParam, vParam, bOk);
        if (!bOk) {
            return false;
        }

        switch (lCode) {
            case Code::Zeigen:
                mbShowForms();
                break;
            case Code::Verbergen:
                mShowHide(false);
                break;
            case Code::Verwerfen:
                mObjekteVerwerfen();
                break;
            case Code::Neustart:
                mStart(true);
                break;
            case Code::Fokus:
                if (moAdminJob) {
                    moAdminJob->fSetFocus();
                }
                break;
            case Code::KeineAktion:
                break;
            default:
                if (oBasis) {
                    bool bBeendet = false;
                    oBasis->IstBeendet(bBeendet);
                    if (bBeendet) {
                        lParam = kHostBeendet;
                    }
                }
                break;
        }
        return true;
    });
}

bool cUIAutoJobVerw::mbShowForms() {
    return withErrorExit(QStringLiteral("mbShowForms"), kKlasse, false, [&](ErrorExit&) {
        if (mlStatus == 0) {
            mlStatus = 1;
        }
        if (mlStatus == 1) {
            if (moPakete) {
                // The browser may replace both; they come back through the copies.
                void* oNotifyKopie = moNotify;
                void* oMainKopie = moMain;
                moPakete->AttachHost(oNotifyKopie, oMainKopie);
                moNotify = static_cast<UIInterfaceClass*>(oNotifyKopie);
                moMain = static_cast<cMain*>(oMainKopie);
            }
            mStart(false);
            mlStatus = 2;
        } else if (mlStatus == 2) {
            mShowHide(true);
        }
        return true;
    });
}

void cUIAutoJobVerw::mStart(bool bRestart) {
    withErrorExit(QStringLiteral("mStart"), kKlasse, 0, [&](ErrorExit&) {
        if (moAdminJob) {
            moAdminJob->fStart(bRestart);
        }
        return 0;
    });
}

void cUIAutoJobVerw::mShowHide(bool bShow) {
    withErrorExit(QStringLiteral("mShowHide"), kKlasse, 0, [&](ErrorExit&) {
        if (moAdminJob) {
            moAdminJob->fShowHide(bShow);
        }
        return 0;
    });
}

void cUIAutoJobVerw::mObjekteVerwerfen() {
    withErrorExit(QStringLiteral("mObjekteVerwerfen"), kKlasse, 0, [&](ErrorExit&) {
        if (moAdminJob) {
            moAdminJob->fDestructor();
            moAdminJob.reset();
        }
        moPakete.reset();
        if (moFrmPakete) {
            moFrmPakete->window().Unload();
            moFrmPakete.reset();
        }
        moDokument.reset();
        moFrame = nullptr;
        moMain = nullptr;
        moNotify = nullptr;
        moBasis.reset();
        if (moProperties) {
            moProperties->gDestructor();
            moProperties.reset();
        }
        return 0;
    });
}

void cUIAutoJobVerw::moAdminJob_evFortschritt(const QString& sHinweis,
                                              const QString& sEndeHinweis) {
    withErrorExit(QStringLiteral("moAdminJob_evFortschritt"), kKlasse, 0, [&](ErrorExit&) {
        if (moFrame) {
            moFrame->ZeigeFortschritt(sHinweis, sEndeHinweis);
        }
        return 0;
    });
}
