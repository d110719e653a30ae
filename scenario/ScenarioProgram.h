#pragma once

#include <QStringList>
#include <QTextStream>

#include "scenario/ScenarioPlay.h"

// Runs one scenario file in a fresh world. A file that cannot be read fails at line 0.
ScenarioOutcome runScenarioFile(const QString& path, const WindowKitMaker& kit);
// Runs the text of a scenario.
ScenarioOutcome runScenarioText(const QString& text, const WindowKitMaker& kit = {});

// The program: arguments "[--qt] FILE...". Prints "PASS <file>" or "FAIL <file>:<line>:
// <reason>" per file and "<n> passed, <m> failed"; gives 0 when all passed, 1 otherwise,
// 2 on a usage error (told on err). qtKit makes the Qt kit's windows; without it --qt is a
// usage error.
int runScenarioProgram(const QStringList& arguments, QTextStream& out, QTextStream& err,
                       const WindowKitMaker& qtKit = {});
