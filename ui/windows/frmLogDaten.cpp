#include "ui/windows/frmLogDaten.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;

constexpr int kTasteF = 70;
constexpr int kStrg = 2;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmLogDaten");
    d.caption = QStringLiteral("Logdaten");
    d.width = 960;
    d.height = 560;
    ControlDecl browser;
    browser.name = QStringLiteral("ctlLogDaten");
    browser.kind = ControlKind::Browser;
    d.controls << browser
               << control("txtSuchen", -1, ControlKind::TextBox, "Suchen",
                          "Einträge mit allen Wörtern zeigen: Eingabetaste sucht, Esc beendet, "
                          "Strg+F springt hierher")
               << control("txtSuchenVon", -1, ControlKind::TextBox, "von", "TT.MM.JJJJ")
               << control("txtSuchenBis", -1, ControlKind::TextBox, "bis", "TT.MM.JJJJ")
               << control("lblSuchTreffer", -1, ControlKind::Label);
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

void frmLogDaten::onKeyDown(int keyCode, int shift, bool searchBox) {
    if (keyCode == kTasteF && shift == kStrg) {
        txtSuchen().SetFocus();
    } else if (keyCode == KeyCode::Escape && shift == 0) {
        fire(evSucheBeenden);
    } else if (keyCode == KeyCode::Return && shift == 0 && searchBox) {
        fire(evSuchen);
    }
}

void frmLogDaten::onControl(const ControlEvent& e) {
    // Ctrl+F and Escape in the browser or the search's boxes, Enter in the boxes.
    if (e.type == EventType::KeyDown) {
        const bool searchBox = is(e, "txtSuchen") || is(e, "txtSuchenVon") || is(e, "txtSuchenBis");
        if (searchBox || is(e, "ctlLogDaten")) {
            onKeyDown(e.keyCode, e.shift, searchBox);
        }
    }
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
