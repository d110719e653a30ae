#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "tests/headless/HeadlessTestKit.h"
#include "ui/windows/frmPakete.h"

using namespace headless_test;

namespace {

// A small properties window: a tab control, a frame on page 0 holding a text box, a picture
// inside that frame holding a button, and a grid on page 1; key preview.
WindowDecl propertiesWindow() {
    WindowDecl d;
    d.name = QStringLiteral("frmEigenschaften");
    d.caption = QStringLiteral("Paket bearbeiten");
    d.keyPreview = true;
    ControlDecl tab = decl("tabControl", ControlKind::TabControl);
    tab.tabCaptions = {QStringLiteral("Allgemein"), QStringLiteral("Zeitpläne")};
    d.controls << tab;
    ControlDecl fra = decl("fraImport", ControlKind::Frame);
    fra.tabPage = 0;
    d.controls << fra;
    ControlDecl txt = decl("txtTextBox", ControlKind::TextBox, 3);
    txt.container = QStringLiteral("fraImport");
    d.controls << txt;
    ControlDecl pic = decl("picBelegarten", ControlKind::Picture);
    pic.container = QStringLiteral("fraImport");
    d.controls << pic;
    ControlDecl cmd = decl("cmdCommandButton", ControlKind::Button, 2);
    cmd.container = QStringLiteral("picBelegarten");
    cmd.caption = QStringLiteral("...");
    d.controls << cmd;
    ControlDecl grd = decl("grdZeitplan", ControlKind::Grid);
    grd.tabPage = 1;
    d.controls << grd;
    ControlDecl ok = decl("cmdCommandButton", ControlKind::Button, 0);
    ok.caption = QStringLiteral("OK");
    d.controls << ok;
    ControlDecl hidden = decl("lblLabel", ControlKind::Label, 3);
    hidden.visible = false;
    d.controls << hidden;
    ControlDecl off = decl("ctlMandant", ControlKind::Selection);
    off.enabled = false;
    d.controls << off;
    ControlDecl bar = decl("tbrMain", ControlKind::ToolBar);
    d.controls << bar;
    d.tools << ToolDecl{QStringLiteral("tbrMain"),      QStringLiteral("barMain"),
                        QStringLiteral("new"),          QStringLiteral("&Neu"),
                        QStringLiteral("Neu (Strg-N)"), 0}
            << ToolDecl{QStringLiteral("tbrMain"), QStringLiteral("barMain"), {}, {}, {}, 0}
            << ToolDecl{QStringLiteral("tbrMain"),   QStringLiteral("barMain"),
                        QStringLiteral("save"),      QStringLiteral("&Speichern"),
                        QStringLiteral("Speichern"), 0};
    return d;
}

TEST(HeadlessWindowTest, TheDeclarationBuildsItsControls) {
    Recorded w{frmPakete::declaration()};
    EXPECT_EQ(w.window->Caption(), "Aufträge");
    EXPECT_FALSE(w.window->Visible());
    EXPECT_NE(dynamic_cast<HeadlessBrowser*>(w.window->control(QStringLiteral("ctlPakete"))),
              nullptr);
    EXPECT_EQ(w.window->control(QStringLiteral("ctlPakete"), 0), nullptr);
    EXPECT_EQ(w.window->control(QStringLiteral("gibtsNicht")), nullptr);
    EXPECT_THROW(w.window->get<IGrid>(QStringLiteral("ctlPakete")), RaisedError);

    auto& bar = w.get<IToolBar>("barMenu");
    EXPECT_FALSE(bar.Visible());
    EXPECT_EQ(bar.Bands(), (QStringList{"Bearbeiten", "Ansicht"}));
    EXPECT_EQ(bar.ToolNames(QStringLiteral("Ansicht")),
              (QStringList{"Auftragsverlauf", "Logdaten Dienst", "Logdaten Aufträge"}));
    EXPECT_EQ(bar.ToolNames(QStringLiteral("Bearbeiten")).size(), 10);
    ASSERT_NE(bar.Tool(QStringLiteral("Bearbeiten"), QStringLiteral("Löschen")), nullptr);
    EXPECT_EQ(bar.Tool(QStringLiteral("Ansicht"), QStringLiteral("Löschen")), nullptr);
    EXPECT_NE(bar.Tool(QStringLiteral("Bearbeiten"), QStringLiteral("Auftragsverlauf")),
              bar.Tool(QStringLiteral("Ansicht"), QStringLiteral("Auftragsverlauf")))
        << "each band its own tool";
    EXPECT_EQ(dynamic_cast<HeadlessToolBar&>(bar).bandTools(QStringLiteral("Ansicht")).size(), 4);
    EXPECT_EQ(bar.typeName(), "ActiveBar2");
}

TEST(HeadlessWindowTest, BarToolsClickOnlyWhenVisibleAndEnabled) {
    Recorded w{propertiesWindow()};
    auto& bar = w.get<IToolBar>("tbrMain");
    ITool* save = bar.Tool(QStringLiteral("barMain"), QStringLiteral("save"));
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->Caption(), "&Speichern");
    EXPECT_EQ(save->ToolTip(), "Speichern");
    EXPECT_EQ(bar.ToolNames(QStringLiteral("barMain")), (QStringList{"new", "save"}));

    HeadlessControl& user = w.control("tbrMain");
    user.userTool(QStringLiteral("barMain"), QStringLiteral("save"));
    EXPECT_EQ(w.take(), QStringList{"ToolClick tbrMain save"});
    bar.setToolEnabled(QStringLiteral("barMain"), QStringLiteral("save"), false);
    EXPECT_FALSE(save->Enabled());
    EXPECT_THROW(user.userTool(QStringLiteral("barMain"), QStringLiteral("save")), RaisedError);
    save->setEnabled(true);
    save->setVisible(false);
    EXPECT_THROW(user.userTool(QStringLiteral("barMain"), QStringLiteral("save")), RaisedError);
    EXPECT_THROW(user.userTool(QStringLiteral("barMain"), QStringLiteral("fehlt")), RaisedError);
    EXPECT_THROW(user.userTool(QStringLiteral("barX"), QStringLiteral("new")), RaisedError);
    EXPECT_TRUE(w.take().isEmpty());

    w.window->setToolPicture(QStringLiteral("new"), 42);
    EXPECT_EQ(bar.Tool(QStringLiteral("barMain"), QStringLiteral("new"))->Picture(), 42);
    w.window->setIconPicture(1000);
    EXPECT_EQ(w.window->Icon(), 1000);
}

TEST(HeadlessWindowTest, UnreachableReasons) {
    Recorded w{propertiesWindow()};
    auto& txt = w.get<ITextBox>("txtTextBox", 3);
    auto& cmd = w.get<IButton>("cmdCommandButton", 2);
    auto& grd = w.get<IGrid>("grdZeitplan");
    auto reason = [&](IControl& c) { return w.window->unreachableReason(c); };

    EXPECT_TRUE(reason(txt).contains(QStringLiteral("nicht sichtbar")))
        << reason(txt).toStdString();
    w.window->Show(false);
    EXPECT_EQ(reason(txt), "");
    EXPECT_EQ(reason(cmd), "");
    EXPECT_TRUE(reason(w.get<ILabel>("lblLabel", 3)).contains(QStringLiteral("unsichtbar")));
    EXPECT_TRUE(reason(w.get<ISelection>("ctlMandant")).contains(QStringLiteral("deaktiviert")));

    EXPECT_TRUE(reason(grd).contains(QStringLiteral("Seite 1"))) << reason(grd).toStdString();
    w.get<ITabControl>("tabControl").setTab(1);
    EXPECT_EQ(reason(grd), "");
    EXPECT_TRUE(reason(cmd).contains(QStringLiteral("fraImport"))) << "the frame is on page 0";
    w.get<ITabControl>("tabControl").setTab(0);

    w.get<IPicture>("picBelegarten").setVisible(false);
    EXPECT_TRUE(reason(cmd).contains(QStringLiteral("picBelegarten"))) << reason(cmd).toStdString();
    EXPECT_EQ(reason(txt), "");
    w.get<IPicture>("picBelegarten").setVisible(true);
    w.get<IFrame>("fraImport").setEnabled(false);
    EXPECT_TRUE(reason(txt).contains(QStringLiteral("fraImport"))) << reason(txt).toStdString();
    EXPECT_TRUE(reason(cmd).contains(QStringLiteral("fraImport"))) << "recursively";

    txt.setEnabled(false);
    EXPECT_TRUE(reason(txt).contains(QStringLiteral("deaktiviert")));
}

TEST(HeadlessWindowTest, CloseByUserAsksAndMayBeCancelled) {
    Recorded w{propertiesWindow()};
    bool cancel = true;
    int unloads = 0;
    WindowEvents ev;
    ev.onQueryUnload = [&](bool& c) { c = cancel; };
    ev.onUnload = [&] { ++unloads; };
    w.window->setEvents(ev);
    EXPECT_THROW(w.window->userClose(), RaisedError) << "not shown";
    w.window->Show(false);
    w.window->userClose();
    EXPECT_TRUE(w.window->Visible());
    EXPECT_EQ(unloads, 0);
    cancel = false;
    w.window->userClose();
    EXPECT_FALSE(w.window->Visible());
    EXPECT_TRUE(w.window->isUnloaded());
    EXPECT_EQ(unloads, 1);
    w.window->Unload();
    EXPECT_EQ(unloads, 1) << "Unload raises once";
}

TEST(HeadlessWindowTest, UnloadRaisesNoQueryUnload) {
    Recorded w{propertiesWindow()};
    w.window->Show(false);
    w.window->Unload();
    w.window->Unload();
    EXPECT_EQ(w.take(), QStringList{"Unload"});
    EXPECT_FALSE(w.window->Visible());
}

TEST(HeadlessWindowTest, KeyPreviewGivesTheKeyToTheWindow) {
    Recorded w{propertiesWindow()};
    w.window->Show(false);
    w.window->userKey(KeyCode::F1, 0);
    EXPECT_EQ(w.take(), QStringList{"Form_KeyDown 112/0"});

    Recorded list{frmPakete::declaration()};
    list.window->Show(false);
    list.window->userKey(KeyCode::F1, 0);
    EXPECT_TRUE(list.take().isEmpty()) << "no focus, no key preview";
    list.get<IBrowser>("ctlPakete").SetFocus();
    list.take();
    list.window->userKey(KeyCode::F1, 0);
    EXPECT_EQ(list.take(), QStringList{"KeyDown ctlPakete 112/0"});
}

class ScriptedDriver : public ModalDriver {
  public:
    std::function<void(const QString&)> play;
    QStringList calls;
    void runModal(const QString& name) override {
        calls << name;
        if (play) {
            play(name);
        }
    }
};

TEST(HeadlessWindowTest, ModalShowHandsControlToTheDriverUntilItReturns) {
    ScriptedDriver driver;
    Recorded w{propertiesWindow(), &driver};
    bool openInside = false;
    driver.play = [&](const QString&) {
        openInside = w.window->IsModalOpen() && w.window->Visible();
        w.control("cmdCommandButton", 0).userClick();
        w.window->Unload();
    };
    w.window->Show(true);
    EXPECT_EQ(driver.calls, QStringList{"frmEigenschaften"});
    EXPECT_TRUE(openInside);
    EXPECT_FALSE(w.window->IsModalOpen());
    EXPECT_EQ(w.take(), (QStringList{"Click cmdCommandButton(0)", "Unload"}));
}

TEST(HeadlessWindowTest, ModalShowWithoutDriverReturnsAtOnceAndStaysOpen) {
    Recorded w{propertiesWindow()};
    w.window->Show(true);
    EXPECT_TRUE(w.window->Visible());
    EXPECT_TRUE(w.window->IsModalOpen());
    EXPECT_THROW(w.window->Show(true), RaisedError);
    w.window->Hide();
    EXPECT_FALSE(w.window->IsModalOpen());
}

TEST(HeadlessWindowTest, AWindowDestroyedByItsHandlerIsNotTouchedAgain) {
    ScriptedDriver driver;
    HeadlessWindowFactory factory(&driver);
    std::unique_ptr<IWindow> owner = factory.create(propertiesWindow());
    auto* window = static_cast<HeadlessWindow*>(owner.get());
    WindowEvents ev;
    // OK closes and destroys the window, as a controller does.
    ev.onControl = [&](const ControlEvent& e) {
        if (e.type == EventType::Click) {
            owner->Unload();
            owner.reset();
        }
    };
    window->setEvents(ev);
    driver.play = [&](const QString&) {
        window->headlessControl("cmdCommandButton", 0)->userClick();
    };
    EXPECT_EQ(factory.windows().size(), 1);
    window->Show(true);
    EXPECT_EQ(owner, nullptr);
    EXPECT_TRUE(factory.windows().isEmpty());

    // A key whose KeyDown handler destroys the window before the text would change.
    owner = factory.create(propertiesWindow());
    window = static_cast<HeadlessWindow*>(owner.get());
    ev.onControl = [&](const ControlEvent& e) {
        if (e.type == EventType::KeyDown) {
            owner.reset();
        }
    };
    window->setEvents(ev);
    window->headlessControl("txtTextBox", 3)->userType(QStringLiteral("weg"));
    EXPECT_EQ(owner, nullptr);
}

TEST(HeadlessWindowTest, TheFactoryFindsItsOpenWindowsByName) {
    HeadlessWindowFactory factory;
    auto first = factory.create(frmPakete::declaration());
    auto second = factory.create(propertiesWindow());
    EXPECT_EQ(factory.find(QStringLiteral("frmPakete")), first.get());
    EXPECT_EQ(factory.find(QStringLiteral("frmEigenschaften")), second.get());
    EXPECT_EQ(factory.find(QStringLiteral("frmZeitplan")), nullptr);
    second.reset();
    EXPECT_EQ(factory.find(QStringLiteral("frmEigenschaften")), nullptr);
    EXPECT_EQ(factory.windows().size(), 1);
}

TEST(HeadlessWindowTest, CaptionPointerAndContractsWork) {
    HeadlessWindowFactory factory;
    frmPakete contract(factory.create(frmPakete::declaration()));
    QStringList seen;
    contract.ctlPakete_KeyDown = [&](int key, int) { seen << QString::number(key); };
    contract.evFrmPaketeCommandButtonClicked = [&] { seen << QStringLiteral("closed"); };
    contract.window().Show(false);
    dynamic_cast<HeadlessControl&>(contract.ctlPakete()).userKey(KeyCode::F1, 0);
    contract.window().CloseByUser();
    EXPECT_EQ(seen, (QStringList{"112", "closed"}));
    contract.window().setCaption(QStringLiteral("Neu"));
    contract.window().setMousePointer(11);
    EXPECT_EQ(contract.window().Caption(), "Neu");
    EXPECT_EQ(contract.window().MousePointer(), 11);
}

}  // namespace

TEST(HeadlessWindowTest, ControlsInAFrameOfAControlArrayFollowThatFrame) {
    WindowDecl d;
    d.name = QStringLiteral("frmRahmen");
    for (int i = 0; i < 2; ++i) {
        ControlDecl frame;
        frame.name = QStringLiteral("fraFrame");
        frame.index = i;
        frame.kind = ControlKind::Frame;
        d.controls << frame;
    }
    ControlDecl text;
    text.name = QStringLiteral("txtTextBox");
    text.index = 0;
    text.kind = ControlKind::TextBox;
    text.container = QStringLiteral("fraFrame(1)");
    d.controls << text;

    Recorded w{d};
    w.window->Show(false);
    auto& txt = w.get<ITextBox>("txtTextBox", 0);
    w.get<IFrame>("fraFrame", 0).setVisible(false);
    EXPECT_EQ(w.window->unreachableReason(txt), "") << "another frame of the array";
    w.get<IFrame>("fraFrame", 1).setVisible(false);
    EXPECT_TRUE(w.window->unreachableReason(txt).contains(QStringLiteral("fraFrame")));
}
