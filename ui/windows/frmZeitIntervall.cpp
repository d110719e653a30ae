#include "ui/windows/frmZeitIntervall.h"

using contract::fire;
using contract::is;

namespace {

constexpr int kAbbrechen = 1;

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmZeitIntervall");
        d_.caption = QStringLiteral("Zeitplan für wiederkehrende Aufträge bearbeiten");
        d_.keyPreview = true;  // F1 asks for help wherever the focus is
        d_.width = 560;
        d_.height = 520;

        add("fraFrame", 0, ControlKind::Frame, "Häufigkeit");
        within("fraFrame", 0);
        option("optHaeufigkeit", 0, "Täglich", "Haeufigkeit");
        option("optHaeufigkeit", 1, "Wöchentlich", "Haeufigkeit");
        option("optHaeufigkeit", 2, "Monatlich", "Haeufigkeit");

        add("fraFrame", 1, ControlKind::Frame, "Täglich", "", "");
        within("fraFrame", 1);
        add("cboComboBox", 0, ControlKind::ComboBox, "Alle");
        add("lblLabel", 0, ControlKind::Label, "Tag(e)");

        add("fraFrame", 5, ControlKind::Frame, "Wöchentlich", "", "");
        within("fraFrame", 5);
        add("cboComboBox", 8, ControlKind::ComboBox, "Alle");
        add("lblLabel", 3, ControlKind::Label, "Woche(n) am:");
        const char* tage[] = {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
        for (int i = 0; i < 7; ++i) {
            add("chkCheckBox", i, ControlKind::CheckBox, tage[i]);
        }

        add("fraFrame", 2, ControlKind::Frame, "Monatlich", "", "");
        within("fraFrame", 2);
        option("optMonatlich", 0, "", "Monatlich");
        add("cboComboBox", 1, ControlKind::ComboBox, "Tag");
        add("cboComboBox", 2, ControlKind::ComboBox, "alle");
        add("lblLabel", 1, ControlKind::Label, "Monat(e)");
        option("optMonatlich", 1, "", "Monatlich");
        add("cboComboBox", 3, ControlKind::ComboBox, "Am");
        add("cboComboBox", 4, ControlKind::ComboBox);
        add("cboComboBox", 5, ControlKind::ComboBox, "alle");
        add("lblLabel", 2, ControlKind::Label, "Monat(e)");

        add("fraFrame", 3, ControlKind::Frame, "Häufigkeit pro Tag", "", "");
        within("fraFrame", 3);
        option("optHaeufigkeit", 3, "Einmalig um:", "HaeufigkeitProTag");
        add("ctlMaskEdBox", 0, ControlKind::TimeBox);
        option("optHaeufigkeit", 4, "Jede:", "HaeufigkeitProTag");
        add("cboComboBox", 6, ControlKind::ComboBox, "Am");
        add("cboComboBox", 7, ControlKind::ComboBox);
        add("lblLabel", 4, ControlKind::Label, "Startet um");
        add("ctlMaskEdBox", 1, ControlKind::TimeBox);
        add("lblLabel", 5, ControlKind::Label, "Endet um");
        add("ctlMaskEdBox", 2, ControlKind::TimeBox);

        add("fraFrame", 4, ControlKind::Frame, "Dauer", "", "");
        within("fraFrame", 4);
        add("ctlDatePicker", 0, ControlKind::DatePicker, "Anfangsdatum");
        option("optEnddatum", 0, "Enddatum:", "Enddatum");
        add("ctlDatePicker", 1, ControlKind::DatePicker);
        option("optEnddatum", 1, "Kein Enddatum", "Enddatum");

        within("", -1);
        add("lblLabel", 6, ControlKind::Label);
        add("cmdCommandButton", 0, ControlKind::Button, "OK");
        add("cmdCommandButton", 1, ControlKind::Button, "Abbrechen");
        return d_;
    }

  private:
    ControlDecl& add(const char* name, int index, ControlKind kind, const char* caption = "",
                     const char* group = "", const char* container = nullptr) {
        ControlDecl c;
        c.name = QString::fromUtf8(name);
        c.index = index;
        c.kind = kind;
        c.caption = QString::fromUtf8(caption);
        c.group = QString::fromUtf8(group);
        c.container = container ? QString::fromUtf8(container) : container_;
        d_.controls << c;
        return d_.controls.last();
    }
    void option(const char* name, int index, const char* caption, const char* group) {
        add(name, index, ControlKind::OptionButton, caption, group);
    }
    // Controls added from now on stand in that frame ("" for the window).
    void within(const char* frame, int index) {
        container_ = QString::fromUtf8(frame);
        if (index >= 0) {
            container_ += QStringLiteral("(%1)").arg(index);
        }
    }

    WindowDecl d_;
    QString container_;
};

}  // namespace

const WindowDecl& frmZeitIntervall::declaration() {
    static const WindowDecl decl = Declaration().build();
    return decl;
}

frmZeitIntervall::frmZeitIntervall(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    WindowEvents events;
    events.onKeyDown = [this](int keyCode, int shift) { helpKey(keyCode, shift); };
    events.onQueryUnload = [this](bool&) {
        fire(evFrmZeitintervallCommandButtonClicked, kAbbrechen);
    };
    listen(std::move(events));
}

// The window sees keys first; where a control reports its key itself, F1 is help there too.
void frmZeitIntervall::helpKey(int keyCode, int shift) {
    if (keyCode == KeyCode::F1 && shift == 0) {
        fire(evFRMZeitplanHilfe);
    }
}

void frmZeitIntervall::onControl(const ControlEvent& e) {
    if (e.type == EventType::KeyDown) {
        helpKey(e.keyCode, e.shift);
        return;
    }
    if (e.type != EventType::Click) {
        return;
    }
    if (is(e, "cmdCommandButton")) {
        fire(evFrmZeitintervallCommandButtonClicked, e.index);
    } else if (is(e, "optHaeufigkeit")) {
        fire(evFrmZeitintervallOptionHaeufigkeitClicked, e.index);
    } else if (is(e, "optMonatlich")) {
        fire(evFrmZeitintervallOptionMonatlichClicked, e.index);
    } else if (is(e, "optEnddatum")) {
        fire(evFrmZeitintervallOptionEnddatumClicked, e.index);
    } else if (is(e, "cboComboBox")) {
        fire(evFrmZeitintervallComboboxClicked, e.index);
    }
}
