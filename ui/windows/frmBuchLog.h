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

    // The indexes of the buttons, by what each is for.
    struct Cmd {
        static constexpr int Schliessen = 0;
        static constexpr int Oeffnen = 1;
        static constexpr int Explorer = 2;
    };

    ILabel& lblLabel() { return get<ILabel>(QStringLiteral("lblLabel")); }
    ITextBox& txtTextBox() { return get<ITextBox>(QStringLiteral("txtTextBox")); }
    IGrid& grdData() { return get<IGrid>(QStringLiteral("grdData")); }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // One of Cmd.
    std::function<void(int index)> evFrmBuLogCommandButtonClicked;

  private:
    void onControl(const ControlEvent& e) override;
};
