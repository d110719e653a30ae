#include <gtest/gtest.h>

#include "headless/HeadlessWindow.h"
#include "schedule/ScheduleDefaults.h"
#include "schedule/ScheduleTime.h"
#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmZeitIntervall.h"
#include "ui/windows/frmZeitplan.h"

class RecurrenceTestAccess {
  public:
    static std::unique_ptr<cSchedule>& schedule(cAdminJob& a) { return a.moSchedule; }
    static std::shared_ptr<frmZeitIntervall>& fenster(cAdminJob& a) { return a.mofrmzeitIntervall; }
    static std::shared_ptr<frmZeitplan>& zeitplan(cAdminJob& a) {
        return a.mofrmZeitplanEigenschaften;
    }
    static void oeffnen(cAdminJob& a) { a.mEditZeitintervall(); }
    static QString pruefen(cAdminJob& a) { return a.msCheckValuesFRMZeitintervall(); }
    static std::int32_t wochentage(cAdminJob& a) { return a.mlGetWochentage(); }
    static void setzeWochentage(cAdminJob& a, std::int32_t l) { a.mSetzeWochentage(l); }
};

namespace {

using A = RecurrenceTestAccess;

QDateTime tag(int y, int m, int d) {
    return QDateTime(QDate(y, m, d), QTime(0, 0));
}

// A schedule record with the recurrence fields in the order of the table's columns.
cSchedule satz(std::int32_t typ, std::int32_t intervall, std::int32_t faktor, std::int32_t relativ,
               std::int32_t einheit, std::int32_t einheitIntervall, std::int32_t start,
               std::int32_t ende, QDateTime von, QDateTime bis) {
    cSchedule s;
    s.psName = QStringLiteral("Nachtlauf");
    s.pbyAktiviert = 1;
    s.plFrequencyType = typ;
    s.plFrequencyIntervall = intervall;
    s.plFrequencyRecurreFactor = faktor;
    s.plFrequencyRelativeIntervall = relativ;
    s.plFrequencySubDay = einheit;
    s.plFrequencySubDayIntervall = einheitIntervall;
    s.pvActiveStartTimeOfDay = start;
    s.pvActiveEndTimeOfDay = ende;
    s.pdtActiveStartDate = von;
    s.pdtActiveEndDate = bis;
    return s;
}

QString felder(const cSchedule& s) {
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7-%8 %9..%10 %11")
        .arg(s.plFrequencyType)
        .arg(s.plFrequencyIntervall)
        .arg(s.plFrequencyRecurreFactor)
        .arg(s.plFrequencyRelativeIntervall)
        .arg(s.plFrequencySubDay)
        .arg(s.plFrequencySubDayIntervall)
        .arg(zeitAlsZahl(s.pvActiveStartTimeOfDay))
        .arg(zeitAlsZahl(s.pvActiveEndTimeOfDay))
        .arg(s.pdtActiveStartDate.toString(Qt::ISODate))
        .arg(s.pdtActiveEndDate.toString(Qt::ISODate))
        .arg(s.psName);
}

class Recurrence : public ::testing::Test {
  protected:
    app_test::World w;

    void SetUp() override { w.start(); }
    cAdminJob& a() { return w.admin(); }
    cSchedule& record() { return *A::schedule(a()); }

    void oeffnen(const cSchedule& s) {
        A::schedule(a()) = std::make_unique<cSchedule>(s);
        A::oeffnen(a());
        ASSERT_TRUE(A::fenster(a()));
    }
    void oeffnenMitStandard() {
        cSchedule s;
        setzeStandardZeitplan(s, 1, w.clock->now());
        oeffnen(s);
    }
    bool offen() { return A::fenster(a()) != nullptr; }
    frmZeitIntervall& f() { return *A::fenster(a()); }
    HeadlessControl& c(const char* name, int index) {
        auto& fenster = dynamic_cast<HeadlessWindow&>(f().window());
        return *fenster.headlessControl(QString::fromUtf8(name), index);
    }
    void ok() { c("cmdCommandButton", 0).userClick(); }
    QStringList liste(int combo) {
        QStringList items;
        IComboBox& cbo = f().cboComboBox(combo);
        for (int i = 0; i < cbo.ItemCount(); ++i) {
            items << QStringLiteral("%1=%2").arg(cbo.ItemTextAt(i)).arg(cbo.ItemKey(i));
        }
        return items;
    }
    QString sichtbareRahmen() {
        QStringList an;
        for (int i : {1, 5, 2}) {
            if (f().fraFrame(i).Visible()) {
                an << QString::number(i);
            }
        }
        return an.join(QLatin1Char(','));
    }
};

TEST_F(Recurrence, DefaultsOpenWeeklyOnSundayOnceADayWithoutEnd) {
    oeffnenMitStandard();
    EXPECT_EQ(f().window().Caption(),
              QStringLiteral("Zeitplan für wiederkehrende Aufträge bearbeiten"));
    EXPECT_EQ(f().lblLabel(frmZeitIntervall::Lbl::Auftragsname).Caption(),
              QStringLiteral("Auftragsname:   Zeitplan01"));
    EXPECT_TRUE(f().optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Woechentlich).Value());
    EXPECT_EQ(sichtbareRahmen(), QStringLiteral("5"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::WochenAlle).Key(), 1);
    EXPECT_EQ(A::wochentage(a()), 1);
    EXPECT_EQ(f().chkCheckBox(6).Value(), 1);
    EXPECT_TRUE(f().optHaeufigkeit(frmZeitIntervall::Haeufigkeit::EinmaligUm).Value());
    EXPECT_EQ(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Text(),
              QStringLiteral("00:00:00"));
    EXPECT_EQ(f().ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).Text(),
              QStringLiteral("00:00:00"));
    EXPECT_EQ(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EndetUm).Text(), QStringLiteral("23:59:00"));
    EXPECT_TRUE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Enabled());
    EXPECT_FALSE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).Enabled());
    EXPECT_FALSE(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Enabled());
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeEinheit).Key(), 8);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).ItemCount(), 24);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Key(), 1);
    EXPECT_TRUE(f().optEnddatum(frmZeitIntervall::Enddatum::Ohne).Value());
    EXPECT_FALSE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Enabled());
    EXPECT_EQ(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Value(), QDate(2026, 11, 22));
    EXPECT_EQ(f().ctlDatePicker(frmZeitIntervall::Datum::Anfang).Value(), QDate(2026, 11, 22));
    // Loading moves no focus.
    EXPECT_FALSE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Focused());
    EXPECT_FALSE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Focused());
}

TEST_F(Recurrence, ConfirmedDefaultsLoseTheSecondsOfTheEndTime) {
    oeffnenMitStandard();
    ok();
    EXPECT_FALSE(offen());
    EXPECT_EQ(felder(record()),
              QStringLiteral("8 1 1 0 1 1 0-235900 2026-11-22T00:00:00..9999-12-31T00:00:00 "
                             "Zeitplan01"));
    // The dialog leaves the times as digit text.
    EXPECT_EQ(record().pvActiveEndTimeOfDay.toString(), QStringLiteral("235900"));
    EXPECT_EQ(record().pvActiveStartTimeOfDay.toString(), QStringLiteral("000000"));
    EXPECT_TRUE(w.boxTexts().isEmpty());
}

TEST_F(Recurrence, EveryFrequencyAndFormOfTheDayComesBackUnchanged) {
    const QDateTime von = tag(2026, 11, 1);
    const QDateTime ohne = keinEndDatum();
    const cSchedule faelle[] = {
        satz(4, 3, 0, 0, 1, 1, 93000, 235900, von, ohne),
        satz(4, 366, 0, 0, 4, 1440, 80000, 170000, von, tag(2027, 1, 31)),
        satz(4, 1, 0, 0, 4, 30, 80000, 170000, von, von),
        satz(8, 42, 2, 0, 8, 2, 60000, 200000, von, ohne),
        satz(8, 127, 52, 0, 1, 1, 0, 235900, von, tag(2026, 12, 24)),
        satz(16, 15, 1, 0, 1, 1, 223000, 235900, von, ohne),
        satz(16, 31, 99, 0, 8, 24, 100, 2300, von, ohne),
        satz(32, 3, 2, 2, 1, 1, 120000, 235900, von, ohne),
        satz(32, 10, 99, 16, 4, 15, 0, 100, von, tag(2027, 6, 30)),
        satz(32, 1, 1, 1, 8, 1, 0, 235900, von, ohne),
    };
    for (const cSchedule& s : faelle) {
        SCOPED_TRACE(felder(s).toStdString());
        oeffnen(s);
        ok();
        ASSERT_FALSE(offen());
        EXPECT_EQ(felder(record()), felder(s));
    }
}

TEST_F(Recurrence, EachTypeShowsItsFrameAndMonthlyFormsEnableTheirCombos) {
    oeffnen(satz(4, 3, 0, 0, 1, 1, 0, 235900, tag(2026, 11, 1), keinEndDatum()));
    EXPECT_EQ(sichtbareRahmen(), QStringLiteral("1"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::TageAlle).Key(), 3);

    oeffnen(satz(16, 15, 2, 0, 1, 1, 223000, 235900, tag(2026, 11, 1), tag(2027, 1, 1)));
    EXPECT_EQ(sichtbareRahmen(), QStringLiteral("2"));
    EXPECT_TRUE(f().optMonatlich(frmZeitIntervall::Monatlich::Tag).Value());
    EXPECT_TRUE(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Enabled());
    EXPECT_FALSE(f().cboComboBox(frmZeitIntervall::Cbo::AmErster).Enabled());
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmWochentag).Key(), -1);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmMonateAlle).ItemCount(), 99);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmErster).Key(), -1);
    EXPECT_TRUE(f().optEnddatum(frmZeitIntervall::Enddatum::Mit).Value());
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Enabled());
    EXPECT_EQ(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Value(), QDate(2027, 1, 1));
    EXPECT_FALSE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Focused());
    EXPECT_FALSE(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Focused());
    // The monthly option again: already chosen, nothing changes.
    c("optHaeufigkeit", 2).userClick();
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Key(), 15);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonateAlle).Key(), 2);

    oeffnen(satz(32, 9, 3, 16, 1, 1, 70000, 235900, tag(2026, 11, 1), keinEndDatum()));
    EXPECT_TRUE(f().optMonatlich(frmZeitIntervall::Monatlich::Am).Value());
    EXPECT_FALSE(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Enabled());
    EXPECT_FALSE(f().lblLabel(frmZeitIntervall::Lbl::MonateTag).Enabled());
    EXPECT_TRUE(f().lblLabel(frmZeitIntervall::Lbl::MonateAm).Enabled());
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmErster).ItemText(),
              QStringLiteral("Letzter"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmWochentag).ItemText(),
              QStringLiteral("Wochentag"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmMonateAlle).Key(), 3);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Key(), -1);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonateAlle).Key(), -1);
    EXPECT_EQ(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Text(),
              QStringLiteral("07:00:00"));
}

TEST_F(Recurrence, CombosOfferTheirFullRanges) {
    oeffnenMitStandard();
    EXPECT_EQ(liste(7), (QStringList{"Minute(n)=4", "Stunde(n)=8"}));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::WochenAlle).ItemCount(), 52);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::WochenAlle).ItemTextAt(51),
              QStringLiteral("52"));

    c("optHaeufigkeit", 0).userClick();
    EXPECT_EQ(sichtbareRahmen(), QStringLiteral("1"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::TageAlle).ItemCount(), 366);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::TageAlle).ItemTextAt(0), QStringLiteral("1"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::TageAlle).ItemKey(365), 366);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::TageAlle).Key(), 1);

    c("optHaeufigkeit", 2).userClick();
    EXPECT_EQ(sichtbareRahmen(), QStringLiteral("2"));
    EXPECT_TRUE(f().optMonatlich(frmZeitIntervall::Monatlich::Tag).Value());
    EXPECT_TRUE(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).Focused());
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonatTag).ItemCount(), 31);
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::MonateAlle).ItemKey(98), 99);
    EXPECT_EQ(liste(3), (QStringList{"1.=1", "2.=2", "3.=4", "4.=8", "Letzter=16"}));
    EXPECT_EQ(liste(4),
              (QStringList{"Sonntag=1", "Montag=2", "Dienstag=3", "Mittwoch=4", "Donnerstag=5",
                           "Freitag=6", "Samstag=7", "Tag=8", "Wochentag=9", "Wochenendtag=10"}));

    // The second form with no change: "1.", "Sonntag" and every month.
    c("optMonatlich", 1).userClick();
    EXPECT_TRUE(f().cboComboBox(frmZeitIntervall::Cbo::AmErster).Focused());
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmErster).ItemText(), QStringLiteral("1."));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmWochentag).ItemText(),
              QStringLiteral("Sonntag"));
    EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::AmMonateAlle).Key(), 1);
    ok();
    EXPECT_EQ(felder(record()).section(QLatin1Char(' '), 0, 5), QStringLiteral("32 1 1 1 1 1"));
}

TEST_F(Recurrence, ChangingTheUnitKeepsOnlyIntervalsBelow25) {
    struct Fall {
        std::int32_t einheit;
        std::int32_t intervall;
        long neueEinheit;
        int anzahl;
        long bleibt;
    };
    const Fall faelle[] = {
        {4, 90, 8, 24, 1}, {4, 12, 8, 24, 12},  {4, 24, 8, 24, 24},
        {4, 25, 8, 24, 1}, {4, 30, 4, 1440, 1}, {8, 20, 4, 1440, 20},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(QStringLiteral("%1/%2").arg(fall.einheit).arg(fall.intervall).toStdString());
        oeffnen(satz(4, 1, 0, 0, fall.einheit, fall.intervall, 80000, 170000, tag(2026, 11, 1),
                     keinEndDatum()));
        EXPECT_TRUE(f().optHaeufigkeit(frmZeitIntervall::Haeufigkeit::Jede).Value());
        EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Key(), fall.intervall);
        c("cboComboBox", 7).userSelect(fall.neueEinheit);
        EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).ItemCount(), fall.anzahl);
        EXPECT_EQ(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Key(), fall.bleibt);
        c("cmdCommandButton", 1).userClick();
    }
}

TEST_F(Recurrence, OnceADayAfterRepeatingKeepsTheIntervalOnShow) {
    oeffnen(satz(4, 1, 0, 0, 4, 10, 80000, 170000, tag(2026, 11, 1), keinEndDatum()));
    c("optHaeufigkeit", 3).userClick();
    EXPECT_TRUE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Focused());
    EXPECT_FALSE(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Enabled());
    c("ctlMaskEdBox", 0).userTime(QStringLiteral("06:15"));
    ok();
    EXPECT_EQ(record().plFrequencySubDay, 1);
    EXPECT_EQ(record().plFrequencySubDayIntervall, 10);
    EXPECT_EQ(zeitAlsZahl(record().pvActiveStartTimeOfDay), 61500);
    EXPECT_EQ(zeitAlsZahl(record().pvActiveEndTimeOfDay), 170000);
}

TEST_F(Recurrence, RepeatingTakesItsStartFromStartetUm) {
    oeffnenMitStandard();
    c("optHaeufigkeit", 4).userClick();
    EXPECT_TRUE(f().cboComboBox(frmZeitIntervall::Cbo::JedeAnzahl).Focused());
    EXPECT_FALSE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::EinmaligUm).Enabled());
    c("cboComboBox", 7).userSelect(4);
    c("cboComboBox", 6).userSelect(45);
    c("ctlMaskEdBox", 1).userTime(QStringLiteral("07:30"));
    c("ctlMaskEdBox", 2).userTime(QStringLiteral("18:05"));
    ok();
    EXPECT_EQ(felder(record()).section(QLatin1Char(' '), 0, 6),
              QStringLiteral("8 1 1 0 4 45 73000-180500"));
}

TEST_F(Recurrence, WeekdayTicksCountOnlyForWeekly) {
    oeffnenMitStandard();
    c("chkCheckBox", 6).userCheck(0);
    c("chkCheckBox", 0).userCheck(1);
    c("chkCheckBox", 4).userCheck(1);
    EXPECT_EQ(A::wochentage(a()), 2 + 32);
    A::setzeWochentage(a(), 1 + 8 + 64);
    EXPECT_EQ(f().chkCheckBox(6).Value(), 1);
    EXPECT_EQ(f().chkCheckBox(2).Value(), 1);
    EXPECT_EQ(f().chkCheckBox(5).Value(), 1);
    EXPECT_EQ(f().chkCheckBox(0).Value(), 0);

    A::setzeWochentage(a(), 0);
    ok();
    EXPECT_EQ(w.boxTexts(), QStringList{"Bitte wählen Sie mindestens einen Wochentag aus."});
    EXPECT_EQ(w.ui->boxes.back().flags, 64);
    EXPECT_TRUE(offen());
    EXPECT_TRUE(f().chkCheckBox(0).Focused());

    // Daily: the empty ticks in the hidden frame mean nothing.
    c("optHaeufigkeit", 0).userClick();
    ok();
    EXPECT_FALSE(offen());
    EXPECT_EQ(record().plFrequencyType, 4);
    EXPECT_EQ(record().plFrequencyIntervall, 1);
}

TEST_F(Recurrence, ChecksComeInTheirOrderWithTheirFocus) {
    oeffnenMitStandard();
    c("optEnddatum", 0).userClick();
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Enabled());
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Focused());

    // One day early: refused, the focus on the start date. A wrong time waits behind it.
    c("ctlDatePicker", 1).userDate(QDate(2026, 11, 21));
    c("ctlMaskEdBox", 0).userTime(QStringLiteral("__:__"));
    A::setzeWochentage(a(), 0);
    EXPECT_EQ(A::pruefen(a()),
              QStringLiteral("Das Enddatum muss grösser sein als das Anfangsdaum."));
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Anfang).Focused());

    c("ctlDatePicker", 1).userDate(QDate(9999, 12, 31));
    EXPECT_EQ(A::pruefen(a()), QStringLiteral("Bitte geben Sie ein korrektes Datum ein."));
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Focused());

    // Equal days pass; the start date of no end is refused.
    c("ctlDatePicker", 1).userDate(QDate(2026, 11, 22));
    c("optEnddatum", 1).userClick();
    EXPECT_FALSE(f().ctlDatePicker(frmZeitIntervall::Datum::Ende).Enabled());
    c("ctlDatePicker", 0).userDate(QDate(9999, 12, 31));
    EXPECT_EQ(A::pruefen(a()), QStringLiteral("Bitte geben Sie ein korrektes Datum ein."));
    EXPECT_TRUE(f().ctlDatePicker(frmZeitIntervall::Datum::Anfang).Focused());
    c("ctlDatePicker", 0).userDate(QDate(2026, 11, 22));

    // A wrong time in any box sends the focus to "Startet um", even a disabled box's.
    EXPECT_EQ(A::pruefen(a()), QStringLiteral("Bitte geben Sie eine korrekte Zeit ein."));
    EXPECT_TRUE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).Focused());
    c("ctlMaskEdBox", 0).userTime(QStringLiteral("_5:30"));
    c("optHaeufigkeit", 4).userClick();
    c("ctlMaskEdBox", 2).userTime(QStringLiteral("3_:00"));
    EXPECT_EQ(A::pruefen(a()), QStringLiteral("Bitte geben Sie eine korrekte Zeit ein."));
    EXPECT_TRUE(f().ctlMaskEdBox(frmZeitIntervall::Zeit::StartetUm).Focused());
    c("ctlMaskEdBox", 2).userTime(QStringLiteral("23:00"));
    c("optHaeufigkeit", 3).userClick();
    EXPECT_EQ(A::pruefen(a()), QStringLiteral("Bitte wählen Sie mindestens einen Wochentag aus."));
    EXPECT_TRUE(f().chkCheckBox(0).Focused());

    c("chkCheckBox", 1).userCheck(1);
    EXPECT_EQ(A::pruefen(a()), QString());
    c("optEnddatum", 0).userClick();
    ok();
    EXPECT_FALSE(offen());
    EXPECT_EQ(record().pdtActiveEndDate, tag(2026, 11, 22));
    EXPECT_EQ(record().plFrequencyIntervall, 4);
}

TEST_F(Recurrence, CancelKeepsTheRecordAndBothButtonsRewriteTheDescription) {
    auto zeitplan =
        std::make_shared<frmZeitplan>(services().windows->create(frmZeitplan::declaration()));
    zeitplan->lblLabel(frmZeitplan::Lbl::Intervall).setCaption(kStandardIntervallText);
    A::zeitplan(a()) = zeitplan;

    oeffnenMitStandard();
    const QString vorher = felder(record());
    c("optHaeufigkeit", 0).userClick();
    c("cmdCommandButton", 1).userClick();
    EXPECT_FALSE(offen());
    EXPECT_EQ(felder(record()), vorher);
    EXPECT_EQ(zeitplan->lblLabel(frmZeitplan::Lbl::Intervall).Caption(),
              QStringLiteral("Jede 1. Woche am Sonntag, um 00:00:00"));

    A::oeffnen(a());
    c("optHaeufigkeit", 0).userClick();
    c("cboComboBox", 0).userSelect(3);
    c("ctlMaskEdBox", 0).userTime(QStringLiteral("09:30"));
    ok();
    EXPECT_EQ(zeitplan->lblLabel(frmZeitplan::Lbl::Intervall).Caption(),
              QStringLiteral("Jeden 3. Tag, um 09:30:00"));
    A::zeitplan(a()).reset();
}

}  // namespace
