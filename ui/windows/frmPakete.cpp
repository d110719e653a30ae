#include "ui/windows/frmPakete.h"

namespace {

WindowDecl makeDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmPakete");
    d.caption = QStringLiteral("Aufträge");
    d.width = 900;
    d.height = 560;
    ControlDecl browser;
    browser.name = QStringLiteral("ctlPakete");
    browser.kind = ControlKind::Browser;
    d.controls << browser;
    ControlDecl bar;
    bar.name = QStringLiteral("barMenu");
    bar.kind = ControlKind::ToolBar;
    bar.visible = false;
    d.controls << bar;

    auto tool = [&](const char* band, const char* name) {
        const QString n = QString::fromUtf8(name);
        d.tools << ToolDecl{QStringLiteral("barMenu"), QString::fromUtf8(band), n, n, n, 0};
    };
    auto separator = [&](const char* band) {
        d.tools << ToolDecl{QStringLiteral("barMenu"), QString::fromUtf8(band), {}, {}, {}, 0};
    };
    tool("Bearbeiten", "Neu");
    tool("Bearbeiten", "Bearbeiten");
    tool("Bearbeiten", "Löschen");
    separator("Bearbeiten");
    tool("Bearbeiten", "Kopieren");
    tool("Bearbeiten", "Einfügen");
    separator("Bearbeiten");
    tool("Bearbeiten", "Deaktivieren/Aktivieren");
    tool("Bearbeiten", "Auftragsverlauf");
    tool("Bearbeiten", "Auftrag ausführen");
    separator("Bearbeiten");
    tool("Bearbeiten", "Logdaten Dienst löschen");
    tool("Bearbeiten", "Logdaten Auftrag löschen");
    tool("Ansicht", "Auftragsverlauf");
    separator("Ansicht");
    tool("Ansicht", "Logdaten Dienst");
    tool("Ansicht", "Logdaten Aufträge");
    return d;
}

}  // namespace

const WindowDecl& frmPakete::declaration() {
    static const WindowDecl decl = makeDeclaration();
    return decl;
}

frmPakete::frmPakete(std::unique_ptr<IWindow> w) : WindowContract(std::move(w)) {
    WindowEvents events;
    events.onUnload = [this] {
        if (evFrmPaketeCommandButtonClicked) {
            evFrmPaketeCommandButtonClicked();
        }
    };
    events.onControl = [this](const ControlEvent& e) {
        if (e.control != QLatin1String("ctlPakete")) {
            return;
        }
        switch (e.type) {
            case EventType::ToolClick:
                if (ctlPakete_ToolClick) {
                    ctlPakete_ToolClick(e.tool);
                }
                break;
            case EventType::SelectionChanged:
                if (ctlPakete_SelectionChanged) {
                    ctlPakete_SelectionChanged();
                }
                break;
            case EventType::Open:
                if (ctlPakete_Open) {
                    ctlPakete_Open();
                }
                break;
            case EventType::KeyDown:
                if (ctlPakete_KeyDown) {
                    ctlPakete_KeyDown(e.keyCode, e.shift);
                }
                break;
            default:
                break;
        }
    };
    window().setEvents(std::move(events));
}
