#include "ui/windows/frmVerlaufFilter.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmVerlaufFilter");
    d.caption = QStringLiteral("Filter auswählen");
    d.width = 340;
    d.height = 140;
    d.controls << control("cboComboBox", 0, ControlKind::ComboBox, "Zeitraum")
               << control("cboComboBox", 1, ControlKind::ComboBox, "Zeitraum")
               << control("cboComboBox", 2, ControlKind::ComboBox, "Typ")
               << control("cmdCommandButton", 0, ControlKind::Button, "OK")
               << control("cmdCommandButton", 1, ControlKind::Button, "Abbrechen");
    return d;
}

}  // namespace

const WindowDecl& frmVerlaufFilter::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmVerlaufFilter::frmVerlaufFilter(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmVerlaufFilter::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click && is(e, "cmdCommandButton")) {
        fire(evFrmFilterfCMDButtonClicked, e.index);
    }
}
