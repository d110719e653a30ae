// "Ausführungsplan" of all jobs: clients and job types, overlaps of one client across job
// types, what is not active counted, the filters and the limit of the list.
#include <gtest/gtest.h>

#include "common/ErrObject.h"
#include "forecast/cAusfuehrungsplan.h"
#include "tests/app/AppTestWorld.h"
#include "tests/logdata/LogDatenTestKit.h"
#include "ui/Grid.h"
#include "ui/windows/frmAusfuehrungsplan.h"

namespace {

using P = frmAusfuehrungsplan;

class PlanWindow : public ::testing::Test {
  protected:
    void SetUp() override {
        driver.world = &world;
        world.windows->setModalDriver(&driver);
        world.clock->set(QDateTime(QDate(2026, 11, 18), QTime(10, 0)));
        world.sql(
            "INSERT INTO tAutoJobJob (idAutoJob, Name, Aktiviert, DatenArt, MandKanz, "
            "Ps_Id_Mandant, Ps_Id_Mitarbeiter) VALUES (1, 'Kunden', 1, 17, 3, 0, 1), "
            "(2, 'Lieferanten', 1, 18, 3, 0, 1), (3, 'Kanzlei', 1, 17, 4, 0, 1), "
            "(4, 'Ruht', 0, 17, 3, 0, 1)");
        schedule(1, "Früh", 1, 80000);
        schedule(2, "Später", 1, 81000);
        schedule(3, "Kanzlei früh", 1, 80500);
        schedule(1, "Mittags", 0, 120000);
        schedule(4, "Ruhend", 1, 90000);
    }

    // Every day from the first of November at that time.
    void schedule(int job, const char* name, int aktiv, int zeit, int einheit = 1,
                  int intervall = 1) {
        world.db->runScript(
            QStringLiteral(
                "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
                "FrequencyInterval, FrequencyRecurrenceFactor, FrequencyRelativeInterval, "
                "FrequencySubDay, FrequencySubDayinterval, ActiveStartTimeOfDay, "
                "ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate) VALUES (%1, '%2', %3, 4, 1, "
                "0, 0, %4, %5, %6, 235900, '2026-11-01 00:00:00', '9999-12-31 00:00:00')")
                .arg(job)
                .arg(QString::fromUtf8(name))
                .arg(aktiv)
                .arg(einheit)
                .arg(intervall)
                .arg(zeit));
    }

    // Opens the plan of all jobs; step plays the user while it is open.
    void open(const std::function<void(HeadlessWindow&)>& step) {
        int shown = 0;
        driver.steps[QStringLiteral("frmAusfuehrungsplan")] = [&](HeadlessWindow& w) {
            ++shown;
            step(w);
        };
        cAusfuehrungsplan().zeigen(0);
        EXPECT_EQ(shown, 1);
        EXPECT_TRUE(world.ui->reports.empty());
    }

    static IGrid& grid(HeadlessWindow& w) {
        return dynamic_cast<IGrid&>(*w.headlessControl(QStringLiteral("grdPlan"), -1));
    }
    static QString summe(HeadlessWindow& w) {
        return dynamic_cast<ILabel&>(*w.headlessControl(QStringLiteral("lblLabel"), P::Lbl::Summe))
            .Caption();
    }
    static QStringList row(HeadlessWindow& w, int r) {
        QStringList cells;
        for (int c = 0; c < 5; ++c) {
            cells << grid(w).TextMatrix(r, c);
        }
        return cells;
    }
    static void pick(HeadlessWindow& w, int combo, long key) {
        w.headlessControl(QStringLiteral("cboComboBox"), combo)->userSelect(key);
    }

    app_test::World world;
    logdaten_test::Driver driver;
};

TEST_F(PlanWindow, AWeekOfAllJobsWithOverlapsOfOneClient) {
    open([](HeadlessWindow& w) {
        EXPECT_EQ(w.Caption(), QStringLiteral("Ausführungsplan"));
        ASSERT_EQ(grid(w).Rows(), 22);
        EXPECT_EQ(row(w, 0),
                  (QStringList{"Start", "Auftrag", "Zeitplan", "Mandant/Kanzlei", "Hinweis"}));
        EXPECT_EQ(row(w, 1), (QStringList{"Mo 16.11.2026 08:00", "Kunden", "Früh", "Alle Mandanten",
                                          "Überschneidung"}));
        // The office's start between them is another client's.
        EXPECT_EQ(row(w, 2), (QStringList{"Mo 16.11.2026 08:05", "Kanzlei", "Kanzlei früh",
                                          "Alle Kanzleien", ""}));
        EXPECT_EQ(row(w, 3), (QStringList{"Mo 16.11.2026 08:10", "Lieferanten", "Später",
                                          "Alle Mandanten", "Überschneidung"}));
        EXPECT_EQ(row(w, 21)[0], QStringLiteral("So 22.11.2026 08:10"));
        EXPECT_EQ(summe(w), QStringLiteral("21 Starts. Nicht aktiv und nicht berücksichtigt: "
                                           "1 Auftrag, 1 Zeitplan."));

        // Only the offices.
        pick(w, P::Cbo::Mandant, 0);
        EXPECT_EQ(grid(w).Rows(), 8);
        EXPECT_EQ(row(w, 1)[1], QStringLiteral("Kanzlei"));
        EXPECT_EQ(summe(w).left(8), QStringLiteral("7 Starts"));
        // All clients, suppliers only: the overlap with the customers' start stays marked.
        pick(w, P::Cbo::Mandant, -1);
        pick(w, P::Cbo::Auftragsart, 18);
        EXPECT_EQ(grid(w).Rows(), 8);
        EXPECT_EQ(row(w, 1), (QStringList{"Mo 16.11.2026 08:10", "Lieferanten", "Später",
                                          "Alle Mandanten", "Überschneidung"}));
    });
}

TEST_F(PlanWindow, ALongListShowsItsFirstRowsAndSaysHowManyThereAre) {
    schedule(3, "Minütlich", 1, 0, 4, 1);
    open([](HeadlessWindow& w) {
        pick(w, P::Cbo::Zeitraum, 1);  // today: 1440 starts every minute and three more
        EXPECT_EQ(grid(w).Rows(), 1444);
        pick(w, P::Cbo::Zeitraum, 7);
        EXPECT_EQ(grid(w).Rows(), cAusfuehrungsplan::kHoechstens + 1);
        EXPECT_TRUE(summe(w).startsWith(QStringLiteral("10101 Starts, gezeigt die ersten 2000.")))
            << summe(w).toStdString();
    });
}

}  // namespace
