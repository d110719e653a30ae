#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The deletion of log data by period: for one job (lblAuftragName tells which) or, without a
// job, for one job type or all of them (cboAuftragsart, key 0 for all).
class frmLogDatenDel : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmLogDatenDel(std::unique_ptr<IWindow> window);

    // The indexes of the buttons and the date pickers.
    struct Aktion {
        static constexpr int Ok = 0;
        static constexpr int Abbrechen = 1;
    };
    struct Datum {
        static constexpr int Von = 0;
        static constexpr int Bis = 1;
    };

    ILabel& lblAuftragName() { return get<ILabel>(QStringLiteral("lblAuftragName")); }
    IComboBox& cboAuftragsart() { return get<IComboBox>(QStringLiteral("cboAuftragsart")); }
    // 0 "von Datum", 1 "bis Datum".
    IDatePicker& ctlDatePicker(int index) {
        return get<IDatePicker>(QStringLiteral("ctlDatePicker"), index);
    }
    // One of Aktion.
    IButton& cmdAktion(int index) { return get<IButton>(QStringLiteral("cmdAktion"), index); }

    std::function<void(int Index)> evAktion;

  private:
    void onControl(const ControlEvent& e) override;
};
