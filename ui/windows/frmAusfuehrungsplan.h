#pragma once

#include <functional>
#include <memory>

#include "ui/Grid.h"
#include "ui/WindowContract.h"

// "Ausführungsplan": the starts of the active schedules of active jobs over a day, a week or
// a month, filtered by client and job type, stepped back and forth by period.
class frmAusfuehrungsplan : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmAusfuehrungsplan(std::unique_ptr<IWindow> window);

    struct Cmd {
        static constexpr int Zurueck = 0;
        static constexpr int Vor = 1;
        static constexpr int Heute = 2;
        static constexpr int Schliessen = 3;
    };
    struct Cbo {
        static constexpr int Zeitraum = 0;
        static constexpr int Mandant = 1;
        static constexpr int Auftragsart = 2;
    };
    struct Lbl {
        static constexpr int Zeitraum = 0;  // the period shown
        static constexpr int Summe = 1;     // how many starts, what is left out
    };
    struct Spalte {
        static constexpr int Start = 0;
        static constexpr int Auftrag = 1;
        static constexpr int Zeitplan = 2;
        static constexpr int Mandant = 3;
        static constexpr int Hinweis = 4;
    };

    IComboBox& cboComboBox(int index) {
        return get<IComboBox>(QStringLiteral("cboComboBox"), index);
    }
    ILabel& lblLabel(int index) { return get<ILabel>(QStringLiteral("lblLabel"), index); }
    IGrid& grdPlan() { return get<IGrid>(QStringLiteral("grdPlan")); }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // One of Cmd; the close box counts as Schliessen.
    std::function<void(int index)> evCommandButtonClicked;
    // The user picked an item of one of Cbo.
    std::function<void(int index)> evComboboxClicked;

  private:
    void onControl(const ControlEvent& e) override;
};
