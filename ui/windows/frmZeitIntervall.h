#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The recurrence of a schedule: how often, how often a day, from when to when. The three
// frames of the frequencies share one place; the controller shows the chosen one. The window
// raises its events only.
class frmZeitIntervall : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmZeitIntervall(std::unique_ptr<IWindow> window);

    IFrame& fraFrame(int index) { return get<IFrame>(QStringLiteral("fraFrame"), index); }
    IOptionButton& optHaeufigkeit(int index) {
        return get<IOptionButton>(QStringLiteral("optHaeufigkeit"), index);
    }
    IOptionButton& optMonatlich(int index) {
        return get<IOptionButton>(QStringLiteral("optMonatlich"), index);
    }
    IOptionButton& optEnddatum(int index) {
        return get<IOptionButton>(QStringLiteral("optEnddatum"), index);
    }
    IComboBox& cboComboBox(int index) {
        return get<IComboBox>(QStringLiteral("cboComboBox"), index);
    }
    ICheckBox& chkCheckBox(int index) {
        return get<ICheckBox>(QStringLiteral("chkCheckBox"), index);
    }
    ILabel& lblLabel(int index) { return get<ILabel>(QStringLiteral("lblLabel"), index); }
    ITimeBox& ctlMaskEdBox(int index) {
        return get<ITimeBox>(QStringLiteral("ctlMaskEdBox"), index);
    }
    IDatePicker& ctlDatePicker(int index) {
        return get<IDatePicker>(QStringLiteral("ctlDatePicker"), index);
    }
    IButton& cmdCommandButton(int index) {
        return get<IButton>(QStringLiteral("cmdCommandButton"), index);
    }

    // OK (0) or Abbrechen (1); the close box counts as Abbrechen.
    std::function<void(int index)> evFrmZeitintervallCommandButtonClicked;
    // An option of the group becomes chosen, by the user or by code.
    std::function<void(int index)> evFrmZeitintervallOptionHaeufigkeitClicked;
    std::function<void(int index)> evFrmZeitintervallOptionMonatlichClicked;
    std::function<void(int index)> evFrmZeitintervallOptionEnddatumClicked;
    // The user picked an item of a combo box.
    std::function<void(int index)> evFrmZeitintervallComboboxClicked;
    // F1 without a shift key.
    std::function<void()> evFRMZeitplanHilfe;

  private:
    void onControl(const ControlEvent& e) override;
    void helpKey(int keyCode, int shift);
};
