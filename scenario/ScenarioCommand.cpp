#include "scenario/ScenarioCommand.h"

#include "scenario/ScenarioError.h"

ScenarioCommand::ScenarioCommand(int line, QList<Token> tokens) : line_(line) {
    if (!tokens.isEmpty()) {
        name_ = tokens.takeFirst().raw;
    }
    args_ = std::move(tokens);
}

const Token& ScenarioCommand::arg(int i) const {
    if (i >= argCount()) {
        scenarioFail(QStringLiteral("%1 needs more arguments").arg(name_));
    }
    return args_.at(i);
}

QString ScenarioCommand::text(int i) const {
    const Token& t = arg(i);
    if (!t.quoted) {
        scenarioFail(QStringLiteral("%1: %2 must be written in double quotes").arg(name_, t.raw));
    }
    return t.text;
}

long ScenarioCommand::integer(int i) const {
    const Token& t = arg(i);
    bool ok = false;
    const long n = t.quoted ? 0 : t.raw.toLong(&ok);
    if (!ok) {
        scenarioFail(QStringLiteral("%1: %2 is no whole number").arg(name_, t.raw));
    }
    return n;
}

ScenarioValue ScenarioCommand::value(int i) const {
    return ScenarioValue::parse(arg(i));
}

QList<PathPart> ScenarioCommand::path(int i) const {
    return parsePath(arg(i).raw);
}

void ScenarioCommand::expectWord(int i, const QString& word) const {
    const Token& t = arg(i);
    if (t.quoted || t.raw != word) {
        scenarioFail(QStringLiteral("%1: expected %2 instead of %3").arg(name_, word, t.raw));
    }
}

void ScenarioCommand::expectArgs(int min, int max) const {
    if (argCount() < min) {
        scenarioFail(QStringLiteral("%1 needs more arguments").arg(name_));
    }
    if (argCount() > max) {
        scenarioFail(QStringLiteral("%1 has too many arguments: %2").arg(name_, args_.at(max).raw));
    }
}

QString ScenarioCommand::display() const {
    QStringList words{name_};
    for (const Token& t : args_) {
        words << t.raw;
    }
    return words.join(u' ');
}
