#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The filter of the run history: the length and unit of the period and the result type.
class frmVerlaufFilter : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmVerlaufFilter(std::unique_ptr<IWindow> window);

    IComboBox& cboComboBox(int index) {
        return get<IComboBox>(QStringLiteral("cboComboBox"), index);
    }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // OK (0) and Abbrechen (1).
    std::function<void(int index)> evFrmFilterfCMDButtonClicked;

  private:
    void onControl(const ControlEvent& e) override;
};
