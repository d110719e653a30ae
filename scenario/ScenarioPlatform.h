#pragma once

#include "common/BookingLogViewer.h"
#include "common/FileSystem.h"
#include "common/PlatformUi.h"
#include "scenario/ScenarioEvents.h"

// Who answers the system's questions: the runner, from the next lines of the scenario.
class ScenarioPrompter {
  public:
    virtual ~ScenarioPrompter() = default;
    virtual long answerMessageBox(const QString& text, long flags, const QString& title) = 0;
    virtual std::optional<QString> answerFileDialog(const QString& title) = 0;
    virtual std::optional<QString> answerDirDialog(const QString& title) = 0;
};

// The platform below the windows: questions go to the prompter, error reports and help calls
// are written down for the checks.
class ScenarioPlatform : public PlatformUi {
  public:
    ScenarioPlatform(ScenarioPrompter& prompter, ScenarioEvents& events)
        : prompter_(prompter), events_(events) {}

    long MsgBox(const QString& text, long flags, const QString& title) override;
    void ShowErrorReport(long number, const QString& source, const QString& description) override;
    void ShowHelp(const QString& helpFile, const QString& topic) override;
    std::optional<QString> FileDialog(const QString& title, const QString& filter,
                                      const QString& initialDirectory,
                                      const QString& fileName) override;
    std::optional<QString> DirDialog(const QString& title, const QString& start) override;
    void SetMousePointer(int pointer) override { pointer_ = pointer; }
    int mousePointer() const { return pointer_; }

  private:
    ScenarioPrompter& prompter_;
    ScenarioEvents& events_;
    int pointer_ = 0;
};

// Starts no program: writes down each command line (program and arguments joined by blanks;
// opening a path reads as the desktop's handler started with it, "xdg-open <path>").
class ScenarioShell : public Shell {
  public:
    explicit ScenarioShell(ScenarioEvents& events) : events_(events) {}
    bool Start(const QString& program, const QStringList& arguments, int windowStyle) override;
    bool Open(const QString& path) override;

  private:
    ScenarioEvents& events_;
};
// Shows no window: writes down each use of the booking log viewer as the file in quotes,
// "buchungen" or "status", the fiscal year and the staff member.
class ScenarioBookingLogDisplay : public BookingLogDisplay {
  public:
    explicit ScenarioBookingLogDisplay(ScenarioEvents& events) : events_(events) {}
    void show(const BookingLogView& view) override;

  private:
    ScenarioEvents& events_;
};
