#pragma once

#include <memory>

#include "common/Services.h"
#include "suite/Database.h"
#include "suite/SuiteConfig.h"

class IWindowFactory;

// What the program is composed of besides the suite's parts: the database, the clock, the
// platform's dialogs and the window kit with the booking log viewer's window.
struct ProgramParts {
    std::shared_ptr<SuiteConfig> config;
    std::shared_ptr<Database> db;
    std::shared_ptr<IClock> clock;
    std::shared_ptr<PlatformUi> ui;
    std::shared_ptr<IWindowFactory> windows;
    // Where the booking log viewer shows its window.
    std::shared_ptr<BookingLogDisplay> bookingLogDisplay;
};

// Every service of the program: the record sets on the database, the suite's libraries, the
// trace, the staff and client objects, the option file reader, the machine's file system,
// the shell that starts programs, the window kit and the classes registered with the host.
// Only the host's base object is left to the host that runs the component.
Services composeProgramServices(const ProgramParts& parts);
