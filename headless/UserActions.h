#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <optional>

// What a user can do to a control. Both kits implement it for every control: the in-memory
// kit changes its state and raises the events as the control rules say; the Qt kit works
// the real widget, whose signals then take the same way. The scenario runner and the tests
// act only through this interface. A control that cannot take an action throws RaisedError
// saying so.
class UserActions {
  public:
    virtual ~UserActions() = default;
    // A button click; choosing an option; toggling a check box.
    virtual void userClick();
    // Replaces the text as typed: KeyDown, then Change.
    virtual void userType(const QString& text);
    // A check box clicked to that value (Click only when the value changes).
    virtual void userCheck(int value);
    // A combo item picked by key (Click).
    virtual void userSelect(long key);
    // A date picker's date, or none.
    virtual void userDate(std::optional<QDate> date);
    // Hours and minutes typed into a time box, "_" for a place left empty: "08:30", "_5:__".
    virtual void userTime(const QString& hhmm);
    // A key pressed while the control has the focus.
    virtual void userKey(int keyCode, int shift);
    // Grid: focus (GotFocus when it had none), current cell, then Click or DblClick.
    virtual void userGridClick(int row, int col, bool doubleClick);
    // Grid: a boolean cell toggled, then AfterEdit.
    virtual void userGridToggle(int row, int col);
    // Tab control switched to a page.
    virtual void userTab(int page);
    // Browser: the selected rows, the first one current; SelectionChanged.
    virtual void userBrowserSelect(const QList<int>& rows);
    // Browser: double click on a row (Open).
    virtual void userBrowserOpen(int row);
    // A tool of a bar (band and tool) or of a browser's tool bar or menu (band "Tools" or
    // "Menu").
    virtual void userTool(const QString& band, const QString& tool);

  protected:
    [[noreturn]] void unsupported(const char* action) const;
    virtual QString describe() const = 0;
};

// What a user can do to a window: a key with key preview, the close box, and a picture.
class WindowUserActions {
  public:
    virtual ~WindowUserActions() = default;
    virtual void userKey(int keyCode, int shift) = 0;
    virtual void userClose() = 0;
    // Saves a picture of the window (the Qt kit); the in-memory kit does nothing.
    virtual void shot(const QString& file) = 0;
};

// Who plays the user while a window is shown modally. The scenario runner hands one to the
// window factory of either kit; without one the Qt kit runs a nested event loop and the
// in-memory kit returns at once.
class ModalDriver {
  public:
    virtual ~ModalDriver() = default;
    // Called when a window is shown modally; returns when the window has been closed.
    virtual void runModal(const QString& windowName) = 0;
};
