// Playing the host: starting the system, notification codes, the base object's answers and
// the tools of the host's menu.
#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioPlay.h"
#include "scenario/ScenarioSystem.h"
#include "scenario/ScenarioWorld.h"

namespace {

bool flag(const ScenarioCommand& c, int i) {
    const ScenarioValue v = c.value(i);
    if (v.kind() != ScenarioValue::Kind::Bool) {
        scenarioFail(QStringLiteral("%1: %2 is not true or false").arg(c.name(), c.arg(i).raw));
    }
    return v == ScenarioValue::boolean(true);
}

void startCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(0, 0);
    play.system().start();
}

void notifyCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    play.system().notify(c.integer(0));
}

void hostCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const QString what = c.arg(0).raw;
    if (what == QLatin1String("basisnotify")) {
        play.world().host().basisNotifyAnswer = flag(c, 1);
    } else if (what == QLatin1String("istbeendet")) {
        play.world().host().istBeendetAnswer = flag(c, 1);
    } else {
        scenarioFail(QStringLiteral("host: unknown answer %1 (basisnotify, istbeendet)").arg(what));
    }
}

void toolCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    play.system().tool(c.text(0));
}

}  // namespace

void addHostCommands(CommandTable& table) {
    table.insert(QStringLiteral("start"), startCommand);
    table.insert(QStringLiteral("notify"), notifyCommand);
    table.insert(QStringLiteral("host"), hostCommand);
    table.insert(QStringLiteral("tool"), toolCommand);
}
