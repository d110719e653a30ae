#pragma once

#include <functional>

#include "ui/Grid.h"
#include "ui/WindowContract.h"

// The recurrence of a schedule: how often, how often a day, from when to when. The three
// frames of the frequencies share one place; the controller shows the chosen one. The window
// raises its events only.
class frmZeitIntervall : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmZeitIntervall(std::unique_ptr<IWindow> window);

    // The indexes of the control arrays, by what each control is for.
    struct Cmd {
        static constexpr int Ok = 0;
        static constexpr int Abbrechen = 1;
    };
    struct Fra {
        static constexpr int Haeufigkeit = 0;
        static constexpr int Taeglich = 1;
        static constexpr int Monatlich = 2;
        static constexpr int ProTag = 3;
        static constexpr int Dauer = 4;
        static constexpr int Woechentlich = 5;
        static constexpr int NaechsteAusfuehrungen = 6;  // the list of the next starts
    };
    struct Haeufigkeit {
        static constexpr int Taeglich = 0;
        static constexpr int Woechentlich = 1;
        static constexpr int Monatlich = 2;
        static constexpr int EinmaligUm = 3;
        static constexpr int Jede = 4;
    };
    struct Monatlich {
        static constexpr int Tag = 0;
        static constexpr int Am = 1;
    };
    struct Enddatum {
        static constexpr int Mit = 0;
        static constexpr int Ohne = 1;
    };
    // The combo boxes: "Alle … Tag(e)", the day and "alle … Monat(e)" of a monthly plan, its
    // "Am" (first … last), weekday and months, the count and unit of "Jede:", "Alle … Woche(n)".
    struct Cbo {
        static constexpr int TageAlle = 0;
        static constexpr int MonatTag = 1;
        static constexpr int MonateAlle = 2;
        static constexpr int AmErster = 3;
        static constexpr int AmWochentag = 4;
        static constexpr int AmMonateAlle = 5;
        static constexpr int JedeAnzahl = 6;
        static constexpr int JedeEinheit = 7;
        static constexpr int WochenAlle = 8;
    };
    struct Lbl {
        static constexpr int Tage = 0;
        static constexpr int MonateTag = 1;
        static constexpr int MonateAm = 2;
        static constexpr int WochenAm = 3;
        static constexpr int StartetUm = 4;
        static constexpr int EndetUm = 5;
        static constexpr int Auftragsname = 6;
    };
    // The time boxes: "Einmalig um:", "Startet um" and "Endet um".
    struct Zeit {
        static constexpr int EinmaligUm = 0;
        static constexpr int StartetUm = 1;
        static constexpr int EndetUm = 2;
    };
    struct Datum {
        static constexpr int Anfang = 0;
        static constexpr int Ende = 1;
    };
    // The check boxes of the weekdays, from Monday to Sunday.
    struct Tag {
        static constexpr int Montag = 0;
        static constexpr int Sonntag = 6;
    };

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
    // "Nächste Ausführungen": the next starts of the recurrence as it stands in the window.
    IGrid& grdNaechsteAusfuehrungen() {
        return get<IGrid>(QStringLiteral("grdNaechsteAusfuehrungen"));
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
    // A field changed, by the user or by code; raised after the field's own event.
    std::function<void()> evNaechsteAusfuehrungen;

  private:
    void onControl(const ControlEvent& e) override;
    void helpKey(int keyCode, int shift);
};
