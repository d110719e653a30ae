// Whole scenarios played in-process: the runner's rules for modal windows, message boxes,
// failures and the checks at the end of a file. A small dialog stands in for the system's
// modal windows; the host's side runs against the real system.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "scenario/ScenarioProgram.h"
#include "tests/scenario_runner/ScenarioTestKit.h"

namespace {

using namespace scenario_test;

TEST(ScenarioModal, LinesArePlayedInsideAModalWindowUntilItCloses) {
    expectPass(play(R"scn(dialog
  expect window frmTest open
  type frmTest.txtName "Anna"
  expect frmTest.txtName.Text = "Anna"
  click frmTest.cmdOk
expect window frmTest closed
)scn"));
}

TEST(ScenarioModal, AWindowStillOpenAtTheEndFailsAtTheLineThatOpenedIt) {
    expectFail(play("# comment\n\ndialog\n  expect window frmTest open\n"), 3,
               "the window frmTest, shown modally, is still open at the end of the file");
}

TEST(ScenarioModal, AFailureInsideAModalWindowEndsTheScenarioEvenWhenTheSystemCatchesIt) {
    // The system's error exit catches the runner's abort and reports it; the scenario still
    // fails with the first reason, and the lines after are not played.
    const auto o = play(R"scn(caughtdialog
  expect frmTest.Caption = "Falsch"
  click frmTest.cmdOk
expect window frmTest open
)scn");
    expectFail(o, 2, "frmTest.Caption is \"Test\", expected \"Falsch\"");

    expectFail(play("dialog\n  expect frmTest.Caption = \"Falsch\"\n"), 2,
               "frmTest.Caption is \"Test\", expected \"Falsch\"");
}

TEST(ScenarioModal, TheUserCannotReachADisabledControl) {
    const auto o = play("dialog\n  click frmTest.cmdOff\n");
    EXPECT_FALSE(o.passed);
    EXPECT_EQ(o.line, 2);
    EXPECT_TRUE(o.reason.startsWith("click frmTest.cmdOff: the user cannot reach it: "))
        << o.reason.toStdString();
}

TEST(ScenarioMessageBoxes, TheNextLineAnswersWithTextStyleAndTitleMatched) {
    expectPass(play(R"scn(dialog
  click frmTest.cmdAsk
  msgbox "Wirklich?" style 36 title "Test" answer 7
  expect frmTest.Caption = "7"
  click frmTest.cmdAsk
  msgbox "Wirklich?" answer 6
  expect frmTest.Caption = "6"
  click frmTest.cmdOk
)scn"));
}

TEST(ScenarioMessageBoxes, AWrongOrMissingAnswerFailsWithTheBoxesText) {
    expectFail(play("dialog\n click frmTest.cmdAsk\n msgbox \"Wirklich?\" style 4 answer 6\n"), 3,
               "the message box \"Wirklich?\" has style 36, not 4");
    expectFail(play("dialog\n click frmTest.cmdAsk\n msgbox \"Echt?\" answer 6\n"), 3,
               "the message box reads \"Wirklich?\" (style 36, title \"Test\"), not \"Echt?\"");
    expectFail(play("dialog\n click frmTest.cmdAsk\n click frmTest.cmdOk\n"), 3,
               "the message box \"Wirklich?\" (style 36, title \"Test\") is waiting, but this "
               "line does not answer it");
    expectFail(play("dialog\n click frmTest.cmdAsk\n"), 2,
               "the message box \"Wirklich?\" (style 36, title \"Test\") is left unanswered");
    expectFail(play("dialog\n click frmTest.cmdAsk\n msgbox \"Wirklich?\"\n"), 3,
               "msgbox needs an answer: answer 1, 2, 6 or 7");
    expectFail(play("msgbox \"Wirklich?\" answer 6\n"), 1,
               "no message box is waiting for this answer");
}

TEST(ScenarioEndChecks, ReportsStartsAndHelpMustBeCheckedInOrder) {
    expectPass(play(R"scn(oops
launch "/JOBID=3"
launch "/JOBID=4"
expect error "mOops"
expect shell "$ROOT/bin/ZPKyJobStart.exe /JOBID=3"
expect shell "$ROOT/bin/ZPKyJobStart.exe /JOBID=4"
)scn"));
    expectFail(play("sql \"SELECT 1\"\noops\nsql \"SELECT 1\"\n"), 2,
               "the error report from \"mOops\" (5: Ungültiger Prozeduraufruf) was not checked");
    expectFail(play("launch \"a\"\nexpect shell \"$ROOT/bin/ZPKyJobStart.exe b\"\n"), 2,
               "the program start was \"$ROOT/bin/ZPKyJobStart.exe a\", expected "
               "\"$ROOT/bin/ZPKyJobStart.exe b\"");
    expectFail(play("expect help \"HID_X\"\n"), 1, "there was no help call (expected \"HID_X\")");
}

TEST(ScenarioHost, StartAndNotificationCodesReachTheSystem) {
    expectPass(play(R"scn(context DocName="Meine Aufträge"
start
expect notified 503
expect window frmPakete open
expect host.progress = "|Meine Aufträge"
notify 16203
expect host.result = true
expect host.lParam = 0
host istbeendet true
notify 77
expect host.lParam = -1000
host basisnotify false
notify 2
expect host.result = false
expect notified 402
)scn"));
    expectFail(play("start\nexpect notified 402\n"), 2,
               "the host did not receive code 402 (received: 503)");
    expectFail(play("notify 2\n"), 1, "notify: the system has not been started");
}

TEST(ScenarioChecks, DatabaseChecksCompareTheFirstColumnAsTextOrCountRows) {
    expectPass(play(R"scn(sql "INSERT INTO tAutoJobJob (Name, Beschreibung) VALUES ('A', NULL)"
sql "INSERT INTO tAutoJobJob (Name, Beschreibung) VALUES ('B', 'x')"
expect sql "SELECT count(*) FROM tAutoJobJob" = "2"
expect sql "SELECT count(*) FROM tAutoJobJob" = 2
expect sql "SELECT Beschreibung FROM tAutoJobJob WHERE Name = 'A'" = null
expect sql "SELECT Name FROM tAutoJobJob" rows 2
expect sql "SELECT Name FROM tMitarbeiter WHERE MitId = 1" = "Anna Admin"
)scn"));
    expectFail(play("expect sql \"SELECT Name FROM tAutoJobJob\" = \"A\"\n"), 1,
               "the query gives no row");
    expectFail(play("expect sql \"SELECT NULL\" = \"\"\n"), 1,
               "the query gives null, expected \"\"");
    expectFail(play("sql \"INSERT INTO nowhere VALUES (1)\"\n"), 1,
               "the statement failed: no such table: nowhere INSERT INTO nowhere VALUES (1)");
}

TEST(ScenarioChecks, UnknownCommandsAndPropertiesFailNamingTheLine) {
    expectFail(play("\n\nfrobnicate 3\n"), 3, "unknown command frobnicate");
    expectFail(play("start\nexpect frmPakete.Width = 3\n"), 2, "a window has no property Width");
    expectFail(play("start\nexpect frmPakete.ctlPakete.Cell(1,\"Name\") = \"x\"\n"), 2,
               "the browser has no row 1 (0 records)");
    expectFail(play("expect frmNirgends.Caption = \"x\"\n"), 1, "window frmNirgends is not open");
}

TEST(ScenarioProgram, PrintsOneLinePerFileAndASummary) {
    QTemporaryDir dir;
    const QString good = dir.filePath("good.scn");
    const QString bad = dir.filePath("bad.scn");
    {
        QFile f(good);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("# nothing to do\nexpect window frmPakete closed\n");
    }
    {
        QFile f(bad);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("expect window frmPakete open\n");
    }
    QString out;
    QString err;
    QTextStream o(&out);
    QTextStream e(&err);
    EXPECT_EQ(runScenarioProgram({good, bad}, o, e), 1);
    EXPECT_EQ(out, QStringLiteral("PASS %1\nFAIL %2:1: the window frmPakete is not open\n"
                                  "1 passed, 1 failed\n")
                       .arg(good, bad));
    out.clear();
    EXPECT_EQ(runScenarioProgram({good}, o, e), 0);
    EXPECT_EQ(out, QStringLiteral("PASS %1\n1 passed, 0 failed\n").arg(good));
}

TEST(ScenarioProgram, UsageErrorsGiveTwo) {
    QString out;
    QString err;
    QTextStream o(&out);
    QTextStream e(&err);
    EXPECT_EQ(runScenarioProgram({}, o, e), 2);
    EXPECT_EQ(runScenarioProgram({QStringLiteral("--nope"), QStringLiteral("x.scn")}, o, e), 2);
    err.clear();
    EXPECT_EQ(runScenarioProgram({QStringLiteral("--qt"), QStringLiteral("x.scn")}, o, e), 2);
    EXPECT_EQ(err, "the Qt window kit is not built in\n");
    EXPECT_TRUE(out.isEmpty());
}

}  // namespace
