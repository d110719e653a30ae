#include "scenario/ScenarioCommands.h"

const CommandTable& scenarioCommands() {
    static const CommandTable table = [] {
        CommandTable t;
        addSetupCommands(t);
        addHostCommands(t);
        addUserCommands(t);
        addCheckCommands(t);
        return t;
    }();
    return table;
}
