#include <gtest/gtest.h>

#include "common/Password.h"
#include "jobs/JobRecord.h"
#include "jobs/Zusatzinfo.h"
#include "tests/app/AppTestWorld.h"

// The private parts of the controller that a job's way to and from the database touches.
class JobPersistenceTestAccess {
  public:
    static bool lesen(cAdminJob& a, JobRecord& r) { return a.mAuftragLesen(r); }
    static void speichern(cAdminJob& a, JobRecord& r) { a.mAuftragSpeichern(r); }
    static QString jobName(cAdminJob& a, long lId) { return a.msGetJobName(lId); }
    static void updateLetztAenderung(cAdminJob& a) { a.mUpdateLetztAenderung(); }
    static QString letzteAenderungText(cAdminJob& a, const QDateTime& dt, long lMitId) {
        return a.msGetLetzteAenderungText(dt, lMitId);
    }
    static void einfuegen(cAdminJob& a) { a.mAuftragEinfuegen(); }
    static std::uint8_t datenArt(cAdminJob& a) { return a.mbytDatenArt; }
    static std::uint8_t mandKanz(cAdminJob& a) { return a.mbytMandKanz; }
    static QString& msJobName(cAdminJob& a) { return a.msJobName; }
    static long& jobId(cAdminJob& a) { return a.mlJobId; }
    static long& jobIdKopiert(cAdminJob& a) { return a.mlJobIdKopiert; }
    static long& auftragMitarbeiter(cAdminJob& a) { return a.mlAuftragMitarbeiter; }
    static std::uint8_t& auftragMandKanz(cAdminJob& a) { return a.mbytAuftragMandKanz; }
    static QString& auftragMandNr(cAdminJob& a) { return a.msAuftragMandNr; }
};

namespace {

using app_test::World;
using A = JobPersistenceTestAccess;

const QString kJetzt = QStringLiteral("2026-11-22 10:00:00");

class JobPersistence : public ::testing::Test {
  protected:
    World w;
    void SetUp() override {
        w.start();
        w.sql(
            "INSERT INTO tMitarbeiter (MitId, Name) VALUES (7, 'Bernd Buch');"
            "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES (3, 4711, 0, 'M');");
    }
    cAdminJob& admin() { return w.admin(); }

    QString spalte(long lId, const char* sSpalte) {
        return w.scalar(QStringLiteral("SELECT %1 FROM tAutoJobJob WHERE idAutoJob = %2")
                            .arg(QString::fromUtf8(sSpalte))
                            .arg(lId));
    }
    int zeilen() { return w.scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob")).toInt(); }

    // A new job of the type with a value in every field, as the editor hands it over.
    static JobRecord neuerJob(std::uint8_t bytArt) {
        JobRecord r;
        r.lJobId = -1;
        r.bytDatenArt = bytArt;
        r.sName = QStringLiteral("Job %1").arg(bytArt);
        r.sBeschreibung = QStringLiteral("Zeile 1\r\nZeile 2");
        r.bytAktiviert = 1;
        r.sVerzeichnis1 = QStringLiteral("C:\\Import");
        r.sVerzeichnis2 = QStringLiteral("C:\\Sicherung");
        r.sVerzeichnis3 = QStringLiteral("C:\\Fehler");
        r.lArchivMitarbeiter = 42;
        r.sArchivKennwort = QStringLiteral("Geheim1");
        r.lMandant = 3;
        r.bytMandKanz = 1;
        r.sZusatzinfo = QStringLiteral("7");
        r.bSingleLog = true;
        r.bFremdFormat = true;
        r.sFremdDateifilter = QStringLiteral("*.csv");
        r.sFremdMapping = QStringLiteral("mapping.xml");
        return r;
    }

    long speichern(JobRecord r) {
        A::speichern(admin(), r);
        return r.lJobId;
    }
};

TEST_F(JobPersistence, ReadingAnIdWithoutRowGivesTheDefaultsOfANewJob) {
    JobRecord r = neuerJob(4);
    r.bytAktiviert = 0;
    r.sLetzteAenderung = QStringLiteral("alt");
    r.sErstellt = QStringLiteral("alt");

    EXPECT_FALSE(A::lesen(admin(), r));

    EXPECT_EQ(r.lJobId, -1);
    EXPECT_EQ(r.bytDatenArt, 17);
    EXPECT_EQ(r.sName, "");
    EXPECT_EQ(r.sBeschreibung, "");
    EXPECT_EQ(r.bytAktiviert, 1);
    EXPECT_EQ(r.sLetzteAenderung, "Letzte Änderung: Keine Angaben");
    EXPECT_EQ(r.sErstellt, "");
    EXPECT_EQ(r.lMandant, 0);
    EXPECT_FALSE(r.bSingleLog);
    EXPECT_FALSE(r.bFremdFormat);
    EXPECT_EQ(r.sFremdDateifilter, "");
    EXPECT_EQ(r.sFremdMapping, "");
    // What the caller passed for the directories, the archive login, the client kind and
    // Zusatzinfo stays.
    EXPECT_EQ(r.sVerzeichnis1, "C:\\Import");
    EXPECT_EQ(r.sVerzeichnis2, "C:\\Sicherung");
    EXPECT_EQ(r.sVerzeichnis3, "C:\\Fehler");
    EXPECT_EQ(r.lArchivMitarbeiter, 42);
    EXPECT_EQ(r.sArchivKennwort, "Geheim1");
    EXPECT_EQ(r.bytMandKanz, 1);
    EXPECT_EQ(r.sZusatzinfo, "7");
    EXPECT_EQ(A::datenArt(admin()), 17);
    EXPECT_EQ(A::mandKanz(admin()), 1);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobPersistence, ANewJobOfEachTypeStoresItsColumnsAsTheAgentReadsThem) {
    const QString kKennwort = msPasswortKodieren(QStringLiteral("Geheim1"), true);
    for (const std::uint8_t art : {4, 5, 17, 18, 20, 21, 28, 30, 99}) {
        SCOPED_TRACE(art);
        JobRecord r = neuerJob(art);
        r.sLetzteAenderung = QStringLiteral("vom Fenster");
        A::speichern(admin(), r);
        ASSERT_GT(r.lJobId, 0);
        const long id = r.lJobId;
        const bool archiv = art == 20 || art == 21;
        const bool buchungen = art == 4;

        EXPECT_EQ(spalte(id, "Name"), QStringLiteral("Job %1").arg(art));
        EXPECT_EQ(spalte(id, "Beschreibung"), "Zeile 1\r\nZeile 2");
        EXPECT_EQ(spalte(id, "Aktiviert"), "1");
        EXPECT_EQ(spalte(id, "DatenArt"), QString::number(art));
        EXPECT_EQ(spalte(id, "MTAPath"), archiv ? QStringLiteral("42") : "C:\\Import");
        EXPECT_EQ(spalte(id, "BackupPath"), archiv ? kKennwort : "C:\\Sicherung");
        EXPECT_EQ(spalte(id, "ErrorMTA"), "C:\\Fehler");
        EXPECT_EQ(spalte(id, "Ps_Id_Mandant"), "3");
        EXPECT_EQ(spalte(id, "MandKanz"), "1");
        EXPECT_EQ(spalte(id, "Ps_Id_Mitarbeiter"), "1");
        EXPECT_EQ(spalte(id, "Zusatzinfo"), "7");
        EXPECT_EQ(spalte(id, "SingleLog"), buchungen ? "1" : "0");
        EXPECT_EQ(spalte(id, "FremdFormat"), buchungen ? "1" : "0");
        EXPECT_EQ(spalte(id, "FremdDateifilter"), buchungen ? "*.csv" : "");
        EXPECT_EQ(spalte(id, "FremdMapping"), buchungen ? "mapping.xml" : "");
        EXPECT_EQ(spalte(id, "Erstellt"), kJetzt);
        EXPECT_EQ(spalte(id, "LetzteAenderung"), kJetzt);

        EXPECT_EQ(r.sLetzteAenderung, "Letzte Änderung: 22.11.2026 / Anna Admin");
        EXPECT_EQ(r.sErstellt, "22.11.2026 10:00:00");
        EXPECT_EQ(A::msJobName(admin()), QStringLiteral("Job %1").arg(art));
    }
    EXPECT_EQ(zeilen(), 9);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobPersistence, SavingAnExistingJobUpdatesItsRowAndKeepsItsCreation) {
    JobRecord r = neuerJob(17);
    A::speichern(admin(), r);
    const long id = r.lJobId;
    A::msJobName(admin()) = QStringLiteral("anderer");

    w.clock->set(QDateTime(QDate(2026, 12, 1), QTime(8, 15, 30)));
    r.sName = QStringLiteral("Umbenannt");
    r.bytAktiviert = 0;
    r.bytMandKanz = 3;
    r.lMandant = 0;
    A::speichern(admin(), r);

    EXPECT_EQ(r.lJobId, id);
    EXPECT_EQ(zeilen(), 1);
    EXPECT_EQ(spalte(id, "Name"), "Umbenannt");
    EXPECT_EQ(spalte(id, "Aktiviert"), "0");
    EXPECT_EQ(spalte(id, "MandKanz"), "3");
    EXPECT_EQ(spalte(id, "Ps_Id_Mandant"), "0");
    EXPECT_EQ(spalte(id, "Erstellt"), kJetzt);
    EXPECT_EQ(spalte(id, "LetzteAenderung"), "2026-12-01 08:15:30");
    EXPECT_EQ(r.sErstellt, "22.11.2026 10:00:00");
    EXPECT_EQ(r.sLetzteAenderung, "Letzte Änderung: 01.12.2026 / Anna Admin");
    // Only an insert names the job anew.
    EXPECT_EQ(A::msJobName(admin()), "anderer");
}

TEST_F(JobPersistence, ReadingGivesBackWhatWasSaved) {
    JobRecord gespeichert = neuerJob(4);
    A::speichern(admin(), gespeichert);

    JobRecord r;
    r.lJobId = gespeichert.lJobId;
    EXPECT_TRUE(A::lesen(admin(), r));

    EXPECT_EQ(r.bytDatenArt, 4);
    EXPECT_EQ(r.sName, "Job 4");
    EXPECT_EQ(r.sBeschreibung, "Zeile 1\r\nZeile 2");
    EXPECT_EQ(r.bytAktiviert, 1);
    EXPECT_EQ(r.sVerzeichnis1, "C:\\Import");
    EXPECT_EQ(r.sVerzeichnis2, "C:\\Sicherung");
    EXPECT_EQ(r.sVerzeichnis3, "C:\\Fehler");
    EXPECT_EQ(r.lMandant, 3);
    EXPECT_EQ(r.bytMandKanz, 1);
    EXPECT_EQ(r.sZusatzinfo, "7");
    EXPECT_TRUE(r.bSingleLog);
    EXPECT_TRUE(r.bFremdFormat);
    EXPECT_EQ(r.sFremdDateifilter, "*.csv");
    EXPECT_EQ(r.sFremdMapping, "mapping.xml");
    EXPECT_EQ(r.sLetzteAenderung, "Letzte Änderung: 22.11.2026 / Anna Admin");
    EXPECT_EQ(r.sErstellt, "22.11.2026 10:00:00");
    EXPECT_EQ(A::datenArt(admin()), 4);
}

TEST_F(JobPersistence, TheArchivePasswordIsStoredAsReversedHexAndReadBackInClear) {
    for (const std::uint8_t art : {20, 21}) {
        SCOPED_TRACE(art);
        JobRecord r = neuerJob(art);
        r.sArchivKennwort = QStringLiteral("Kennwort ä!");
        r.lArchivMitarbeiter = 7;
        A::speichern(admin(), r);

        EXPECT_EQ(spalte(r.lJobId, "BackupPath"), "124e024727f677e6e656b4");
        EXPECT_EQ(spalte(r.lJobId, "MTAPath"), "7");

        JobRecord gelesen;
        gelesen.lJobId = r.lJobId;
        gelesen.sVerzeichnis1 = QStringLiteral("bleibt 1");
        gelesen.sVerzeichnis2 = QStringLiteral("bleibt 2");
        ASSERT_TRUE(A::lesen(admin(), gelesen));
        EXPECT_EQ(gelesen.sArchivKennwort, "Kennwort ä!");
        EXPECT_EQ(gelesen.lArchivMitarbeiter, 7);
        EXPECT_EQ(gelesen.sVerzeichnis1, "bleibt 1");
        EXPECT_EQ(gelesen.sVerzeichnis2, "bleibt 2");
    }
}

TEST_F(JobPersistence, TheArchiveStaffIdIsTheRoundedNumberTheTextStartsWith) {
    const std::vector<std::pair<const char*, long>> faelle{
        {"abc", 0}, {"", 0}, {"12.6", 13}, {" 8x", 8}};
    for (const auto& [text, erwartet] : faelle) {
        SCOPED_TRACE(text);
        w.sql("DELETE FROM tAutoJobJob");
        w.db->runScript(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, DatenArt, MTAPath, "
                                       "BackupPath) VALUES (5, 20, '%1', '')")
                            .arg(QString::fromUtf8(text)));
        JobRecord r;
        r.lJobId = 5;
        r.lArchivMitarbeiter = 99;
        ASSERT_TRUE(A::lesen(admin(), r));
        EXPECT_EQ(r.lArchivMitarbeiter, erwartet);
    }
}

TEST_F(JobPersistence, ComposedZusatzinfoTravelsUnchanged) {
    Zusatzinfo werte;
    werte.lMitarbeiterId = 7;
    werte.sSkript = QStringLiteral("C:\\Skripte\\import.vbs");
    werte.sTextdateien = QStringLiteral("a.txt?b.txt");
    JobRecord r = neuerJob(99);
    r.sZusatzinfo = zusatzinfoSchreiben(99, werte);
    A::speichern(admin(), r);
    EXPECT_EQ(spalte(r.lJobId, "Zusatzinfo"), "7|C:\\Skripte\\import.vbs|a.txt?b.txt");

    JobRecord gelesen;
    gelesen.lJobId = r.lJobId;
    ASSERT_TRUE(A::lesen(admin(), gelesen));
    const Zusatzinfo zurueck = zusatzinfoLesen(99, gelesen.sZusatzinfo);
    EXPECT_EQ(zurueck.lMitarbeiterId, 7);
    EXPECT_EQ(zurueck.sSkript, "C:\\Skripte\\import.vbs");
    EXPECT_EQ(zurueck.sTextdateien, "a.txt?b.txt");
}

TEST_F(JobPersistence, AnEmptyZusatzinfoShowsTheLastEditorForTheImportTypes) {
    for (const int art : {4, 17, 18, 28, 99, 5, 20, 21, 30}) {
        SCOPED_TRACE(art);
        w.sql("DELETE FROM tAutoJobJob");
        w.db->runScript(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, DatenArt, "
                                       "Ps_Id_Mitarbeiter, Zusatzinfo) VALUES (5, %1, 7, '')")
                            .arg(art));
        JobRecord r;
        r.lJobId = 5;
        ASSERT_TRUE(A::lesen(admin(), r));
        const bool vorgabe = art == 4 || art == 17 || art == 18 || art == 28 || art == 99;
        EXPECT_EQ(r.sZusatzinfo, vorgabe ? "7" : "");
        EXPECT_EQ(r.sLetzteAenderung, "Letzte Änderung: 30.12.1899 / Bernd Buch");
        // A row that was never given a creation date shows none.
        EXPECT_EQ(r.sErstellt, "");
    }
    w.sql("UPDATE tAutoJobJob SET DatenArt = 17, Zusatzinfo = '3'");
    JobRecord r;
    r.lJobId = 5;
    ASSERT_TRUE(A::lesen(admin(), r));
    EXPECT_EQ(r.sZusatzinfo, "3");
}

TEST_F(JobPersistence, TheBookingsImportKeepsNoFilterOrMappingWithoutTheForeignFormat) {
    JobRecord r = neuerJob(4);
    r.bFremdFormat = false;
    r.bSingleLog = false;
    A::speichern(admin(), r);

    EXPECT_EQ(spalte(r.lJobId, "FremdFormat"), "0");
    EXPECT_EQ(spalte(r.lJobId, "SingleLog"), "0");
    EXPECT_EQ(spalte(r.lJobId, "FremdDateifilter"), "");
    EXPECT_EQ(spalte(r.lJobId, "FremdMapping"), "");

    JobRecord gelesen;
    gelesen.lJobId = r.lJobId;
    ASSERT_TRUE(A::lesen(admin(), gelesen));
    EXPECT_FALSE(gelesen.bFremdFormat);
    EXPECT_FALSE(gelesen.bSingleLog);
    EXPECT_EQ(gelesen.sFremdDateifilter, "");
    EXPECT_EQ(gelesen.sFremdMapping, "");
}

TEST_F(JobPersistence, OtherTypesReadNoForeignFormatWhateverTheRowHolds) {
    w.sql(
        "INSERT INTO tAutoJobJob (idAutoJob, DatenArt, SingleLog, FremdFormat, "
        "FremdDateifilter, FremdMapping) VALUES (5, 17, 1, 1, '*.csv', 'm.xml')");
    JobRecord r;
    r.lJobId = 5;
    r.bSingleLog = true;
    r.sFremdMapping = QStringLiteral("vorher");
    ASSERT_TRUE(A::lesen(admin(), r));
    EXPECT_FALSE(r.bSingleLog);
    EXPECT_FALSE(r.bFremdFormat);
    EXPECT_EQ(r.sFremdDateifilter, "");
    EXPECT_EQ(r.sFremdMapping, "");

    A::speichern(admin(), r);
    EXPECT_EQ(spalte(5, "SingleLog"), "0");
    EXPECT_EQ(spalte(5, "FremdFormat"), "0");
}

TEST_F(JobPersistence, TheCaptionOfTheLastChangeShowsDateAndStaffName) {
    const QDateTime dt(QDate(2026, 3, 5), QTime(14, 30));
    EXPECT_EQ(A::letzteAenderungText(admin(), dt, 7), "Letzte Änderung: 05.03.2026 / Bernd Buch");
    // Staff id 0 stands for the current user.
    EXPECT_EQ(A::letzteAenderungText(admin(), dt, 0), "Letzte Änderung: 05.03.2026 / Anna Admin");
    EXPECT_EQ(A::letzteAenderungText(admin(), dt, 55), "Letzte Änderung: 05.03.2026 / ");
    EXPECT_EQ(A::letzteAenderungText(admin(), QDateTime(QDate(987, 1, 2), QTime()), 7),
              "Letzte Änderung: 02.01.987 / Bernd Buch");
}

TEST_F(JobPersistence, StampingTheJobOnShowTakesTheServerTimeAndTheCurrentUser) {
    w.sql(
        "INSERT INTO tAutoJobJob (idAutoJob, Name, Ps_Id_Mitarbeiter, LetzteAenderung) "
        "VALUES (5, 'A', 7, '2020-01-01 00:00:00');"
        "INSERT INTO tAutoJobJob (idAutoJob, Name, Ps_Id_Mitarbeiter, LetzteAenderung) "
        "VALUES (6, 'B', 7, '2020-01-01 00:00:00')");
    w.clock->set(QDateTime(QDate(2026, 11, 23), QTime(7, 5, 9)));
    A::jobId(admin()) = 5;

    A::updateLetztAenderung(admin());

    EXPECT_EQ(spalte(5, "LetzteAenderung"), "2026-11-23 07:05:09");
    EXPECT_EQ(spalte(5, "Ps_Id_Mitarbeiter"), "1");
    EXPECT_EQ(spalte(6, "LetzteAenderung"), "2020-01-01 00:00:00");
    EXPECT_EQ(spalte(6, "Ps_Id_Mitarbeiter"), "7");

    A::jobId(admin()) = 77;
    A::updateLetztAenderung(admin());
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobPersistence, TheJobNameLookupSetsStaffClientKindAndClientNumber) {
    w.sql(
        "INSERT INTO tAutoJobJob (idAutoJob, Name, Ps_Id_Mitarbeiter, MandKanz, Ps_Id_Mandant) "
        "VALUES (5, 'Kunden', 7, 1, 3);"
        "INSERT INTO tAutoJobJob (idAutoJob, Name, Ps_Id_Mitarbeiter, MandKanz, Ps_Id_Mandant) "
        "VALUES (6, 'Alle', 8, 3, 0)");

    EXPECT_EQ(A::jobName(admin(), 5), "Kunden");
    EXPECT_EQ(A::auftragMitarbeiter(admin()), 7);
    EXPECT_EQ(A::auftragMandKanz(admin()), 1);
    EXPECT_EQ(A::auftragMandNr(admin()), "4711");

    // For all clients the number of the former job stays.
    EXPECT_EQ(A::jobName(admin(), 6), "Alle");
    EXPECT_EQ(A::auftragMitarbeiter(admin()), 8);
    EXPECT_EQ(A::auftragMandKanz(admin()), 3);
    EXPECT_EQ(A::auftragMandNr(admin()), "4711");

    EXPECT_EQ(A::jobName(admin(), 404), "");
    EXPECT_EQ(A::auftragMitarbeiter(admin()), 8);
    EXPECT_EQ(A::auftragMandKanz(admin()), 3);
}

TEST_F(JobPersistence, PastingCopiesTheJobAsNewRowOfNowAndTheCurrentUser) {
    w.sql(
        "INSERT INTO tAutoJobJob (idAutoJob, Erstellt, Name, Beschreibung, Aktiviert, DatenArt, "
        "MTAPath, BackupPath, ErrorMTA, Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, "
        "SingleLog, FremdFormat, LetzteAenderung) VALUES (5, '2020-02-02 02:02:02', 'Archiv', "
        "'B', 0, 20, '42', '5646', 'C:\\Log', 3, 2, 7, '', 0, 0, '2021-01-01 00:00:00')");
    w.clock->set(QDateTime(QDate(2026, 11, 24), QTime(9, 0)));
    A::jobIdKopiert(admin()) = 5;

    A::einfuegen(admin());

    ASSERT_EQ(zeilen(), 2);
    const long neu = w.scalar(QStringLiteral("SELECT max(idAutoJob) FROM tAutoJobJob")).toLong();
    EXPECT_GT(neu, 5);
    EXPECT_EQ(A::jobId(admin()), neu);
    EXPECT_EQ(spalte(neu, "Name"), "Archiv");
    EXPECT_EQ(spalte(neu, "Beschreibung"), "B");
    EXPECT_EQ(spalte(neu, "Aktiviert"), "0");
    EXPECT_EQ(spalte(neu, "DatenArt"), "20");
    EXPECT_EQ(spalte(neu, "MTAPath"), "42");
    EXPECT_EQ(spalte(neu, "BackupPath"), "5646");
    EXPECT_EQ(msPasswortKodieren(spalte(neu, "BackupPath"), false), "de");
    EXPECT_EQ(spalte(neu, "ErrorMTA"), "C:\\Log");
    EXPECT_EQ(spalte(neu, "Ps_Id_Mandant"), "3");
    EXPECT_EQ(spalte(neu, "MandKanz"), "2");
    EXPECT_EQ(spalte(neu, "Ps_Id_Mitarbeiter"), "1");
    EXPECT_EQ(spalte(neu, "Erstellt"), "2026-11-24 09:00:00");
    EXPECT_EQ(spalte(neu, "LetzteAenderung"), "2026-11-24 09:00:00");
    EXPECT_EQ(spalte(5, "Erstellt"), "2020-02-02 02:02:02");
    EXPECT_EQ(A::msJobName(admin()), "Archiv");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobPersistence, PastingWithoutASourceRowDoesNothing) {
    A::jobId(admin()) = 3;
    A::jobIdKopiert(admin()) = 5;
    A::einfuegen(admin());
    A::jobIdKopiert(admin()) = 0;
    A::einfuegen(admin());

    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(A::jobId(admin()), 3);
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST_F(JobPersistence, AFailedSaveIsReportedOnceAndLeavesTheRecordAsItWas) {
    JobRecord r = neuerJob(17);
    r.sLetzteAenderung = QStringLiteral("vorher");
    services().newRecordset = nullptr;

    A::speichern(admin(), r);

    EXPECT_EQ(r.lJobId, -1);
    EXPECT_EQ(r.sLetzteAenderung, "vorher");
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith(QStringLiteral(".cAdminJob.mAuftragSpeichern")))
        << w.ui->reports[0].source.toStdString();
    EXPECT_TRUE(w.ui->reports[0].description.contains(QStringLiteral("hdata.dll")))
        << w.ui->reports[0].description.toStdString();
}

// The columns of tAutoJobJob that hold NULL in the row of the job.
QStringList nullTexte(World& w, long lId) {
    QStringList nulls;
    for (const char* sSpalte : {"Name", "Beschreibung", "MTAPath", "BackupPath", "ErrorMTA",
                                "Zusatzinfo", "FremdDateifilter", "FremdMapping"}) {
        const QString sAnzahl = w.scalar(
            QStringLiteral("SELECT count(*) FROM tAutoJobJob WHERE idAutoJob = %1 AND %2 IS NULL")
                .arg(lId)
                .arg(QString::fromUtf8(sSpalte)));
        if (sAnzahl != QLatin1String("0")) {
            nulls << QString::fromUtf8(sSpalte);
        }
    }
    return nulls;
}

TEST_F(JobPersistence, AJobWithEmptyTextsKeepsThemAsEmptyTextsNotNull) {
    // A new archive job keeps no directory 3 and no Zusatzinfo, a bookings job without the
    // foreign format no filter and no mapping; nothing of it may be NULL.
    for (const std::uint8_t art : {4, 5, 17, 18, 20, 21, 28, 30, 99}) {
        SCOPED_TRACE(art);
        JobRecord r;
        r.lJobId = -1;
        r.bytDatenArt = art;
        r.bytAktiviert = 1;
        r.bytMandKanz = 3;
        A::speichern(admin(), r);
        ASSERT_GT(r.lJobId, 0);
        EXPECT_EQ(nullTexte(w, r.lJobId), QStringList());
        EXPECT_EQ(w.scalar(QStringLiteral("SELECT typeof(ErrorMTA) || typeof(Zusatzinfo) || "
                                          "typeof(FremdDateifilter) || typeof(FremdMapping) "
                                          "FROM tAutoJobJob WHERE idAutoJob = %1")
                               .arg(r.lJobId)),
                  "texttexttexttext");
    }
    // Saving an existing job with texts emptied stores the empty texts over the old ones.
    JobRecord r = neuerJob(4);
    A::speichern(admin(), r);
    r.sBeschreibung.clear();
    r.sVerzeichnis3 = QString();
    r.sZusatzinfo = QString();
    r.bFremdFormat = false;
    A::speichern(admin(), r);
    EXPECT_EQ(nullTexte(w, r.lJobId), QStringList());
    EXPECT_EQ(spalte(r.lJobId, "FremdDateifilter"), "");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST(JobPasteFromTheList, CopyThenPasteAddsASecondJobOfTheSameNameToTheList) {
    World w;
    w.job(4, "A");
    w.start();
    w.select({1});
    w.tool(QStringLiteral("Kopieren"));
    w.tool(QStringLiteral("Einfügen"));

    EXPECT_EQ(w.scalar(QStringLiteral("select group_concat(Name) from tAutoJobJob")), "A,A");
    EXPECT_EQ(w.browser().RecordCount(), 2);
    EXPECT_EQ(AdminJobTestAccess::jobIdKopiert(w.admin()), 0);
    EXPECT_GT(AdminJobTestAccess::jobId(w.admin()), 4);
    EXPECT_TRUE(w.ui->reports.empty()) << w.errorSources().join("\n").toStdString();
}

}  // namespace
