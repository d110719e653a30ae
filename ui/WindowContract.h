#pragma once

#include <memory>

#include "common/Host.h"
#include "ui/Window.h"

// What every window contract does with its controls' events.
namespace contract {

// Calls a copy of the handler, when one is set: the handler may destroy the window and its
// contract.
template <class Handler, class... Args>
void fire(const Handler& handler, const Args&... args) {
    if (handler) {
        Handler call = handler;
        call(args...);
    }
}

// Whether the event comes from the control of that name.
inline bool is(const ControlEvent& e, const char* name) {
    return e.control.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

}  // namespace contract

// The base of every window contract: owns the kit's window and gives typed access to its
// controls. The contract of a window turns its controls' events into the window's events.
class WindowContract : public HostObject {
  public:
    explicit WindowContract(std::unique_ptr<IWindow> window) : window_(std::move(window)) {}
    ~WindowContract() override = default;
    WindowContract(const WindowContract&) = delete;
    WindowContract& operator=(const WindowContract&) = delete;

    IWindow& window() { return *window_; }
    const IWindow& window() const { return *window_; }
    QString name() const { return window_->declaration().name; }
    // The classic runtime's type name of a form: the form's name.
    QString TypeName() const override { return name(); }

  protected:
    template <class T>
    T& get(const QString& name, int index = -1) {
        return window_->get<T>(name, index);
    }
    // The window's control events go to onControl, its other events as given.
    void listen(WindowEvents events = {}) {
        events.onControl = [this](const ControlEvent& e) { onControl(e); };
        window_->setEvents(std::move(events));
    }
    virtual void onControl(const ControlEvent&) {}

  private:
    std::unique_ptr<IWindow> window_;
};
