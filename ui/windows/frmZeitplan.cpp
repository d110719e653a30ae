#include "ui/windows/frmZeitplan.h"

#include "common/ColumnLimits.h"

using contract::fire;
using contract::is;

namespace {

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmZeitplan");
        d_.caption = QStringLiteral("Eigenschaften Zeitplan");
        d_.keyPreview = true;  // F1 opens the help wherever the focus stands
        d_.width = 460;
        d_.height = 560;

        add("txtTextBox", frmZeitplan::Txt::Name, ControlKind::TextBox, "Name").maxLength =
            ColumnLimits::kZeitplanName;
        add("chkCheckBox", -1, ControlKind::CheckBox, "Aktiviert");
        add("frmFrame", frmZeitplan::Fra::Zeitplantyp, ControlKind::Frame, "Zeitplantyp");
        container_ = QStringLiteral("frmFrame(%1)").arg(frmZeitplan::Fra::Zeitplantyp);
        option(frmZeitplan::Opt::Einmal, "Einmal");
        add("ctlDatePicker", -1, ControlKind::DatePicker, "Am (Datum)");
        add("lblLabel", frmZeitplan::Lbl::Uhrzeit, ControlKind::Label, "Uhr (Uhrzeit)");
        add("ctlMaskEdBox", -1, ControlKind::TimeBox);
        option(frmZeitplan::Opt::Wiederholt, "Wiederholt");
        add("frmFrame", frmZeitplan::Fra::Intervall, ControlKind::Frame);
        container_ = QStringLiteral("frmFrame(%1)").arg(frmZeitplan::Fra::Intervall);
        add("lblLabel", frmZeitplan::Lbl::Intervall, ControlKind::Label);
        add("cmdCommandButton", frmZeitplan::Cmd::Aendern, ControlKind::Button, "Ändern...");
        container_.clear();
        add("fraNaechsteAusfuehrungen", -1, ControlKind::Frame, "Nächste Ausführungen");
        container_ = QStringLiteral("fraNaechsteAusfuehrungen");
        add("grdNaechsteAusfuehrungen", -1, ControlKind::Grid);
        container_.clear();
        add("cmdCommandButton", frmZeitplan::Cmd::Ok, ControlKind::Button, "OK");
        add("cmdCommandButton", frmZeitplan::Cmd::Abbrechen, ControlKind::Button, "Abbrechen");
        return d_;
    }

  private:
    ControlDecl& add(const char* name, int index, ControlKind kind, const char* caption = "") {
        ControlDecl c;
        c.name = QString::fromUtf8(name);
        c.index = index;
        c.kind = kind;
        c.caption = QString::fromUtf8(caption);
        c.container = container_;
        d_.controls << c;
        return d_.controls.last();
    }

    void option(int index, const char* caption) {
        add("optOption", index, ControlKind::OptionButton, caption).group =
            QStringLiteral("Zeitplantyp");
    }

    WindowDecl d_;
    QString container_;
};

}  // namespace

const WindowDecl& frmZeitplan::declaration() {
    static const WindowDecl decl = Declaration().build();
    return decl;
}

frmZeitplan::frmZeitplan(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    WindowEvents events;
    events.onKeyDown = [this](int keyCode, int shift) { onKeyDown(keyCode, shift); };
    // The close box is Abbrechen: the controller closes the window itself.
    events.onQueryUnload = [this](bool& cancel) {
        cancel = true;
        fire(evFrmZeitplanCommandButtonClicked, Cmd::Abbrechen);
    };
    listen(std::move(events));
}

void frmZeitplan::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click) {
        if (is(e, "cmdCommandButton")) {
            fire(evFrmZeitplanCommandButtonClicked, e.index);
        } else if (is(e, "optOption") && optOption(e.index).Value()) {
            fire(evFRMZeitplanOptOptionClicked, e.index);
        }
    } else if (e.type == EventType::KeyDown) {
        onKeyDown(e.keyCode, e.shift);
    }
    if ((e.type == EventType::Change || e.type == EventType::Click) && !is(e, "cmdCommandButton") &&
        !is(e, "grdNaechsteAusfuehrungen")) {
        fire(evNaechsteAusfuehrungen);
    }
}

void frmZeitplan::onKeyDown(int keyCode, int shift) {
    if (keyCode == KeyCode::F1 && shift == 0) {
        fire(evFRMZeitplanHilfe);
    }
}
