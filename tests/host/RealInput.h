#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

class QTableView;
class QMenu;

// Drives the program as a person does: mouse clicks, double clicks and key presses on the
// widgets, found by their object names; never through the window kit.
namespace real_input {

// The visible top-level window of that object name, or nullptr.
QWidget* shownWindow(const QString& name);
// The widget of that object name inside a window; fails the test when there is none.
QWidget* find(QWidget* window, const QString& name);
template <class T>
T* findIn(QWidget* window, const QString& name) {
    return qobject_cast<T*>(find(window, name));
}
// A control of an array by its index, named as the Qt kit names it: "cmdCommandButton(7)".
QWidget* find(QWidget* window, const QString& array, int index);
template <class T>
T* findIn(QWidget* window, const QString& array, int index) {
    return qobject_cast<T*>(find(window, array, index));
}

void click(QWidget* widget);
// Clicks into a text box, selects what it holds and types the text over it.
void typeOver(QWidget* textBox, const QString& text);
// Clicks the page's tab of a tab control.
void clickTab(QWidget* tabControl, int page);
// A row of a table (1 the first row) clicked, double clicked or right clicked.
void clickRow(QTableView* view, int row);
void doubleClickRow(QTableView* view, int row);
void rightClickRow(QTableView* view, int row);
// The row (1 the first) whose column of that heading shows the text, 0 when none does.
int rowShowing(QTableView* view, const QString& heading, const QString& text);
// Clicks the item of an open pop-up menu that shows the text (mnemonics ignored).
bool clickMenuItem(QMenu* menu, const QString& text);
// The visible pop-up menu, or nullptr.
QMenu* openPopup();

// Plays the steps inside the window once it shows, also when it runs its own modal loop;
// each call waits on its own, so windows may nest. After timeoutMs without the window the
// test fails.
void whenShown(const QString& window, std::function<void(QWidget*)> play, int timeoutMs = 10000);
// Runs the event loop until the condition holds or the time is up; the condition's value.
bool waitFor(const std::function<bool()>& condition, int timeoutMs = 10000);

// Answers every message box the program shows: with the button of that text when one is
// queued, else with Escape; keeps each box's text.
class MessageBoxes {
  public:
    MessageBoxes();
    ~MessageBoxes();
    void answerNext(const QString& buttonText) { answers_ << buttonText; }
    QStringList shown() const { return shown_; }

  private:
    void poll();
    QStringList answers_;
    QStringList shown_;
    class QTimer* timer_;
};

}  // namespace real_input
