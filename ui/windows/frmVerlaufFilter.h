#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The filter of the run history: the length and unit of the period and the result type.
class frmVerlaufFilter : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmVerlaufFilter(std::unique_ptr<IWindow> window);

    // The indexes of the control arrays, by what each control is for.
    struct Cmd {
        static constexpr int Ok = 0;
        static constexpr int Abbrechen = 1;
    };
    struct Cbo {
        static constexpr int ZeitWert = 0;
        static constexpr int ZeitEinheit = 1;
        static constexpr int Typ = 2;
    };

    IComboBox& cboComboBox(int index) {
        return get<IComboBox>(QStringLiteral("cboComboBox"), index);
    }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // One of Cmd.
    std::function<void(int index)> evFrmFilterfCMDButtonClicked;

  private:
    void onControl(const ControlEvent& e) override;
};
