#pragma once

#include <QList>
#include <QString>

#include "scenario/ScenarioSyntax.h"
#include "scenario/ScenarioValue.h"

// One line of a scenario: its number, the command word and the arguments, with accessors
// that fail the line with a clear reason when an argument is missing or of the wrong kind.
class ScenarioCommand {
  public:
    ScenarioCommand(int line, QList<Token> tokens);

    int line() const { return line_; }
    const QString& name() const { return name_; }
    int argCount() const { return static_cast<int>(args_.size()); }
    const Token& arg(int i) const;
    bool hasArg(int i) const { return i < argCount(); }

    // The i-th argument as a text written in double quotes.
    QString text(int i) const;
    // The i-th argument as a whole number.
    long integer(int i) const;
    // The i-th argument as a value of a check.
    ScenarioValue value(int i) const;
    // The i-th argument as a path: window.control(index).Property and the like.
    QList<PathPart> path(int i) const;
    // The i-th argument must be this word.
    void expectWord(int i, const QString& word) const;
    // Fails unless the line has between min and max arguments.
    void expectArgs(int min, int max) const;

    // "cmd arg arg", as written.
    QString display() const;

  private:
    int line_;
    QString name_;
    QList<Token> args_;
};
