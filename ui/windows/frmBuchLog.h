#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The log files of one directory that belong to a job: the directory, the list of files with
// their size and dates, the count line, and the buttons that close, open a file and open the
// directory. A double click in the list acts as "Öffnen".
class frmBuchLog : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmBuchLog(std::unique_ptr<IWindow> window);

    ILabel& lblLabel() { return get<ILabel>(QStringLiteral("lblLabel")); }
    ITextBox& txtTextBox() { return get<ITextBox>(QStringLiteral("txtTextBox")); }
    IGrid& grdData() { return get<IGrid>(QStringLiteral("grdData")); }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // Schließen (0), Öffnen (1), Explorer (2).
    std::function<void(int index)> evFrmBuLogCommandButtonClicked;

  private:
    void onControl(const ControlEvent& e) override;
};
