#include <gtest/gtest.h>

#include "headless/HeadlessGrid.h"
#include "tests/app/AppTestWorld.h"

// The private parts of the controller that the schedule rows and their grid touch.
class SchedulePersistenceTestAccess {
  public:
    static IGrid*& grid(cAdminJob& a) { return a.moGridZeitplan; }
    static std::shared_ptr<frmEigenschaften>& form(cAdminJob& a) { return a.mofrmEigenschaften; }
    static long& jobId(cAdminJob& a) { return a.mlJobId; }
    static long& jobIdKopiert(cAdminJob& a) { return a.mlJobIdKopiert; }
    static long& zeitplanId(cAdminJob& a) { return a.mlZeitplanId; }
    static std::unique_ptr<cSchedule>& schedule(cAdminJob& a) { return a.moSchedule; }
    static void initGrid(cAdminJob& a) { a.mInitGridZeitplan(); }
    static void fuelleGrid(cAdminJob& a) { a.mFuelleGridZeitplan(); }
    static void speichern(cAdminJob& a, long lId, long lJobId, cSchedule& o) {
        a.mZeitplanSpeichern(lId, lJobId, o);
    }
    static void einfuegen(cAdminJob& a, long lJobIdNeu) { a.mZeitplanEinfuegen(lJobIdNeu); }
    static void auftragEinfuegen(cAdminJob& a) { a.mAuftragEinfuegen(); }
    static void loesche(cAdminJob& a) { a.mLoescheZeitplan(); }
    static void keyDown(cAdminJob& a, int iKeyCode) { a.moGridZeitplan_KeyDown(iKeyCode); }
};

namespace {

using app_test::World;
using A = SchedulePersistenceTestAccess;

const QString kJetzt = QStringLiteral("2026-11-22 10:00:00");

class SchedulePersistence : public ::testing::Test {
  protected:
    World w;
    std::shared_ptr<frmEigenschaften> form;

    void SetUp() override {
        w.start();
        form = std::make_shared<frmEigenschaften>(
            services().windows->create(frmEigenschaften::declaration()));
        A::form(admin()) = form;
        A::grid(admin()) = &form->grdZeitplan();
    }
    void TearDown() override {
        A::grid(admin()) = nullptr;
        A::form(admin()) = nullptr;
    }

    cAdminJob& admin() { return w.admin(); }
    IGrid& grid() { return form->grdZeitplan(); }

    // A schedule row from "id, job, name, active, type, interval, factor, relative, sub-day
    // unit, sub-day interval, start time, end time, start date, end date"; the names set the
    // order in which the table gives the rows of a job.
    void zeitplan(const char* werte) {
        w.db->runScript(
            QStringLiteral("INSERT INTO tAutoJobSchedule (idAutoJobSchedule, idAutoJob, Name, "
                           "Aktiviert, FreqencyType, FrequencyInterval, FrequencyRecurrenceFactor, "
                           "FrequencyRelativeInterval, FrequencySubDay, FrequencySubDayinterval, "
                           "ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, "
                           "ActiveEndDate, LetzteAenderung, Ps_Id) VALUES (%1, "
                           "'2020-01-01 08:00:00', 9)")
                .arg(QString::fromUtf8(werte)));
    }
    void taeglich(int id, int job, const char* name) {
        zeitplan(QStringLiteral("%1, %2, '%3', 1, 4, 1, 0, 0, 1, 1, 0, 235959, "
                                "'2026-11-15 00:00:00', '9999-12-31 00:00:00'")
                     .arg(id)
                     .arg(job)
                     .arg(QString::fromUtf8(name))
                     .toUtf8()
                     .constData());
    }

    QString spalte(long lId, const char* sSpalte) {
        return w.scalar(
            QStringLiteral("SELECT %1 FROM tAutoJobSchedule WHERE idAutoJobSchedule = %2")
                .arg(QString::fromUtf8(sSpalte))
                .arg(lId));
    }
    int zeilen() {
        return w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule")).toInt();
    }
    // Every schedule column of a job's rows, in the order of their names.
    QString werteDesJobs(long lJobId) {
        return w.scalar(
            QStringLiteral(
                "SELECT group_concat(v, ' / ') FROM (SELECT Name || '|' || Aktiviert || '|' || "
                "FreqencyType || '|' || FrequencyRecurrenceFactor || '|' || FrequencyInterval || "
                "'|' || FrequencyRelativeInterval || '|' || FrequencySubDayinterval || '|' || "
                "FrequencySubDay || '|' || ActiveStartTimeOfDay || '|' || ActiveEndTimeOfDay || "
                "'|' || ActiveStartDate || '|' || ActiveEndDate AS v FROM tAutoJobSchedule "
                "WHERE idAutoJob = %1 ORDER BY Name)")
                .arg(lJobId));
    }

    void zeigeJob(long lJobId) {
        A::jobId(admin()) = lJobId;
        A::initGrid(admin());
        A::fuelleGrid(admin());
    }
    QStringList zeile(int r) {
        QStringList cells;
        for (int c = 0; c < grid().Cols(); ++c) {
            cells << grid().TextMatrix(r, c);
        }
        return cells;
    }
};

TEST_F(SchedulePersistence, EachScheduleOfTheJobIsDescribedInItsRow) {
    zeitplan(
        "11, 5, 'a', 1, 2, 0, 0, 0, 1, 0, 0, 235959, '2026-11-15 00:00:00', '9999-12-31 00:00:00'");
    zeitplan(
        "12, 5, 'b', 1, 1, 0, 0, 0, 1, 0, 143000, 235959, '2026-11-15 00:00:00', '2026-11-15 "
        "00:00:00'");
    zeitplan(
        "13, 5, 'c', 0, 64, 0, 0, 0, 1, 0, 0, 235959, '2026-11-15 00:00:00', '9999-12-31 "
        "00:00:00'");
    zeitplan(
        "14, 5, 'd', 0, 8, 42, 2, 0, 8, 2, 60000, 200000, '2026-11-15 00:00:00', '9999-12-31 "
        "00:00:00'");
    zeitplan(
        "15, 5, 'e', 1, 1, 0, 0, 0, 1, 0, NULL, NULL, '2026-03-01 00:00:00', '2026-03-01 "
        "00:00:00'");
    taeglich(16, 6, "anderer Job");

    zeigeJob(5);

    EXPECT_EQ(grid().FixedRows(), 1);
    EXPECT_EQ(grid().FixedCols(), 0);
    EXPECT_EQ(zeile(0), (QStringList{"Name", "Aktiviert", "Beschreibung", "ScheduleID"}));
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(dynamic_cast<HeadlessGrid&>(grid()).ColFormatAlignment(c), QLatin1Char('^'));
    }
    EXPECT_EQ(grid().ColWidth(0), 2000);
    EXPECT_EQ(grid().ColWidth(1), 1000);
    EXPECT_TRUE(grid().ColHidden(3));
    ASSERT_EQ(grid().Rows(), 6);
    // An unknown type shows nothing as first row, else the text of the row before.
    EXPECT_EQ(zeile(1), (QStringList{"a", "Ja", "", "11"}));
    EXPECT_EQ(zeile(2), (QStringList{"b", "Ja", "Starten am 15.11.2026 14:30:00", "12"}));
    EXPECT_EQ(zeile(3), (QStringList{"c", "Nein", "Starten am 15.11.2026 14:30:00", "13"}));
    EXPECT_EQ(zeile(4), (QStringList{"d", "Nein",
                                     "Jede 2. Woche am Montag, Mittwoch, Freitag, alle 2 "
                                     "Stunde(n)  zwischen 06:00:00 und 20:00:00",
                                     "14"}));
    // A time of NULL reads as empty text, and so shows nothing behind the blank.
    EXPECT_EQ(zeile(5), (QStringList{"e", "Ja", "Starten am 01.03.2026 ", "15"}));
    EXPECT_EQ(A::schedule(admin()), nullptr);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(SchedulePersistence, AJobWithoutIdListsNothingEvenWhenRowsCarryItsId) {
    taeglich(1, -1, "gehört keinem Job");
    taeglich(2, 5, "alt");
    zeigeJob(5);
    ASSERT_EQ(grid().Rows(), 2);

    zeigeJob(-1);
    EXPECT_EQ(grid().Rows(), 1);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(SchedulePersistence, ANewScheduleIsStoredColumnByColumn) {
    cSchedule o;
    o.psName = QStringLiteral("Nachts");
    o.pbyAktiviert = 1;
    o.plFrequencyType = 32;
    o.plFrequencyRecurreFactor = 3;
    o.plFrequencyIntervall = 8;
    o.plFrequencyRelativeIntervall = 1;
    o.plFrequencySubDayIntervall = 15;
    o.plFrequencySubDay = 4;
    o.pvActiveStartTimeOfDay = QStringLiteral("1530");  // digit text, as the dialog leaves it
    o.pvActiveEndTimeOfDay = 100;
    o.pdtActiveStartDate = QDateTime(QDate(2026, 11, 15), QTime(17, 45, 12));
    o.pdtActiveEndDate = QDateTime(QDate(9999, 12, 31), QTime(0, 0));

    A::speichern(admin(), -1, 5, o);

    ASSERT_EQ(zeilen(), 1);
    // The time of day of the start date is dropped; the end date went in as day 2958465.
    EXPECT_EQ(werteDesJobs(5),
              "Nachts|1|32|3|8|1|15|4|1530|100|2026-11-15 00:00:00|9999-12-31 00:00:00");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT LetzteAenderung || '|' || Ps_Id FROM "
                                      "tAutoJobSchedule")),
              kJetzt + "|1");

    // The same id again overwrites the row, also its job; id 0 adds one.
    const long id =
        w.scalar(QStringLiteral("SELECT idAutoJobSchedule FROM tAutoJobSchedule")).toLong();
    w.clock->set(QDateTime(QDate(2026, 12, 1), QTime(9, 15, 30)));
    o.plFrequencyType = 1;
    o.pdtActiveEndDate = QDateTime(QDate(2027, 1, 4), QTime(0, 0));
    A::speichern(admin(), id, 6, o);
    EXPECT_EQ(zeilen(), 1);
    EXPECT_EQ(werteDesJobs(6),
              "Nachts|1|1|3|8|1|15|4|1530|100|2026-11-15 00:00:00|2027-01-04 00:00:00");
    EXPECT_EQ(spalte(id, "LetzteAenderung"), "2026-12-01 09:15:30");
    A::speichern(admin(), 0, 6, o);
    EXPECT_EQ(zeilen(), 2);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(SchedulePersistence, AScheduleWithoutNameStoresTheEmptyTextNotNull) {
    cSchedule o;
    A::speichern(admin(), -1, 5, o);
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT typeof(Name) FROM tAutoJobSchedule")), "text");
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule WHERE Name = ''")),
              "1");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(SchedulePersistence, ATimeThatIsNoNumberWritesNothing) {
    taeglich(4, 5, "alt");
    const QString vorher = werteDesJobs(5);
    cSchedule o;
    o.psName = QStringLiteral("kaputt");
    o.pvActiveStartTimeOfDay = QStringLiteral("14:30");

    A::speichern(admin(), 4, 5, o);
    A::speichern(admin(), -1, 5, o);

    EXPECT_EQ(werteDesJobs(5), vorher);
    EXPECT_EQ(zeilen(), 1);
    EXPECT_EQ(w.errorSources(),
              (QStringList{"ZPKyAutoJobVerw.cAdminJob.mZeitplanSpeichern: Typen unverträglich",
                           "ZPKyAutoJobVerw.cAdminJob.mZeitplanSpeichern: Typen unverträglich"}));
}

TEST_F(SchedulePersistence, PastingRepeatsEverySchedulesValuesOnTheNewJob) {
    zeitplan(
        "1, 5, 'a', 1, 8, 42, 2, 0, 8, 2, 60000, 200000, '2026-01-05 00:00:00', '9999-12-31 "
        "00:00:00'");
    zeitplan(
        "2, 5, 'b', 0, 32, 3, 2, 2, 1, 1, 120000, 235959, '2026-02-01 00:00:00', '2027-06-30 "
        "00:00:00'");
    taeglich(3, 6, "fremd");
    const QString quelle = werteDesJobs(5);

    A::jobIdKopiert(admin()) = 0;
    A::einfuegen(admin(), 12);
    A::jobIdKopiert(admin()) = 7;  // a job without schedules
    A::einfuegen(admin(), 12);
    EXPECT_EQ(zeilen(), 3);

    A::jobIdKopiert(admin()) = 5;
    A::einfuegen(admin(), 12);

    EXPECT_EQ(zeilen(), 5);
    EXPECT_EQ(werteDesJobs(12), quelle);
    EXPECT_EQ(werteDesJobs(5), quelle);
    EXPECT_EQ(w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule WHERE idAutoJob = 12 "
                                      "AND idAutoJobSchedule > 3 AND LetzteAenderung = '%1' "
                                      "AND Ps_Id = 1")
                           .arg(kJetzt)),
              "2");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(SchedulePersistence, APastedJobTakesTheSchedulesOfItsSource) {
    w.job(5, "Quelle");
    taeglich(1, 5, "a");
    A::jobIdKopiert(admin()) = 5;

    A::auftragEinfuegen(admin());

    const QString neu = w.scalar(QStringLiteral("SELECT max(idAutoJob) FROM tAutoJobJob"));
    ASSERT_NE(neu, "5");
    EXPECT_EQ(werteDesJobs(neu.toLong()), werteDesJobs(5));
}

class ScheduleDeletion : public SchedulePersistence {
  protected:
    void SetUp() override {
        SchedulePersistence::SetUp();
        taeglich(21, 5, "a");
        taeglich(22, 5, "b");
        taeglich(23, 5, "c");
        zeigeJob(5);
    }
    QStringList ids() {
        QStringList l;
        for (int r = 1; r < grid().Rows(); ++r) {
            l << grid().TextMatrix(r, 3);
        }
        return l;
    }
};

TEST_F(ScheduleDeletion, NoKeepsTheRowYesDeletesItTheCursorEndsOnTheLastRow) {
    grid().setRow(1);
    w.ui->answers = {MsgAnswer::No};
    A::loesche(admin());

    ASSERT_EQ(w.ui->boxes.size(), 1U);
    EXPECT_EQ(w.ui->boxes[0].text, "Zeitplan löschen?");
    EXPECT_EQ(w.ui->boxes[0].flags, 4);
    EXPECT_EQ(w.ui->boxes[0].title, app_test::kTitel);
    EXPECT_EQ(ids(), (QStringList{"21", "22", "23"}));
    EXPECT_EQ(grid().Row(), 3);

    grid().setRow(2);
    w.ui->answers = {MsgAnswer::Yes};
    A::loesche(admin());
    EXPECT_EQ(ids(), (QStringList{"21", "23"}));
    EXPECT_EQ(spalte(22, "count(*)"), "0");
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(ScheduleDeletion, TheDeleteKeyDeletesAfterTheQuestionOtherKeysDoNothing) {
    grid().setRow(3);
    A::keyDown(admin(), KeyCode::Return);
    EXPECT_TRUE(w.ui->boxes.empty());

    w.ui->answers = {MsgAnswer::Yes};
    A::keyDown(admin(), KeyCode::Delete);
    EXPECT_EQ(w.ui->boxes.size(), 1U);
    EXPECT_EQ(ids(), (QStringList{"21", "22"}));

    grid().setRow(0);
    A::keyDown(admin(), KeyCode::Delete);
    EXPECT_EQ(w.ui->boxes.size(), 1U);
    EXPECT_EQ(zeilen(), 2);
}

TEST_F(ScheduleDeletion, DeletingTheLastScheduleLeavesTheCursorOnTheHeading) {
    w.sql("DELETE FROM tAutoJobSchedule WHERE idAutoJobSchedule <> 22");
    zeigeJob(5);
    grid().setRow(1);
    w.ui->answers = {MsgAnswer::Yes};

    A::loesche(admin());

    EXPECT_EQ(grid().Rows(), 1);
    EXPECT_EQ(grid().Row(), 0);
    EXPECT_EQ(zeilen(), 0);
}

}  // namespace
