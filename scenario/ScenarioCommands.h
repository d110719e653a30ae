#pragma once

#include <QHash>
#include <QString>

class ScenarioPlay;
class ScenarioCommand;

// The commands of a scenario by their first word, in four groups: setting up the world,
// playing the host, playing the user, checking.
using CommandHandler = void (*)(ScenarioPlay&, const ScenarioCommand&);
using CommandTable = QHash<QString, CommandHandler>;

void addSetupCommands(CommandTable& table);
void addHostCommands(CommandTable& table);
void addUserCommands(CommandTable& table);
void addCheckCommands(CommandTable& table);

const CommandTable& scenarioCommands();
