// The user's commands reach each control kind through the kit's user actions, and the
// checks read each kind's properties; the setup commands change the world the system sees.
#include <gtest/gtest.h>

#include "tests/scenario_runner/ScenarioTestKit.h"

namespace {

using namespace scenario_test;

TEST(ScenarioUserCommands, TypingRaisesKeysAndChangeWhileSetChangesOnly) {
    expectPass(play(R"scn(form
type frmForm.txtTextBox(0) "Nachts"
expect frmForm.txtTextBox(0).Text = "Nachts"
expect frmForm.lblLog.Caption = "KeyDown:txtTextBox Change:txtTextBox"
set frmForm.txtTextBox(0) "Tags"
expect frmForm.lblLog.Caption = "KeyDown:txtTextBox Change:txtTextBox Change:txtTextBox"
expect frmForm.txtTextBox(0).Text = "Tags"
expect frmForm.txtTextBox(0).Locked = false
)scn"));
}

TEST(ScenarioUserCommands, ChoicesTakeTheirValues) {
    expectPass(play(R"scn(form
check frmForm.chkAktiv 1
expect frmForm.chkAktiv.Value = 1
check frmForm.chkAktiv 1
expect frmForm.lblLog.Caption = "Click:chkAktiv"
click frmForm.optArt(1)
expect frmForm.optArt(1).Value = true
expect frmForm.optArt(0).Value = false
expect frmForm.cboArt.Key = -1
expect frmForm.cboArt.ItemCount = 2
select frmForm.cboArt 17
expect frmForm.cboArt.Key = 17
expect frmForm.cboArt.ItemText = "Import Kunden"
set frmForm.cboArt 4
expect frmForm.cboArt.ItemText = "Import Buchungen"
set frmForm.ctlMandant 12
expect frmForm.ctlMandant.Id = 12
expect frmForm.ctlMandant.Mode = 0
)scn"));
    expectFail(play("form\ncheck frmForm.chkAktiv 2\n"), 2, "check takes 0 or 1");
    expectFail(play("form\nselect frmForm.cboArt vier\n"), 2, "select: vier is no whole number");
}

TEST(ScenarioUserCommands, DatesAndTimesAreTypedAsWritten) {
    expectPass(play(R"scn(form
date frmForm.dtpBis 2026-12-01
expect frmForm.dtpBis.Value = 2026-12-01
date frmForm.dtpBis none
expect frmForm.dtpBis.Value = none
time frmForm.txtZeit "08:30"
expect frmForm.txtZeit.Text = "08:30:00"
expect frmForm.txtZeit.Ziffern = "0830"
time frmForm.txtZeit "_5:__"
expect frmForm.txtZeit.Text = "_5:__:00"
)scn"));
    expectFail(play("form\ndate frmForm.dtpBis 1.12.2026\n"), 2,
               "date takes yyyy-mm-dd or none, not 1.12.2026");
}

TEST(ScenarioUserCommands, GridsTabsAndKeys) {
    expectPass(play(R"scn(form
expect frmForm.grdData.Rows = 3
expect frmForm.grdData.TextMatrix(1,0) = "Montag"
grid frmForm.grdData click 2 0
expect frmForm.grdData.Row = 2
expect frmForm.grdData.Focused = true
grid frmForm.grdData toggle 1 1
expect frmForm.grdData.CellChecked(1,1) = true
expect frmForm.grdData.ColHidden(1) = false
expect frmForm.tabControl.Tab = 0
expect frmForm.tabControl.TabEnabled(1) = true
tab frmForm.tabControl 1
expect frmForm.tabControl.Tab = 1
click frmForm.cmdNeu
key frmForm 113 shift
expect frmForm.Caption = "Taste 113/1"
)scn"));
    // A control on a page that is not shown cannot be reached.
    const auto o = play("form\nclick frmForm.cmdNeu\n");
    EXPECT_FALSE(o.passed);
    EXPECT_TRUE(o.reason.startsWith("click frmForm.cmdNeu: the user cannot reach it: "))
        << o.reason.toStdString();
    expectFail(play("form\ngrid frmForm.grdData hold 1 1\n"), 2,
               "grid: unknown action hold (click, dblclick, toggle)");
}

TEST(ScenarioUserCommands, ToolsOfABarAreClickedAndCheckedByPath) {
    expectPass(play(R"scn(form
expect frmForm.tbrMain.barMain.save.Caption = "Speichern"
expect frmForm.tbrMain.barMain.save.ToolTip = "Speichern (F2)"
expect frmForm.tbrMain.barMain.next.Enabled = true
click frmForm.tbrMain.barMain.next
expect frmForm.lblLog.Caption = "ToolClick:next"
)scn"));
    expectFail(play("form\nclick frmForm.tbrMain.barMain.delete\n"), 2,
               "frmForm.tbrMain has no tool delete in barMain");
    expectFail(play("form\nclick frmForm.tbrMain.barNav.next\n"), 2,
               "frmForm.tbrMain has no band barNav");
}

TEST(ScenarioChecks, WrongKindsOfValuesAndPropertiesFailClearly) {
    expectFail(play("form\nexpect frmForm.chkAktiv.Value = false\n"), 2,
               "frmForm.chkAktiv.Value is 0, expected false");
    expectFail(play("form\nexpect frmForm.txtTextBox(0).Text = 0\n"), 2,
               "frmForm.txtTextBox(0).Text is \"\", expected 0");
    expectFail(play("form\nexpect frmForm.chkAktiv.Key = 1\n"), 2,
               "a check box has no property Key");
    expectFail(play("form\nexpect frmForm.grdData.TextMatrix(1) = \"x\"\n"), 2,
               "TextMatrix takes 2 argument(s)");
    expectFail(play("form\nexpect frmForm.txtTextBox(7).Text = \"\"\n"), 2,
               "window frmForm has no control txtTextBox(7)");
    expectFail(play("form\nexpect frmForm.txtTextBox(0).Text \"x\"\n"), 2,
               "expect needs more arguments");
}

TEST(ScenarioSetup, TheWorldStartsWithTheSuitesDefaultsAndTakesChanges) {
    expectPass(play(R"scn(expect sql "SELECT getdate()" = "2026-11-22 10:00:00"
clock 2026-12-01 08:15:00
expect sql "SELECT getdate()" = "2026-12-01 08:15:00"
expect sql "SELECT Text FROM tSuiteText WHERE TextId = 1236" = "Kesto"
suite text 1236 "Warenwirtschaft"
expect sql "SELECT Text FROM tSuiteText WHERE TextId = 1236" = "Warenwirtschaft"
staff 7 "Jürgen Müller"
expect sql "SELECT Name FROM tMitarbeiter WHERE MitId = 7" = "Jürgen Müller"
client 12 4711
client 13 12 office
expect sql "SELECT ManNr FROM tMandant WHERE ManId = 12 AND Kanzlei = 0" = "4711"
expect sql "SELECT ManNr FROM tMandant WHERE ManId = 13 AND Kanzlei = 1" = "12"
expect sql "SELECT count(*) FROM tAutoJobJob" = "0"
launch "x"
expect shell "$ROOT/bin/ZPKyJobStart.exe x"
suite path 41 "$ROOT/anders/"
launch "y"
expect shell "$ROOT/anders/ZPKyJobStart.exe y"
)scn"));
    expectFail(play("context Mandant=3\n"), 1, "context: the document data have no field Mandant");
    expectFail(play("context ManId=drei\n"), 1, "context: ManId takes a whole number, not drei");
    expectFail(play("clock 2026-11-22\n"), 1, "clock needs more arguments");
    expectFail(play("suite farbe 3\n"), 1,
               "suite: unknown setting farbe (installationsart, text, path)");
}

}  // namespace
