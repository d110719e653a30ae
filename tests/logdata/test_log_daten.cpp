// The log data viewer against the in-memory windows and a real database.
#include <gtest/gtest.h>

#include <utility>

#include "common/ErrObject.h"
#include "logdata/LogDatenTexte.h"
#include "tests/logdata/LogDatenTestKit.h"
#include "ui/windows/frmLogDatenDel.h"
#include "ui/windows/frmLogDatenDetails.h"

using app_test::World;
using logdaten_test::Driver;
using logdaten_test::RecordingRecordset;
using A = LogDatenTestAccess;

namespace {

class LogDaten : public ::testing::Test {
  protected:
    void SetUp() override {
        driver.world = &world;
        world.windows->setModalDriver(&driver);
        world.sql(
            "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, JobArt, AutoJobId, "
            "MitarbeiterId, Herkunft, AuftragKennung, Text) VALUES "
            "('2026-11-20 05:00:00', 1, 0, 0, 1, 'Dienst', '', 'gestartet'),"
            "('2026-11-21 06:00:00', 3, 17, 4, 1, 'Starter', '', 'nicht gestartet'),"
            "('2026-11-21 07:00:00', 2, 17, 4, 1, 'Auftrag', 'Auftrag 4', 'importiert');");
    }

    IBrowser& browserOf(HeadlessWindow& w) {
        return w.get<IBrowser>(QStringLiteral("ctlLogDaten"));
    }

    // With failFirst, the connection of the next record set fails (the others' don't).
    void recordStatements(bool failFirst = false) {
        auto real = services().newRecordset;
        auto list = statements;
        auto fail = std::make_shared<bool>(failFirst);
        services().newRecordset = [real, list, fail]() -> std::unique_ptr<CRecordset> {
            return std::make_unique<RecordingRecordset>(real(), list, std::exchange(*fail, false));
        };
    }

    // Unloaded, or released already.
    bool gone(const char* name) {
        HeadlessWindow* w = world.windows->find(QString::fromUtf8(name));
        return !w || w->isUnloaded();
    }

    QString remaining() {
        return world.scalar(QStringLiteral(
            "SELECT group_concat(Text, ',') FROM (SELECT Text FROM SYS_JobAgentLogDaten "
            "ORDER BY Id)"));
    }

    World world;
    Driver driver;
    std::shared_ptr<QStringList> statements = std::make_shared<QStringList>();
};

TEST_F(LogDaten, TracesItsCreationAndEnd) {
    world.traceAntwort = 1;
    {
        cLogDaten o;
        EXPECT_TRUE(o.fbConstructor());
        o.fDestructor();
        EXPECT_TRUE(A::destructor(o));
    }
    EXPECT_EQ(*world.traces, QStringList({"1 ZPKyAutoJobVerw.cLogDaten.Class_Initialize",
                                          "1 ZPKyAutoJobVerw.cLogDaten.Class_Terminate"}));
}

TEST_F(LogDaten, BrowserIsSetUpBeforeItLoadsAndEndsWithTheWindow) {
    cLogDaten o;
    o.setLogKontext(1L);
    o.setLogKontext(QStringLiteral("Anna Admin"));
    bool gesehen = false;
    driver.steps[QStringLiteral("frmLogDaten")] = [&](HeadlessWindow& w) {
        gesehen = true;
        IBrowser& b = browserOf(w);
        EXPECT_EQ(A::logArt(o), 1);
        EXPECT_EQ(w.Caption(), "Suite  Logdaten Dienst");
        EXPECT_EQ(b.Titel(), "Suite  Logdaten Dienst");
        EXPECT_EQ(b.Schluessel(), "Sys.JobAgent.LogDaten.Dienst");
        EXPECT_EQ(b.Abfrage(), logdaten::msAbfrage(1, 0));
        EXPECT_EQ(b.MitarbeiterId(), 1);
        EXPECT_EQ(b.MitarbeiterName(), "Anna Admin");
        EXPECT_EQ(w.Icon(), 1000);
        ASSERT_NE(b.Tools().Item(QStringLiteral("Details")), nullptr);
        EXPECT_EQ(b.Tools().Item(QStringLiteral("Details"))->ToolTip(), "Details anzeigen");
        EXPECT_EQ(b.Auswahl().RecordCount(), 2);
        EXPECT_EQ(b.Auswahl().Row(), 1);
        QStringList versteckt;
        for (const QString& name : b.SpaltenNamen()) {
            EXPECT_TRUE(b.Spalte(name)->SpalteFlagB) << name.toStdString();
            if (b.Spalte(name)->SpalteFlagA) {
                versteckt << name;
            }
        }
        EXPECT_EQ(versteckt, QStringList({"Id", "AutoJobId", "Typ", "Auftrag Kennung"}));
    };
    o.fLogDatenShow(1, 0);
    EXPECT_TRUE(gesehen);
    EXPECT_EQ(A::logArt(o), 0);
    EXPECT_EQ(A::browser(o), nullptr);
    EXPECT_TRUE(gone("frmLogDaten"));
    // The end may come again, from the unload and the return, without harm.
    o.mLogDatenShowEnde();
    o.mLogDatenShowEnde();
    EXPECT_TRUE(world.ui->reports.empty());
}

TEST_F(LogDaten, JobLogOfOneJobHidesTheSource) {
    cLogDaten o;
    o.setJobNameLog(QStringLiteral("Kunden"));
    driver.steps[QStringLiteral("frmLogDaten")] = [&](HeadlessWindow& w) {
        IBrowser& b = browserOf(w);
        EXPECT_EQ(w.Caption(), "Suite  Logdaten  für Auftrag 'Kunden'");
        EXPECT_EQ(b.Schluessel(), "Sys.JobAgent.LogDaten.Auftrag");
        EXPECT_EQ(b.Auswahl().RecordCount(), 1);
        EXPECT_TRUE(b.Spalte(QStringLiteral("Herkunft"))->SpalteFlagA);
        EXPECT_FALSE(b.Spalte(QStringLiteral("Auftrag Kennung"))->SpalteFlagA);
    };
    o.fLogDatenShow(2, 4);
}

TEST_F(LogDaten, DetailsStepAndTellWhenNothingFollows) {
    cLogDaten o;
    driver.steps[QStringLiteral("frmLogDaten")] = [&](HeadlessWindow& w) {
        browserOf(w).Auswahl().setRow(2);
        A::details(o, true);
    };
    driver.steps[QStringLiteral("frmLogDatenDetails")] = [&](HeadlessWindow&) {
        auto frm = A::details(o);
        EXPECT_EQ(A::aktZeile(o), 2);
        EXPECT_EQ(frm->txtDetails(frmLogDatenDetails::Feld::Herkunft).Text(), "Starter");
        EXPECT_EQ(frm->txtDetails(frmLogDatenDetails::Feld::DatumUhrzeit).Text(),
                  "21.11.2026 06:00:00");
        EXPECT_EQ(frm->tbrMain().Tool("barMain", "AktVon")->Caption(), "2/2");
        // A step past the end is refused with the message and changes nothing.
        A::nav(o, QStringLiteral("next"));
        A::nav(o, QStringLiteral("last"));
        A::nav(o, QStringLiteral("AktVon"));
        EXPECT_EQ(world.boxTexts(), QStringList(3, "Keine weiteren Einträge vorhanden."));
        EXPECT_EQ(world.ui->boxes.back().title, "Suite  Logdaten Dienst - Details");
        EXPECT_EQ(world.ui->boxes.back().flags, 64);
        A::nav(o, QStringLiteral("previous"));
        EXPECT_EQ(A::aktZeile(o), 1);
        EXPECT_EQ(frm->txtDetails(frmLogDatenDetails::Feld::Herkunft).Text(), "Dienst");
        ISelectionObject& auswahl = A::browser(o)->ctlLogDaten().Auswahl();
        EXPECT_EQ(auswahl.Row(), 1);
        EXPECT_EQ(auswahl.SelCount(), 1);
        EXPECT_EQ(auswahl.SelRow(0), 1);
    };
    o.fLogDatenShow(1, 0);
    EXPECT_EQ(A::details(o), nullptr);
    EXPECT_TRUE(gone("frmLogDatenDetails"));
}

TEST_F(LogDaten, DeletionRunsOneStatementWithTheWholeLastDay) {
    recordStatements();
    cLogDaten o;
    A::loeschArt(o) = 1;
    // A time part of the Von stays as given here; the window drops it before.
    A::loeschenDirekt(o, 0, 0, 1, QDateTime(QDate(2026, 11, 20), QTime(0, 0)),
                      QDateTime(QDate(2026, 11, 21), QTime(0, 0)), false);
    EXPECT_EQ(*statements,
              QStringList("DELETE FROM SYS_JobAgentLogDaten WHERE (DatumUhrzeit BETWEEN "
                          "'2026-11-20 00:00:00' AND '2026-11-21 23:59:59') AND "
                          "(LogTyp IN (1, 3))"));
    EXPECT_EQ(remaining(), "importiert");
    EXPECT_TRUE(world.boxTexts().isEmpty());
}

TEST_F(LogDaten, DeletionWithoutDatesKeepsToTheKind) {
    recordStatements();
    cLogDaten o;
    A::loeschArt(o) = 2;
    A::loeschenDirekt(o, 17, 0, 2, QDateTime(), zeroDate(), false);
    EXPECT_EQ(*statements, QStringList("DELETE FROM SYS_JobAgentLogDaten WHERE (LogTyp = 2) AND "
                                       "(JobArt = 17)"));
    EXPECT_EQ(remaining(), "gestartet,nicht gestartet");
}

TEST_F(LogDaten, FailedConnectionDeletesNothingAndSaysSo) {
    cLogDaten o;
    A::loeschArt(o) = 1;
    o.mlMsgBox(QStringLiteral("Frage"), 68, QStringLiteral("Titel"));
    recordStatements(true);
    A::loeschenDirekt(o, 0, 0, 1, QDateTime(QDate(2026, 11, 1), QTime()),
                      QDateTime(QDate(2026, 11, 30), QTime()), true);
    EXPECT_TRUE(statements->isEmpty());
    ASSERT_EQ(world.ui->reports.size(), 1u);
    EXPECT_TRUE(world.ui->reports[0].source.endsWith("cLogDaten.mLogDatenDelete"));
    EXPECT_EQ(world.boxTexts().last(), "Es wurden keine Logeinträge gelöscht.");
    EXPECT_EQ(remaining(), "gestartet,nicht gestartet,importiert");
}

TEST_F(LogDaten, DeletionWindowAsksTheControllerForTheTypes) {
    cLogDaten o;
    int gefragt = 0;
    o.evInitCBOAuftragsart = [&](IComboBox& cbo, long lDatenart, bool bAlle) {
        ++gefragt;
        EXPECT_EQ(lDatenart, 0);
        EXPECT_TRUE(bAlle);
        cbo.AddItem(0, QStringLiteral("Alle"));
        cbo.AddItem(17, QStringLiteral("Import Kunden"));
        cbo.setKey(0);
    };
    driver.steps[QStringLiteral("frmLogDatenDel")] = [&](HeadlessWindow& w) {
        auto frm = A::loeschen(o);
        EXPECT_EQ(A::loeschJobId(o), 0);
        EXPECT_EQ(w.Icon(), 1000);
        EXPECT_FALSE(frm->lblAuftragName().Visible());
        EXPECT_EQ(frm->ctlDatePicker(frmLogDatenDel::Datum::Von).Value(), QDate(2026, 11, 22));
        // An empty field is refused like reversed dates, and the window stays.
        frm->ctlDatePicker(frmLogDatenDel::Datum::Von).setValue(std::nullopt);
        w.headlessControl(QStringLiteral("cmdAktion"), 0)->userClick();
        EXPECT_EQ(world.boxTexts().last(),
                  "Von/Bis Datum ungültig. Bitte überprüfen Sie die Eingaben.");
        EXPECT_EQ(world.ui->boxes.back().flags, 48);
        ASSERT_NE(A::loeschen(o), nullptr);
        frm->ctlDatePicker(frmLogDatenDel::Datum::Von).setValue(QDate(2026, 11, 21));
        frm->cboAuftragsart().setKey(17);
        world.ui->answers = {6, 1};
        w.headlessControl(QStringLiteral("cmdAktion"), 0)->userClick();
    };
    long lJobId = 0;
    o.mLogdatenDeleteAuswahl(2, lJobId);
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(world.boxTexts().mid(1),
              QStringList({"Wollen Sie die Logdaten der Auftragsart ' Import Kunden' vom "
                           "21.11.2026 bis 22.11.2026 löschen?",
                           "Es wurde 1 Logeintrag gelöscht."}));
    EXPECT_EQ(world.ui->boxes[1].flags, 68);
    EXPECT_EQ(world.ui->boxes[1].title, "Suite  Logdaten Auftrag löschen");
    EXPECT_EQ(remaining(), "gestartet,nicht gestartet");
    EXPECT_EQ(A::loeschen(o), nullptr);
}

TEST_F(LogDaten, ControllerHandsOverStaffAndEndsTheViewer) {
    world.start();
    QString mitarbeiter;
    driver.steps[QStringLiteral("frmLogDaten")] = [&](HeadlessWindow& w) {
        mitarbeiter = browserOf(w).MitarbeiterName();
    };
    world.tool(QStringLiteral("Logdaten Aufträge"));
    EXPECT_EQ(mitarbeiter, "Anna Admin");
    EXPECT_TRUE(gone("frmLogDaten"));
    // The deletion window of the list fills its combo through the controller.
    QStringList arten;
    driver.steps[QStringLiteral("frmLogDatenDel")] = [&](HeadlessWindow& w) {
        auto& cbo = w.get<IComboBox>(QStringLiteral("cboAuftragsart"));
        for (int i = 0; i < cbo.ItemCount(); ++i) {
            arten << cbo.ItemTextAt(i);
        }
        EXPECT_EQ(cbo.Key(), 0);
        w.headlessControl(QStringLiteral("cmdAktion"), 1)->userClick();
    };
    world.tool(QStringLiteral("Logdaten Dienst löschen"));
    ASSERT_FALSE(arten.isEmpty());
    EXPECT_EQ(arten.first(), "Alle");
    EXPECT_TRUE(arten.contains("Import Kunden"));
    EXPECT_TRUE(world.ui->reports.empty());
    EXPECT_EQ(remaining(), "gestartet,nicht gestartet,importiert");
}

}  // namespace
