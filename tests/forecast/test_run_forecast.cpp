#include <gtest/gtest.h>

#include <QStringList>

#include "forecast/RunForecast.h"
#include "tests/forecast/ForecastTestZone.h"

namespace {

// The starts as "yyyy-MM-dd HH:mm:ss" of the local clock, each with its mark of a change.
QStringList starts(const ScheduleRule& r, const char* von, const char* bis, int limit = 0) {
    LocalClock clock(berlin());
    QStringList out;
    for (const ForecastRun& run : RunForecast::runs(r, utcOf(von), utcOf(bis), clock, limit)) {
        const QString mark = RunForecast::changeText(run);
        out << RunForecast::storedText(run.wall) + (mark.isEmpty() ? QString() : u' ' + mark);
    }
    return out;
}

TEST(RunForecast, SpringChangeMovesASkippedTimeToTheEndOfTheGap) {
    // Weekly on Sunday at 02:30; 2026-03-29 has no 02:30 in Berlin.
    const ScheduleRule r = rule(8, 1, 1, 0, 1, 1, 23000, 235959, QDate(2026, 3, 1));
    EXPECT_EQ(starts(r, "2026-03-20T00:00:00", "2026-04-06T00:00:00"),
              (QStringList{"2026-03-22 02:30:00",
                           QString::fromUtf8("2026-03-29 03:00:00 Zeitumstellung: 02:30 → 03:00"),
                           "2026-04-05 02:30:00"}));
}

TEST(RunForecast, SkippedTimesThatMeetAtOneMomentStartOnce) {
    const ScheduleRule r = rule(4, 1, 0, 0, 4, 15, 13000, 33000, QDate(2026, 3, 1));
    EXPECT_EQ(starts(r, "2026-03-29T00:00:00", "2026-03-30T00:00:00"),
              (QStringList{"2026-03-29 01:30:00", "2026-03-29 01:45:00",
                           QString::fromUtf8("2026-03-29 03:00:00 Zeitumstellung: 02:00 → 03:00"),
                           "2026-03-29 03:15:00", "2026-03-29 03:30:00"}));
}

TEST(RunForecast, AutumnChangeStartsARepeatedTimeOnceAtItsFirstOccurrence) {
    const ScheduleRule r = rule(4, 1, 0, 0, 8, 1, 3000, 40000, QDate(2026, 10, 1));
    LocalClock clock(berlin());
    const QList<ForecastRun> runs =
        RunForecast::runs(r, utcOf("2026-10-25T00:00:00"), utcOf("2026-10-25T12:00:00"), clock);
    ASSERT_EQ(runs.size(), 4);
    // 00:30 and 01:30 summer time, 02:30 summer time (00:30 UTC), 03:30 winter time (02:30 UTC).
    EXPECT_EQ(QDateTime::fromSecsSinceEpoch(runs[2].utc, Qt::UTC).toString(Qt::ISODate),
              QStringLiteral("2026-10-25T00:30:00Z"));
    EXPECT_EQ(runs[3].utc - runs[2].utc, 2 * 3600);
    EXPECT_FALSE(runs[2].moved());
}

TEST(RunForecast, MonthlyOnDay31TakesTheLastDayOfShorterMonths) {
    const ScheduleRule r = rule(16, 31, 1, 0, 1, 1, 223000, 235959, QDate(2024, 1, 1));
    EXPECT_EQ(starts(r, "2024-01-01T00:00:00", "2024-05-01T00:00:00"),
              (QStringList{"2024-01-31 22:30:00", "2024-02-29 22:30:00", "2024-03-31 22:30:00",
                           "2024-04-30 22:30:00"}));
    // Every second month, counted from the start month.
    const ScheduleRule jeZwei = rule(16, 31, 2, 0, 1, 1, 0, 235959, QDate(2025, 2, 10));
    EXPECT_EQ(starts(jeZwei, "2025-01-01T00:00:00", "2025-09-01T00:00:00"),
              (QStringList{"2025-02-28 00:00:00", "2025-04-30 00:00:00", "2025-06-30 00:00:00",
                           "2025-08-31 00:00:00"}));
}

TEST(RunForecast, WindowAcrossMidnightBelongsToTheDayItOpens) {
    // Only 2026-05-04 opens a window (its end date): 22:30 to 02:00 every hour.
    const ScheduleRule r =
        rule(4, 1, 0, 0, 8, 1, 223000, 20000, QDate(2026, 5, 4), QDate(2026, 5, 4));
    EXPECT_EQ(starts(r, "2026-05-01T00:00:00", "2026-05-10T00:00:00"),
              (QStringList{"2026-05-04 22:30:00", "2026-05-04 23:30:00", "2026-05-05 00:30:00",
                           "2026-05-05 01:30:00"}));
}

TEST(RunForecast, RelativeMonthlyCodes) {
    // The last weekday, the 2nd Tuesday and the 1st weekend day of 2026's first months.
    EXPECT_EQ(starts(rule(32, 9, 1, 16, 1, 1, 70000, 0, QDate(2026, 1, 1)), "2026-01-01T00:00:00",
                     "2026-04-01T00:00:00"),
              (QStringList{"2026-01-30 07:00:00", "2026-02-27 07:00:00", "2026-03-31 07:00:00"}));
    EXPECT_EQ(starts(rule(32, 3, 2, 2, 1, 1, 120000, 0, QDate(2026, 1, 20)), "2026-01-01T00:00:00",
                     "2026-06-01T00:00:00"),
              (QStringList{"2026-03-10 12:00:00", "2026-05-12 12:00:00"}));
    EXPECT_EQ(starts(rule(32, 10, 1, 1, 1, 1, 0, 0, QDate(2026, 2, 1)), "2026-02-01T00:00:00",
                     "2026-03-01T00:00:00"),
              (QStringList{"2026-02-01 00:00:00"}));
}

TEST(RunForecast, WeeklyCountsWeeksFromSundayOfTheStartWeek) {
    // Start on Saturday 2026-01-10: its week began on Sunday the 4th; every 2nd week on
    // Monday and Saturday.
    const ScheduleRule r = rule(8, 2 + 64, 2, 0, 1, 1, 80000, 0, QDate(2026, 1, 10));
    EXPECT_EQ(starts(r, "2026-01-01T00:00:00", "2026-02-01T00:00:00"),
              (QStringList{"2026-01-10 08:00:00", "2026-01-19 08:00:00", "2026-01-24 08:00:00"}));
}

TEST(RunForecast, OnceAtItsMomentAndThePeriodBoundsIncludeTheStartOnly) {
    const ScheduleRule r =
        rule(1, 0, 0, 0, 1, 0, 93000, 235959, QDate(2026, 6, 1), QDate(2026, 6, 1));
    EXPECT_EQ(starts(r, "2026-06-01T09:30:00", "2026-06-02T00:00:00"),
              QStringList{"2026-06-01 09:30:00"});
    EXPECT_TRUE(starts(r, "2026-05-01T00:00:00", "2026-06-01T09:30:00").isEmpty());
    // Seconds stand as stored.
    EXPECT_EQ(starts(rule(4, 1, 0, 0, 1, 1, 235959, 0, QDate(2026, 6, 1)), "2026-06-01T00:00:00",
                     "2026-06-02T00:00:00"),
              QStringList{"2026-06-01 23:59:59"});
}

TEST(RunForecast, LimitGivesTheFirstStarts) {
    const ScheduleRule r = rule(4, 1, 0, 0, 4, 1, 0, 235900, QDate(2020, 1, 1));
    const QStringList first = starts(r, "2026-07-01T12:00:00", "9999-01-01T00:00:00", 10);
    ASSERT_EQ(first.size(), 10);
    EXPECT_EQ(first.front(), QStringLiteral("2026-07-01 12:00:00"));
    EXPECT_EQ(first.back(), QStringLiteral("2026-07-01 12:09:00"));
}

TEST(RunForecast, FaultsGiveNoRunsAndSayWhy) {
    const QDate d(2026, 1, 1);
    struct Fall {
        ScheduleRule r;
        const char* text;
    } faelle[] = {
        {rule(2, 1, 1, 0, 1, 1, 0, 0, d), "Unbekannte Häufigkeit (FreqencyType 2)."},
        {rule(4, 0, 0, 0, 1, 1, 0, 0, d), "Ungültiges Tagesintervall (FrequencyInterval 0)."},
        {rule(8, 0, 1, 0, 1, 1, 0, 0, d), "Ungültige Wochentage (FrequencyInterval 0)."},
        {rule(8, 128, 1, 0, 1, 1, 0, 0, d), "Ungültige Wochentage (FrequencyInterval 128)."},
        {rule(8, 1, 0, 0, 1, 1, 0, 0, d),
         "Ungültiger Wiederholungsfaktor (FrequencyRecurrenceFactor 0)."},
        {rule(16, 32, 1, 0, 1, 1, 0, 0, d), "Ungültiger Tag des Monats (FrequencyInterval 32)."},
        {rule(32, 11, 1, 1, 1, 1, 0, 0, d), "Ungültiger Wochentag (FrequencyInterval 11)."},
        {rule(32, 2, 1, 3, 1, 1, 0, 0, d),
         "Ungültiges Vorkommen im Monat (FrequencyRelativeInterval 3)."},
        {rule(4, 1, 0, 0, 2, 1, 0, 0, d),
         "Unbekannte Einheit der Wiederholung am Tag (FrequencySubDay 2)."},
        {rule(4, 1, 0, 0, 4, 0, 0, 0, d),
         "Ungültiges Intervall am Tag (FrequencySubDayinterval 0)."},
        {rule(4, 1, 0, 0, 1, 1, 96000, 0, d), "Ungültige Startzeit (ActiveStartTimeOfDay 96000)."},
        {rule(4, 1, 0, 0, 8, 1, 0, 240000, d), "Ungültige Endzeit (ActiveEndTimeOfDay 240000)."},
        {rule(4, 1, 0, 0, 1, 1, 0, 0, d, QDate(2025, 12, 31)),
         "Das Enddatum liegt vor dem Startdatum."},
        {rule(4, 1, 0, 0, 1, 1, 0, 0, QDate()), "Kein Startdatum (ActiveStartDate)."},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(ruleFault(f.r), QString::fromUtf8(f.text));
        EXPECT_TRUE(starts(f.r, "2026-01-01T00:00:00", "2027-01-01T00:00:00").isEmpty()) << f.text;
    }
    // The end time of a single start a day is not looked at.
    EXPECT_TRUE(ruleFault(rule(4, 1, 0, 0, 1, 1, 0, 999999, d)).isEmpty());
}

TEST(RunForecast, ListFormOfAStart) {
    LocalClock clock(berlin());
    const ScheduleRule r = rule(8, 1, 1, 0, 1, 1, 23000, 0, QDate(2026, 3, 1));
    const QList<ForecastRun> runs =
        RunForecast::runs(r, utcOf("2026-03-29T00:00:00"), utcOf("2026-03-30T00:00:00"), clock);
    ASSERT_EQ(runs.size(), 1);
    EXPECT_EQ(RunForecast::runText(runs[0]), QStringLiteral("So 29.03.2026 03:00"));
}

}  // namespace
