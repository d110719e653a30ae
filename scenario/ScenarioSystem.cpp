#include "scenario/ScenarioSystem.h"

#include "app/HostInterfaces.h"
#include "app/cMain.h"
#include "app/cUIAutoJobVerw.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioHost.h"
#include "scenario/ScenarioWorld.h"

namespace {
constexpr long kCodeAnmelden = 25;
constexpr long kCodeZeigen = 2;
}  // namespace

SystemSession::SystemSession(ScenarioWorld& world)
    : world_(world), target_(std::make_shared<HostNotifyTarget>(world.hostState())) {}

SystemSession::~SystemSession() {
    main_.reset();
    frmMain_.reset();
    properties_.reset();
}

void SystemSession::start() {
    if (main_) {
        scenarioFail(QStringLiteral("start: the system has been started already"));
    }
    main_ = std::make_unique<cMain>();
    notify(kCodeAnmelden);

    auto document = world_.host().document.lock();
    auto* dokInfo = dynamic_cast<IOIDokInfo*>(document.get());
    if (!dokInfo) {
        scenarioFail(QStringLiteral("start: the host base object has no document object"));
    }
    dokInfo->IOIDokInfo_Anlegen(true, world_.dokumentDaten().get(), properties_);

    auto application = world_.host().application.lock();
    auto* applikation = dynamic_cast<IUIApplikation*>(application.get());
    if (!applikation) {
        scenarioFail(QStringLiteral("start: the host base object has no application object"));
    }
    applikation->IUIApplikation_Anlegen(properties_.get(), frmMain_);
    applikation->IUIApplikation_Initialisieren(properties_.get(), frmMain_);
    notify(kCodeZeigen);
}

SystemSession::NotifyOutcome SystemSession::notify(long code) {
    if (!main_) {
        scenarioFail(QStringLiteral("notify: the system has not been started"));
    }
    const int failuresBefore = world_.host().failedNotifications;
    NotifyOutcome outcome;
    QVariant vParam;
    main_->gNotify(target_.get(), code, outcome.lParam, vParam);
    outcome.result = world_.host().failedNotifications == failuresBefore;
    lastNotify_ = outcome;
    return outcome;
}

void SystemSession::tool(const QString& name) {
    auto application = world_.host().application.lock();
    auto* applikation = dynamic_cast<IUIApplikation*>(application.get());
    if (!main_ || !applikation) {
        scenarioFail(QStringLiteral("tool: the system has not been started"));
    }
    applikation->IUIApplikation_AktionBearbeiten(name);
}
