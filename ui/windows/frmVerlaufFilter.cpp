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
    d.controls << control("cboComboBox", frmVerlaufFilter::Cbo::ZeitWert, ControlKind::ComboBox,
                          "Zeitraum")
               << control("cboComboBox", frmVerlaufFilter::Cbo::ZeitEinheit, ControlKind::ComboBox,
                          "Zeitraum")
               << control("cboComboBox", frmVerlaufFilter::Cbo::Typ, ControlKind::ComboBox, "Typ")
               << control("cmdCommandButton", frmVerlaufFilter::Cmd::Ok, ControlKind::Button, "OK")
               << control("cmdCommandButton", frmVerlaufFilter::Cmd::Abbrechen, ControlKind::Button,
                          "Abbrechen");
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
