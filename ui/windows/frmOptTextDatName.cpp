#include "ui/windows/frmOptTextDatName.h"

using contract::is;

namespace {

ControlDecl control(const char* name, ControlKind kind, const char* caption) {
    ControlDecl c;
    c.name = QString::fromUtf8(name);
    c.kind = kind;
    c.caption = QString::fromUtf8(caption);
    return c;
}

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmOptTextDatName");
    d.caption = QStringLiteral("Datei beginnt mit...");
    d.width = 400;
    d.height = 110;
    d.controls << control("ctlOptDateiNameBeginntMit", ControlKind::TextBox,
                          "Dateiname beginnt mit")
               << control("cmdOk", ControlKind::Button, "OK")
               << control("cmdAbbrechen", ControlKind::Button, "Abbrechen");
    return d;
}

}  // namespace

const WindowDecl& frmOptTextDatName::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmOptTextDatName::frmOptTextDatName(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    listen();
}

void frmOptTextDatName::onControl(const ControlEvent& e) {
    if (e.type != EventType::Click) {
        return;
    }
    if (is(e, "cmdOk")) {
        const std::weak_ptr<int> alive = life_;
        if (auto handler = evTextDateienNamenUebernehmen) {
            handler(row_);
        }
        if (!alive.expired()) {
            close();
        }
    } else if (is(e, "cmdAbbrechen")) {
        close();
    }
}

void frmOptTextDatName::close() {
    window().Unload();
}
