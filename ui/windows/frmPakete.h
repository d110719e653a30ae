#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The job list: the browser over the jobs and the hidden bar whose bands carry the state of
// the list's commands for the host's menu.
class frmPakete : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmPakete(std::unique_ptr<IWindow> window);

    IBrowser& ctlPakete() { return get<IBrowser>(QStringLiteral("ctlPakete")); }
    IToolBar& barMenu() { return get<IToolBar>(QStringLiteral("barMenu")); }

    // Raised when the window goes away (Form_Unload).
    std::function<void()> evFrmPaketeCommandButtonClicked;

    // The browser's events, for the controller's moPakete_ handlers.
    std::function<void(const QString& tool)> ctlPakete_ToolClick;
    std::function<void()> ctlPakete_SelectionChanged;
    std::function<void()> ctlPakete_Open;
    std::function<void(int keyCode, int shift)> ctlPakete_KeyDown;
};
