#pragma once

#include <QString>

// What a control tells its window: the kind of event, which control (name and index), and
// the event's arguments. The window contract turns these into the window's own events.
enum class EventType {
    Click,     // button, check box (on a change), option button (on a change), combo (user pick)
    DblClick,  // grid
    Change,    // text box, selection control, date picker, time box
    KeyDown,   // key code and shift state; only for the user
    GotFocus,
    LostFocus,
    AfterEdit,         // grid cell edited by the user (row, col)
    ToolClick,         // a tool of a bar or a browser (tool)
    SelectionChanged,  // browser
    Open,              // browser: double click or Enter on a row (row)
    TabClick,          // tab control switched by the user (row = previous page)
    Timer,             // timer tick
    LeaveCell,         // grid: the user moves the current cell away from (row, col)
};

struct ControlEvent {
    EventType type = EventType::Click;
    QString control;  // the control's name, "" for the window itself
    int index = -1;   // the index in a control array, -1 for a single control
    int keyCode = 0;
    int shift = 0;
    int row = 0;
    int col = 0;
    QString tool;  // tool name, for ToolClick
};

// Key codes the system reacts to.
namespace KeyCode {
constexpr int Return = 13;
constexpr int Escape = 27;
constexpr int Delete = 46;
constexpr int F1 = 112;
}  // namespace KeyCode
