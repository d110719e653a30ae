// The statements and texts of the log data viewer, exactly as it runs and shows them.
#include <gtest/gtest.h>

#include "logdata/LogDatenTexte.h"
#include "tests/headless/HeadlessTestKit.h"

using namespace logdaten;

TEST(LogDatenTexte, StatementChoosesTheKindAndOnlyAPositiveJob) {
    EXPECT_EQ(msAbfrage(1, 0),
              "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE "
              "(SYS_JobAgentLogDaten_Anzeigen.Typ IN (1, 3))");
    EXPECT_EQ(msAbfrage(2, 0),
              "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE "
              "(SYS_JobAgentLogDaten_Anzeigen.Typ = 2)");
    // The job filters the service log too.
    EXPECT_EQ(msAbfrage(1, 7),
              "SELECT * FROM SYS_JobAgentLogDaten_Anzeigen WHERE "
              "(SYS_JobAgentLogDaten_Anzeigen.Typ IN (1, 3)) AND "
              "( SYS_JobAgentLogDaten_Anzeigen.AutoJobId = 7)");
    EXPECT_EQ(msAbfrage(2, -1), msAbfrage(2, 0));
}

TEST(LogDatenTexte, TitlesByKindAndJob) {
    EXPECT_EQ(msTitel("Suite", 1, 0, "Kunden"), "Suite  Logdaten Dienst");
    EXPECT_EQ(msTitel("Suite", 1, 3, "Kunden"), "Suite  Logdaten Dienst für Auftrag 'Kunden'");
    EXPECT_EQ(msTitel("Suite", 2, 0, "Kunden"), "Suite  Logdaten Aufträge");
    // The job log of one job names the job where the kind would stand.
    EXPECT_EQ(msTitel("Suite", 2, 3, "Kunden"), "Suite  Logdaten  für Auftrag 'Kunden'");
    EXPECT_EQ(msLoeschTitel("Suite", 1), "Suite  Logdaten Dienst löschen");
    EXPECT_EQ(msLoeschTitel("Suite", 2), "Suite  Logdaten Auftrag löschen");
}

TEST(LogDatenTexte, KeyDiffersByKindOnly) {
    EXPECT_EQ(msSchluessel(1), "Sys.JobAgent.LogDaten.Dienst");
    EXPECT_EQ(msSchluessel(2), "Sys.JobAgent.LogDaten.Auftrag");
}

TEST(LogDatenTexte, DeletionConditionInItsOrder) {
    const QString von = QStringLiteral("'2026-11-01 00:00:00'");
    const QString bis = QStringLiteral("'2026-11-22 23:59:59'");
    EXPECT_EQ(msLoeschBedingung(von, bis, 1, 1, 0, 0, 0),
              "(DatumUhrzeit BETWEEN '2026-11-01 00:00:00' AND '2026-11-22 23:59:59') AND "
              "(LogTyp IN (1, 3))");
    EXPECT_EQ(msLoeschBedingung(von, bis, 2, 2, 17, 0, 0),
              "(DatumUhrzeit BETWEEN '2026-11-01 00:00:00' AND '2026-11-22 23:59:59') AND "
              "(LogTyp = 2) AND (JobArt = 17)");
    EXPECT_EQ(msLoeschBedingung(von, bis, 2, 2, 0, 5, 5),
              "(DatumUhrzeit BETWEEN '2026-11-01 00:00:00' AND '2026-11-22 23:59:59') AND "
              "(LogTyp = 2) AND (AutoJobId = 5)");
    EXPECT_EQ(msLoeschBedingung(von, {}, 1, 1, 0, 0, 0),
              "(DatumUhrzeit >= '2026-11-01 00:00:00') AND (LogTyp IN (1, 3))");
    EXPECT_EQ(msLoeschBedingung({}, bis, 1, 1, 0, 0, 0),
              "(DatumUhrzeit <= '2026-11-22 23:59:59') AND (LogTyp IN (1, 3))");
    // The kind of the window chooses the types; lLogArt 0 sets none.
    EXPECT_EQ(msLoeschBedingung({}, {}, 1, 2, 0, 0, 0), "(LogTyp = 2)");
    EXPECT_EQ(msLoeschBedingung({}, {}, 0, 2, 18, 0, 0), "(JobArt = 18)");
    EXPECT_EQ(msLoeschBedingung({}, {}, 0, 2, 0, 0, 9), "");
}

TEST(LogDatenTexte, CountTexts) {
    EXPECT_EQ(msLoeschErgebnis(0), "Es wurden keine Logeinträge gelöscht.");
    EXPECT_EQ(msLoeschErgebnis(1), "Es wurde 1 Logeintrag gelöscht.");
    EXPECT_EQ(msLoeschErgebnis(2), "Es wurden 2 Logeinträge gelöscht.");
    EXPECT_EQ(msLoeschErgebnis(12345), "Es wurden 12345 Logeinträge gelöscht.");
}
