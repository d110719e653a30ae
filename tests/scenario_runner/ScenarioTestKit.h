#pragma once

// Small stand-ins of the system's windows for the runner's tests: a modal dialog (OK closes,
// "ask" puts a question) and a form with a control of every kind a user acts on, whose label
// writes down every event. Extra commands show them; play() runs a scenario's text with them.

#include <gtest/gtest.h>

#include "common/ErrorExit.h"
#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioPlay.h"
#include "scenario/ScenarioWorld.h"

namespace scenario_test {

inline ControlDecl decl(const char* name, ControlKind kind, int index = -1) {
    ControlDecl c;
    c.name = QString::fromUtf8(name);
    c.kind = kind;
    c.index = index;
    return c;
}

inline WindowDecl dialogDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmTest");
    d.caption = QStringLiteral("Test");
    d.controls << decl("cmdOk", ControlKind::Button) << decl("cmdAsk", ControlKind::Button)
               << decl("txtName", ControlKind::TextBox);
    ControlDecl off = decl("cmdOff", ControlKind::Button);
    off.enabled = false;
    d.controls << off;
    return d;
}

// A modal dialog as the system shows one.
inline void showDialog(ScenarioPlay& play) {
    std::unique_ptr<IWindow> w = play.world().windows().create(dialogDeclaration());
    IWindow* window = w.get();
    WindowEvents events;
    events.onControl = [window](const ControlEvent& e) {
        if (e.type != EventType::Click) {
            return;
        }
        if (e.control == QLatin1String("cmdOk")) {
            window->Unload();
        } else if (e.control == QLatin1String("cmdAsk")) {
            const long answer =
                services().ui->MsgBox(QStringLiteral("Wirklich?"), 36, QStringLiteral("Test"));
            window->setCaption(QString::number(answer));
        }
    };
    window->setEvents(std::move(events));
    window->Show(true);
}

inline WindowDecl formDeclaration() {
    WindowDecl d;
    d.name = QStringLiteral("frmForm");
    d.caption = QStringLiteral("Formular");
    d.keyPreview = true;
    ControlDecl option0 = decl("optArt", ControlKind::OptionButton, 0);
    ControlDecl option1 = decl("optArt", ControlKind::OptionButton, 1);
    option0.group = option1.group = QStringLiteral("art");
    ControlDecl tabs = decl("tabControl", ControlKind::TabControl);
    tabs.tabCaptions = QStringList{QStringLiteral("Allgemein"), QStringLiteral("Zeitpläne")};
    ControlDecl onPage1 = decl("cmdNeu", ControlKind::Button);
    onPage1.tabPage = 1;
    ControlDecl grid = decl("grdData", ControlKind::Grid);
    grid.editable = true;
    ControlDecl label = decl("lblLog", ControlKind::Label);
    d.controls << decl("txtTextBox", ControlKind::TextBox, 0)
               << decl("chkAktiv", ControlKind::CheckBox) << option0 << option1
               << decl("cboArt", ControlKind::ComboBox) << decl("dtpBis", ControlKind::DatePicker)
               << decl("txtZeit", ControlKind::TimeBox)
               << decl("ctlMandant", ControlKind::Selection) << tabs << onPage1 << grid << label
               << decl("tbrMain", ControlKind::ToolBar);
    d.tools << ToolDecl{QStringLiteral("tbrMain"),        QStringLiteral("barMain"),
                        QStringLiteral("save"),           QStringLiteral("Speichern"),
                        QStringLiteral("Speichern (F2)"), 0};
    d.tools << ToolDecl{QStringLiteral("tbrMain"),  QStringLiteral("barMain"),
                        QStringLiteral("next"),     QStringLiteral("Weiter"),
                        QStringLiteral("Nächster"), 0};
    return d;
}

inline QString eventName(EventType t) {
    switch (t) {
        case EventType::Click:
            return QStringLiteral("Click");
        case EventType::DblClick:
            return QStringLiteral("DblClick");
        case EventType::Change:
            return QStringLiteral("Change");
        case EventType::KeyDown:
            return QStringLiteral("KeyDown");
        case EventType::AfterEdit:
            return QStringLiteral("AfterEdit");
        case EventType::ToolClick:
            return QStringLiteral("ToolClick");
        case EventType::TabClick:
            return QStringLiteral("TabClick");
        default:
            return {};
    }
}

// The form, shown without waiting; it lives until the next scenario shows one.
inline std::unique_ptr<IWindow>& form() {
    static std::unique_ptr<IWindow> w;
    return w;
}

inline void showForm(ScenarioPlay& play) {
    form() = play.world().windows().create(formDeclaration());
    IWindow* window = form().get();
    auto& combo = window->get<IComboBox>(QStringLiteral("cboArt"));
    combo.AddItem(4, QStringLiteral("Import Buchungen"));
    combo.AddItem(17, QStringLiteral("Import Kunden"));
    auto& grid = window->get<IGrid>(QStringLiteral("grdData"));
    grid.setCols(2);
    grid.setRows(3);
    grid.setColBoolean(1, true);
    grid.setTextMatrix(1, 0, QStringLiteral("Montag"));
    WindowEvents events;
    // Every event of interest is written down in lblLog: "Click:chkAktiv Change:txtTextBox".
    events.onControl = [window](const ControlEvent& e) {
        const QString name = eventName(e.type);
        if (name.isEmpty()) {
            return;
        }
        auto& log = window->get<ILabel>(QStringLiteral("lblLog"));
        QString entry = name + u':' + (e.tool.isEmpty() ? e.control : e.tool);
        log.setCaption((log.Caption() + u' ' + entry).trimmed());
    };
    events.onKeyDown = [window](int keyCode, int shift) {
        window->setCaption(QStringLiteral("Taste %1/%2").arg(keyCode).arg(shift));
    };
    window->setEvents(std::move(events));
    window->Show(false);
}

inline void dialogCommand(ScenarioPlay& play, const ScenarioCommand&) {
    showDialog(play);
}

// The dialog behind an error exit of the system, which catches whatever passes.
inline void caughtDialogCommand(ScenarioPlay& play, const ScenarioCommand&) {
    ErrorExit ex(QStringLiteral("mDialog"), QStringLiteral("cTest"));
    try {
        showDialog(play);
    } catch (...) {
        ex.fail();
    }
}

inline void formCommand(ScenarioPlay& play, const ScenarioCommand&) {
    showForm(play);
}

inline void oopsCommand(ScenarioPlay&, const ScenarioCommand&) {
    ErrorExit ex(QStringLiteral("mOops"), QStringLiteral("cTest"));
    try {
        throw RaisedError(5, QStringLiteral("Ungültiger Prozeduraufruf"));
    } catch (...) {
        ex.fail();
    }
}

// Starts the program directory's starter with one argument.
inline void launchCommand(ScenarioPlay&, const ScenarioCommand& c) {
    const QString dir = services().newCoreTools()->GetPfad(41);
    services().shell->Start(dir + QStringLiteral("ZPKyJobStart.exe"), {c.arg(0).text}, 2);
}

inline ScenarioOutcome play(const char* text) {
    const CommandTable extra{{QStringLiteral("dialog"), dialogCommand},
                             {QStringLiteral("caughtdialog"), caughtDialogCommand},
                             {QStringLiteral("form"), formCommand},
                             {QStringLiteral("oops"), oopsCommand},
                             {QStringLiteral("launch"), launchCommand}};
    ScenarioOutcome outcome;
    {
        ScenarioPlay p(ScenarioPlay::split(QString::fromUtf8(text)), {}, extra);
        outcome = p.run();
    }
    form().reset();
    return outcome;
}

inline void expectPass(const ScenarioOutcome& o) {
    EXPECT_TRUE(o.passed) << o.line << ": " << o.reason.toStdString();
}

inline void expectFail(const ScenarioOutcome& o, int line, const QString& reason) {
    EXPECT_FALSE(o.passed);
    EXPECT_EQ(o.line, line);
    EXPECT_EQ(o.reason, reason);
}

}  // namespace scenario_test
