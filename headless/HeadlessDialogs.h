#pragma once

#include "headless/HeadlessControl.h"

// The file dialog control: asks the platform's user interface of the service registry
// (services().ui, which the scenario runner answers); no answer when none is set.
// The last settings shown are kept for tests.
class HeadlessFileDialog : public HeadlessControl, public IFileDialog {
  public:
    using HeadlessControl::HeadlessControl;
    std::optional<QString> ShowOpen(const FileDialogSettings& settings) override;
    const FileDialogSettings& lastSettings() const { return last_; }
    void userKey(int keyCode, int shift) override;

  private:
    FileDialogSettings last_;
};

// The directory dialog control, through services().ui as the file dialog.
class HeadlessDirDialog : public HeadlessControl, public IDirDialog {
  public:
    using HeadlessControl::HeadlessControl;
    std::optional<QString> ShowDir(const QString& title, const QString& start) override;
    void userKey(int keyCode, int shift) override;
};
