#include "ui/windows/frmOptTextDateien.h"

#include "ui/ControlDeclaration.h"

using contract::is;

namespace {

using declare::control;

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmOptTextDateien");
    d.caption = QStringLiteral("Textdateien auswählen");
    d.width = 560;
    d.height = 320;
    d.controls << control("grdFileNames", -1, ControlKind::Grid)
               << control("ctlOptTextDatei", frmOptTextDateien::Auswahl::Pfad, ControlKind::Button,
                          "", "Auswahl Datenpfad...")
               << control("ctlOptTextDatei", frmOptTextDateien::Auswahl::NamensAnfang,
                          ControlKind::Button, "...", "Dateinamen beginnt mit")
               << control("cmdOk", -1, ControlKind::Button, "OK")
               << control("cmdAbbrechen", -1, ControlKind::Button, "Abbrechen")
               << control("ctlCommonDialog", -1, ControlKind::FileDialog);
    return d;
}

}  // namespace

const WindowDecl& frmOptTextDateien::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmOptTextDateien::frmOptTextDateien(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmOptTextDateien::onControl(const ControlEvent& e) {
    if (e.type == EventType::Click && is(e, "ctlOptTextDatei")) {
        choose(e.index);
    } else if (e.type == EventType::DblClick && is(e, "grdFileNames")) {
        choose(Auswahl::Pfad);
    } else if (e.type == EventType::Click && is(e, "cmdOk")) {
        const std::weak_ptr<int> alive = life_;
        if (auto handler = evTextDateienUebernehmen) {
            handler();
        }
        if (!alive.expired()) {
            close();
        }
    } else if (e.type == EventType::Click && is(e, "cmdAbbrechen")) {
        close();
    }
}

// Only a data row has a file to choose; the heading row has none.
void frmOptTextDateien::choose(int index) {
    const int row = grdFileNames().Row();
    if (row > 0 && evTextDateiAuswaehlen) {
        auto handler = evTextDateiAuswaehlen;
        handler(row, index);
    }
}

void frmOptTextDateien::close() {
    window().Unload();
}
