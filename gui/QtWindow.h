#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "gui/QtControl.h"
#include "headless/HeadlessWindow.h"

class QEventLoop;

// The top-level widget of a window: hands its close box and the user's resizing to the window.
class QtWindowWidget : public QWidget {
  public:
    QtWindowWidget();
    std::function<void()> onClose;
    std::function<void()> onResize;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

// A window of the Qt kit: the in-memory window of its declaration, whose controls are Qt
// controls laid out on a widget, by the layout registered for the window's name or else by
// the automatic layout. Modal showing hands the window to the modal driver when there is one
// and runs a nested event loop otherwise.
class QtWindow : public HeadlessWindow, public KeyPreview {
  public:
    QtWindow(const WindowDecl& decl, std::shared_ptr<HeadlessKitContext> kit);
    ~QtWindow() override;

    // The window's widget: top level until a host puts it into one of its own.
    QWidget* widget() const { return root_; }
    // The Qt side of a control, nullptr when the window has none of that name and index.
    QtControlView* view(const QString& name, int index = -1) const;
    // Lays the controls out once; showing does it at the latest.
    void arrange();
    bool arranged() const { return arranged_; }

    void Show(bool modal) override;
    void userKey(int keyCode, int shift) override;
    void userClose() override;
    // Saves a picture of the window as PNG.
    void shot(const QString& file) override;

    // KeyPreview
    bool previewKey(int keyCode, int shift) override;

  protected:
    std::unique_ptr<HeadlessControl> makeControl(const ControlDecl& decl) override;
    void stateChanged() override;

  private:
    QPointer<QtWindowWidget> root_;
    QEventLoop* loop_ = nullptr;
    bool arranged_ = false;
};
