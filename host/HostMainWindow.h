#pragma once

#include <QMainWindow>
#include <QMap>
#include <functional>

#include "ui/ToolBar.h"
#include "ui/Window.h"

class QAction;
class QLabel;

// The host's main window: the component's list inside, the menus "Bearbeiten" and "Ansicht"
// that carry the tools of the list's menu bands, and a status bar for the progress texts.
class HostMainWindow : public QMainWindow {
  public:
    // menuTools: the tools of the bar whose bands become the menus.
    HostMainWindow(const QString& title, const QList<ToolDecl>& menuTools);

    void setList(QWidget* list);
    // Every menu item takes the state of the same band's tool of the component's bar.
    void followTools(IToolBar& bar);
    // The state of a tool as the component sends it.
    void setToolEnabled(const QString& band, const QString& tool, bool enabled);
    bool isToolEnabled(const QString& band, const QString& tool) const;
    void showProgress(const QString& hint, const QString& endHint);

    // A menu item chosen: the tool's name.
    std::function<void(const QString& tool)> onTool;
    // The window is closing.
    std::function<void()> onClose;
    // "Datei": export and import of job definitions.
    std::function<void()> onExport;
    std::function<void()> onImport;
    std::function<void()> onRefresh;
    // "Ansicht" → "Ausführungsplan…".
    std::function<void()> onPlan;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void addBandMenu(const QString& band, const QList<ToolDecl>& tools);

    QMap<QString, QAction*> actions_;  // "band/tool"
    QLabel* hint_ = nullptr;
    QLabel* endHint_ = nullptr;
};
