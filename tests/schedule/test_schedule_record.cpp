#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "schedule/ScheduleDefaults.h"
#include "schedule/ScheduleTime.h"
#include "tests/app/AppTestWorld.h"
#include "tests/schedule/ScheduleTestAccess.h"

namespace {

using app_test::World;
using A = ScheduleTestAccess;

TEST(ZeitplanUhrzeit, DecimalTimesGetLeadingZerosAndColons) {
    EXPECT_EQ(zeitAnzeige(""), "");
    EXPECT_EQ(zeitAnzeige("0"), "00:00:00");
    EXPECT_EQ(zeitAnzeige("100"), "00:01:00");
    EXPECT_EQ(zeitAnzeige("93000"), "09:30:00");
    EXPECT_EQ(zeitAnzeige("093000"), "09:30:00");
    EXPECT_EQ(zeitAnzeige("235959"), "23:59:59");
}

TEST(ZeitplanUhrzeit, FieldsTurnIntoTextAndNumbers) {
    EXPECT_EQ(zeitAlsText(QVariant()), "");
    EXPECT_EQ(zeitAlsText(QVariant(93000)), "93000");
    EXPECT_EQ(zeitAlsText(QVariant(QStringLiteral("1530"))), "1530");
    EXPECT_EQ(zeitAlsZahl(QVariant()), 0);
    EXPECT_EQ(zeitAlsZahl(QVariant(QStringLiteral("143000"))), 143000);
    EXPECT_EQ(zeitAlsZahl(QVariant(235959)), 235959);
    EXPECT_THROW(zeitAlsZahl(QVariant(QStringLiteral("14:30"))), RaisedError);
    EXPECT_THROW(zeitAlsZahl(QVariant(QStringLiteral("99999999999"))), RaisedError);
}

TEST(ZeitplanDatum, NoEndIsTheLastDayOfYear9999) {
    EXPECT_EQ(keinEndDatum(), QDateTime(QDate(9999, 12, 31), QTime(0, 0)));
    EXPECT_TRUE(istOhneEnde(keinEndDatum()));
    EXPECT_FALSE(istOhneEnde(QDateTime(QDate(2027, 1, 1), QTime(0, 0))));
}

class ScheduleRecord : public ::testing::Test {
  protected:
    World w;
    cAdminJob admin;

    cSchedule& neu() {
        A::schedule(admin) = std::make_unique<cSchedule>();
        return *A::schedule(admin);
    }
};

TEST_F(ScheduleRecord, TheControllerFormatsTimes) {
    EXPECT_EQ(A::timeString(admin, ""), "");
    EXPECT_EQ(A::timeString(admin, "0"), "00:00:00");
    EXPECT_EQ(A::timeString(admin, "93000"), "09:30:00");
    EXPECT_EQ(A::timeString(admin, "235959"), "23:59:59");
}

TEST_F(ScheduleRecord, ANewScheduleIsWeeklyOnSundayAtMidnightFromTodayWithoutEnd) {
    w.clock->set(QDateTime(QDate(2026, 3, 5), QTime(17, 45, 12)));
    cSchedule& o = neu();
    A::standard(admin, 1);
    EXPECT_EQ(o.psName, "Zeitplan01");
    EXPECT_EQ(o.pbyAktiviert, 1);
    EXPECT_EQ(o.plFrequencyType, 8);
    EXPECT_EQ(o.plFrequencyRecurreFactor, 1);
    EXPECT_EQ(o.plFrequencyIntervall, 1);
    EXPECT_EQ(o.plFrequencyRelativeIntervall, 0);
    EXPECT_EQ(o.plFrequencySubDayIntervall, 1);
    EXPECT_EQ(o.plFrequencySubDay, 1);
    EXPECT_EQ(o.pvActiveStartTimeOfDay.toInt(), 0);
    EXPECT_EQ(o.pvActiveEndTimeOfDay.toInt(), 235959);
    EXPECT_EQ(o.pdtActiveStartDate, QDateTime(QDate(2026, 3, 5), QTime(0, 0)));
    EXPECT_EQ(o.pdtActiveEndDate, QDateTime(QDate(9999, 12, 31), QTime(0, 0)));
    EXPECT_EQ(A::intervall(admin), "Jede 1. Woche am Sonntag, um 00:00:00");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleRecord, TheNameCountsTheGridRowsWithItsHeader) {
    neu();
    A::standard(admin, 3);
    EXPECT_EQ(A::schedule(admin)->psName, "Zeitplan03");
    A::standard(admin, 12);
    EXPECT_EQ(A::schedule(admin)->psName, "Zeitplan12");
    EXPECT_EQ(standardZeitplanName(100), "Zeitplan100");
}

TEST_F(ScheduleRecord, ShowingARepeatingScheduleSetsTheFixedTextAndTheDefaults) {
    neu();
    CaptionLabel lbl;
    A::showIntervall(admin, lbl, 2);
    EXPECT_EQ(lbl.caption, "Jede 1.Woche am Sonntag, um 00:00:00");
    EXPECT_EQ(A::schedule(admin)->psName, "Zeitplan02");
    EXPECT_EQ(A::schedule(admin)->plFrequencyType, 8);
}

TEST_F(ScheduleRecord, InitZeroesTheRecurrenceAndKeepsTheRest) {
    cSchedule& o = neu();
    A::standard(admin, 1);
    o.plFrequencyType = 32;
    o.plFrequencyRelativeIntervall = 16;
    o.plFrequencySubDay = 4;
    o.plFrequencySubDayIntervall = 15;
    A::init(admin);
    EXPECT_EQ(o.plFrequencyType, 0);
    EXPECT_EQ(o.plFrequencyRecurreFactor, 0);
    EXPECT_EQ(o.plFrequencyIntervall, 0);
    EXPECT_EQ(o.plFrequencyRelativeIntervall, 0);
    EXPECT_EQ(o.plFrequencySubDayIntervall, 0);
    EXPECT_EQ(o.plFrequencySubDay, 0);
    EXPECT_EQ(o.psName, "Zeitplan01");
    EXPECT_EQ(o.pbyAktiviert, 1);
    EXPECT_EQ(o.pvActiveEndTimeOfDay.toInt(), 235959);
    EXPECT_EQ(o.pdtActiveEndDate, keinEndDatum());
}

TEST_F(ScheduleRecord, WithoutARecordInitDoesNothingAndTheSentenceIsReported) {
    A::init(admin);
    EXPECT_FALSE(A::schedule(admin));
    EXPECT_TRUE(w.ui->reports.empty());
    EXPECT_EQ(A::intervall(admin), "");
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_EQ(w.ui->reports[0].number, 424);
}

TEST_F(ScheduleRecord, TheControllerDelegatesTheSentencePieces) {
    EXPECT_EQ(A::wochentage(admin, 42), "am Montag, Mittwoch, Freitag");
    EXPECT_EQ(A::stelle(admin, 16), "letzten ");
    EXPECT_EQ(A::relativ(admin, 10), "Wochenendtag");
    EXPECT_EQ(A::relativ(admin, 0), "");
}

TEST_F(ScheduleRecord, ARowFillsEveryFieldButTheName) {
    w.sql(
        "INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, Aktiviert, "
        "FreqencyType, FrequencyRecurrenceFactor, FrequencyInterval, FrequencyRelativeInterval, "
        "FrequencySubDayinterval, FrequencySubDay, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
        "ActiveStartDate, ActiveEndDate) VALUES (7, 5, 'Nachts', 0, 32, 3, 8, 1, 15, 4, 100, "
        "170000, '2026-02-01 00:00:00', '9999-12-31 00:00:00')");
    cSchedule& o = neu();
    o.psName = QStringLiteral("bleibt");
    A::ausDb(admin, 7);
    EXPECT_EQ(o.psName, "bleibt");
    EXPECT_EQ(o.pbyAktiviert, 0);
    EXPECT_EQ(o.plFrequencyType, 32);
    EXPECT_EQ(o.plFrequencyRecurreFactor, 3);
    EXPECT_EQ(o.plFrequencyIntervall, 8);
    EXPECT_EQ(o.plFrequencyRelativeIntervall, 1);
    EXPECT_EQ(o.plFrequencySubDayIntervall, 15);
    EXPECT_EQ(o.plFrequencySubDay, 4);
    EXPECT_EQ(o.pvActiveStartTimeOfDay, QVariant(100));
    EXPECT_EQ(o.pvActiveEndTimeOfDay, QVariant(170000));
    EXPECT_EQ(o.pdtActiveStartDate.date(), QDate(2026, 2, 1));
    EXPECT_TRUE(istOhneEnde(o.pdtActiveEndDate));
    EXPECT_EQ(A::intervall(admin),
              "Jeden 3. Monat am 1. Tag des Monats, alle 15 Minute(n)  zwischen 00:01:00 und "
              "17:00:00");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleRecord, NullColumnsReadAsZeroAndAFreshRecordHasNoName) {
    w.sql(
        "INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, FreqencyType, "
        "ActiveStartTimeOfDay, ActiveEndTimeOfDay) VALUES (8, 5, 'Leer', 4, NULL, NULL)");
    cSchedule& o = neu();
    A::ausDb(admin, 8);
    EXPECT_EQ(o.psName, "");
    EXPECT_EQ(o.plFrequencyType, 4);
    EXPECT_EQ(o.pvActiveStartTimeOfDay, QVariant(0));
    EXPECT_EQ(o.pvActiveEndTimeOfDay, QVariant(0));
    EXPECT_EQ(A::timeString(admin, zeitAlsText(o.pvActiveStartTimeOfDay)), "00:00:00");
    EXPECT_EQ(o.pdtActiveStartDate, zeroDate());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleRecord, AMissingRowLeavesTheRecordAsItWasWithoutAReport) {
    cSchedule& o = neu();
    A::standard(admin, 1);
    A::ausDb(admin, 99);
    EXPECT_EQ(o.plFrequencyType, 8);
    EXPECT_EQ(o.psName, "Zeitplan01");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleRecord, AFieldThatDoesNotFitLeavesTheRecordWholeAndIsReportedOnce) {
    w.sql(
        "INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, FreqencyType, Aktiviert) "
        "VALUES (9, 5, 16, 300)");
    cSchedule& o = neu();
    A::standard(admin, 1);
    A::ausDb(admin, 9);
    EXPECT_EQ(o.plFrequencyType, 8);
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_EQ(w.ui->reports[0].number, 6);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith("mSetzeScheduleObjektAusDB"));
}

}  // namespace
