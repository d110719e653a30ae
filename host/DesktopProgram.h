#pragma once

#include <memory>

#include "common/Services.h"
#include "suite/Database.h"
#include "suite/SuiteConfig.h"

class DesktopSession;
class IClock;
class HostMainWindow;

// The program as users start it: the suite's database, the program's services composed with
// the real dialogs and the Qt windows, the host's main window and the session of the job
// agent's document. The registry is the program's own for as long as the object lives.
class DesktopProgram {
  public:
    // Opens the database the configuration names (a new one gets the schema and the demo
    // data). Throws RaisedError when it cannot be opened. The clock is the system's unless a
    // measurement fixes the moment.
    explicit DesktopProgram(std::shared_ptr<SuiteConfig> config,
                            std::shared_ptr<IClock> clock = nullptr);
    ~DesktopProgram();
    DesktopProgram(const DesktopProgram&) = delete;
    DesktopProgram& operator=(const DesktopProgram&) = delete;

    // Opens the document and shows the main window with the list.
    void start();
    // Ends the document (code 9); nothing is saved on that path.
    void end();

    HostMainWindow& window() { return *window_; }
    Database& database() { return *db_; }

  private:
    std::shared_ptr<SuiteConfig> config_;
    std::shared_ptr<IClock> clock_;
    std::shared_ptr<Database> db_;
    std::unique_ptr<HostMainWindow> window_;
    std::unique_ptr<DesktopSession> session_;
    std::unique_ptr<ScopedServices> scope_;
};

// The program's services for a database, with the real dialogs and the Qt windows; the host
// base object is the session's to give.
Services desktopServices(std::shared_ptr<SuiteConfig> config, std::shared_ptr<Database> db,
                         std::shared_ptr<IClock> clock);
