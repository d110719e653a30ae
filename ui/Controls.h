#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <optional>

#include "ui/ControlEvent.h"

enum class ControlKind {
    TextBox,
    Label,
    CheckBox,
    OptionButton,
    ComboBox,
    Button,
    Frame,
    Picture,
    Grid,
    DatePicker,
    TimeBox,
    TabControl,
    Timer,
    Selection,
    ToolBar,
    Browser,
    FileDialog,
    DirDialog,
};

// Every control: its name and index, the states every control has, and the focus.
class IControl {
  public:
    virtual ~IControl() = default;
    virtual ControlKind kind() const = 0;
    virtual QString name() const = 0;
    virtual int index() const = 0;

    virtual bool Enabled() const = 0;
    virtual void setEnabled(bool on) = 0;
    virtual bool Visible() const = 0;
    virtual void setVisible(bool on) = 0;
    virtual bool TabStop() const = 0;
    virtual void setTabStop(bool on) = 0;
    virtual QString ToolTip() const = 0;
    virtual void setToolTip(const QString& text) = 0;
    // Position and size in the window's units (twips in the declarations).
    virtual int Top() const = 0;
    virtual void setTop(int top) = 0;
    virtual int Height() const = 0;
    virtual void setHeight(int height) = 0;
    virtual int Left() const = 0;
    virtual void setLeft(int left) = 0;
    virtual int Width() const = 0;
    virtual void setWidth(int width) = 0;
    // Moves the focus here (by code: GotFocus of the control is raised all the same).
    virtual void SetFocus() = 0;
    // True when this control was the last in its window to get the focus.
    virtual bool Focused() const = 0;
};

// Text box, also a password box or a text box of many lines, as declared.
class ITextBox : public virtual IControl {
  public:
    virtual QString Text() const = 0;
    // Raises Change when the text changes.
    virtual void setText(const QString& text) = 0;
    virtual bool Locked() const = 0;
    virtual void setLocked(bool on) = 0;
    // The caption beside the box (the in-house text box carries its label).
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
};

// Label, frame, picture, button: a caption and, for labels, a fore colour.
class ILabel : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
    // 0xBBGGRR as the classic colour values; -1 is the window's default.
    virtual long ForeColor() const = 0;
    virtual void setForeColor(long color) = 0;
};

class IButton : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
};

class IFrame : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
};

class IPicture : public virtual IControl {};

class ICheckBox : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
    // 0 or 1. Setting a different value raises Click, by code too.
    virtual int Value() const = 0;
    virtual void setValue(int value) = 0;
};

class IOptionButton : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
    // Setting true clears the other options of the same group and raises Click, by code too.
    virtual bool Value() const = 0;
    virtual void setValue(bool on) = 0;
};

// Combo box of items with a numeric key and a text. Selecting by code is silent; only the
// user's pick raises Click.
class IComboBox : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
    virtual void Clear() = 0;
    virtual void AddItem(long key, const QString& text) = 0;
    virtual int ItemCount() const = 0;
    virtual long ItemKey(int i) const = 0;
    virtual QString ItemTextAt(int i) const = 0;
    // The selected item's key, -1 when none is selected.
    virtual long Key() const = 0;
    // Selects the item with that key (none when there is no such item).
    virtual void setKey(long key) = 0;
    // The selected item's position, -1 when none.
    virtual int ListIndex() const = 0;
    virtual void setListIndex(int i) = 0;
    // The selected item's text, "" when none.
    virtual QString ItemText() const = 0;
};

// Date picker: a date or, where allowed, none.
class IDatePicker : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    virtual std::optional<QDate> Value() const = 0;
    // Raises Change when the value changes.
    virtual void setValue(std::optional<QDate> value) = 0;
};

// Time box with the mask "##:##:00": hours and minutes are typed, seconds are fixed.
class ITimeBox : public virtual IControl {
  public:
    // The value with its literals, "_" where a place is not filled: "08:30:00", "_8:__:00".
    virtual QString Text() const = 0;
    // The typed digits alone, hours and minutes: "0830".
    virtual QString Ziffern() const = 0;
    // Takes hours and minutes from the text, in order, with or without colons.
    virtual void setText(const QString& text) = 0;
};

class ITabControl : public virtual IControl {
  public:
    virtual int Tab() const = 0;
    // Switching by code raises no event.
    virtual void setTab(int page) = 0;
    virtual int Tabs() const = 0;
    virtual QString TabCaption(int page) const = 0;
    virtual bool TabEnabled(int page) const = 0;
    virtual void setTabEnabled(int page, bool on) = 0;
};

class ITimer : public virtual IControl {
  public:
    virtual int Interval() const = 0;
    virtual void setInterval(int ms) = 0;
    // Enabled() of the control tells whether it ticks.
};

// The in-house selection control: chooses a client, an office or a staff member by id.
class ISelection : public virtual IControl {
  public:
    virtual QString Caption() const = 0;
    // 0 client, 1 office; other bits as the callers use them.
    virtual long Mode() const = 0;
    virtual void setMode(long mode) = 0;
    virtual long Id() const = 0;
    // Raises Change when the id changes.
    virtual void setId(long id) = 0;
    // The display text of the chosen record.
    virtual QString Text() const = 0;
};

// The file dialog: settings in, the chosen path out.
struct FileDialogSettings {
    QString title;
    QString filter;  // "Skriptdateien (*.opt)|*.opt" pairs, as the classic filter text
    QString initialDirectory;
    QString fileName;  // proposal
    bool mustExist = true;
};

class IFileDialog : public virtual IControl {
  public:
    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<QString> ShowOpen(const FileDialogSettings& settings) = 0;
};

class IDirDialog : public virtual IControl {
  public:
    virtual std::optional<QString> ShowDir(const QString& title, const QString& start) = 0;
};
