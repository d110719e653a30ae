#pragma once

#include <QString>
#include <memory>

#include "common/CoreLibraries.h"

class ErrorExit;

// The trace every class of the system writes at its creation and at its end, level 1, as
// "ZPKyAutoJobVerw.cAdminJob.Class_Initialize", while the lowest bit of the log's answer is
// set. The log object lives from the creation to the end.
class ClassTrace {
  public:
    explicit ClassTrace(QString sKlasse) : sKlasse_(std::move(sKlasse)) {}

    // Creates the log under the creation guard of the caller's error exit, asks and writes.
    void initialize(ErrorExit& ex);
    // Asks again, writes, and releases the log.
    void terminate();

  private:
    void trace(const char* sEreignis);

    QString sKlasse_;
    std::unique_ptr<LogClass> moLog;
    long mbLogAktiv = 0;
};
