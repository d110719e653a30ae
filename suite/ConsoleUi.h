#pragma once

#include <iosfwd>

#include "common/PlatformUi.h"

// The platform's user interface of the program without windows: message boxes and error
// reports are written to a stream (standard error by default), and every question takes its
// safe answer: OK where that is the only button, otherwise cancel, no or abort, so that
// nothing is changed or deleted without someone to ask.
class ConsoleUi : public PlatformUi {
  public:
    ConsoleUi();
    explicit ConsoleUi(std::ostream& out) : out_(out) {}

    long MsgBox(const QString& text, long flags, const QString& title) override;
    void ShowErrorReport(long number, const QString& source, const QString& description) override;
    void ShowHelp(const QString& helpFile, const QString& topic) override;
    std::optional<QString> FileDialog(const QString& title, const QString& filter,
                                      const QString& initialDirectory,
                                      const QString& fileName) override;
    std::optional<QString> DirDialog(const QString& title, const QString& start) override;
    void SetMousePointer(int pointer) override;

    // The answer given to a box of these flags.
    static long safeAnswer(long flags);

  private:
    std::ostream& out_;
};
