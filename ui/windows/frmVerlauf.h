#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The run history of one job: its name, the list of runs with their link cells, the counter
// line and the buttons that close, filter and delete. The grid's events go to the controller
// as they come.
class frmVerlauf : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmVerlauf(std::unique_ptr<IWindow> window);

    // The indexes of the control arrays, by what each control is for.
    struct Cmd {
        static constexpr int Schliessen = 0;
        static constexpr int Filter = 1;
        static constexpr int Loeschen = 2;
    };
    struct Lbl {
        static constexpr int Auftragsname = 0;
        static constexpr int Ausfuehrungen = 1;  // the count of the runs and the filter
    };

    ILabel& lblLabel(int index) { return get<ILabel>(QStringLiteral("lblLabel"), index); }
    IGrid& grdData() { return get<IGrid>(QStringLiteral("grdData")); }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // One of Cmd.
    std::function<void(int index)> evFrmVerlaufCMDButtonClicked;
    // Declared for the directory button no control raises; VerzeichnisOeffnen raises it.
    std::function<void()> evFrmVerlaufCMDButtonVerzeichnisOeffnenClicked;
    void VerzeichnisOeffnen();

    // The grid: a click and a double click on the current cell, and the notice that the
    // current cell is about to change.
    std::function<void()> evGrdDataClick;
    std::function<void()> evGrdDataDblClick;
    std::function<void()> evGrdDataLeaveCell;

  private:
    void onControl(const ControlEvent& e) override;
};
