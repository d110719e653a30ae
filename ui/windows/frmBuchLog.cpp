#include "ui/windows/frmBuchLog.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmBuchLog");
    d.caption = QStringLiteral("Logfiles für importierte Buchungen");
    d.width = 700;
    d.height = 400;
    d.controls << control("txtTextBox", -1, ControlKind::TextBox, "Adresse")
               << control("grdData", -1, ControlKind::Grid)
               << control("lblLabel", -1, ControlKind::Label)
               << control("cmdCommandButton", frmBuchLog::Cmd::Oeffnen, ControlKind::Button,
                          "Öffnen", "Datei öffnen")
               << control("cmdCommandButton", frmBuchLog::Cmd::Explorer, ControlKind::Button,
                          "Explorer", "Exporer öffnen")
               << control("cmdCommandButton", frmBuchLog::Cmd::Schliessen, ControlKind::Button,
                          "Schließen");
    return d;
}

}  // namespace

const WindowDecl& frmBuchLog::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmBuchLog::frmBuchLog(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
    // The address shows where the files lie; it is not typed into.
    txtTextBox().setLocked(true);
}

void frmBuchLog::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click && is(e, "cmdCommandButton")) {
        fire(evFrmBuLogCommandButtonClicked, e.index);
    } else if (e.type == EventType::DblClick && is(e, "grdData") && e.row > 0 &&
               cmdCommandButton(Cmd::Oeffnen).Enabled()) {
        fire(evFrmBuLogCommandButtonClicked, Cmd::Oeffnen);
    }
}
