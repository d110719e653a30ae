// The program users start, driven through its widgets as a person does.
#include <sqlite3.h>

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmVerlauf.h"
#include "ui/windows/frmZeitIntervall.h"
#include "ui/windows/frmZeitplan.h"

using namespace real_input;

namespace {

const QString kLindner = QStringLiteral("Lieferanten Autohaus Lindner");

// A stand-in of the starter: writes down the arguments it was started with.
void placeRecordingStarter(const QString& programDir) {
    QDir().mkpath(programDir);
    QFile starter(programDir + QStringLiteral("ZPKyJobStart.exe"));
    ASSERT_TRUE(starter.open(QIODevice::WriteOnly));
    starter.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$0.started\"\n");
    starter.close();
    starter.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString fileText(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

}  // namespace

using DesktopProgramTest = ProgramFixture;

TEST_F(DesktopProgramTest, DoubleClickOpensTheJobAndUebernehmenStoresTheDescription) {
    const int row = rowShowing(list(), QStringLiteral("Name"), kLindner);
    ASSERT_GT(row, 0);
    QString caption;
    QString stored;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        caption = w->windowTitle();
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                 QStringLiteral("Aus der Buchhaltung"));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Uebernehmen));
        stored = scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2"));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), row);
    ASSERT_TRUE(waitFor([&] { return done; }));

    EXPECT_EQ(caption, kLindner + QStringLiteral(" - Bearbeiten "));
    EXPECT_EQ(stored, QStringLiteral("Aus der Buchhaltung"));
    EXPECT_EQ(boxes_->shown(), QStringList());
    EXPECT_EQ(shownWindow(QStringLiteral("frmEigenschaften")), nullptr);
}

TEST_F(DesktopProgramTest, NewJobFromTheMenuIsSaved) {
    const QString before = scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob"));
    saveNewJobFromTheMenu(QStringLiteral("Kunden Neu"));
    const QString importDir = root() + QStringLiteral("/import");

    EXPECT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob")).toInt(),
              before.toInt() + 1);
    EXPECT_EQ(scalar(QStringLiteral("SELECT MTAPath FROM tAutoJobJob WHERE Name = 'Kunden Neu'")),
              importDir);
    EXPECT_EQ(scalar(QStringLiteral("SELECT DatenArt FROM tAutoJobJob WHERE Name = 'Kunden Neu'")),
              QStringLiteral("17"));
    EXPECT_GT(rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Kunden Neu")), 0);
}

TEST_F(DesktopProgramTest, ScheduleCreatedThroughBothDialogs) {
    const QString count = QStringLiteral(
        "SELECT count(*) FROM tAutoJobSchedule WHERE idAutoJob = 2 AND Name = 'Nachts'");
    ASSERT_EQ(scalar(count), QStringLiteral("0"));
    bool intervalShown = false;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        whenShown(QStringLiteral("frmZeitplan"), [&](QWidget* plan) {
            typeOver(find(plan, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name),
                     QStringLiteral("Nachts"));
            whenShown(QStringLiteral("frmZeitIntervall"), [&](QWidget* interval) {
                intervalShown = true;
                click(
                    find(interval, QStringLiteral("cmdCommandButton"), frmZeitIntervall::Cmd::Ok));
            });
            click(find(plan, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Aendern));
            click(find(plan, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
        });
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::ZeitplanNeu));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kLindner));
    ASSERT_TRUE(waitFor([&] { return done; }));

    EXPECT_TRUE(intervalShown);
    EXPECT_EQ(scalar(count), QStringLiteral("1"));
    EXPECT_EQ(boxes_->shown(), QStringList());
}

TEST_F(DesktopProgramTest, AuftragAusfuehrenStartsTheStarterWithJobAndStaffMember) {
    placeRecordingStarter(config_->paths[41]);
    const int row =
        rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Kunden Bäckerei Huber"));
    ASSERT_GT(row, 0);
    rightClickRow(list(), row);
    ASSERT_TRUE(waitFor([] { return openPopup() != nullptr; }, 3000));
    ASSERT_TRUE(clickMenuItem(openPopup(), QStringLiteral("Auftrag ausführen")));

    const QString record = config_->paths[41] + QStringLiteral("ZPKyJobStart.exe.started");
    ASSERT_TRUE(waitFor([&] { return !fileText(record).isEmpty(); }));
    EXPECT_EQ(fileText(record), QStringLiteral("/JOBID=1\n/MITID=1\n"));
    EXPECT_EQ(boxes_->shown(), QStringList());
}

TEST_F(DesktopProgramTest, HostMenusAgreeWithTheListsToolsAndReachTheirCommands) {
    QWidget* listWindow = mainWindow().centralWidget();
    ASSERT_NE(listWindow, nullptr);
    auto agree = [&](const char* when) {
        int compared = 0;
        for (QAction* hostItem : mainWindow().menuBar()->findChildren<QAction*>()) {
            const auto* menu = qobject_cast<QMenu*>(hostItem->parent());
            if (!menu || hostItem->objectName().isEmpty()) {
                continue;
            }
            const QString band = menu->objectName().mid(4);
            auto* listTool =
                listWindow->findChild<QAction*>(band + QLatin1Char('.') + hostItem->objectName());
            if (!listTool) {
                continue;
            }
            ++compared;
            EXPECT_EQ(hostItem->isEnabled(), listTool->isEnabled())
                << when << ": " << band.toStdString() << "/"
                << hostItem->objectName().toStdString();
        }
        EXPECT_GE(compared, 13) << when;
    };
    agree("at start");
    auto* neu = mainWindow().findChild<QAction*>(QStringLiteral("Neu"));
    ASSERT_NE(neu, nullptr);
    EXPECT_TRUE(neu->isEnabled());

    clickRow(list(), 1);
    agree("one job selected");
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list()->visualRect(list()->model()->index(1, 1)).center());
    agree("two jobs selected");

    clickRow(list(), rowShowing(list(), QStringLiteral("Name"), kLindner));
    QString caption;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        caption = w->windowTitle();
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
    });
    chooseMenu(QStringLiteral("Bearbeiten"), QStringLiteral("Bearbeiten"));
    ASSERT_TRUE(waitFor([&] { return !caption.isEmpty(); }));
    EXPECT_EQ(caption, kLindner + QStringLiteral(" - Bearbeiten "));
    agree("after the editor");

    // The view menu reaches the run history of the selected job and the service's log data;
    // each window ends by its close box.
    QString history;
    QString jobName;
    whenShown(QStringLiteral("frmVerlauf"), [&](QWidget* w) {
        history = w->windowTitle();
        if (auto* name = qobject_cast<QLabel*>(
                find(w, QStringLiteral("lblLabel"), frmVerlauf::Lbl::Auftragsname))) {
            jobName = name->text();
        }
        w->close();
    });
    chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Auftragsverlauf"));
    ASSERT_TRUE(waitFor([&] { return !history.isEmpty(); }));
    EXPECT_EQ(history, QStringLiteral("Auftragsverlauf"));
    EXPECT_EQ(jobName, QStringLiteral("Auftragsname: ") + kLindner);

    QString logData;
    whenShown(QStringLiteral("frmLogDaten"), [&](QWidget* w) {
        logData = w->windowTitle();
        w->close();
    });
    chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Logdaten Dienst"));
    ASSERT_TRUE(waitFor([&] { return !logData.isEmpty(); }));
    EXPECT_EQ(logData, QStringLiteral("Suite  Logdaten Dienst"));
    EXPECT_TRUE(waitFor([] { return shownWindow(QStringLiteral("frmLogDaten")) == nullptr; }));
    agree("after the history and the log data");
    EXPECT_EQ(boxes_->shown(), QStringList());
}

TEST_F(DesktopProgramTest, AktualisierenShowsWhatAnotherProgramSaved) {
    const QString name = QStringLiteral("Von nebenan");
    EXPECT_EQ(rowShowing(list(), QStringLiteral("Name"), name), 0);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(config_->databasePath.toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other,
                           "INSERT INTO tAutoJobJob (Name, DatenArt, MandKanz, Aktiviert) "
                           "VALUES ('Von nebenan', 5, 3, 1)",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(other);
    EXPECT_EQ(rowShowing(list(), QStringLiteral("Name"), name), 0);
    chooseMenu(QStringLiteral("Ansicht"), QStringLiteral("Aktualisieren"));
    EXPECT_TRUE(waitFor([&] { return rowShowing(list(), QStringLiteral("Name"), name) > 0; }));
    // F5 does the same.
    ASSERT_EQ(sqlite3_open(config_->databasePath.toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "DELETE FROM tAutoJobJob WHERE Name = 'Von nebenan'", nullptr,
                           nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(other);
    mainWindow().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mainWindow()));
    QTest::keyClick(list(), Qt::Key_F5);
    EXPECT_TRUE(waitFor([&] { return rowShowing(list(), QStringLiteral("Name"), name) == 0; }));
    EXPECT_EQ(boxes_->shown(), QStringList());
}

TEST_F(DesktopProgramTest, CloseBoxEndsTheDocumentAndLeavesTheDataAsItWas) {
    const QString jobs = scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob"));
    mainWindow().close();
    EXPECT_FALSE(mainWindow().isVisible());
    EXPECT_EQ(mainWindow().centralWidget(), nullptr);
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob")), jobs);
    EXPECT_EQ(boxes_->shown(), QStringList());
}
