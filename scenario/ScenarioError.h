#pragma once

#include <QString>

// A line of a scenario that cannot be carried out or whose check does not hold. The runner
// turns it into "FAIL <file>:<line>: <reason>".
struct ScenarioError {
    QString reason;
};

[[noreturn]] inline void scenarioFail(const QString& reason) {
    throw ScenarioError{reason};
}

// Thrown from the runner's answers to the system (message boxes, dialogs, modal windows)
// once the scenario has failed, so that the system's own code lets go of control as fast as
// it can. The system's error exits may catch it; the runner keeps the failure on its side.
struct ScenarioAbort {};
