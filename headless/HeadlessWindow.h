#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <memory>
#include <vector>

#include "headless/HeadlessControl.h"
#include "headless/UserActions.h"
#include "ui/Window.h"

class HeadlessWindow;

// What the windows of one kit share: who plays the user in modal windows, and the windows
// alive at the moment (in the order of their creation), for the scenario runner.
struct HeadlessKitContext {
    ModalDriver* driver = nullptr;
    std::vector<HeadlessWindow*> windows;
};

// A window of the in-memory kit, built from its declaration. The Qt kit derives its window
// from this class: it overrides makeControl() to create Qt controls and stateChanged() to
// mirror caption, visibility, pointer and icon, and Show() to run its own modal loop.
//
// Life: created by the factory, build() creates the controls; Unload() raises onUnload once
// and leaves the window invisible and gone; the object itself lives until its owner drops it.
// Any event handler may destroy the window; the window never touches itself after an event
// whose handler did so.
class HeadlessWindow : public IWindow, public WindowUserActions {
  public:
    explicit HeadlessWindow(const WindowDecl& decl,
                            std::shared_ptr<HeadlessKitContext> kit = nullptr);
    ~HeadlessWindow() override;
    HeadlessWindow(const HeadlessWindow&) = delete;
    HeadlessWindow& operator=(const HeadlessWindow&) = delete;

    // Creates the declared controls through makeControl(), in the order of the declaration.
    // Called once, right after construction (the factory does it).
    void build();

    // IWindow
    const WindowDecl& declaration() const override { return decl_; }
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    bool Visible() const override { return visible_; }
    // Visible; modal: with a modal driver, runModal(name) and back when it returns; without
    // one back at once, the window staying open.
    void Show(bool modal) override;
    // Invisible; a modal showing ends.
    void Hide() override;
    // Raises onUnload once; afterwards the window is gone (invisible, further Unload nothing).
    void Unload() override;
    // onQueryUnload(cancel); unless cancelled, Unload.
    void CloseByUser() override;
    bool IsModalOpen() const override { return modalOpen_; }
    void setMousePointer(int pointer) override;
    int MousePointer() const override { return mousePointer_; }
    void setEvents(WindowEvents events) override;
    IControl* control(const QString& name, int index = -1) override;
    long Icon() const override { return icon_; }
    // PictureTarget
    void setIconPicture(long pictureId) override;
    // Stores the picture and gives it to the tools of that name on every bar of the window.
    void setToolPicture(const QString& tool, long pictureId) override;
    long toolPicture(const QString& tool) const { return toolPictures_.value(tool, 0); }

    // WindowUserActions
    // With key preview the window's onKeyDown sees the key (and only it); without, the key
    // goes to the focused control as its KeyDown, and nowhere when none has the focus.
    void userKey(int keyCode, int shift) override;
    // The close box; refused when the window is not shown.
    void userClose() override;
    void shot(const QString& file) override;

    // The kit's control of that name and index (names compare without case), or nullptr.
    HeadlessControl* headlessControl(const QString& name, int index = -1) const;
    QList<HeadlessControl*> controls() const;
    // The control with the focus, nullptr when none has had it.
    HeadlessControl* focusedControl() const { return focused_; }
    // True after Unload until the window is shown again.
    bool isUnloaded() const { return unloaded_; }
    QString name() const { return decl_.name; }

    // Ticks every timer of the window once (HeadlessTimer::tick); gives how many ticked.
    int tickTimers();

    // Why the user cannot reach the control now, "" when he can: the window is not shown,
    // the control or one of its containers is disabled or invisible, or it stands on a page of
    // the window's tab control that is not the current one.
    QString unreachableReason(IControl& control) const;

    // For the controls: raises an event through onControl; false when the window went away.
    bool raise(const ControlEvent& event);
    // For the controls: moves the focus (LostFocus of the former, then GotFocus).
    bool moveFocus(HeadlessControl& control);
    // The option buttons that exclude one another with this one (itself included).
    QList<HeadlessControl*> optionGroup(const HeadlessControl& option) const;
    // The window's tab control, nullptr when it has none.
    HeadlessControl* tabControl() const;

    std::weak_ptr<void> lifeToken() const { return life_; }

  protected:
    // Creates the control for a declaration. The in-memory kit gives makeHeadlessControl();
    // the Qt kit gives its own controls.
    virtual std::unique_ptr<HeadlessControl> makeControl(const ControlDecl& decl);
    // Called after every change of the window's own state (caption, visible, pointer, icon).
    virtual void stateChanged() {}
    // The state of Show without the modal hand-over: visible, modal open when modal (400 when
    // it is open modally already), no longer unloaded; then stateChanged(). A Qt Show calls
    // it, then hands over to the driver or runs its loop while IsModalOpen().
    void markShown(bool modal);
    ModalDriver* modalDriver() const { return kit_ ? kit_->driver : nullptr; }
    const WindowEvents& events() const { return events_; }

  private:
    QString containerReason(const ControlDecl& decl, int depth) const;

    WindowDecl decl_;
    std::shared_ptr<HeadlessKitContext> kit_;
    std::shared_ptr<int> life_ = std::make_shared<int>(0);
    std::vector<std::unique_ptr<HeadlessControl>> controls_;
    WindowEvents events_;
    QString caption_;
    bool visible_ = false;
    bool modalOpen_ = false;
    bool unloaded_ = false;
    int mousePointer_ = 0;
    long icon_ = 0;
    QHash<QString, long> toolPictures_;
    HeadlessControl* focused_ = nullptr;
};

// The in-memory control of the declared kind.
std::unique_ptr<HeadlessControl> makeHeadlessControl(const ControlDecl& decl,
                                                     HeadlessWindow& window);

// Creates in-memory windows. The Qt kit derives its factory and overrides makeWindow().
class HeadlessWindowFactory : public IWindowFactory {
  public:
    explicit HeadlessWindowFactory(ModalDriver* driver = nullptr);
    std::unique_ptr<IWindow> create(const WindowDecl& decl) override;

    ModalDriver* modalDriver() const { return kit_->driver; }
    void setModalDriver(ModalDriver* driver) { kit_->driver = driver; }
    // The windows of this factory alive now, oldest first.
    QList<HeadlessWindow*> windows() const;
    // The newest alive window of that name that is not unloaded, else the newest of that
    // name; nullptr when there is none.
    HeadlessWindow* find(const QString& name) const;

  protected:
    virtual std::unique_ptr<HeadlessWindow> makeWindow(const WindowDecl& decl,
                                                       std::shared_ptr<HeadlessKitContext> kit);
    const std::shared_ptr<HeadlessKitContext>& kit() const { return kit_; }

  private:
    std::shared_ptr<HeadlessKitContext> kit_;
};
