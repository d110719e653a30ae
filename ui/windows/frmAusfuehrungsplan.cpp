#include "ui/windows/frmAusfuehrungsplan.h"

#include "ui/ControlDeclaration.h"

using contract::fire;
using contract::is;

namespace {

using declare::control;
using P = frmAusfuehrungsplan;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmAusfuehrungsplan");
    d.caption = QStringLiteral("Ausführungsplan");
    d.width = 860;
    d.height = 560;
    d.controls << control("cboComboBox", P::Cbo::Zeitraum, ControlKind::ComboBox, "Zeitraum")
               << control("cboComboBox", P::Cbo::Mandant, ControlKind::ComboBox, "Mandant")
               << control("cboComboBox", P::Cbo::Auftragsart, ControlKind::ComboBox, "Auftragsart")
               << control("cmdCommandButton", P::Cmd::Zurueck, ControlKind::Button, "< Zurück",
                          "Der vorige Zeitraum")
               << control("lblLabel", P::Lbl::Zeitraum, ControlKind::Label)
               << control("cmdCommandButton", P::Cmd::Vor, ControlKind::Button, "Vor >",
                          "Der nächste Zeitraum")
               << control("cmdCommandButton", P::Cmd::Heute, ControlKind::Button, "Heute",
                          "Der Zeitraum, der heute enthält")
               << control("grdPlan", -1, ControlKind::Grid)
               << control("lblLabel", P::Lbl::Summe, ControlKind::Label)
               << control("cmdCommandButton", P::Cmd::Schliessen, ControlKind::Button, "Schließen");
    return d;
}

}  // namespace

const WindowDecl& frmAusfuehrungsplan::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmAusfuehrungsplan::frmAusfuehrungsplan(std::unique_ptr<IWindow> w)
    : WindowContract(std::move(w)) {
    WindowEvents events;
    events.onQueryUnload = [this](bool& cancel) {
        cancel = true;
        fire(evCommandButtonClicked, Cmd::Schliessen);
    };
    listen(std::move(events));
}

void frmAusfuehrungsplan::onControl(const ControlEvent& e) {
    if (e.type != EventType::Click) {
        return;
    }
    if (is(e, "cmdCommandButton")) {
        fire(evCommandButtonClicked, e.index);
    } else if (is(e, "cboComboBox")) {
        fire(evComboboxClicked, e.index);
    }
}
