#pragma once

#include <QString>
#include <QVariant>
#include <memory>

#include "common/CoreLibraries.h"
#include "common/ErrorExit.h"
#include "common/PlatformUi.h"
#include "suite/SuiteConfig.h"

// The small classes of the suite's core library. Dialogs go to the platform's user interface
// of the registry, as it stands at the moment of the call.

class SuiteCoreError : public CoreErrorClass {
  public:
    void Report(long number, const QString& source, const QString& description) override;
};

class SuiteCoreConvert : public CoreConvertClass {
  public:
    // Numbers are rounded half to even, True is -1, text must hold a number with '.' or ','
    // as decimal mark. Anything else raises error 13, a value beyond 32 bits error 6.
    long ToLong(const QVariant& value) override;
};

class SuiteCoreHelp : public CoreHelpClass {
  public:
    long ShowHelp(const QString& helpFile, const QString& topic) override;
};

class SuiteCoreGlobal : public CoreGlobalClass {
  public:
    explicit SuiteCoreGlobal(std::shared_ptr<SuiteConfig> config) : config_(std::move(config)) {}

    QString FormatCreateCommand(const QString& dll, const QString& command) override;
    long GetInstallationsArt() override;

  private:
    std::shared_ptr<SuiteConfig> config_;
};

// The platform's user interface of the registry; raises error 424 when there is none.
PlatformUi& suiteUi();

// For the catch block of a stand-in: raises the error on into the caller, as a library does,
// with the creation text of a creation that failed added to the description.
[[noreturn]] void raiseOn(const ErrorExit& ex);
