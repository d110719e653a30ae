#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The properties of one schedule: its name, whether it is active, and either a single run at
// a date and time or a repeating plan whose description stands in lblLabel(0). The window
// raises its events; the controller fills, checks and stores it.
class frmZeitplan : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmZeitplan(std::unique_ptr<IWindow> window);

    ITextBox& txtTextBox(int index) { return get<ITextBox>(QStringLiteral("txtTextBox"), index); }
    ICheckBox& chkCheckBox() { return get<ICheckBox>(QStringLiteral("chkCheckBox")); }
    IFrame& frmFrame(int index) { return get<IFrame>(QStringLiteral("frmFrame"), index); }
    IOptionButton& optOption(int index) {
        return get<IOptionButton>(QStringLiteral("optOption"), index);
    }
    IDatePicker& ctlDatePicker() { return get<IDatePicker>(QStringLiteral("ctlDatePicker")); }
    ITimeBox& ctlMaskEdBox() { return get<ITimeBox>(QStringLiteral("ctlMaskEdBox")); }
    ILabel& lblLabel(int index) { return get<ILabel>(QStringLiteral("lblLabel"), index); }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // OK (0), Abbrechen (1) and "Ändern..." (2); the close box counts as Abbrechen.
    std::function<void(int index)> evFrmZeitplanCommandButtonClicked;
    // An option became chosen, by the user or by code.
    std::function<void(int index)> evFRMZeitplanOptOptionClicked;
    // F1 without a shift key, wherever the focus stands.
    std::function<void()> evFRMZeitplanHilfe;

  private:
    void onControl(const ControlEvent& e) override;
    void onKeyDown(int keyCode, int shift);
};
