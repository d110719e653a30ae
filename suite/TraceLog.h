#pragma once

#include <memory>

#include "common/CoreLibraries.h"
#include "suite/SuiteConfig.h"

// The suite's trace: while tracing is switched on in the configuration, each Write appends
// "yyyy-MM-dd HH:mm:ss<TAB>level<TAB>text" as one line to the trace file.
class SuiteTraceLog : public LogClass {
  public:
    explicit SuiteTraceLog(std::shared_ptr<SuiteConfig> config) : config_(std::move(config)) {}

    long IsTraceOn() override;
    // Tracing never makes the traced program fail: a line that cannot be written whole (a
    // full disk, a file that cannot be opened) is taken back, the user is told once per
    // trace file and program run, and the program goes on.
    void Write(long level, const QString& text) override;

  private:
    std::shared_ptr<SuiteConfig> config_;
};
