#pragma once

#include <memory>

#include "host/DesktopHost.h"
#include "suite/SuiteConfig.h"

class cMain;
class cUIAutoJobVerw;
class HostMainWindow;

// One opened job agent document, as the host runs it: registration, the notification codes
// in their order, the list window in the main window, and code 9 at the end.
class DesktopSession {
  public:
    DesktopSession(const SuiteConfig& config, HostMainWindow& window);
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    // Called by the host base object's factory: the base object the component registers with.
    std::unique_ptr<ZPKyBasisAbruf> makeBasis();

    // Creates cMain and sends 25, creates the document record, the list window and the
    // controller, then shows with code 2.
    void start();
    // A menu item of the host.
    void tool(const QString& name);
    // Code 21: the list reads the jobs again, after they were changed from outside.
    void refresh();
    // Code 9: everything is discarded, nothing saved.
    void end();

  private:
    void notify(long code);

    const SuiteConfig& config_;
    HostMainWindow& window_;
    std::shared_ptr<DesktopFrame> frame_ = std::make_shared<DesktopFrame>();
    DesktopNotifyTarget target_;
    DesktopDokumentDaten daten_;
    std::unique_ptr<cMain> main_;
    std::shared_ptr<HostObject> properties_;
};
