#include "ui/windows/frmZeitIntervall.h"

using contract::fire;
using contract::is;

namespace {

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmZeitIntervall");
        d_.caption = QStringLiteral("Zeitplan für wiederkehrende Aufträge bearbeiten");
        d_.keyPreview = true;  // F1 asks for help wherever the focus is
        d_.width = 560;
        d_.height = 720;

        add("fraFrame", frmZeitIntervall::Fra::Haeufigkeit, ControlKind::Frame, "Häufigkeit");
        within("fraFrame", frmZeitIntervall::Fra::Haeufigkeit);
        option("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Taeglich, "Täglich", "Haeufigkeit");
        option("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Woechentlich, "Wöchentlich",
               "Haeufigkeit");
        option("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Monatlich, "Monatlich",
               "Haeufigkeit");

        add("fraFrame", frmZeitIntervall::Fra::Taeglich, ControlKind::Frame, "Täglich", "", "");
        within("fraFrame", frmZeitIntervall::Fra::Taeglich);
        add("cboComboBox", frmZeitIntervall::Cbo::TageAlle, ControlKind::ComboBox, "Alle");
        add("lblLabel", frmZeitIntervall::Lbl::Tage, ControlKind::Label, "Tag(e)");

        add("fraFrame", frmZeitIntervall::Fra::Woechentlich, ControlKind::Frame, "Wöchentlich", "",
            "");
        within("fraFrame", frmZeitIntervall::Fra::Woechentlich);
        add("cboComboBox", frmZeitIntervall::Cbo::WochenAlle, ControlKind::ComboBox, "Alle");
        add("lblLabel", frmZeitIntervall::Lbl::WochenAm, ControlKind::Label, "Woche(n) am:");
        const char* tage[] = {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
        for (int i = frmZeitIntervall::Tag::Montag; i <= frmZeitIntervall::Tag::Sonntag; ++i) {
            add("chkCheckBox", i, ControlKind::CheckBox, tage[i]);
        }

        add("fraFrame", frmZeitIntervall::Fra::Monatlich, ControlKind::Frame, "Monatlich", "", "");
        within("fraFrame", frmZeitIntervall::Fra::Monatlich);
        option("optMonatlich", frmZeitIntervall::Monatlich::Tag, "", "Monatlich");
        add("cboComboBox", frmZeitIntervall::Cbo::MonatTag, ControlKind::ComboBox, "Tag");
        add("cboComboBox", frmZeitIntervall::Cbo::MonateAlle, ControlKind::ComboBox, "alle");
        add("lblLabel", frmZeitIntervall::Lbl::MonateTag, ControlKind::Label, "Monat(e)");
        option("optMonatlich", frmZeitIntervall::Monatlich::Am, "", "Monatlich");
        add("cboComboBox", frmZeitIntervall::Cbo::AmErster, ControlKind::ComboBox, "Am");
        add("cboComboBox", frmZeitIntervall::Cbo::AmWochentag, ControlKind::ComboBox);
        add("cboComboBox", frmZeitIntervall::Cbo::AmMonateAlle, ControlKind::ComboBox, "alle");
        add("lblLabel", frmZeitIntervall::Lbl::MonateAm, ControlKind::Label, "Monat(e)");

        add("fraFrame", frmZeitIntervall::Fra::ProTag, ControlKind::Frame, "Häufigkeit pro Tag", "",
            "");
        within("fraFrame", frmZeitIntervall::Fra::ProTag);
        option("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::EinmaligUm,
               "Einmalig um:", "HaeufigkeitProTag");
        add("ctlMaskEdBox", frmZeitIntervall::Zeit::EinmaligUm, ControlKind::TimeBox);
        option("optHaeufigkeit", frmZeitIntervall::Haeufigkeit::Jede, "Jede:", "HaeufigkeitProTag");
        add("cboComboBox", frmZeitIntervall::Cbo::JedeAnzahl, ControlKind::ComboBox, "Am");
        add("cboComboBox", frmZeitIntervall::Cbo::JedeEinheit, ControlKind::ComboBox);
        add("lblLabel", frmZeitIntervall::Lbl::StartetUm, ControlKind::Label, "Startet um");
        add("ctlMaskEdBox", frmZeitIntervall::Zeit::StartetUm, ControlKind::TimeBox);
        add("lblLabel", frmZeitIntervall::Lbl::EndetUm, ControlKind::Label, "Endet um");
        add("ctlMaskEdBox", frmZeitIntervall::Zeit::EndetUm, ControlKind::TimeBox);

        add("fraFrame", frmZeitIntervall::Fra::Dauer, ControlKind::Frame, "Dauer", "", "");
        within("fraFrame", frmZeitIntervall::Fra::Dauer);
        add("ctlDatePicker", frmZeitIntervall::Datum::Anfang, ControlKind::DatePicker,
            "Anfangsdatum");
        option("optEnddatum", frmZeitIntervall::Enddatum::Mit, "Enddatum:", "Enddatum");
        add("ctlDatePicker", frmZeitIntervall::Datum::Ende, ControlKind::DatePicker);
        option("optEnddatum", frmZeitIntervall::Enddatum::Ohne, "Kein Enddatum", "Enddatum");

        within("", -1);
        add("lblLabel", frmZeitIntervall::Lbl::Auftragsname, ControlKind::Label);
        add("fraFrame", frmZeitIntervall::Fra::NaechsteAusfuehrungen, ControlKind::Frame,
            "Nächste Ausführungen", "", "");
        within("fraFrame", frmZeitIntervall::Fra::NaechsteAusfuehrungen);
        add("grdNaechsteAusfuehrungen", -1, ControlKind::Grid);
        within("", -1);
        add("cmdCommandButton", frmZeitIntervall::Cmd::Ok, ControlKind::Button, "OK");
        add("cmdCommandButton", frmZeitIntervall::Cmd::Abbrechen, ControlKind::Button, "Abbrechen");
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
        fire(evFrmZeitintervallCommandButtonClicked, Cmd::Abbrechen);
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
    if (e.type == EventType::Change) {
        fire(evNaechsteAusfuehrungen);
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
    if (!is(e, "cmdCommandButton") && !is(e, "grdNaechsteAusfuehrungen")) {
        fire(evNaechsteAusfuehrungen);
    }
}
