#include "ui/windows/frmBuchLogAbfrage.h"

#include "ui/ControlDeclaration.h"

using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmBuchLogAbfrage");
    d.caption = QStringLiteral("Logfiles für importierte Buchungen");
    d.width = 460;
    d.height = 170;
    ControlDecl text = control("ctlBuchunglog", -1, ControlKind::Label);
    text.boldMarks = true;
    d.controls << text
               << control("cmdProtBuch", frmBuchLogAbfrage::Prot::Status, ControlKind::Button,
                          "Status")
               << control("cmdProtBuch", frmBuchLogAbfrage::Prot::Buchungen, ControlKind::Button,
                          "Buchungen");
    return d;
}

}  // namespace

const WindowDecl& frmBuchLogAbfrage::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmBuchLogAbfrage::frmBuchLogAbfrage(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmBuchLogAbfrage::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click && is(e, "cmdProtBuch")) {
        buchProtokoll_ = e.index == Prot::Buchungen;
        window().Unload();
    }
}
