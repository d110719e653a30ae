#pragma once

#include <QList>
#include <QString>

#include "headless/HeadlessWindow.h"
#include "scenario/ScenarioSyntax.h"
#include "ui/ToolBar.h"

// Finds what a path names among the windows alive in the scenario's kit: a window, a control
// of it (`frmEigenschaften.txtTextBox(2)`), or a tool of a bar or of a browser's tool bar or
// menu (`frmEigenschaften.tbrMain.barMain.save`, `frmPakete.ctlPakete.Tools.Neu`). Fails the
// line with a reason when it is not there.
class ScenarioLocator {
  public:
    explicit ScenarioLocator(HeadlessWindowFactory& windows) : windows_(windows) {}

    // The window of that name that is open (created and not unloaded), nullptr when none.
    HeadlessWindow* findOpen(const QString& name) const;
    HeadlessWindow& window(const PathPart& part) const;

    struct ControlRef {
        HeadlessWindow& window;
        IControl& control;
        QString display;  // "frmZeitplan.txtTextBox(0)"
    };
    // parts[0] the window, parts[1] the control with its index.
    ControlRef control(const QList<PathPart>& parts) const;

    struct ToolRef {
        HeadlessWindow& window;
        IControl& owner;  // the bar or the browser
        QString band;     // the bar's band, or "Tools" / "Menu" of a browser
        QString name;
        ITool& tool;
        QString display;
    };
    // parts[0..3]: window, bar or browser, band, tool.
    ToolRef tool(const QList<PathPart>& parts) const;

    // Why the user cannot reach the control or the tool now, "" when he can.
    static QString unreachable(const ControlRef& ref);
    static QString unreachable(const ToolRef& ref);

  private:
    HeadlessWindowFactory& windows_;
};
