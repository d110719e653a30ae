#pragma once

#include "headless/HeadlessWindow.h"
#include "scenario/ScenarioSyntax.h"
#include "scenario/ScenarioValue.h"
#include "ui/ToolBar.h"

// Reads the properties a scenario checks. A property the thing does not have fails the line,
// naming what it is.

// Caption, Visible.
ScenarioValue windowProperty(HeadlessWindow& window, const PathPart& property);
// Text, Caption, Enabled, Value, ... of any control kind; the grid's and the browser's own
// properties with their arguments (TextMatrix(1,2), Cell(1,"Name")).
ScenarioValue controlProperty(IControl& control, const PathPart& property);
// Enabled, Visible, Caption, ToolTip.
ScenarioValue toolProperty(ITool& tool, const PathPart& property);
