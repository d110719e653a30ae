#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QSignalBlocker>
#include <QWidget>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "gui/QtKeys.h"
#include "headless/HeadlessControl.h"
#include "headless/HeadlessWindow.h"

// What the layouts and the window need of a Qt control.
class QtControlView {
  public:
    virtual ~QtControlView() = default;
    // The widget the layout places; nullptr for controls without one (timer, dialogs).
    virtual QWidget* widget() const = 0;
    // The caption beside the widget, nullptr when the widget shows its caption itself.
    virtual QLabel* captionLabel() const { return nullptr; }
    // The widget that takes the keys and the focus.
    virtual QWidget* keyTarget() const { return widget(); }
    // Where the controls standing in this one go: a frame's or picture's inside (page -1),
    // a tab control's pages.
    virtual QWidget* area(int /*page*/) const { return nullptr; }
};

// The window side of keys: with key preview the window sees a key first.
class KeyPreview {
  public:
    virtual ~KeyPreview() = default;
    // True when the window has key preview and has raised its KeyDown.
    virtual bool previewKey(int keyCode, int shift) = 0;
};

// A call from a widget into the logic. While one runs, a window that goes away leaves its
// widgets to be deleted later, because they may be on the stack. An exception of such a call
// (a refusal, or the scenario runner leaving a modal window it plays) must not pass through
// Qt: it is kept for the user action that worked the widget and thrown again when the widget
// is done (throughWidget); from the real user's input it is dropped with a warning.
class WidgetCall {
  public:
    template <class F>
    static void run(F&& f) {
        WidgetCall call;
        try {
            f();
        } catch (...) {
            keep(std::current_exception());
        }
    }
    static bool active() { return depth_ > 0; }

  private:
    WidgetCall() { ++depth_; }
    ~WidgetCall() { --depth_; }
    static void keep(std::exception_ptr thrown);

    template <class F>
    friend void throughWidget(F&& f);
    static inline int depth_ = 0;
    static inline std::vector<std::exception_ptr*> catchers_;
};

// Works a widget for a user action; what the calls from its signals threw comes out here.
template <class F>
void throughWidget(F&& f) {
    std::exception_ptr thrown;
    WidgetCall::catchers_.push_back(&thrown);
    try {
        f();
    } catch (...) {
        WidgetCall::catchers_.pop_back();
        throw;
    }
    WidgetCall::catchers_.pop_back();
    if (thrown) {
        std::rethrow_exception(thrown);
    }
}

// How a key reaches a control's widget.
enum class KeyRoute {
    User,     // a key of the real keyboard: key preview, KeyDown, then the widget's own use
    Window,   // a key pressed in the window: key preview, else KeyDown; the widget sees no more
    Control,  // a key pressed while the control has the focus: KeyDown only
    Typing,   // a key that types: KeyDown, then the widget types its text
};

// A key event that the kit sends itself, with the code and shift it stands for.
struct InjectedKey {
    const QKeyEvent* event = nullptr;
    int keyCode = 0;
    int shift = 0;
    KeyRoute route = KeyRoute::Control;
    static inline InjectedKey* current = nullptr;
};

// Sends a key event standing for keyCode and shift to the widget. text is what the key
// types; qtKey the key the widget sees, by default the one of the code.
void sendKey(QWidget* target, int keyCode, int shift, KeyRoute route, const QString& text = {},
             Qt::Key qtKey = Qt::Key_unknown);

// Watches the keys and the focus of a widget for its control. Lives with the widget; the
// control disarms it when it goes first.
class WidgetWatcher : public QObject {
  public:
    explicit WidgetWatcher(QWidget* watched) : QObject(watched) {
        watched->installEventFilter(this);
    }
    // A key pressed: code, shift and how it came. True swallows it.
    std::function<bool(int keyCode, int shift, KeyRoute route)> onKey;
    // The user moved the focus here (mouse, tab key, mnemonic).
    std::function<void()> onUserFocus;
    void disarm() {
        onKey = nullptr;
        onUserFocus = nullptr;
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// The classic colour value 0xBBGGRR as a Qt colour; invalid for -1 (the default).
QColor classicColor(long color);

// The Qt control of a kind: the in-memory control of that kind, whose state it mirrors into
// its widget with the widget's signals blocked, and whose user path the widget's signals
// take, so that the same events follow.
template <class Base>
class QtControl : public Base, public QtControlView {
  public:
    QtControl(const ControlDecl& decl, HeadlessWindow& window) : Base(decl, window) {}
    ~QtControl() override {
        for (const QPointer<WidgetWatcher>& w : watchers_) {
            if (w) {
                w->disarm();
            }
        }
    }

    QWidget* widget() const override { return widget_; }
    QLabel* captionLabel() const override { return caption_; }
    QWidget* keyTarget() const override { return keyTarget_; }

    // A key pressed while the control has the focus: through its widget.
    void userKey(int keyCode, int shift) override {
        if (!keyTarget_) {
            Base::userKey(keyCode, shift);
            return;
        }
        throughWidget([&] { sendKey(keyTarget_, keyCode, shift, KeyRoute::Control); });
    }

  protected:
    // Called at the end of the most derived constructor: the widget the layout places, the
    // one that takes keys (nullptr for none) and the caption beside it.
    void attach(QWidget* widget, QWidget* keyTarget, QLabel* caption = nullptr) {
        // Found by its name, as "txtTextBox(2)", by tests and accessibility tools.
        if (widget && widget->objectName().isEmpty()) {
            const ControlDecl& d = this->decl();
            widget->setObjectName(d.index >= 0 ? QStringLiteral("%1(%2)").arg(d.name).arg(d.index)
                                               : d.name);
        }
        widget_ = widget;
        keyTarget_ = keyTarget;
        caption_ = caption;
        if (keyTarget) {
            defaultFocus_ = keyTarget->focusPolicy();
            watch(keyTarget);
        }
        if (caption && keyTarget) {
            caption->setBuddy(keyTarget);
        }
        sync();
    }

    // Key and focus of one more widget of the control (a part that takes the focus itself).
    void watch(QWidget* w) {
        auto* watcher = new WidgetWatcher(w);
        watcher->onKey = [this](int code, int shift, KeyRoute route) {
            return keyFromWidget(code, shift, route);
        };
        watcher->onUserFocus = [this] {
            WidgetCall::run([this] { this->window().moveFocus(*this); });
        };
        watchers_ << watcher;
    }

    void stateChanged() override { sync(); }

    // Mirrors the whole state into the widget.
    void sync() {
        if (!widget_) {
            return;
        }
        const QSignalBlocker block(widget_);
        const bool wasUpdating = updating_;
        updating_ = true;
        refresh();
        applyCommon();
        updating_ = wasUpdating;
    }

    // The kind's own state into the widget; signals are blocked.
    virtual void refresh() {}

    // A key for the control, after the window's key preview: KeyDown. True swallows the key.
    virtual bool keyPressed(int keyCode, int shift, KeyRoute /*route*/) {
        Base::userKey(keyCode, shift);
        return false;
    }

    // True while the state is being mirrored: the widget's signals then are no user's.
    bool updating() const { return updating_; }
    // The context of the widget's connections: they end with the control.
    QObject* guard() const { return guard_.get(); }
    void setUpdating(bool on) { updating_ = on; }

  private:
    bool keyFromWidget(int code, int shift, KeyRoute route) {
        const bool passOn = route == KeyRoute::User || route == KeyRoute::Typing;
        std::weak_ptr<void> life = this->window().lifeToken();
        bool swallowed = false;
        WidgetCall::run([&] {
            if (route == KeyRoute::User || route == KeyRoute::Window) {
                if (auto* preview = dynamic_cast<KeyPreview*>(&this->window());
                    preview && preview->previewKey(code, shift)) {
                    return;
                }
            }
            swallowed = keyPressed(code, shift, route);
        });
        return swallowed || !passOn || life.expired();
    }

    void applyCommon() {
        const bool shown = this->Visible();
        widget_->setHidden(!shown);
        widget_->setEnabled(this->Enabled());
        widget_->setToolTip(this->ToolTip());
        if (caption_) {
            caption_->setHidden(!shown || caption_->text().isEmpty());
            caption_->setEnabled(this->Enabled());
        }
        if (keyTarget_) {
            const Qt::FocusPolicy withoutTab =
                defaultFocus_ == Qt::NoFocus ? Qt::NoFocus : Qt::ClickFocus;
            keyTarget_->setFocusPolicy(this->TabStop() ? defaultFocus_ : withoutTab);
            if (this->Focused() && keyTarget_->isVisible() && !keyTarget_->hasFocus()) {
                keyTarget_->setFocus(Qt::OtherFocusReason);
            }
        }
    }

    QPointer<QWidget> widget_;
    QPointer<QWidget> keyTarget_;
    QPointer<QLabel> caption_;
    QList<QPointer<WidgetWatcher>> watchers_;
    Qt::FocusPolicy defaultFocus_ = Qt::NoFocus;
    bool updating_ = false;
    std::unique_ptr<QObject> guard_ = std::make_unique<QObject>();
};
