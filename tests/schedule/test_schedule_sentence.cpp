#include <gtest/gtest.h>

#include "app/cSchedule.h"
#include "schedule/ScheduleCodes.h"
#include "schedule/ScheduleSentence.h"

namespace {

struct Werte {
    std::int32_t typ, intervall, faktor, relativ, tagesEinheit, tagesIntervall, start, ende;
    const char* text;
};

cSchedule zeitplan(const Werte& w) {
    cSchedule o;
    o.plFrequencyType = w.typ;
    o.plFrequencyIntervall = w.intervall;
    o.plFrequencyRecurreFactor = w.faktor;
    o.plFrequencyRelativeIntervall = w.relativ;
    o.plFrequencySubDay = w.tagesEinheit;
    o.plFrequencySubDayIntervall = w.tagesIntervall;
    o.pvActiveStartTimeOfDay = w.start;
    o.pvActiveEndTimeOfDay = w.ende;
    return o;
}

class ZeitplanBeispielsatz : public ::testing::TestWithParam<Werte> {};

TEST_P(ZeitplanBeispielsatz, ReadsExactlyAsTheUserSeesIt) {
    EXPECT_EQ(intervallText(zeitplan(GetParam())), QString::fromUtf8(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, ZeitplanBeispielsatz,
    ::testing::Values(
        Werte{4, 3, 0, 0, 1, 1, 93000, 235959, "Jeden 3. Tag, um 09:30:00"},
        Werte{4, 1, 0, 0, 4, 30, 80000, 170000,
              "Jeden 1. Tag, alle 30 Minute(n)  zwischen 08:00:00 und 17:00:00"},
        Werte{8, 1, 1, 0, 1, 1, 0, 235959, "Jede 1. Woche am Sonntag, um 00:00:00"},
        Werte{8, 42, 2, 0, 8, 2, 60000, 200000,
              "Jede 2. Woche am Montag, Mittwoch, Freitag, alle 2 Stunde(n)  zwischen 06:00:00 "
              "und 20:00:00"},
        Werte{16, 15, 1, 0, 1, 1, 223000, 235959,
              "Jeden 1. Monat am 15. Tag des Monats, um 22:30:00"},
        Werte{32, 3, 2, 2, 1, 1, 120000, 235959,
              "Jeden 2. Monat am 2. Dienstag des Monats, um 12:00:00"},
        Werte{32, 9, 1, 16, 1, 1, 70000, 235959,
              "Jeden 1. Monat am letzten Wochentag des Monats, um 07:00:00"},
        Werte{32, 8, 3, 1, 4, 15, 0, 100,
              "Jeden 3. Monat am 1. Tag des Monats, alle 15 Minute(n)  zwischen 00:00:00 und "
              "00:01:00"}));

TEST(ZeitplanSatz, OnceAndUnknownTypesHaveNoHeadButKeepTheComma) {
    EXPECT_EQ(intervallText(zeitplan({1, 0, 0, 0, 1, 0, 143000, 235959, ""})), ", um 14:30:00");
    EXPECT_EQ(intervallText(zeitplan({0, 5, 5, 5, 1, 0, 0, 0, ""})), ", um 00:00:00");
    EXPECT_EQ(intervallText(zeitplan({2, 5, 5, 5, 1, 0, 0, 0, ""})), ", um 00:00:00");
}

TEST(ZeitplanSatz, WeeklyWithoutDaysKeepsTheBlankBeforeTheComma) {
    EXPECT_EQ(intervallText(zeitplan({8, 0, 1, 0, 1, 1, 0, 0, ""})), "Jede 1. Woche , um 00:00:00");
}

TEST(ZeitplanSatz, TheRepeatingFormNamesTheUnitAndBothTimes) {
    Werte w{4, 2, 0, 0, 8, 1, 0, 235959, ""};
    EXPECT_EQ(intervallText(zeitplan(w)),
              "Jeden 2. Tag, alle 1 Stunde(n)  zwischen 00:00:00 und 23:59:59");
    w.tagesEinheit = 4;
    w.tagesIntervall = 1440;
    EXPECT_EQ(intervallText(zeitplan(w)),
              "Jeden 2. Tag, alle 1440 Minute(n)  zwischen 00:00:00 und 23:59:59");
    // An unknown unit leaves a single blank before "zwischen".
    w.tagesEinheit = 2;
    w.tagesIntervall = 5;
    EXPECT_EQ(intervallText(zeitplan(w)), "Jeden 2. Tag, alle 5 zwischen 00:00:00 und 23:59:59");
}

TEST(ZeitplanSatz, TheEndTimeShowsOnlyInTheRepeatingForm) {
    const QString s = intervallText(zeitplan({4, 1, 0, 0, 1, 1, 80000, 170000, ""}));
    EXPECT_EQ(s, "Jeden 1. Tag, um 08:00:00");
}

TEST(ZeitplanSatz, TimesFromTheDialogsAreDigitTextAndAnEmptyTimeShowsNothing) {
    cSchedule o = zeitplan({4, 1, 0, 0, 1, 1, 0, 0, ""});
    o.pvActiveStartTimeOfDay = QStringLiteral("93000");
    EXPECT_EQ(intervallText(o), "Jeden 1. Tag, um 09:30:00");
    o.pvActiveStartTimeOfDay = QVariant();
    EXPECT_EQ(intervallText(o), "Jeden 1. Tag, um ");
    o.plFrequencySubDay = 4;
    o.pvActiveEndTimeOfDay = QStringLiteral("1000");
    EXPECT_EQ(intervallText(o), "Jeden 1. Tag, alle 1 Minute(n)  zwischen  und 00:10:00");
}

TEST(ZeitplanSatz, UnknownMonthlyCodesLeaveTheirPiecesEmpty) {
    EXPECT_EQ(intervallText(zeitplan({32, 3, 1, 3, 1, 1, 0, 0, ""})),
              "Jeden 1. Monat am Dienstag des Monats, um 00:00:00");
    EXPECT_EQ(intervallText(zeitplan({32, 11, 1, 8, 1, 1, 0, 0, ""})),
              "Jeden 1. Monat am 4.  des Monats, um 00:00:00");
    EXPECT_EQ(intervallText(zeitplan({32, 0, 1, 0, 1, 1, 0, 0, ""})),
              "Jeden 1. Monat am  des Monats, um 00:00:00");
}

TEST(ZeitplanWochentage, ListSundayFirstWithCommasAndNoTrailingSeparator) {
    EXPECT_EQ(wochentageText(WochentagBit::kSonntag), "am Sonntag");
    EXPECT_EQ(wochentageText(WochentagBit::kSamstag | WochentagBit::kMontag), "am Montag, Samstag");
    EXPECT_EQ(wochentageText(127),
              "am Sonntag, Montag, Dienstag, Mittwoch, Donnerstag, Freitag, Samstag");
}

TEST(ZeitplanWochentage, AnEmptyMaskGivesNothingAndHigherBitsAreIgnored) {
    EXPECT_EQ(wochentageText(0), "");
    EXPECT_EQ(wochentageText(128), "");
    EXPECT_EQ(wochentageText(128 | WochentagBit::kFreitag), "am Freitag");
}

TEST(ZeitplanVorkommen, PowersOfTwoAndTheLastOccurrence) {
    EXPECT_EQ(vorkommenText(1), "1. ");
    EXPECT_EQ(vorkommenText(2), "2. ");
    EXPECT_EQ(vorkommenText(4), "3. ");
    EXPECT_EQ(vorkommenText(8), "4. ");
    EXPECT_EQ(vorkommenText(16), "letzten ");
    for (int code : {0, 3, 5, 32, -1}) {
        EXPECT_EQ(vorkommenText(code), "") << code;
    }
}

TEST(ZeitplanWochentagCodes, PlainCountFromSundayToWeekendDay) {
    const QStringList erwartet{"Sonntag", "Montag",  "Dienstag", "Mittwoch",  "Donnerstag",
                               "Freitag", "Samstag", "Tag",      "Wochentag", "Wochenendtag"};
    for (int code = 1; code <= 10; ++code) {
        EXPECT_EQ(wochentagCodeText(code), erwartet[code - 1]) << code;
    }
    for (int code : {0, 11, 16, -1}) {
        EXPECT_EQ(wochentagCodeText(code), "") << code;
    }
}

}  // namespace
