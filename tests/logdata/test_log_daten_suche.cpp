// The words, days and condition of the log data browser's search.
#include <gtest/gtest.h>

#include "logdata/LogDatenSuche.h"

TEST(LogDatenSuche, WordsAreLettersAndDigitsEachOnceInAnyCase) {
    EXPECT_EQ(logsuche::woerter(QStringLiteral("  Rechnung, März-2026 rechnung \"o'k\"  ")),
              (QStringList{"Rechnung", "März", "2026", "o", "k"}));
    EXPECT_EQ(logsuche::woerter(QStringLiteral(" *;- ")), QStringList());
}

TEST(LogDatenSuche, DaysAreTypedTheGermanWayAndNothingElseCounts) {
    EXPECT_EQ(logsuche::tag(QStringLiteral("1.4.2026")), QDate(2026, 4, 1));
    EXPECT_EQ(logsuche::tag(QStringLiteral(" 29.02.2028 ")), QDate(2028, 2, 29));
    EXPECT_EQ(logsuche::tag(QString()), QDate());
    for (const char* bad : {"31.02.2026", "29.02.2027", "1.4.26", "2026-04-01", "1.4."}) {
        EXPECT_FALSE(logsuche::tag(QString::fromUtf8(bad)).has_value()) << bad;
    }
}

TEST(LogDatenSuche, TheConditionNamesEveryWordAndBoundsThePeriodByWholeDays) {
    EXPECT_EQ(logsuche::msBedingung({}, QDate(), QDate()), QString());
    EXPECT_EQ(logsuche::msBedingung({"März", "42"}, QDate(), QDate()),
              QStringLiteral(" AND (CONTAINS(SYS_JobAgentLogDaten_Anzeigen.*, N'\"März*\" AND "
                             "\"42*\"'))"));
    EXPECT_EQ(logsuche::msBedingung({}, QDate(2026, 3, 2), QDate(2026, 12, 31)),
              QStringLiteral(" AND (SYS_JobAgentLogDaten_Anzeigen.[Datum/Uhrzeit] >= "
                             "'2026-03-02 00:00:00') AND "
                             "(SYS_JobAgentLogDaten_Anzeigen.[Datum/Uhrzeit] < "
                             "'2027-01-01 00:00:00')"));
    EXPECT_EQ(logsuche::msTreffer(1234567), QStringLiteral("1.234.567 Treffer"));
}
