#include "ui/windows/frmZeitplan.h"

using contract::fire;
using contract::is;

namespace {

constexpr int kAbbrechen = 1;

class Declaration {
  public:
    WindowDecl build() {
        d_.name = QStringLiteral("frmZeitplan");
        d_.caption = QStringLiteral("Eigenschaften Zeitplan");
        d_.keyPreview = true;  // F1 opens the help wherever the focus stands
        d_.width = 460;
        d_.height = 320;

        add("txtTextBox", 0, ControlKind::TextBox, "Name");
        add("chkCheckBox", -1, ControlKind::CheckBox, "Aktiviert");
        add("frmFrame", 0, ControlKind::Frame, "Zeitplantyp");
        container_ = QStringLiteral("frmFrame(0)");
        option(2, "Einmal");
        add("ctlDatePicker", -1, ControlKind::DatePicker, "Am (Datum)");
        add("lblLabel", 1, ControlKind::Label, "Uhr (Uhrzeit)");
        add("ctlMaskEdBox", -1, ControlKind::TimeBox);
        option(3, "Wiederholt");
        add("frmFrame", 1, ControlKind::Frame);
        container_ = QStringLiteral("frmFrame(1)");
        add("lblLabel", 0, ControlKind::Label);
        add("cmdCommandButton", 2, ControlKind::Button, "Ändern...");
        container_.clear();
        add("cmdCommandButton", 0, ControlKind::Button, "OK");
        add("cmdCommandButton", 1, ControlKind::Button, "Abbrechen");
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
        fire(evFrmZeitplanCommandButtonClicked, kAbbrechen);
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
}

void frmZeitplan::onKeyDown(int keyCode, int shift) {
    if (keyCode == KeyCode::F1 && shift == 0) {
        fire(evFRMZeitplanHilfe);
    }
}
