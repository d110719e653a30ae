#include "ui/windows/frmLogDatenDel.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmLogDatenDel");
    d.caption = QStringLiteral("Logdaten löschen");
    d.width = 440;
    d.height = 150;
    d.controls << control("lblAuftragName", -1, ControlKind::Label,
                          "Logdaten für '<Auftrag>' löschen!")
               << control("cboAuftragsart", -1, ControlKind::ComboBox, "Auftragsart")
               << control("ctlDatePicker", frmLogDatenDel::Datum::Von, ControlKind::DatePicker,
                          "von Datum")
               << control("ctlDatePicker", frmLogDatenDel::Datum::Bis, ControlKind::DatePicker,
                          "bis Datum")
               << control("cmdAktion", frmLogDatenDel::Aktion::Ok, ControlKind::Button, "OK")
               << control("cmdAktion", frmLogDatenDel::Aktion::Abbrechen, ControlKind::Button,
                          "Abbrechen");
    return d;
}

}  // namespace

const WindowDecl& frmLogDatenDel::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmLogDatenDel::frmLogDatenDel(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmLogDatenDel::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click && is(e, "cmdAktion")) {
        fire(evAktion, e.index);
    }
}
