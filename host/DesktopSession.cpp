#include "host/DesktopSession.h"

#include <QStatusBar>

#include "app/HostInterfaces.h"
#include "app/cMain.h"
#include "app/cUIAutoJobVerw.h"
#include "gui/QtWindowFactory.h"
#include "host/HostMainWindow.h"
#include "ui/windows/frmPakete.h"

DesktopSession::DesktopSession(const SuiteConfig& config, HostMainWindow& window)
    : config_(config), window_(window), target_(config.docName), daten_(config) {
    frame_->onProgress = [this](const QString& hint, const QString& endHint) {
        window_.showProgress(hint, endHint);
    };
    target_.onFailedNotification = [this] {
        window_.statusBar()->showMessage(
            QStringLiteral("Die letzte Benachrichtigung wurde nicht verarbeitet."), 5000);
    };
}

DesktopSession::~DesktopSession() {
    end();
}

std::unique_ptr<ZPKyBasisAbruf> DesktopSession::makeBasis() {
    auto basis = std::make_unique<DesktopBasis>(frame_);
    basis->onMenuStatus = [this](const QString& band, const QString& tool, bool enabled) {
        window_.setToolEnabled(band, tool, enabled);
    };
    return basis;
}

void DesktopSession::notify(long code) {
    if (!main_) {
        return;
    }
    long lParam = 0;
    QVariant vParam;
    main_->gNotify(&target_, code, lParam, vParam);
}

void DesktopSession::start() {
    main_ = std::make_unique<cMain>();
    notify(25);
    auto basis = main_->basis();
    auto* dokument = basis ? dynamic_cast<IOIDokInfo*>(basis->GetDokument().get()) : nullptr;
    if (dokument) {
        dokument->IOIDokInfo_Anlegen(true, &daten_, properties_);
    }
    auto applikation = main_->applikation();
    if (!applikation) {
        return;
    }
    std::shared_ptr<HostObject> list;
    applikation->IUIApplikation_Anlegen(properties_.get(), list);
    applikation->IUIApplikation_Initialisieren(properties_.get(), list);
    if (auto pakete = applikation->listWindow()) {
        window_.setList(widgetOf(pakete->window()));
        // From here on the component tells the host each change of its menu tools; the
        // menus start as the list's tools stand now.
        window_.followTools(pakete->barMenu());
    }
    notify(2);
}

void DesktopSession::refresh() {
    constexpr long kNeustart = 21;
    notify(kNeustart);
}

void DesktopSession::tool(const QString& name) {
    if (main_ && main_->applikation()) {
        main_->applikation()->IUIApplikation_AktionBearbeiten(name);
    }
}

void DesktopSession::end() {
    if (!main_) {
        return;
    }
    // The list widget belongs to the component; take it out of the main window first.
    if (QWidget* list = window_.takeCentralWidget()) {
        list->setParent(nullptr);
    }
    notify(9);
    main_.reset();
    properties_.reset();
}
