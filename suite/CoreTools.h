#pragma once

#include <memory>

#include "common/CoreLibraries.h"
#include "suite/SuiteConfig.h"

// The suite's tools: directories and ini file from the configuration, ini values from the
// file itself, the message box through the platform's user interface.
class SuiteCoreTools : public CoreToolsClass {
  public:
    explicit SuiteCoreTools(std::shared_ptr<SuiteConfig> config) : config_(std::move(config)) {}

    // An unknown code gives the empty text.
    QString GetPfad(long code) override;
    QString GetIniDatei() override;
    QString IniLesen(const QString& file, const QString& section, const QString& key) override;
    // Help file and context have no place in the platform's box and are left out.
    long MsgBox(const QString& text, long flags, const QString& title, const QString& helpFile,
                long context) override;

  private:
    std::shared_ptr<SuiteConfig> config_;
};
