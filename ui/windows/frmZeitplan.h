#pragma once

#include <functional>

#include "ui/Grid.h"
#include "ui/WindowContract.h"

// The properties of one schedule: its name, whether it is active, and either a single run at
// a date and time or a repeating plan whose description stands in lblLabel(Lbl::Intervall). The
// window raises its events; the controller fills, checks and stores it.
class frmZeitplan : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmZeitplan(std::unique_ptr<IWindow> window);

    // The indexes of the control arrays, by what each control is for.
    struct Cmd {
        static constexpr int Ok = 0;
        static constexpr int Abbrechen = 1;
        static constexpr int Aendern = 2;  // "Ändern...": the repeating plan
    };
    struct Opt {
        static constexpr int Einmal = 2;
        static constexpr int Wiederholt = 3;
    };
    struct Txt {
        static constexpr int Name = 0;
    };
    struct Lbl {
        static constexpr int Intervall = 0;  // the description of the repeating plan
        static constexpr int Uhrzeit = 1;
    };
    struct Fra {
        static constexpr int Zeitplantyp = 0;
        static constexpr int Intervall = 1;
    };

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
    // "Nächste Ausführungen": the next starts of the schedule as it stands in the window.
    IGrid& grdNaechsteAusfuehrungen() {
        return get<IGrid>(QStringLiteral("grdNaechsteAusfuehrungen"));
    }

    // One of Cmd; the close box counts as Abbrechen.
    std::function<void(int index)> evFrmZeitplanCommandButtonClicked;
    // An option became chosen, by the user or by code.
    std::function<void(int index)> evFRMZeitplanOptOptionClicked;
    // F1 without a shift key, wherever the focus stands.
    std::function<void()> evFRMZeitplanHilfe;
    // A field changed, by the user or by code; raised after the field's own event.
    std::function<void()> evNaechsteAusfuehrungen;

  private:
    void onControl(const ControlEvent& e) override;
    void onKeyDown(int keyCode, int shift);
};
