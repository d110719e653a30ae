// The runner writes down each use of the booking log viewer for "expect viewer".
#include <gtest/gtest.h>

#include "ScenarioTestKit.h"

using namespace scenario_test;

namespace {

// Shows the file of the first argument with the viewer: "buchungen" or "status".
void viewCommand(ScenarioPlay&, const ScenarioCommand& c) {
    auto viewer = services().newBookingLogViewer();
    viewer->SetWirtschaftsjahr(7);
    viewer->SetMitarbeiter(3);
    viewer->SetDateiname(c.text(0));
    if (c.arg(1).raw == QLatin1String("buchungen")) {
        viewer->ShowBuchungen();
    } else {
        viewer->ShowStatus();
    }
}

ScenarioOutcome playViewer(const char* text) {
    const CommandTable extra{{QStringLiteral("view"), viewCommand}};
    ScenarioPlay p(ScenarioPlay::split(QString::fromUtf8(text)), {}, extra);
    return p.run();
}

TEST(ScenarioViewer, EachUseIsCheckedInOrder) {
    expectPass(playViewer(R"scn(view "$ROOT/a.mta" buchungen
view "$ROOT/b.mta" status
expect viewer "$ROOT/a.mta" buchungen 7 3
expect viewer "$ROOT/b.mta" status 7 3
)scn"));
}

TEST(ScenarioViewer, AMismatchAnUnusedViewerAndAnUncheckedUseFail) {
    const ScenarioOutcome anders = playViewer(R"scn(view "/x.mta" status
expect viewer "/x.mta" buchungen 7 3
)scn");
    EXPECT_FALSE(anders.passed);
    EXPECT_EQ(anders.line, 2);
    EXPECT_EQ(anders.reason,
              "the booking log viewer showed \"/x.mta\" status 7 3, expected "
              "\"/x.mta\" buchungen 7 3");
    const ScenarioOutcome ungenutzt = playViewer("expect viewer \"/x.mta\" status 7 3\n");
    EXPECT_FALSE(ungenutzt.passed);
    EXPECT_EQ(ungenutzt.reason,
              "the booking log viewer was not used (expected \"/x.mta\" status 7 3)");
    const ScenarioOutcome offen = playViewer("view \"/x.mta\" status\n");
    EXPECT_FALSE(offen.passed);
    EXPECT_TRUE(offen.reason.contains("was not checked")) << offen.reason.toStdString();
    const ScenarioOutcome falsch =
        playViewer("view \"/x.mta\" status\nexpect viewer \"/x.mta\" alles 7 3\n");
    EXPECT_EQ(falsch.reason, "expect viewer takes buchungen or status");
}

}  // namespace
