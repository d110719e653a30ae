#pragma once

#include "headless/HeadlessWindow.h"

class QWidget;

// Creates the windows of the Qt kit. With a modal driver (the scenario runner) modal windows
// are shown without an event loop of their own and the driver plays the user inside them.
class QtWindowFactory : public HeadlessWindowFactory {
  public:
    explicit QtWindowFactory(ModalDriver* driver = nullptr);
    // The window, laid out.
    std::unique_ptr<IWindow> create(const WindowDecl& decl) override;

  protected:
    std::unique_ptr<HeadlessWindow> makeWindow(const WindowDecl& decl,
                                               std::shared_ptr<HeadlessKitContext> kit) override;
};

// The widget of a window of the Qt kit, to put it into another; nullptr for other windows.
QWidget* widgetOf(IWindow& window);
