#pragma once

#include <QString>

#include "headless/UserActions.h"
#include "ui/ControlEvent.h"
#include "ui/Window.h"

class HeadlessWindow;

// Error numbers of the classic runtime that the controls raise on bad arguments.
namespace HeadlessErr {
constexpr long InvalidPropertyValue = 380;  // "Unzulässiger Eigenschaftswert"
constexpr long InvalidArrayIndex = 381;     // "Ungültiger Index für Eigenschaftenfeld"
}  // namespace HeadlessErr

// The base of every control of the in-memory kit, and of the Qt kit's controls, which derive
// from the kind classes and only mirror the state into a widget:
//
// - Every change of state ends in the protected virtual stateChanged() (the Qt kit refreshes
//   its widget there; signals blocked, so that the widget's echo raises nothing).
// - Every user action is a virtual of UserActions. The in-memory implementation changes the
//   state and raises the events as DESIGN.md "Control events" says; the Qt kit may route the
//   action through its widget and call the base implementation from the widget's signal.
// - Events go to the owning window's WindowEvents::onControl. raise() tells whether the
//   window is still alive afterwards: a handler may destroy the window (and this control),
//   so code after a raise must return at once when it gives false.
class HeadlessControl : public virtual IControl, public UserActions {
  public:
    HeadlessControl(const ControlDecl& decl, HeadlessWindow& window);
    ~HeadlessControl() override;
    HeadlessControl(const HeadlessControl&) = delete;
    HeadlessControl& operator=(const HeadlessControl&) = delete;

    // IControl
    ControlKind kind() const override { return decl_.kind; }
    QString name() const override { return decl_.name; }
    int index() const override { return decl_.index; }
    bool Enabled() const override { return enabled_; }
    void setEnabled(bool on) override;
    bool Visible() const override { return visible_; }
    void setVisible(bool on) override;
    bool TabStop() const override { return tabStop_; }
    void setTabStop(bool on) override;
    QString ToolTip() const override { return toolTip_; }
    void setToolTip(const QString& text) override;
    int Top() const override { return top_; }
    void setTop(int top) override;
    int Height() const override { return height_; }
    void setHeight(int height) override;
    int Left() const override { return left_; }
    void setLeft(int left) override;
    int Width() const override { return width_; }
    void setWidth(int width) override;
    // Makes this the window's focused control: LostFocus of the former one, then GotFocus.
    // Nothing happens when it has the focus already.
    void SetFocus() override;
    bool Focused() const override;

    // UserActions: a key pressed while the control has the focus raises KeyDown. Kinds that
    // take no keys (labels, frames, timers, bars, dialogs) refuse it.
    void userKey(int keyCode, int shift) override;

    const ControlDecl& decl() const { return decl_; }
    HeadlessWindow& window() const { return window_; }
    // "txtTextBox(0)", "ctlPakete".
    QString fullName() const;

  protected:
    // Called after every change of state of this control.
    virtual void stateChanged() {}
    // Raises an event of this control; false when the window went away meanwhile.
    bool raise(EventType type);
    bool raise(ControlEvent event);
    ControlEvent makeEvent(EventType type) const;
    // "frmZeitplan.txtTextBox(0)"
    QString describe() const override;
    // A user action this control refuses, with the reason.
    [[noreturn]] void refuse(const QString& reason) const;
    // A bad argument given by code: error 380 or 381 of the classic runtime.
    [[noreturn]] void badValue(const QString& what) const;
    [[noreturn]] void badIndex(const QString& what) const;

  private:
    friend class HeadlessWindow;
    // The window tells a control that it got or lost the focus.
    void focusMoved() { stateChanged(); }

    ControlDecl decl_;
    HeadlessWindow& window_;
    bool enabled_;
    bool visible_;
    bool tabStop_ = true;
    QString toolTip_;
    int top_ = 0;
    int height_ = 0;
    int left_ = 0;
    int width_ = 0;
};
