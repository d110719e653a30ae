#include <gtest/gtest.h>

#include "tests/headless/HeadlessTestKit.h"

using namespace headless_test;

namespace {

class TimeBoxTest : public ::testing::Test {
  protected:
    static WindowDecl window() {
        WindowDecl d;
        d.name = QStringLiteral("frmZeitplan");
        d.controls << decl("ctlMaskEdBox", ControlKind::TimeBox);
        return d;
    }
    Recorded w{window()};
    ITimeBox& box = w.get<ITimeBox>("ctlMaskEdBox");
    HeadlessControl& user = w.control("ctlMaskEdBox");
};

TEST_F(TimeBoxTest, AnEmptyBoxShowsPlaceholdersAndNoDigits) {
    EXPECT_EQ(box.Text(), "__:__:00");
    EXPECT_EQ(box.Ziffern(), "");
}

TEST_F(TimeBoxTest, ReadingsOfFullPartialAndEmptyInput) {
    user.userTime(QStringLiteral("08:30"));
    EXPECT_EQ(box.Text(), "08:30:00");
    EXPECT_EQ(box.Ziffern(), "0830");

    user.userTime(QStringLiteral("_5:30"));
    EXPECT_EQ(box.Text(), "_5:30:00");
    EXPECT_EQ(box.Ziffern(), "530");

    user.userTime(QStringLiteral("8_:__"));
    EXPECT_EQ(box.Text(), "8_:__:00");
    EXPECT_EQ(box.Ziffern(), "8");

    user.userTime(QStringLiteral("__:__"));
    EXPECT_EQ(box.Text(), "__:__:00");
    EXPECT_EQ(box.Ziffern(), "");
}

TEST_F(TimeBoxTest, SetTextTakesHoursAndMinutesWithOrWithoutColons) {
    for (const char* text : {"0830", "08:30", "08:30:45", "08:30:00"}) {
        box.setText(QStringLiteral("__:__"));
        box.setText(QString::fromLatin1(text));
        EXPECT_EQ(box.Text(), "08:30:00") << text;
        EXPECT_EQ(box.Ziffern(), "0830") << text;
    }
    box.setText(QStringLiteral("23"));
    EXPECT_EQ(box.Text(), "23:__:00");
    box.setText(QString());
    EXPECT_EQ(box.Text(), "__:__:00");
}

TEST_F(TimeBoxTest, ChangeOnEveryChangeAndKeyDownOnlyForTheUser) {
    box.setText(QStringLiteral("08:30"));
    box.setText(QStringLiteral("0830"));
    EXPECT_EQ(w.take(), QStringList{"Change ctlMaskEdBox"});
    user.userTime(QStringLiteral("09:15"));
    EXPECT_EQ(w.take(), (QStringList{"KeyDown ctlMaskEdBox 0/0", "Change ctlMaskEdBox"}));
    user.userTime(QStringLiteral("09:15"));
    EXPECT_EQ(w.take(), QStringList{"KeyDown ctlMaskEdBox 0/0"});
}

}  // namespace
