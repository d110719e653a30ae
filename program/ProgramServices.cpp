#include "program/ProgramServices.h"

#include "app/Registration.h"
#include "suite/LocalFileSystem.h"
#include "suite/ProcessShell.h"
#include "suite/SuiteServices.h"

Services composeProgramServices(const ProgramParts& parts) {
    Services s = makeSuiteServices(parts.config, parts.db, parts.ui, parts.clock);
    s.fileSystem = std::make_shared<LocalFileSystem>();
    s.shell = std::make_shared<ProcessShell>();
    s.windows = parts.windows;
    s.bookingLogDisplay = parts.bookingLogDisplay;
    registerHostClasses(s);
    return s;
}
