#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "tests/headless/HeadlessTestKit.h"

using namespace headless_test;

namespace {

WindowDecl controlsWindow() {
    WindowDecl d;
    d.name = QStringLiteral("frmTest");
    d.caption = QStringLiteral("Test");
    ControlDecl txt = decl("txtTextBox", ControlKind::TextBox, 0);
    txt.caption = QStringLiteral("Name");
    d.controls << txt << decl("txtTextBox", ControlKind::TextBox, 1);
    ControlDecl chk = decl("chkCheckBox", ControlKind::CheckBox, 0);
    chk.caption = QStringLiteral("Aktiviert");
    chk.hint = QStringLiteral("Aktivieren");
    d.controls << chk;
    // Two groups: by name, and by container (options without a group).
    for (int i = 2; i <= 3; ++i) {
        ControlDecl o = decl("optOption", ControlKind::OptionButton, i);
        o.group = QStringLiteral("Typ");
        d.controls << o;
    }
    d.controls << decl("fraA", ControlKind::Frame);
    for (int i = 4; i <= 5; ++i) {
        ControlDecl o = decl("optOption", ControlKind::OptionButton, i);
        o.container = QStringLiteral("fraA");
        d.controls << o;
    }
    d.controls << decl("cboComboBox", ControlKind::ComboBox, 0);
    ControlDecl tab = decl("tabControl", ControlKind::TabControl);
    tab.tabCaptions = {QStringLiteral("Allgemein"), QStringLiteral("Zeitpläne")};
    d.controls << tab;
    d.controls << decl("ctlDatePicker", ControlKind::DatePicker);
    d.controls << decl("ctlMandant", ControlKind::Selection);
    d.controls << decl("cmdCommandButton", ControlKind::Button, 0);
    d.controls << decl("lblLabel", ControlKind::Label, 0);
    ControlDecl timer = decl("ctlTimer", ControlKind::Timer);
    timer.interval = 100;
    d.controls << timer;
    return d;
}

class ControlsTest : public ::testing::Test {
  protected:
    Recorded w{controlsWindow()};
};

TEST_F(ControlsTest, TextBoxRaisesChangeByCodeButKeyDownOnlyForTheUser) {
    auto& txt = w.get<ITextBox>("txtTextBox", 0);
    EXPECT_EQ(txt.Caption(), "Name");
    txt.setText(QStringLiteral("Erster"));
    EXPECT_EQ(w.take(), QStringList{"Change txtTextBox(0)"});
    txt.setText(QStringLiteral("Erster"));
    EXPECT_TRUE(w.take().isEmpty()) << "the same text is no change";

    w.control("txtTextBox", 0).userType(QStringLiteral("Zweiter"));
    EXPECT_EQ(w.take(), (QStringList{"KeyDown txtTextBox(0) 0/0", "Change txtTextBox(0)"}));
    EXPECT_EQ(txt.Text(), "Zweiter");

    // Typing the same text again: a key, but no change.
    w.control("txtTextBox", 0).userType(QStringLiteral("Zweiter"));
    EXPECT_EQ(w.take(), QStringList{"KeyDown txtTextBox(0) 0/0"});

    w.control("txtTextBox", 0).userKey(KeyCode::F1, 2);
    EXPECT_EQ(w.take(), QStringList{"KeyDown txtTextBox(0) 112/2"});
}

TEST_F(ControlsTest, TheTextSeenInTheKeyDownHandlerIsTheOldOne) {
    auto& txt = w.get<ITextBox>("txtTextBox", 1);
    txt.setText(QStringLiteral("alt"));
    QStringList seen;
    WindowEvents ev;
    ev.onControl = [&](const ControlEvent& e) {
        seen << QStringLiteral("%1:%2").arg(typeName(e.type), txt.Text());
    };
    w.window->setEvents(ev);
    w.control("txtTextBox", 1).userType(QStringLiteral("neu"));
    EXPECT_EQ(seen, (QStringList{"KeyDown:alt", "Change:neu"}));
}

TEST_F(ControlsTest, LockedTextBoxRefusesTyping) {
    auto& txt = w.get<ITextBox>("txtTextBox", 0);
    txt.setLocked(true);
    EXPECT_THROW(w.control("txtTextBox", 0).userType(QStringLiteral("x")), RaisedError);
    EXPECT_TRUE(w.take().isEmpty());
    txt.setText(QStringLiteral("by code"));
    EXPECT_EQ(w.take(), QStringList{"Change txtTextBox(0)"});
}

TEST_F(ControlsTest, CheckBoxClicksOnlyOnAChangeByCodeOrUser) {
    auto& chk = w.get<ICheckBox>("chkCheckBox", 0);
    EXPECT_EQ(chk.Caption(), "Aktiviert");
    EXPECT_EQ(chk.ToolTip(), "Aktivieren");
    chk.setValue(0);
    EXPECT_TRUE(w.take().isEmpty());
    chk.setValue(1);
    EXPECT_EQ(w.take(), QStringList{"Click chkCheckBox(0)"});
    w.control("chkCheckBox", 0).userCheck(1);
    EXPECT_TRUE(w.take().isEmpty());
    w.control("chkCheckBox", 0).userClick();
    EXPECT_EQ(chk.Value(), 0);
    EXPECT_EQ(w.take(), QStringList{"Click chkCheckBox(0)"});
    EXPECT_THROW(chk.setValue(3), RaisedError);
}

TEST_F(ControlsTest, OptionsOfAGroupExcludeOneAnotherAndClickOnlyTheOneSet) {
    auto& o2 = w.get<IOptionButton>("optOption", 2);
    auto& o3 = w.get<IOptionButton>("optOption", 3);
    auto& o4 = w.get<IOptionButton>("optOption", 4);
    auto& o5 = w.get<IOptionButton>("optOption", 5);
    o2.setValue(true);
    o4.setValue(true);
    EXPECT_EQ(w.take(), (QStringList{"Click optOption(2)", "Click optOption(4)"}));

    o3.setValue(true);
    EXPECT_FALSE(o2.Value());
    EXPECT_TRUE(o3.Value());
    EXPECT_TRUE(o4.Value()) << "another group stays";
    EXPECT_EQ(w.take(), QStringList{"Click optOption(3)"});

    o3.setValue(true);
    EXPECT_TRUE(w.take().isEmpty());
    o3.setValue(false);
    EXPECT_FALSE(o3.Value());
    EXPECT_TRUE(w.take().isEmpty()) << "clearing raises nothing";

    w.control("optOption", 5).userClick();
    EXPECT_FALSE(o4.Value());
    EXPECT_TRUE(o5.Value());
    EXPECT_EQ(w.take(), QStringList{"Click optOption(5)"});
    w.control("optOption", 5).userClick();
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(ControlsTest, ComboIsSilentByCodeAndClicksOnTheUsersPick) {
    auto& cbo = w.get<IComboBox>("cboComboBox", 0);
    cbo.AddItem(17, QStringLiteral("Import Debitoren"));
    cbo.AddItem(4, QStringLiteral("Import Buchungen"));
    EXPECT_EQ(cbo.Key(), -1);
    EXPECT_EQ(cbo.ItemText(), "");
    cbo.setKey(4);
    EXPECT_EQ(cbo.ListIndex(), 1);
    EXPECT_EQ(cbo.ItemText(), "Import Buchungen");
    cbo.setListIndex(0);
    EXPECT_EQ(cbo.Key(), 17);
    cbo.setKey(99);
    EXPECT_EQ(cbo.ListIndex(), -1);
    EXPECT_TRUE(w.take().isEmpty());

    w.control("cboComboBox", 0).userSelect(4);
    EXPECT_EQ(cbo.Key(), 4);
    EXPECT_EQ(w.take(), QStringList{"Click cboComboBox(0)"});
    EXPECT_THROW(w.control("cboComboBox", 0).userSelect(5), RaisedError);
    EXPECT_THROW(cbo.setListIndex(2), RaisedError);
    EXPECT_THROW(cbo.ItemKey(2), RaisedError);

    cbo.Clear();
    EXPECT_EQ(cbo.ItemCount(), 0);
    EXPECT_EQ(cbo.Key(), -1);
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(ControlsTest, TabSwitchesSilentlyByCodeAndTellsThePreviousPageToTheUser) {
    auto& tab = w.get<ITabControl>("tabControl");
    EXPECT_EQ(tab.Tabs(), 2);
    EXPECT_EQ(tab.TabCaption(1), "Zeitpläne");
    tab.setTab(1);
    EXPECT_TRUE(w.take().isEmpty());
    w.control("tabControl").userTab(0);
    EXPECT_EQ(tab.Tab(), 0);
    EXPECT_EQ(w.take(), QStringList{"TabClick tabControl 1"});
    w.control("tabControl").userTab(0);
    EXPECT_TRUE(w.take().isEmpty());

    tab.setTabEnabled(1, false);
    EXPECT_THROW(w.control("tabControl").userTab(1), RaisedError);
    EXPECT_THROW(w.control("tabControl").userTab(2), RaisedError);
    EXPECT_THROW(tab.setTab(2), RaisedError);
    EXPECT_EQ(tab.Tab(), 0);
}

TEST_F(ControlsTest, DatePickerAndSelectionRaiseChangeOnAChangeOfValue) {
    auto& date = w.get<IDatePicker>("ctlDatePicker");
    EXPECT_FALSE(date.Value().has_value());
    date.setValue(QDate(2026, 12, 1));
    date.setValue(QDate(2026, 12, 1));
    w.control("ctlDatePicker").userDate(std::nullopt);
    EXPECT_FALSE(date.Value().has_value());

    auto& sel = w.get<ISelection>("ctlMandant");
    sel.setId(7);
    sel.setId(7);
    w.control("ctlMandant").userSelect(8);
    EXPECT_EQ(sel.Id(), 8);
    EXPECT_EQ(sel.Text(), "8");
    EXPECT_EQ(w.take(), (QStringList{"Change ctlDatePicker", "Change ctlDatePicker",
                                     "Change ctlMandant", "Change ctlMandant"}));
}

TEST_F(ControlsTest, FocusMovesWithLostAndGotFocusOnce) {
    auto& a = w.get<ITextBox>("txtTextBox", 0);
    auto& b = w.get<ITextBox>("txtTextBox", 1);
    EXPECT_FALSE(a.Focused());
    a.SetFocus();
    EXPECT_EQ(w.take(), QStringList{"GotFocus txtTextBox(0)"});
    a.SetFocus();
    EXPECT_TRUE(w.take().isEmpty());
    b.SetFocus();
    EXPECT_EQ(w.take(), (QStringList{"LostFocus txtTextBox(0)", "GotFocus txtTextBox(1)"}));
    EXPECT_FALSE(a.Focused());
    EXPECT_TRUE(b.Focused());
}

TEST_F(ControlsTest, ButtonClicksAndLabelsTakeNoUserAction) {
    w.control("cmdCommandButton", 0).userClick();
    EXPECT_EQ(w.take(), QStringList{"Click cmdCommandButton(0)"});
    EXPECT_THROW(w.control("lblLabel", 0).userClick(), RaisedError);
    EXPECT_THROW(w.control("lblLabel", 0).userKey(13, 0), RaisedError);
    EXPECT_THROW(w.control("cmdCommandButton", 0).userType(QStringLiteral("x")), RaisedError);
    auto& lbl = w.get<ILabel>("lblLabel", 0);
    EXPECT_EQ(lbl.ForeColor(), -1);
}

TEST_F(ControlsTest, TimerTicksOnlyWhileEnabledWithAnInterval) {
    auto& timer = dynamic_cast<HeadlessTimer&>(w.control("ctlTimer"));
    EXPECT_EQ(timer.Interval(), 100);
    EXPECT_TRUE(timer.tick());
    timer.setEnabled(false);
    EXPECT_FALSE(timer.tick());
    timer.setEnabled(true);
    timer.setInterval(0);
    EXPECT_FALSE(timer.tick());
    EXPECT_EQ(w.take(), QStringList{"Timer ctlTimer"});
    timer.setInterval(100);
    EXPECT_EQ(w.window->tickTimers(), 1);
    EXPECT_EQ(w.take(), QStringList{"Timer ctlTimer"});
}

// A stand-in of the Qt kit: counts the refreshes of its widget.
class CountingTextBox : public HeadlessTextBox {
  public:
    using HeadlessTextBox::HeadlessTextBox;
    int refreshes = 0;

  protected:
    void stateChanged() override { ++refreshes; }
};

class CountingWindow : public HeadlessWindow {
  public:
    using HeadlessWindow::HeadlessWindow;

  protected:
    std::unique_ptr<HeadlessControl> makeControl(const ControlDecl& d) override {
        if (d.kind == ControlKind::TextBox) {
            return std::make_unique<CountingTextBox>(d, *this);
        }
        return HeadlessWindow::makeControl(d);
    }
};

TEST(HeadlessKitHooks, ADerivedWindowMakesItsOwnControlsAndHearsEveryChange) {
    CountingWindow window(controlsWindow());
    window.build();
    auto& txt = dynamic_cast<CountingTextBox&>(*window.headlessControl("txtTextBox", 0));
    txt.setText(QStringLiteral("a"));
    txt.setEnabled(false);
    txt.setToolTip(QStringLiteral("t"));
    txt.SetFocus();
    EXPECT_EQ(txt.refreshes, 4);
    EXPECT_NE(dynamic_cast<HeadlessCheckBox*>(window.headlessControl("chkCheckBox", 0)), nullptr);
}

}  // namespace
