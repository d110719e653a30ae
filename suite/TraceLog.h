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
    // A trace that cannot be written is lost without a word: tracing must never make the
    // traced program fail.
    void Write(long level, const QString& text) override;

  private:
    std::shared_ptr<SuiteConfig> config_;
};
