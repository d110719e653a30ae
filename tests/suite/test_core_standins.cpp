#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sstream>

#include "common/ErrorExit.h"
#include "common/MessageBox.h"
#include "common/ModuleHelpers.h"
#include "suite/ConsoleUi.h"
#include "suite/CoreStandIns.h"
#include "suite/SuiteServices.h"
#include "suite/TraceLog.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

struct RecordingUi : PlatformUi {
    struct Box {
        QString text;
        long flags;
        QString title;
    };
    struct Report {
        long number;
        QString source;
        QString description;
    };
    QList<Box> boxes;
    QList<Report> reports;
    QStringList help;
    long answer = 6;

    long MsgBox(const QString& text, long flags, const QString& title) override {
        boxes.append({text, flags, title});
        return answer;
    }
    void ShowErrorReport(long number, const QString& source, const QString& description) override {
        reports.append({number, source, description});
    }
    void ShowHelp(const QString& helpFile, const QString& topic) override {
        help.append(helpFile + "|" + topic);
    }
    std::optional<QString> FileDialog(const QString&, const QString&, const QString&,
                                      const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> DirDialog(const QString&, const QString&) override {
        return std::nullopt;
    }
    void SetMousePointer(int) override {}
};

struct RecordingTarget : PictureTarget {
    QStringList calls;
    void setIconPicture(long id) override { calls.append("icon " + QString::number(id)); }
    void setToolPicture(const QString& tool, long id) override {
        calls.append(tool + " " + QString::number(id));
    }
};

class CoreStandIns : public ::testing::Test {
  protected:
    CoreStandIns()
        : clock(std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0)))),
          db(Database::open(":memory:", clock)),
          config(std::make_shared<SuiteConfig>(SuiteConfig::defaults())),
          ui(std::make_shared<RecordingUi>()),
          scope(makeSuiteServices(config, db, ui, clock)) {
        db->runScript(
            "CREATE TABLE tSuiteText (TextId INTEGER PRIMARY KEY, Text TEXT NOT NULL);"
            "INSERT INTO tSuiteText VALUES (1001, 'Suite');"
            "INSERT INTO tSuiteText VALUES (1024, 'Daten');"
            "INSERT INTO tSuiteText VALUES (1025, 'Programme');"
            "INSERT INTO tSuiteText VALUES (1228, 'JobAgent');");
    }

    std::shared_ptr<FixedClock> clock;
    std::shared_ptr<Database> db;
    std::shared_ptr<SuiteConfig> config;
    std::shared_ptr<RecordingUi> ui;
    ScopedServices scope;
    QTemporaryDir dir;
};

TEST_F(CoreStandIns, TitleComesFromTextTableAndFollowsItsChanges) {
    EXPECT_EQ(msGetTitel(), QString::fromUtf8("Suite  Konfiguration automatischer Aufträge"));
    db->runScript("UPDATE tSuiteText SET Text = 'Kanzlei' WHERE TextId = 1001;");
    EXPECT_EQ(msGetTitel(), QString::fromUtf8("Kanzlei  Konfiguration automatischer Aufträge"));
    EXPECT_EQ(services().coreTexte->GetText(QVariant(4242)), "");
    EXPECT_EQ(services().coreTexte->GetText(QVariant("1024")), "Daten");
    EXPECT_TRUE(ui->reports.isEmpty());
}

TEST_F(CoreStandIns, LogPathOfLocalInstallationIsBuiltFromDataRootAndTexts) {
    config->installationKind = 1;
    config->paths[83] = "/srv/daten";
    QString path;
    EXPECT_TRUE(msGetLogPath(path));
    const QString sep = QDir::separator();
    EXPECT_EQ(path, "/srv/daten" + sep + "Programme" + sep + "Daten" + sep + "JobAgent" + sep +
                        "LogFile" + sep);
}

TEST_F(CoreStandIns, LogPathOfOtherInstallationsComesFromTheSuiteIni) {
    config->installationKind = 0;
    config->iniFilePath = dir.filePath("suite.ini");
    QFile f(config->iniFilePath);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[PFADE]\nLOGFILE=/var/log/agent\n");
    f.close();
    QString path;
    EXPECT_TRUE(msGetLogPath(path));
    EXPECT_EQ(path, "/var/log/agent" + QString(QDir::separator()));
}

TEST_F(CoreStandIns, MessageBoxWithoutTitleShowsTheSystemsTitle) {
    MessageBoxOwner owner("cAdminJob");
    ui->answer = 7;
    EXPECT_EQ(owner.mlMsgBox("Wirklich löschen?", 36), 7);
    EXPECT_EQ(owner.mlMsgBox("Gespeichert.", 64, "Eigener Titel"), 7);
    ASSERT_EQ(ui->boxes.size(), 2);
    EXPECT_EQ(ui->boxes[0].text, QString::fromUtf8("Wirklich löschen?"));
    EXPECT_EQ(ui->boxes[0].flags, 36);
    EXPECT_EQ(ui->boxes[0].title, QString::fromUtf8("Suite  Konfiguration automatischer Aufträge"));
    EXPECT_EQ(ui->boxes[1].title, "Eigener Titel");
}

TEST_F(CoreStandIns, ToLongRoundsHalfToEvenAndReadsNumbersInText) {
    SuiteCoreConvert c;
    EXPECT_EQ(c.ToLong(QVariant(2.5)), 2);
    EXPECT_EQ(c.ToLong(QVariant(3.5)), 4);
    EXPECT_EQ(c.ToLong(QVariant(-2.5)), -2);
    EXPECT_EQ(c.ToLong(QVariant(-3.5)), -4);
    EXPECT_EQ(c.ToLong(QVariant(2.51)), 3);
    EXPECT_EQ(c.ToLong(QVariant(42)), 42);
    EXPECT_EQ(c.ToLong(QVariant(qint64(-7))), -7);
    EXPECT_EQ(c.ToLong(QVariant(true)), -1);
    EXPECT_EQ(c.ToLong(QVariant(false)), 0);
    EXPECT_EQ(c.ToLong(QVariant()), 0);
    EXPECT_EQ(c.ToLong(QVariant(" 1001 ")), 1001);
    EXPECT_EQ(c.ToLong(QVariant("7,5")), 8);
    EXPECT_EQ(c.ToLong(QVariant("12.4")), 12);
    EXPECT_EQ(c.ToLong(QVariant(QDate(1900, 1, 1))), 2);
}

TEST_F(CoreStandIns, ToLongRaisesTypeMismatchAndOverflow) {
    SuiteCoreConvert c;
    for (const QVariant& v : {QVariant(""), QVariant("abc"), QVariant("12a"), QVariant("  ")}) {
        try {
            c.ToLong(v);
            ADD_FAILURE() << "no error for " << v.toString().toStdString();
        } catch (const RaisedError& e) {
            EXPECT_EQ(e.err().Number, 13);
            EXPECT_EQ(e.err().Description, QString::fromUtf8("Typen unverträglich"));
        }
    }
    try {
        c.ToLong(QVariant(3e9));
        ADD_FAILURE() << "no overflow";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, 6);
    }
}

TEST_F(CoreStandIns, ErrorExitReportsThroughTheErrorDialog) {
    {
        ErrorExit ex("mSpeichern", "cAdminJob");
        try {
            throw RaisedError(5, QString::fromUtf8("Ungültiger Prozeduraufruf"), "hdata");
        } catch (...) {
            ex.fail();
        }
    }
    ASSERT_EQ(ui->reports.size(), 1);
    const auto& r = ui->reports[0];
    EXPECT_EQ(r.number, 5);
    EXPECT_EQ(r.description, QString::fromUtf8("Ungültiger Prozeduraufruf"));
    EXPECT_EQ(r.source, "000100000000|ZPKyAutoJobVerw|hdata" + kCrLf +
                            "ZPKyAutoJobVerw.cAdminJob.mSpeichern");
}

TEST_F(CoreStandIns, CreationFailureTellsCommandAndLibrary) {
    services().newMitarbeiter = nullptr;
    {
        ErrorExit ex("msMitarbeiterName", "cAdminJob");
        try {
            ex.create(services().newMitarbeiter, "hstaff.dll",
                      "Set oMitarbeiter = New hstaff.OIMitarbeiterClass");
        } catch (...) {
            ex.fail();
        }
    }
    ASSERT_EQ(ui->reports.size(), 1);
    const auto& r = ui->reports[0];
    EXPECT_EQ(r.number, ErrNumber::CannotCreate);
    const QString creation =
        kCrLf + kCrLf + QString::fromUtf8("Folgender Befehl hat diesen Fehler ausgelöst:") + kCrLf +
        "\"Set oMitarbeiter = New hstaff.OIMitarbeiterClass\"" + kCrLf + "(hstaff.dll)";
    EXPECT_EQ(r.description,
              QString::fromUtf8("Objekterstellung durch ActiveX-Komponente nicht möglich") + kCrLf +
                  kCrLf + creation);
    EXPECT_TRUE(r.source.startsWith("000100000000|ZPKyAutoJobVerw|"));
    EXPECT_TRUE(r.source.endsWith(kCrLf + "ZPKyAutoJobVerw.cAdminJob.msMitarbeiterName"));
}

TEST_F(CoreStandIns, TextsWithoutRecordSetsFailIntoTheCallersReport) {
    services().newRecordset = nullptr;
    EXPECT_EQ(msGetTitel(), "");
    ASSERT_EQ(ui->reports.size(), 1);
    const auto& r = ui->reports[0];
    EXPECT_EQ(r.number, ErrNumber::CannotCreate);
    EXPECT_TRUE(
        r.description.endsWith("\"Set oTL = New hdata.CRecordset\"" + kCrLf + "(hdata.dll)"));
    EXPECT_TRUE(r.source.endsWith(kCrLf + "ZPKyAutoJobVerw.modDeklarationen.msGetTitel"));
}

TEST_F(CoreStandIns, HelpGoesToThePlatformAndPicturesToTheirTargets) {
    gShowWikiHelpExterneProgramme(HelpKeys::kSchedules);
    EXPECT_EQ(ui->help, QStringList{HelpKeys::kHelpFile + "|" + HelpKeys::kSchedules});

    RecordingTarget window;
    services().coreTexte->SetFormIcon(window, 1000);
    services().coreTexte->GetBilder(window, {{"save", 12}, {"first", 40}});
    EXPECT_EQ(window.calls, (QStringList{"icon 1000", "save 12", "first 40"}));
}

TEST_F(CoreStandIns, DialogsWithoutPlatformUiRaiseObjectRequired) {
    services().ui = nullptr;
    auto tools = services().newCoreTools();
    try {
        tools->MsgBox("x", 64, "t", "", 0);
        ADD_FAILURE() << "no error";
    } catch (const RaisedError& e) {
        EXPECT_EQ(e.err().Number, ErrNumber::ObjectRequired);
    }
}

TEST_F(CoreStandIns, TraceIsWrittenOnlyWhenSwitchedOn) {
    config->traceFilePath = dir.filePath("neu/spur.log");
    auto log = services().newLog();
    EXPECT_EQ(log->IsTraceOn() & 1, 0);
    log->Write(1, "ZPKyAutoJobVerw.cAdminJob.Class_Initialize");
    EXPECT_FALSE(QFile::exists(config->traceFilePath));

    config->traceOn = true;
    EXPECT_EQ(log->IsTraceOn() & 1, 1);
    log->Write(1, "ZPKyAutoJobVerw.cAdminJob.Class_Initialize");
    clock->set(QDateTime(QDate(2026, 11, 22), QTime(10, 5, 9)));
    log->Write(1, QString::fromUtf8("ZPKyAutoJobVerw.cAdminJob.Class_Terminate ä"));
    QFile f(config->traceFilePath);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(
        QString::fromUtf8(f.readAll()),
        QString::fromUtf8("2026-11-22 10:00:00\t1\tZPKyAutoJobVerw.cAdminJob.Class_Initialize\n"
                          "2026-11-22 10:05:09\t1\tZPKyAutoJobVerw.cAdminJob.Class_Terminate ä\n"));
}

TEST(ConsoleUi, AnswersSafelyAndWritesWhatItWasAsked) {
    std::ostringstream out;
    ConsoleUi ui(out);
    EXPECT_EQ(ui.MsgBox("Gespeichert.", 64, "Titel"), 1);
    EXPECT_EQ(ui.MsgBox("Fehler", 16, "Titel"), 1);
    EXPECT_EQ(ui.MsgBox("Ja oder nein?", 4, "Titel"), 7);
    EXPECT_EQ(ui.MsgBox("Löschen?", 36, "Titel"), 7);
    EXPECT_EQ(ui.MsgBox("Speichern?", 35, "Titel"), 2);
    EXPECT_EQ(ui.MsgBox("Weiter?", 1, "Titel"), 2);
    const std::string text = out.str();
    EXPECT_NE(text.find("[Titel] Löschen?\n(Stil 36, Antwort 7)"), std::string::npos);

    std::ostringstream err;
    ConsoleUi errUi(err);
    errUi.ShowErrorReport(13, "Quelle\r\nZPKyAutoJobVerw.cAdminJob.mX", "Typen unverträglich");
    EXPECT_EQ(err.str(),
              "Fehler-Nr: 13\nTypen unverträglich\nFehlerquelle: Quelle\n"
              "ZPKyAutoJobVerw.cAdminJob.mX\n");
}

}  // namespace
