#include "ui/windows/frmLogDatenDetails.h"

using contract::fire;
using contract::is;

namespace {

const QString kBar = QStringLiteral("tbrMain");

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmLogDatenDetails");
    d.caption = QStringLiteral("Logdaten Details");
    d.width = 560;
    d.height = 520;

    ControlDecl bar;
    bar.name = kBar;
    bar.kind = ControlKind::ToolBar;
    d.controls << bar;

    const char* captions[frmLogDatenDetails::kFelder] = {
        "Herkunft", "Mitarbeiter", "Datum/Uhrzeit", "Kategorie", "Art", "Name", "Text", "Zusatz"};
    for (int i = 0; i < frmLogDatenDetails::kFelder; ++i) {
        ControlDecl field;
        field.name = QStringLiteral("txtDetails");
        field.index = i;
        field.kind = ControlKind::TextBox;
        field.caption = QString::fromUtf8(captions[i]);
        field.multiLine = i >= frmLogDatenDetails::Feld::Text;
        d.controls << field;
    }

    auto tool = [&](const char* name, const char* caption, const char* hint) {
        d.tools << ToolDecl{kBar,
                            frmLogDatenDetails::kBand,
                            QString::fromUtf8(name),
                            QString::fromUtf8(caption),
                            QString::fromUtf8(hint),
                            0};
    };
    tool("first", "Erster Eintrag", "Erster Eintrag");
    tool("previous", "Zurück", "Vorheriger Eintrag");
    tool("next", "Vor", "Nächster Eintrag");
    tool("last", "Letzter Eintrag", "Letzter Eintrag");
    d.tools << ToolDecl{kBar, frmLogDatenDetails::kBand, {}, {}, {}, 0};
    tool("AktVon", "", "Eintrag / Anzahl der Einträge");
    return d;
}

}  // namespace

const WindowDecl& frmLogDatenDetails::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmLogDatenDetails::frmLogDatenDetails(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    for (int i = 0; i < kFelder; ++i) {
        txtDetails(i).setLocked(true);
    }
    WindowEvents events;
    events.onQueryUnload = [this](bool&) { fire(evSchliessen); };
    events.onUnload = [this] { fire(evSchliessen); };
    listen(std::move(events));
}

void frmLogDatenDetails::onControl(const ControlEvent& e) {
    if (e.type == EventType::ToolClick && is(e, "tbrMain")) {
        fire(evNavigation, e.tool);
    }
}
