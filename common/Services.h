#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "common/BookingLogViewer.h"
#include "common/Clock.h"
#include "common/CoreLibraries.h"
#include "common/FileSystem.h"
#include "common/Host.h"
#include "common/OptionFileReader.h"
#include "common/PlatformUi.h"
#include "common/Recordset.h"
#include "common/StaffClient.h"

// Name and version of the program, for the error report's version head and the traces.
struct ProgramInfo {
    QString fileName = QStringLiteral("ZPKyAutoJobVerw");
    int major = AJV_VERSION_MAJOR;
    int minor = AJV_VERSION_MINOR;
    int revision = AJV_VERSION_PATCH;
};

// The one registry through which everything concrete is handed in at start: which database,
// which windows, which clock. The host or the test fills it; the logic only reads it.
// A factory that is not set, or that gives nothing, means the library object cannot be
// created: the creation guard turns that into an error report.
class IWindowFactory;

struct Services {
    template <class T>
    using Factory = std::function<std::unique_ptr<T>()>;

    ProgramInfo program;
    std::shared_ptr<IClock> clock;
    std::shared_ptr<PlatformUi> ui;

    Factory<CRecordset> newRecordset;
    Factory<CoreToolsClass> newCoreTools;
    Factory<CoreErrorClass> newCoreError;
    Factory<CoreConvertClass> newCoreConvert;
    Factory<CoreHelpClass> newCoreHelp;
    Factory<LogClass> newLog;
    Factory<OIMitarbeiterClass> newMitarbeiter;
    Factory<OIMandantClass> newMandant;
    Factory<OptionFileReader> newOptionFileReader;
    Factory<BookingLogViewer> newBookingLogViewer;
    // Where the booking log viewer shows what it was asked for.
    std::shared_ptr<BookingLogDisplay> bookingLogDisplay;

    std::shared_ptr<FileSystemObject> fileSystem;
    std::shared_ptr<Shell> shell;
    // Makes the windows: the in-memory kit or the Qt kit.
    std::shared_ptr<IWindowFactory> windows;

    // The host: its base object, and the classes this component registers with it.
    Factory<ZPKyBasisAbruf> newBasisAbruf;
    HostClassFactories hostClasses;

    // The two global objects of the core library, alive from first use to the end.
    std::shared_ptr<CoreGlobalClass> coreGlobal;
    std::shared_ptr<CoreTexteClass> coreTexte;
};

Services& services();

// Replaces the registry for the lifetime of the object and restores the former one after;
// tests and the scenario runner build one world each.
class ScopedServices {
  public:
    explicit ScopedServices(Services s);
    ~ScopedServices();
    ScopedServices(const ScopedServices&) = delete;
    ScopedServices& operator=(const ScopedServices&) = delete;

  private:
    Services saved_;
};

// The registry's clock, or the system's when none is set.
QDateTime clockNow();
