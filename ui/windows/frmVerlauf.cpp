#include "ui/windows/frmVerlauf.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmVerlauf");
    d.caption = QStringLiteral("Auftragsverlauf");
    d.width = 760;
    d.height = 420;
    d.controls << control("lblLabel", frmVerlauf::Lbl::Auftragsname, ControlKind::Label,
                          "Auftragsname: ")
               << control("grdData", -1, ControlKind::Grid)
               << control("lblLabel", frmVerlauf::Lbl::Ausfuehrungen, ControlKind::Label)
               << control("cmdCommandButton", frmVerlauf::Cmd::Filter, ControlKind::Button,
                          "Filter", "Filter setzen")
               << control("cmdCommandButton", frmVerlauf::Cmd::Loeschen, ControlKind::Button,
                          "Verlauf löschen", "Löscht der Verlauf")
               << control("cmdCommandButton", frmVerlauf::Cmd::Schliessen, ControlKind::Button,
                          "Schließen");
    return d;
}

}  // namespace

const WindowDecl& frmVerlauf::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmVerlauf::frmVerlauf(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmVerlauf::VerzeichnisOeffnen() {
    fire(evFrmVerlaufCMDButtonVerzeichnisOeffnenClicked);
}

void frmVerlauf::onControl(const ControlEvent& e) {
    if (is(e, "cmdCommandButton")) {
        if (e.type == EventType::Click) {
            fire(evFrmVerlaufCMDButtonClicked, e.index);
        }
        return;
    }
    if (!is(e, "grdData")) {
        return;
    }
    switch (e.type) {
        case EventType::Click:
            fire(evGrdDataClick);
            break;
        case EventType::DblClick:
            fire(evGrdDataDblClick);
            break;
        case EventType::LeaveCell:
            fire(evGrdDataLeaveCell);
            break;
        default:
            break;
    }
}
