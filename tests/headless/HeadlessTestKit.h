#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <ostream>

#include "headless/HeadlessKit.h"

// Readable QString values in failure messages.
inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* os) {
    *os << '[' << list.join(QStringLiteral(" | ")).toStdString() << ']';
}

namespace headless_test {

inline ControlDecl decl(const char* name, ControlKind kind, int index = -1) {
    ControlDecl d;
    d.name = QString::fromUtf8(name);
    d.kind = kind;
    d.index = index;
    return d;
}

inline const char* typeName(EventType t) {
    switch (t) {
        case EventType::Click:
            return "Click";
        case EventType::DblClick:
            return "DblClick";
        case EventType::Change:
            return "Change";
        case EventType::KeyDown:
            return "KeyDown";
        case EventType::GotFocus:
            return "GotFocus";
        case EventType::LostFocus:
            return "LostFocus";
        case EventType::AfterEdit:
            return "AfterEdit";
        case EventType::ToolClick:
            return "ToolClick";
        case EventType::SelectionChanged:
            return "SelectionChanged";
        case EventType::Open:
            return "Open";
        case EventType::TabClick:
            return "TabClick";
        case EventType::Timer:
            return "Timer";
        case EventType::LeaveCell:
            return "LeaveCell";
    }
    return "?";
}

// One line per event: "Click chkCheckBox(0)", "KeyDown txt 13/0", "AfterEdit grd 2,1",
// "ToolClick bar Neu", "TabClick tab 0", "Open ctl 2".
inline QString describe(const ControlEvent& e) {
    QString s = QString::fromLatin1(typeName(e.type)) + QLatin1Char(' ') + e.control;
    if (e.index >= 0) {
        s += QStringLiteral("(%1)").arg(e.index);
    }
    switch (e.type) {
        case EventType::KeyDown:
            s += QStringLiteral(" %1/%2").arg(e.keyCode).arg(e.shift);
            break;
        case EventType::Click:
        case EventType::DblClick:
        case EventType::AfterEdit:
        case EventType::LeaveCell:
            if (e.row || e.col) {
                s += QStringLiteral(" %1,%2").arg(e.row).arg(e.col);
            }
            break;
        case EventType::ToolClick:
            s += QLatin1Char(' ') + e.tool;
            break;
        case EventType::TabClick:
        case EventType::Open:
            s += QStringLiteral(" %1").arg(e.row);
            break;
        default:
            break;
    }
    return s;
}

// A window of the in-memory kit with every event it raises written down.
struct Recorded {
    std::unique_ptr<HeadlessWindow> window;
    std::shared_ptr<QStringList> log = std::make_shared<QStringList>();

    explicit Recorded(const WindowDecl& d, ModalDriver* driver = nullptr) {
        HeadlessWindowFactory factory(driver);
        window.reset(static_cast<HeadlessWindow*>(factory.create(d).release()));
        WindowEvents ev;
        auto log = this->log;
        ev.onControl = [log](const ControlEvent& e) { *log << describe(e); };
        ev.onQueryUnload = [log](bool&) { *log << QStringLiteral("QueryUnload"); };
        ev.onUnload = [log] { *log << QStringLiteral("Unload"); };
        ev.onKeyDown = [log](int key, int shift) {
            *log << QStringLiteral("Form_KeyDown %1/%2").arg(key).arg(shift);
        };
        window->setEvents(ev);
    }

    template <class T>
    T& get(const char* name, int index = -1) {
        return window->get<T>(QString::fromUtf8(name), index);
    }
    HeadlessControl& control(const char* name, int index = -1) {
        return *window->headlessControl(QString::fromUtf8(name), index);
    }
    // The events since the last call.
    QStringList take() {
        QStringList events = *log;
        log->clear();
        return events;
    }
};

}  // namespace headless_test
