#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "common/Services.h"

class ScenarioWorld;
class cMain;
class HostNotifyTarget;
class HostObject;

// The host's side of the system's life: creates cMain, opens the document and the
// application, sends notification codes and passes tool names from the host's menu.
class SystemSession {
  public:
    explicit SystemSession(ScenarioWorld& world);
    // Releases the system as the host does when it drops its objects.
    ~SystemSession();
    SystemSession(const SystemSession&) = delete;
    SystemSession& operator=(const SystemSession&) = delete;

    // cMain, code 25, IOIDokInfo_Anlegen, IUIApplikation_Anlegen, IUIApplikation_Initialisieren,
    // code 2.
    void start();
    bool started() const { return main_ != nullptr; }

    struct NotifyOutcome {
        long lParam = 0;
        // False when the system answered the code with 402.
        bool result = true;
    };
    NotifyOutcome notify(long code);
    const std::optional<NotifyOutcome>& lastNotify() const { return lastNotify_; }

    void tool(const QString& name);

  private:
    ScenarioWorld& world_;
    std::shared_ptr<HostNotifyTarget> target_;
    std::unique_ptr<cMain> main_;
    std::shared_ptr<HostObject> properties_;
    std::shared_ptr<HostObject> frmMain_;
    std::optional<NotifyOutcome> lastNotify_;
};
