#include <gtest/gtest.h>

#include "tests/app/AppTestWorld.h"

namespace {

using app_test::kTitel;
using app_test::World;

struct ToolZeile {
    QString name;
    QString caption;
    long picture;
    bool separator;
    bool operator==(const ToolZeile&) const = default;
};

std::vector<ToolZeile> zeilen(IToolList& list) {
    std::vector<ToolZeile> z;
    for (int i = 0; i < list.Count(); ++i) {
        ITool* t = list.At(i);
        z.push_back({t->Name(), t->Caption(), t->Picture(), t->IsSeparator()});
    }
    return z;
}

class JobList : public ::testing::Test {
  protected:
    World w;
    cAdminJob& admin() { return w.admin(); }
};

TEST_F(JobList, TheBrowserGetsItsToolsInOrderAndItsMenuTheSameToolsAndMore) {
    w.registrieren();
    const std::vector<ToolZeile> tools{
        {"Neu", "Neu", 1091, false},
        {"Bearbeiten", "Bearbeiten", 1062, false},
        {"Löschen", "Löschen", 1131, false},
        {"", "", 0, true},
        {"Kopieren", "Kopieren", 1159, false},
        {"Einfügen", "Einfügen", 1157, false},
        {"", "", 0, true},
        {"", "", 0, true},
    };
    EXPECT_EQ(zeilen(w.browser().Tools()), tools);

    std::vector<ToolZeile> menu(tools.begin(), tools.end() - 1);
    menu.push_back({"Deaktivieren/Aktivieren", "Auftrag Deaktivieren/Aktivieren", 0, false});
    menu.push_back({"Auftragsverlauf", "Auftragsverlauf anzeigen", 1621, false});
    menu.push_back({"", "", 0, true});
    menu.push_back({"Auftrag ausführen", "Auftrag ausführen", 1640, false});
    EXPECT_EQ(zeilen(w.browser().Menu()), menu);

    // The same tool object stands in both lists.
    EXPECT_EQ(w.browser().Tools().Item("Neu"), w.browser().Menu().Item("Neu"));
    EXPECT_FALSE(w.browser().Tools().Item("Einfügen")->Enabled());
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

// The condition for the selected jobs and the names for the question.
TEST_F(JobList, OneSelectedJobGivesAnEqualsCondition) {
    w.job(12, "Nord");
    w.job(15, "Süd");
    w.start();
    w.select({2});
    long lId = 0;
    QString sName;
    AdminJobTestAccess::jobIdErmitteln(admin(), lId, sName);
    EXPECT_EQ(lId, 15);
    EXPECT_EQ(sName, "Süd");
    EXPECT_EQ(AdminJobTestAccess::jobZeile(admin()), 2);
    EXPECT_EQ(AdminJobTestAccess::auswahlBedingung(admin()), " = 15");
    EXPECT_EQ(AdminJobTestAccess::jobNamen(admin()), "Süd");
}

TEST_F(JobList, SeveralSelectedJobsGiveAnInListInSelectionOrder) {
    w.job(12, "A");
    w.job(15, "B");
    w.job(17, "C");
    w.start();
    w.select({3, 1, 2});
    long lId = 0;
    QString sName;
    AdminJobTestAccess::jobIdErmitteln(admin(), lId, sName);
    EXPECT_EQ(lId, 17);
    EXPECT_EQ(AdminJobTestAccess::jobZeile(admin()), 3);
    ASSERT_EQ(AdminJobTestAccess::auftragsarten(admin()).size(), 3u);
    EXPECT_EQ(AdminJobTestAccess::auftragsarten(admin())[1].sArt, "Import Kunden");
    EXPECT_EQ(AdminJobTestAccess::auswahlBedingung(admin()), " IN (17 ,12 ,15)");
    EXPECT_EQ(AdminJobTestAccess::jobNamen(admin()), "C, A, B");
}

TEST_F(JobList, AnIdPassedInStaysAndTheRowIsNotTaken) {
    w.job(12, "A");
    w.start();
    w.select({1});
    long lId = 99;
    QString sName = "vorher";
    AdminJobTestAccess::jobIdErmitteln(admin(), lId, sName);
    EXPECT_EQ(lId, 99);
    EXPECT_EQ(sName, "vorher");
    EXPECT_EQ(AdminJobTestAccess::jobZeile(admin()), 0);
    EXPECT_EQ(AdminJobTestAccess::auftragsarten(admin())[0].lId, 12);
}

TEST_F(JobList, AnEmptyListLeavesIdZeroAndTheConditionOnTheEmptyFirstElement) {
    w.start();
    long lId = 0;
    QString sName;
    AdminJobTestAccess::jobIdErmitteln(admin(), lId, sName);
    EXPECT_EQ(lId, 0);
    EXPECT_EQ(AdminJobTestAccess::auswahlBedingung(admin()), " = 0");
}

class DeleteQuestion : public JobList {
  protected:
    void SetUp() override {
        for (int i = 1; i <= 12; ++i) {
            w.job(i, QStringLiteral("J%1").arg(i).toUtf8().constData());
        }
        w.start();
    }
    QString frage() const { return w.ui->boxes.at(0).text; }
};

TEST_F(DeleteQuestion, OneJobNamesTheJobOfThePropertiesWindowWhichIsEmptyWithoutOne) {
    w.select({3});
    w.ui->answers = {7};
    w.tool("Löschen");
    ASSERT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(frage(), "Soll der Auftrag '' gelöscht werden?");
    EXPECT_EQ(w.ui->boxes[0].flags, 4);
    EXPECT_EQ(w.ui->boxes[0].title, kTitel);
    EXPECT_EQ(w.scalar("select count(*) from tAutoJobJob"), "12");
}

TEST_F(DeleteQuestion, OneJobWithThePropertiesWindowsJobName) {
    AdminJobTestAccess::jobName(admin()) = "Offener Auftrag";
    w.select({3});
    w.ui->answers = {7};
    w.tool("Löschen");
    EXPECT_EQ(frage(), "Soll der Auftrag 'Offener Auftrag' gelöscht werden?");
}

TEST_F(DeleteQuestion, SeveralJobsShowTheirNamesInTwoPairsOfApostrophes) {
    w.select({2, 5});
    w.ui->answers = {7};
    w.tool("Löschen");
    EXPECT_EQ(frage(), "Soll der Auftrag ' 'J2, J5' ' gelöscht werden?");
}

TEST_F(DeleteQuestion, ElevenJobsShowTenNamesAndDots) {
    w.select({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    w.ui->answers = {7};
    w.tool("Löschen");
    EXPECT_EQ(frage(),
              "Soll der Auftrag ' 'J1, J2, J3, J4, J5, J6, J7, J8, J9, J10, ...' ' gelöscht "
              "werden?");
}

TEST_F(DeleteQuestion, TwelveJobsShowNoMoreThanEleven) {
    w.select({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    w.ui->answers = {7};
    w.tool("Löschen");
    EXPECT_TRUE(frage().endsWith("J10, ...' ' gelöscht werden?"));
}

class DeletingJobs : public JobList {
  protected:
    void SetUp() override {
        w.job(1, "A");
        w.job(2, "B");
        w.job(3, "C");
        w.sql(
            "INSERT INTO SYS_JobAgentLogDaten (AutoJobId, Text) VALUES (2, 'x');"
            "INSERT INTO SYS_JobAgentLogDaten (AutoJobId, Text) VALUES (2, 'y');"
            "INSERT INTO SYS_JobAgentLogDaten (AutoJobId, Text) VALUES (3, 'z');");
        w.start();
    }
};

TEST_F(DeletingJobs, YesDeletesTheJobsAndAsksAboutTheirLogEntries) {
    w.select({2, 3});
    w.ui->answers = {6, 6};
    w.tool("Löschen");
    ASSERT_EQ(w.ui->boxes.size(), 2u);
    EXPECT_EQ(w.ui->boxes[1].text,
              "Zu den gelöschten Aufträgen liegen Logeinträge vor. Sollen diese auch gelöscht "
              "werden?");
    EXPECT_EQ(w.ui->boxes[1].flags, 36);
    EXPECT_EQ(w.ui->boxes[1].title, kTitel);
    EXPECT_EQ(w.scalar("select group_concat(Name) from tAutoJobJob"), "A");
    EXPECT_EQ(w.scalar("select count(*) from SYS_JobAgentLogDaten"), "0");
    EXPECT_EQ(w.browser().RecordCount(), 1);
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(DeletingJobs, LogEntriesStayWhenTheUserSaysNo) {
    w.select({2});
    w.ui->answers = {6, 7};
    w.tool("Löschen");
    EXPECT_EQ(w.scalar("select count(*) from tAutoJobJob"), "2");
    EXPECT_EQ(w.scalar("select count(*) from SYS_JobAgentLogDaten"), "3");
}

TEST_F(DeletingJobs, AJobWithoutLogEntriesIsDeletedWithoutTheSecondQuestion) {
    w.select({1});
    w.ui->answers = {6};
    w.tool("Löschen");
    EXPECT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.scalar("select count(*) from tAutoJobJob where idAutoJob = 1"), "0");
}

TEST_F(DeletingJobs, AJobDeletedMeanwhileDeletesNothingAndAsksNoMore) {
    w.select({2});
    w.sql("DELETE FROM tAutoJobJob WHERE idAutoJob = 2");
    w.ui->answers = {6};
    w.tool("Löschen");
    EXPECT_EQ(w.ui->boxes.size(), 1u);
    EXPECT_EQ(w.scalar("select count(*) from SYS_JobAgentLogDaten"), "3");
}

TEST_F(DeletingJobs, AfterDeletingTheLastRowTheCurrentRowIsTheNewLastRow) {
    w.select({3});
    w.ui->answers = {6, 7};
    w.tool("Löschen");
    EXPECT_EQ(w.browser().RecordCount(), 2);
    EXPECT_EQ(w.browser().Row(), 2);
}

TEST_F(DeletingJobs, AFailedDeleteIsReportedAndTheListStillRefreshed) {
    w.select({1});
    w.ui->answers = {6};
    w.sql(
        "CREATE TRIGGER keinLoeschen BEFORE DELETE ON tAutoJobJob "
        "BEGIN SELECT RAISE(ABORT, 'gesperrt'); END;");
    const int geladen = w.browser().loadCount();
    w.tool("Löschen");
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith("cAdminJob.mLoescheJob"));
    EXPECT_EQ(w.browser().loadCount(), geladen + 1);
    EXPECT_EQ(w.scalar("select count(*) from tAutoJobJob"), "3");
}

// "delete" in the properties window deletes the job on show and starts the step to a
// neighbour one row off, so that the step moves.
class DeleteFromPropertiesWindow : public JobList {
  protected:
    void SetUp() override {
        for (int i = 1; i <= 5; ++i) {
            w.job(i, QStringLiteral("J%1").arg(i).toUtf8().constData());
        }
        w.start();
    }
    long loeschen(int zeile, long antwort) {
        w.select({zeile});
        w.ui->answers = {antwort};
        AdminJobTestAccess::eigenschaftenTool(admin(), "delete");
        return AdminJobTestAccess::jobZeile(admin());
    }
};

TEST_F(DeleteFromPropertiesWindow, StepsFromARowInTheMiddleAlsoWhenTheUserSaysNo) {
    EXPECT_EQ(loeschen(3, 7), 2);
    EXPECT_EQ(w.browser().RecordCount(), 5);
    EXPECT_EQ(loeschen(3, 6), 2);
    EXPECT_EQ(w.browser().RecordCount(), 4);
    EXPECT_EQ(w.scalar("select count(*) from tAutoJobJob where idAutoJob = 3"), "0");
}

TEST_F(DeleteFromPropertiesWindow, TheFirstAndTheLastRowStartFromTheirNeighbour) {
    EXPECT_EQ(loeschen(1, 7), 2);
    EXPECT_EQ(loeschen(5, 7), 4);
}

TEST_F(DeleteFromPropertiesWindow, DeletingTheOnlyJobLeavesNoRow) {
    w.sql("DELETE FROM tAutoJobJob WHERE idAutoJob > 1");
    w.notify(21);
    EXPECT_EQ(loeschen(1, 6), 0);
    EXPECT_EQ(w.browser().RecordCount(), 0);
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(JobList, ActivationFlipsEachSelectedJobForItself) {
    w.job(1, "A", 1);
    w.job(2, "B", 0);
    w.job(3, "C", 1);
    w.start();
    w.select({1, 2});
    w.tool("Deaktivieren/Aktivieren");
    EXPECT_EQ(w.scalar("select group_concat(Aktiviert) from (select Aktiviert from tAutoJobJob "
                       "order by idAutoJob)"),
              "0,1,1");
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

TEST_F(JobList, EditingWithSeveralSelectedNarrowsTheSelectionToTheFirst) {
    w.job(1, "A");
    w.job(2, "B");
    w.job(3, "C");
    w.start();
    w.select({3, 1});
    w.tool("Bearbeiten");
    EXPECT_EQ(w.browser().SelCount(), 1);
    EXPECT_EQ(w.browser().Row(), 3);
}

TEST_F(JobList, OpeningARowWithTheMouseEditsIt) {
    w.job(1, "A");
    w.job(2, "B");
    w.start();
    w.browser().userBrowserOpen(2);
    EXPECT_EQ(w.browser().Row(), 2);
    EXPECT_EQ(AdminJobTestAccess::jobZeile(admin()), 2);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobList, CopyingRemembersTheFirstSelectedJobAndSelectsIt) {
    w.job(4, "A");
    w.job(9, "B");
    w.start();
    w.select({2, 1});
    w.tool("Kopieren");
    EXPECT_EQ(AdminJobTestAccess::jobIdKopiert(admin()), 9);
    EXPECT_EQ(w.browser().SelCount(), 1);
    EXPECT_EQ(w.browser().Row(), 2);
}

TEST_F(JobList, F1InTheListShowsTheListsHelpTopic) {
    w.start();
    w.browser().userKey(112, 0);
    w.browser().userKey(112, 1);
    w.browser().userKey(46, 0);
    EXPECT_EQ(w.ui->helpTopics,
              QStringList{"Akte_externe_programme.xml#"
                          "HID_AKTE_EXTERNE_PROGRAMME_JOBAGENT_DOKUMENT_JOBAGENT2DAUFTRE4GE"});
}

TEST_F(JobList, HelpToolsOfTheHostShowTheSameTopic) {
    w.start();
    w.tool("mnuHilfeDokument");
    w.tool("mnuHilfeEigenschaften");
    EXPECT_EQ(w.ui->helpTopics.size(), 2);
}

TEST_F(JobList, AnUnknownToolGoesToTheBrowser) {
    w.start();
    w.tool("Spalten");
    EXPECT_EQ(w.browser().aktionen(), QStringList{"Spalten"});
}

TEST_F(JobList, PastingWithNothingCopiedDoesNothing) {
    w.job(1, "A");
    w.start();
    w.tool("Einfügen");
    EXPECT_EQ(AdminJobTestAccess::jobIdKopiert(admin()), 0);
    EXPECT_TRUE(w.browser().Focused());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobList, LogDataAndRefreshCommandsAreQuietUntilTheirWindowsExist) {
    w.job(1, "A");
    w.start();
    for (const char* tool : {"Logdaten Dienst", "Logdaten Aufträge", "Logdaten Dienst löschen",
                             "Logdaten Auftrag löschen", "Auftragsverlauf", "Neu"}) {
        w.tool(QString::fromUtf8(tool));
    }
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
    EXPECT_TRUE(w.ui->boxes.empty());
}

}  // namespace
