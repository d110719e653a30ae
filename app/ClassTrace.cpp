#include "app/ClassTrace.h"

#include "common/ErrorExit.h"

void ClassTrace::initialize(ErrorExit& ex) {
    moLog = ex.create(services().newLog, QStringLiteral("hlog.dll"),
                      QStringLiteral("Set moLog = New HLOG.LogClass"));
    trace("Class_Initialize");
}

void ClassTrace::terminate() {
    if (moLog) {
        trace("Class_Terminate");
    }
    moLog.reset();
}

void ClassTrace::trace(const char* sEreignis) {
    mbLogAktiv = moLog->IsTraceOn();
    if (mbLogAktiv & 1) {
        moLog->Write(1, services().program.fileName + QLatin1Char('.') + sKlasse_ +
                            QLatin1Char('.') + QLatin1String(sEreignis));
    }
}
