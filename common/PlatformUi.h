#pragma once

#include <QString>
#include <optional>

// What the platform's user interface offers below every window: the message box, the suite's
// error dialog, help and the mouse pointer. The window kits and the scenario runner implement
// it; the program without windows answers on the console.
class PlatformUi {
  public:
    virtual ~PlatformUi() = default;
    // The platform's message box: flags and answers as the classic message box
    // (1 OK, 2 cancel, 6 yes, 7 no).
    virtual long MsgBox(const QString& text, long flags, const QString& title) = 0;
    // The suite's error dialog.
    virtual void ShowErrorReport(long number, const QString& source,
                                 const QString& description) = 0;
    // A topic of a help file.
    virtual void ShowHelp(const QString& helpFile, const QString& topic) = 0;
    // The file dialog: the chosen path, or nothing when the user cancelled. filter holds
    // pairs "Description|*.ext|...".
    virtual std::optional<QString> FileDialog(const QString& title, const QString& filter,
                                              const QString& initialDirectory,
                                              const QString& fileName) = 0;
    // The directory dialog: the chosen directory, or nothing when the user cancelled.
    virtual std::optional<QString> DirDialog(const QString& title, const QString& start) = 0;
    // 0 is the normal pointer, 11 the hourglass.
    virtual void SetMousePointer(int pointer) = 0;
};
