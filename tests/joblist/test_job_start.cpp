#include <gtest/gtest.h>

#include "tests/app/AppTestWorld.h"

namespace {

using app_test::kProgrammDir;
using app_test::kTitel;
using app_test::World;

const QString kStarter = kProgrammDir + "ZPKyJobStart.exe";

class JobStart : public ::testing::Test {
  protected:
    World w;

    void SetUp() override {
        w.fileSystem->files.insert(kStarter);
        w.job(5, "Kunden");
        w.job(6, "Lieferanten");
        w.sql(
            "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert) VALUES (5, 'täglich', 1);"
            "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert) VALUES (6, 'aus', 0);");
        w.daten.werte["MitId"] = 1;
    }
};

TEST_F(JobStart, AJobWithAnActiveScheduleStartsTheStarterWithJobAndStaffMember) {
    w.start();
    w.select({1});
    w.tool("Auftrag ausführen");
    ASSERT_EQ(w.shell->starts.size(), 1u);
    EXPECT_EQ(w.shell->starts[0].program, kStarter);
    EXPECT_EQ(w.shell->starts[0].arguments, (QStringList{"/JOBID=5", "/MITID=1"}));
    EXPECT_EQ(w.shell->starts[0].style, 2);
    EXPECT_TRUE(w.ui->boxes.empty());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobStart, AJobWithOnlyInactiveSchedulesIsRefused) {
    w.start();
    w.select({2});
    w.tool("Auftrag ausführen");
    EXPECT_TRUE(w.shell->starts.empty());
    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.ui->boxes[0].text,
              "Der Auftrag kann nicht ausgeführt werden. Es wurde kein Zeitplan gefunden.\r\n"
              "Bitte legen Sie einen Zeitplan für die automatische Ausführung an.");
    EXPECT_EQ(w.ui->boxes[0].flags, 64);
    EXPECT_EQ(w.ui->boxes[0].title, kTitel);
}

TEST_F(JobStart, AnEmptyListAsksForAJob) {
    w.sql("DELETE FROM tAutoJobJob");
    w.start();
    w.tool("Auftrag ausführen");
    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.ui->boxes[0].text,
              "Es wurde kein Auftrag für die Ausführung ausgewählt.\r\n"
              "Bitte wählen Sie einen Auftrag aus.");
    EXPECT_EQ(w.ui->boxes[0].flags, 64);
}

TEST_F(JobStart, AMissingStarterMakesTheCommandSilent) {
    w.fileSystem->files.clear();
    w.start();
    w.select({2});
    w.tool("Auftrag ausführen");
    EXPECT_TRUE(w.shell->starts.empty());
    EXPECT_TRUE(w.ui->boxes.empty());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobStart, SeveralSelectedJobsStartTheFirst) {
    w.start();
    w.select({1, 2});
    w.tool("Auftrag ausführen");
    ASSERT_EQ(w.shell->starts.size(), 1u);
    EXPECT_EQ(w.shell->starts[0].arguments.at(0), "/JOBID=5");
}

TEST_F(JobStart, TheJobOfThePropertiesWindowStartsWhateverTheListSelects) {
    w.start();
    w.select({2});
    AdminJobTestAccess::jobId(w.admin()) = 5;
    AdminJobTestAccess::eigenschaftenTool(w.admin(), "Auftrag ausführen");
    ASSERT_EQ(w.shell->starts.size(), 1u);
    EXPECT_EQ(w.shell->starts[0].arguments.at(0), "/JOBID=5");
}

TEST_F(JobStart, TheStaffMemberIsTheUserOfTheDocument) {
    w.daten.werte["MitId"] = 42;
    w.start();
    w.select({1});
    w.tool("Auftrag ausführen");
    ASSERT_EQ(w.shell->starts.size(), 1u);
    EXPECT_EQ(w.shell->starts[0].arguments.at(1), "/MITID=42");
}

TEST_F(JobStart, AStartThatFailsIsReportedUnderTheProceduresName) {
    w.shell->gelingt = false;
    w.start();
    w.select({1});
    w.tool("Auftrag ausführen");
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith("cAdminJob.mJobStartenExe"));
    EXPECT_TRUE(w.ui->reports[0].description.contains(kStarter));
}

}  // namespace
