// The run history's statements, filter texts and log directories, against the controller.
#include <sys/stat.h>

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include "tests/app/AppTestWorld.h"
#include "ui/windows/frmVerlauf.h"

class HistoryTestAccess {
  public:
    // Sets up what mShowVerlauf would, without showing the window.
    static void verlauf(cAdminJob& a, long lJobId, long lEinheit, long lWert, int byErfolg) {
        a.mlJobIdListe = lJobId;
        a.mofrmVerlauf =
            std::make_shared<frmVerlauf>(services().windows->create(frmVerlauf::declaration()));
        a.moGridVerlauf = &a.mofrmVerlauf->grdData();
        a.moVerlaufFilter = std::make_unique<cVerlaufFilter>();
        a.moVerlaufFilter->lZeitEinheit = lEinheit;
        a.moVerlaufFilter->lZeitWert = lWert;
        a.moVerlaufFilter->byErfolgreich = static_cast<std::uint8_t>(byErfolg);
        a.mInitGridVerlauf();
    }
    static void fuelle(cAdminJob& a) { a.mFuelleGridVerlauf(); }
    static bool buchProt(cAdminJob& a, const QString& sDatei) { return a.mbBuchProt(sDatei); }
    static void loesche(cAdminJob& a) { a.mloescheVerlauf(); }
    static QString zeiteinheit(cAdminJob& a, long lArt) { return a.msGetZeiteinheit(lArt); }
    static QString filterText(cAdminJob& a) { return a.msGetVerlaufFilterString(); }
    static QString erfolg(cAdminJob& a, int by) {
        return a.msGetVerlaufErfolgreichString(static_cast<std::uint8_t>(by));
    }
    static frmVerlauf& fenster(cAdminJob& a) { return *a.mofrmVerlauf; }
    static void initLogFileLinks(cAdminJob& a) { a.mInitLogFileLinks(); }
    static QString autoImport(cAdminJob& a) { return a.msLogPfadAutoImport; }
    static QString jobAgent(cAdminJob& a) { return a.msLogPfadJobAgent; }
    static QString jobAgentName(cAdminJob& a) { return a.msJobAgentName; }
};

namespace {

using app_test::World;

// Passes every call on and writes down the statements on the history table.
class RecordingRecordset : public CRecordset {
  public:
    RecordingRecordset(std::unique_ptr<CRecordset> inner, std::shared_ptr<QStringList> log)
        : inner_(std::move(inner)), log_(std::move(log)) {}
    void Connect() override { inner_->Connect(); }
    void Disconnect() override { inner_->Disconnect(); }
    long OpenQuery(const QString& sql, long lockMode) override {
        if (sql.contains(QStringLiteral("tAutoJobVerlauf"))) {
            *log_ << sql;
        }
        return inner_->OpenQuery(sql, lockMode);
    }
    void Close() override { inner_->Close(); }
    void AddNew() override { inner_->AddNew(); }
    void Update(long mode, bool confirm) override { inner_->Update(mode, confirm); }
    bool Move(long direction) override { return inner_->Move(direction); }
    long Execute(const QString& sql) override {
        *log_ << sql;
        return inner_->Execute(sql);
    }
    bool ReadBool(const QString& f) override { return inner_->ReadBool(f); }
    QDateTime ReadDate(const QString& f) override { return inner_->ReadDate(f); }
    long ReadLong(const QString& f) override { return inner_->ReadLong(f); }
    QString ReadText(const QString& f) override { return inner_->ReadText(f); }
    QStringList FieldNames() override { return inner_->FieldNames(); }
    QVariant ReadValue(const QString& f) override { return inner_->ReadValue(f); }
    void WriteBool(const QString& f, bool v) override { inner_->WriteBool(f, v); }
    void WriteDate(const QString& f, const QDateTime& v) override { inner_->WriteDate(f, v); }
    void WriteLong(const QString& f, long v) override { inner_->WriteLong(f, v); }
    void WriteText(const QString& f, const QString& v) override { inner_->WriteText(f, v); }

  private:
    std::unique_ptr<CRecordset> inner_;
    std::shared_ptr<QStringList> log_;
};

struct HistoryWorld : World {
    std::shared_ptr<QStringList> statements = std::make_shared<QStringList>();

    HistoryWorld() {
        job(1, "Kunden");
        sql("INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType) "
            "VALUES (1, 'Nachts', 1, 4);"
            "INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, "
            "MTAPath, BackupPath, ErrorMTA) VALUES (1, '2026-11-22 01:00:00', 1, 'm', 'b', 'e');"
            "INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, "
            "MTAPath, BackupPath, ErrorMTA) VALUES (1, '2026-11-01 01:00:00', 0, 'm', 'b', 'e');");
        start();
        auto inner = services().newRecordset;
        auto log = statements;
        services().newRecordset = [inner, log] {
            return std::make_unique<RecordingRecordset>(inner(), log);
        };
    }
};

const QString kAbfrage = QStringLiteral(
    " SELECT     tAutoJobVerlauf.*, tAutoJobSchedule.idAutoJob AS idAutoJob"
    " FROM        tAutoJobSchedule INNER JOIN tAutoJobVerlauf ON "
    "tAutoJobSchedule.idAutoJobSchedule = tAutoJobVerlauf.idAutoJobSchedule"
    " WHERE tAutoJobSchedule.idAutoJob=1");

TEST(RunHistory, StatementOfAllResultsHasNoConditionOnTheResult) {
    HistoryWorld w;
    HistoryTestAccess::verlauf(w.admin(), 1, 2, 2, 3);
    HistoryTestAccess::fuelle(w.admin());
    ASSERT_EQ(w.statements->size(), 1);
    EXPECT_EQ(w.statements->at(0),
              kAbfrage + " AND datediff(Week, tAutoJobVerlauf.LetzteAusfuehrung, getdate()) <= 2");
    EXPECT_EQ(
        HistoryTestAccess::fenster(w.admin()).lblLabel(frmVerlauf::Lbl::Ausfuehrungen).Caption(),
        "Ausführungen: 1 Element (Zeitraum: 2 Woche(n), Typ: Alle)");
}

TEST(RunHistory, StatementOfOneResultAndOtherUnits) {
    HistoryWorld w;
    HistoryTestAccess::verlauf(w.admin(), 1, 3, 12, 0);
    HistoryTestAccess::fuelle(w.admin());
    ASSERT_EQ(w.statements->size(), 1);
    EXPECT_EQ(w.statements->at(0),
              kAbfrage +
                  " AND datediff(Month, tAutoJobVerlauf.LetzteAusfuehrung, getdate()) <= 12"
                  " AND tAutoJobVerlauf.Erfolgreich = 0");
    EXPECT_EQ(
        HistoryTestAccess::fenster(w.admin()).lblLabel(frmVerlauf::Lbl::Ausfuehrungen).Caption(),
        "Ausführungen: 1 Element (Zeitraum: 12 Monat(e), Typ: fehlerhaft)");
}

TEST(RunHistory, DeleteTakesEverySchedulesRunsAndRefills) {
    HistoryWorld w;
    HistoryTestAccess::verlauf(w.admin(), 1, 1, 1, 1);
    HistoryTestAccess::loesche(w.admin());
    ASSERT_EQ(w.statements->size(), 2);
    EXPECT_EQ(w.statements->at(0),
              " delete from tAutoJobVerlauf where tAutoJobVerlauf.idAutoJobSchedule in "
              "(select tAutoJobSchedule.idAutoJobSchedule FROM tAutoJobSchedule WHERE "
              "idAutoJob = 1)");
    EXPECT_TRUE(w.statements->at(1).startsWith(kAbfrage));
    EXPECT_EQ(w.scalar("SELECT count(*) FROM tAutoJobVerlauf"), "0");
    EXPECT_EQ(
        HistoryTestAccess::fenster(w.admin()).lblLabel(frmVerlauf::Lbl::Ausfuehrungen).Caption(),
        "Ausführungen: 0 Elemente (Zeitraum: 1 Tag(e), Typ: erfolgreich)");
}

TEST(RunHistory, UnitWordsForTheStatementAndForPeople) {
    HistoryWorld w;
    const QStringList sql{"Day", "Week", "Month", "Year"};
    const QStringList text{"Tag(e)", "Woche(n)", "Monat(e)", "Jahr(e)"};
    for (long lEinheit = 1; lEinheit <= 4; ++lEinheit) {
        HistoryTestAccess::verlauf(w.admin(), 1, lEinheit, 5, 3);
        EXPECT_EQ(HistoryTestAccess::zeiteinheit(w.admin(), 1), sql.at(lEinheit - 1));
        EXPECT_EQ(HistoryTestAccess::zeiteinheit(w.admin(), 2), text.at(lEinheit - 1));
        EXPECT_EQ(HistoryTestAccess::zeiteinheit(w.admin(), 3), "");
    }
    HistoryTestAccess::verlauf(w.admin(), 1, 5, 5, 3);
    EXPECT_EQ(HistoryTestAccess::zeiteinheit(w.admin(), 1), "");
    EXPECT_EQ(HistoryTestAccess::filterText(w.admin()), " (Zeitraum: 5 , Typ: Alle)");
}

TEST(RunHistory, ResultTextsNameTheMerchandiseSystemFromTheSuite) {
    HistoryWorld w;
    EXPECT_EQ(HistoryTestAccess::erfolg(w.admin(), 4), "keine Daten aus Kesto.");
    EXPECT_EQ(HistoryTestAccess::erfolg(w.admin(), 5), "keine Daten aus Nivora.");
    EXPECT_EQ(HistoryTestAccess::erfolg(w.admin(), 20), "erfolgreich");
    EXPECT_EQ(HistoryTestAccess::erfolg(w.admin(), 21), "fehlerhaft");
    for (int by : {6, 9, 12, 19, 22, 255}) {
        EXPECT_EQ(HistoryTestAccess::erfolg(w.admin(), by), "") << by;
    }
}

// A file system of named folders that writes down what it is asked to create.
struct Ordner : FileSystemObject {
    QSet<QString> folders;
    QStringList created;
    bool gelingt = true;
    bool FileExists(const QString&) override { return false; }
    bool FolderExists(const QString& path) override { return folders.contains(path); }
    QStringList Files(const QString&) override { return {}; }
    qint64 FileSize(const QString&) override { return 0; }
    QDateTime DateLastModified(const QString&) override { return {}; }
    bool CreateFolder(const QString& path) override {
        created << path;
        if (gelingt) {
            folders.insert(path);
        }
        return gelingt;
    }
};

std::shared_ptr<SuiteConfig> lokaleInstallation() {
    auto config = std::make_shared<SuiteConfig>();
    config->installationKind = 1;
    config->paths[83] = QStringLiteral("/daten");
    return config;
}

TEST(LogFileLinks, CreatesTheMissingLogDirectories) {
    World w(lokaleInstallation());
    w.sql(
        "INSERT INTO tSuiteText (TextId, Text) VALUES (1024, 'Daten');"
        "INSERT INTO tSuiteText (TextId, Text) VALUES (1025, 'Programme');"
        "INSERT INTO tSuiteText (TextId, Text) VALUES (1228, 'JobAgent');");
    auto ordner = std::make_shared<Ordner>();
    const QString sLog = QStringLiteral("/daten/Programme/Daten/JobAgent/LogFile/");
    ordner->folders.insert(sLog + QStringLiteral("JobAgent/"));
    services().fileSystem = ordner;
    w.start();
    EXPECT_EQ(ordner->created, (QStringList{sLog, sLog + "AutoImport/"}));
    EXPECT_EQ(HistoryTestAccess::autoImport(w.admin()), sLog + "AutoImport/");
    EXPECT_EQ(HistoryTestAccess::jobAgent(w.admin()), sLog + "JobAgent/");
    EXPECT_EQ(HistoryTestAccess::jobAgentName(w.admin()), "Suite JobAgent");
    EXPECT_TRUE(w.ui->reports.empty());
}

TEST(LogFileLinks, AFolderThatCannotBeMadeIsReportedOnce) {
    World w(lokaleInstallation());
    auto ordner = std::make_shared<Ordner>();
    ordner->gelingt = false;
    services().fileSystem = ordner;
    w.start();
    ASSERT_EQ(ordner->created.size(), 1);
    ASSERT_EQ(w.ui->reports.size(), 1u);
    EXPECT_TRUE(w.ui->reports[0].source.endsWith("mInitLogFileLinks"));
    EXPECT_EQ(w.ui->reports[0].number, 76);
}

TEST(LogFileLinks, NoLogDirectoryConfiguredMakesNoFolders) {
    World w;
    auto ordner = std::make_shared<Ordner>();
    services().fileSystem = ordner;
    w.start();
    EXPECT_TRUE(ordner->created.isEmpty());
    EXPECT_EQ(HistoryTestAccess::jobAgentName(w.admin()), "Suite JobAgent");
}

}  // namespace

TEST(BookingsLogFile, PipeAndLinkToItselfAreReportedAsNotFoundWithoutBlocking) {
    World w;
    w.start();
    QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("Buchungen.Log"));
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const QString loop = dir.filePath(QStringLiteral("Schleife.Log"));
    ASSERT_TRUE(QFile::link(loop, loop));

    EXPECT_FALSE(HistoryTestAccess::buchProt(w.admin(), pipe));
    EXPECT_FALSE(HistoryTestAccess::buchProt(w.admin(), loop));
    ASSERT_EQ(w.ui->reports.size(), 2u);
    for (const auto& report : w.ui->reports) {
        EXPECT_EQ(report.number, 53);
        EXPECT_EQ(report.description, "Datei nicht gefunden");
        EXPECT_TRUE(report.source.endsWith("mbBuchProt"));
    }
}
