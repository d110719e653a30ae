#pragma once

#include <QAction>
#include <QHash>
#include <QPointer>
#include <QToolBar>

#include "gui/QtControl.h"
#include "headless/HeadlessToolBar.h"

// A tool's state on its action: caption (with & as mnemonic), hint as tool tip, enabled,
// visible, and an icon of the style for the tools every bar has.
void applyTool(QAction& action, const ITool& tool);

// The bar as a tool bar: the tools of a bar of one band stand on it; a bar of several bands
// shows each band as a button with its tools as a menu. A click on a tool raises ToolClick.
class QtToolBar : public QtControl<HeadlessToolBar> {
  public:
    QtToolBar(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userTool(const QString& band, const QString& tool) override;
    // The action of a tool, nullptr when the band has no such tool.
    QAction* action(const QString& band, const QString& tool) const;

  protected:
    void refresh() override;
    void toolChanged(HeadlessTool& tool) override;

  private:
    static QString key(const QString& band, const QString& tool);

    QPointer<QToolBar> bar_;
    QHash<QString, QPointer<QAction>> actions_;
    QHash<const HeadlessTool*, QList<QPointer<QAction>>> actionsOfTool_;
};
