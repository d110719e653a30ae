#include "ui/windows/frmLogDaten.h"

using contract::fire;
using contract::is;

namespace {

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmLogDaten");
    d.caption = QStringLiteral("Logdaten");
    d.width = 960;
    d.height = 560;
    ControlDecl browser;
    browser.name = QStringLiteral("ctlLogDaten");
    browser.kind = ControlKind::Browser;
    d.controls << browser;
    return d;
}

}  // namespace

const WindowDecl& frmLogDaten::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmLogDaten::frmLogDaten(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    WindowEvents events;
    events.onQueryUnload = [this](bool&) { fire(evSchliessen); };
    events.onUnload = [this] { fire(evSchliessen); };
    listen(std::move(events));
}

void frmLogDaten::onControl(const ControlEvent& e) {
    if (!is(e, "ctlLogDaten")) {
        return;
    }
    if (e.type == EventType::Open) {
        fire(evShowDetail);
    } else if (e.type == EventType::ToolClick) {
        if (e.tool == kToolDetails) {
            fire(evShowDetail);
        } else {
            // The browser's own tools (printing, searching, ...) are its own business.
            ctlLogDaten().ToolAktion(e.tool);
        }
    }
}
