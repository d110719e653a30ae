#include <gtest/gtest.h>

#include "common/ErrorExit.h"
#include "common/ModuleHelpers.h"
#include "common/Password.h"
#include "tests/common/CommonFakes.h"

namespace {

TEST(Password, HexIsLowerCaseAnsiCodes) {
    EXPECT_EQ(msTextNachHex(QStringLiteral("Az")), QStringLiteral("417a"));
    EXPECT_EQ(msTextNachHex(QStringLiteral("ä€")), QStringLiteral("e480"));
    EXPECT_EQ(msTextNachHex(QString()), QString());
}

TEST(Password, HexBackIgnoresCaseAndSkipsNonDigits) {
    EXPECT_EQ(msHexNachText(QStringLiteral("417A")), QStringLiteral("Az"));
    EXPECT_EQ(msHexNachText(QStringLiteral("e480")), QStringLiteral("ä€"));
    // A non-digit leaves the pair's value as it stood: "4x" is 4, "x1" is 1.
    EXPECT_EQ(msHexNachText(QStringLiteral("4xx1")), QString(QChar(4)) + QChar(1));
}

TEST(Password, StoredFormIsHexReversed) {
    EXPECT_EQ(msPasswortKodieren(QStringLiteral("Ab1"), true), QStringLiteral("132614"));
    EXPECT_EQ(msPasswortKodieren(QStringLiteral("132614"), false), QStringLiteral("Ab1"));
}

TEST(Password, RoundTripForAnsiText) {
    for (const QString& s : {QStringLiteral("geheim"), QStringLiteral("Passwört_ß§€‚ÿ 12"),
                             QString(), QStringLiteral("\t~")}) {
        EXPECT_EQ(msPasswortKodieren(msPasswortKodieren(s, true), false), s) << s.toStdString();
    }
}

TEST(Password, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    EXPECT_EQ(msPasswortKodieren(msPasswortKodieren(QStringLiteral("a\u4e2d"), true), false),
              QStringLiteral("a?"));
}

TEST(DateiZumMandant, FirstDigitGroupMustEqualTheClientNumber) {
    EXPECT_TRUE(mbDateiZumMandant(QStringLiteral("Kunden_00012_2026.log"), 17, QStringLiteral("12"),
                                  1, false));
    EXPECT_FALSE(
        mbDateiZumMandant(QStringLiteral("Kunden_13_12.log"), 17, QStringLiteral("12"), 1, false));
    EXPECT_TRUE(mbDateiZumMandant(QStringLiteral("12"), 4, QStringLiteral("12"), 1, false));
    EXPECT_FALSE(
        mbDateiZumMandant(QStringLiteral("Kunden.log"), 17, QStringLiteral("12"), 1, false));
    EXPECT_FALSE(mbDateiZumMandant(QString(), 5, QStringLiteral("0"), 1, false));
}

TEST(DateiZumMandant, OfficesOfOtherTypesNeedTheNumberFollowedByK) {
    // Type 20 is not among the types that only compare the number.
    EXPECT_FALSE(
        mbDateiZumMandant(QStringLiteral("scan_12_x.log"), 20, QStringLiteral("12"), 2, false));
    EXPECT_TRUE(
        mbDateiZumMandant(QStringLiteral("scan_12k.log"), 20, QStringLiteral("12"), 2, false));
    EXPECT_TRUE(
        mbDateiZumMandant(QStringLiteral("scan_12_x.log"), 20, QStringLiteral("12"), 1, false));
    // Kind 5 counts as an office only with the flag.
    EXPECT_TRUE(
        mbDateiZumMandant(QStringLiteral("scan_12_x.log"), 20, QStringLiteral("12"), 5, false));
    EXPECT_FALSE(
        mbDateiZumMandant(QStringLiteral("scan_12_x.log"), 20, QStringLiteral("12"), 5, true));
    // The types that compare the number only ignore the office rule.
    EXPECT_TRUE(
        mbDateiZumMandant(QStringLiteral("scan_12_x.log"), 28, QStringLiteral("12"), 4, true));
}

TEST(NavTools, StateFollowsThePosition) {
    FakeBar bar;
    mSetNavTools(1, 1, &bar);
    for (const char* t : {"first", "previous", "next", "last"}) {
        EXPECT_FALSE(bar.enabled[QStringLiteral("barMain.") + QLatin1String(t)]) << t;
    }
    mSetNavTools(2, 3, &bar);
    for (const char* t : {"first", "previous", "next", "last"}) {
        EXPECT_TRUE(bar.enabled[QStringLiteral("barMain.") + QLatin1String(t)]) << t;
    }
    mSetNavTools(3, 3, &bar);
    EXPECT_TRUE(bar.enabled[QStringLiteral("barMain.first")]);
    EXPECT_TRUE(bar.enabled[QStringLiteral("barMain.previous")]);
    EXPECT_FALSE(bar.enabled[QStringLiteral("barMain.next")]);
    EXPECT_FALSE(bar.enabled[QStringLiteral("barMain.last")]);
    mSetNavTools(1, 3, &bar);
    EXPECT_FALSE(bar.enabled[QStringLiteral("barMain.first")]);
    EXPECT_TRUE(bar.enabled[QStringLiteral("barMain.last")]);
}

TEST(NavTools, OtherBarsAreLeftAlone) {
    auto ui = std::make_shared<RecordingUi>();
    ScopedServices scope(recordingServices(ui));
    FakeBar bar;
    bar.type = QStringLiteral("Toolbar");
    mSetNavTools(1, 1, &bar);
    mSetNavTools(1, 1, nullptr);
    EXPECT_TRUE(bar.enabled.empty());
    EXPECT_TRUE(ui->reports.empty());
}

TEST(DatumZeit, IsoDateBlankTime) {
    EXPECT_EQ(msDatumZeit(QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5))),
              QStringLiteral("2026-01-02 03:04:05"));
}

TEST(Help, OpensTheTopicOfTheExternalProgramsFile) {
    auto ui = std::make_shared<RecordingUi>();
    Services s = recordingServices(ui);
    struct Help : CoreHelpClass {
        long ShowHelp(const QString& file, const QString& topic) override {
            services().ui->ShowHelp(file, topic);
            return 0;
        }
    };
    s.newCoreHelp = [] { return std::make_unique<Help>(); };
    ScopedServices scope(std::move(s));
    gShowWikiHelpExterneProgramme(HelpKeys::kJobList);
    ASSERT_EQ(ui->helpTopics.size(), 1);
    EXPECT_EQ(ui->helpTopics[0],
              QStringLiteral("Akte_externe_programme.xml#"
                             "HID_AKTE_EXTERNE_PROGRAMME_JOBAGENT_DOKUMENT_JOBAGENT2DAUFTRE4GE"));
}

TEST(Help, FailureGoesOnIntoTheCaller) {
    auto ui = std::make_shared<RecordingUi>();
    ScopedServices scope(recordingServices(ui));
    withErrorExit<int>(QStringLiteral("mHilfeAbruf"), QStringLiteral("cAdminJob"), 0,
                       [](ErrorExit&) {
                           gShowWikiHelpExterneProgramme(HelpKeys::kSchedules);
                           return 1;
                       });
    ASSERT_EQ(ui->reports.size(), 1u);
    EXPECT_TRUE(ui->reports[0].source.endsWith(
        QStringLiteral("modDeklarationen.gShowWikiHelpExterneProgramme"
                       "\r\nZPKyAutoJobVerw.cAdminJob.mHilfeAbruf")));
}

}  // namespace
