#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>

#include "common/CoreLibraries.h"
#include "ui/Browser.h"
#include "ui/Controls.h"
#include "ui/Grid.h"
#include "ui/ToolBar.h"

// The declaration of a control: everything about it but its place on the screen.
struct ControlDecl {
    QString name;
    int index = -1;  // -1 for a single control, else its index in the control array
    ControlKind kind = ControlKind::Label;
    QString caption;
    QString hint;
    QString container;       // the frame or picture it stands in, "" for the window
    int tabPage = -1;        // the page of the window's tab control it stands on, -1 for none
    QString group;           // option buttons of one group exclude one another
    bool multiLine = false;  // text box of many lines
    bool password = false;   // text box that hides its text
    int maxLength = 0;       // text box: the most characters the user can type, 0 for any
    bool visible = true;
    bool enabled = true;
    QStringList tabCaptions;  // tab control: the pages' captions
    int interval = 0;         // timer: milliseconds
    bool editable = false;    // grid: the user may edit cells (the grid's design-time Editable)
    bool boldMarks = false;   // label: "<b>" and "</b>" in the caption mark bold text
};

// A tool of a bar, in the order of its band.
struct ToolDecl {
    QString bar;  // the bar control's name
    QString band;
    QString name;  // "" for a separator
    QString caption;
    QString hint;
    long picture = 0;
    bool isSeparator() const { return name.isEmpty(); }
};

struct WindowDecl {
    QString name;
    QString caption;
    QList<ControlDecl> controls;
    QList<ToolDecl> tools;
    bool keyPreview = false;  // the window sees keys before its controls
    int width = 0;            // the size in pixels the Qt layout starts from
    int height = 0;
};

// What the window itself raises: its close box and the end of its life, and keys when it
// has key preview. Cancel of QueryUnload keeps the window open.
struct WindowEvents {
    std::function<void(const ControlEvent&)> onControl;
    std::function<void(bool& cancel)> onQueryUnload;
    std::function<void()> onUnload;
    std::function<void(int keyCode, int shift)> onKeyDown;
    std::function<void()> onResize;
};

// A window as the kits make it from its declaration. Controls are found by name and index.
class IWindow : public PictureTarget {
  public:
    ~IWindow() override = default;
    virtual const WindowDecl& declaration() const = 0;
    virtual QString Caption() const = 0;
    virtual void setCaption(const QString& text) = 0;
    virtual bool Visible() const = 0;
    // Shows the window; modal returns when the window is closed (Qt runs a nested loop, the
    // in-memory kit hands control to the scenario or test).
    virtual void Show(bool modal) = 0;
    virtual void Hide() = 0;
    // Closes and destroys the window's contents: raises no QueryUnload, but Unload.
    virtual void Unload() = 0;
    // The user's close box: QueryUnload, then, unless cancelled, Unload.
    virtual void CloseByUser() = 0;
    virtual bool IsModalOpen() const = 0;
    virtual void setMousePointer(int pointer) = 0;
    virtual int MousePointer() const = 0;
    virtual void setEvents(WindowEvents events) = 0;
    // The control, or nullptr when the window declares none of that name and index.
    virtual IControl* control(const QString& name, int index = -1) = 0;
    // The window's icon from the suite's pictures.
    virtual long Icon() const = 0;

    template <class T>
    T& get(const QString& name, int index = -1) {
        auto* c = dynamic_cast<T*>(control(name, index));
        if (!c) {
            throwMissingControl(name, index);
        }
        return *c;
    }

  private:
    [[noreturn]] static void throwMissingControl(const QString& name, int index);
};

// Creates windows; the host chooses the in-memory or the Qt kit.
class IWindowFactory {
  public:
    virtual ~IWindowFactory() = default;
    virtual std::unique_ptr<IWindow> create(const WindowDecl& decl) = 0;
};
