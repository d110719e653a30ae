// Nothing in the program opens the database file but SQLite. Its file and directory dialogs
// list the database's folder and complete typed names without reading a file of it; a
// database file chosen for an import or export is refused; and where SQLite's locks were lost
// all the same, the save is refused, said so, and the repeated save goes through.
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "suite/SqliteFileLocks.h"
#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"

using namespace real_input;

namespace {

const QString kExport = QStringLiteral("Aufträge exportieren…");
const QString kImport = QStringLiteral("Aufträge importieren…");
const QString kCsvJob = QStringLiteral("Buchungen Bäckerei Huber (CSV)");

class DatabaseFileLocksTest : public ProgramFixture {
  protected:
    QString databasePath() const { return config_->databasePath; }
    SqliteFileLocks::State locks() const { return SqliteFileLocks::ofThisProcess(databasePath()); }
    QStringList databaseNames() const {
        const QString name = QFileInfo(databasePath()).fileName();
        return {name, name + QStringLiteral("-wal"), name + QStringLiteral("-shm")};
    }

    // Lists the database's folder in the dialog, asks every entry's icon and type as the views
    // do, and types each name into the file name box, whose completer lists what matches.
    void browseTheDatabaseFolder(QWidget* window) {
        auto* dialog = qobject_cast<QFileDialog*>(window);
        ASSERT_NE(dialog, nullptr);
        auto* model = dialog->findChild<QFileSystemModel*>();
        ASSERT_NE(model, nullptr);
        const QString folder = root();
        bool loaded = false;
        const auto connection = QObject::connect(
            model, &QFileSystemModel::directoryLoaded, dialog, [&](const QString& loadedPath) {
                loaded = loaded || QDir(loadedPath) == QDir(folder);
            });
        dialog->setDirectory(folder);
        waitFor([&] { return loaded || model->rowCount(model->index(folder)) > 0; }, 5000);
        QTest::qWait(300);  // the model gathers file information in a thread of its own
        const QModelIndex parent = model->index(folder);
        for (int row = 0; row < model->rowCount(parent); ++row) {
            model->data(model->index(row, 0, parent), Qt::DecorationRole);
            model->data(model->index(row, 2, parent), Qt::DisplayRole);
        }
        if (auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
            for (const QString& typed : databaseNames()) {
                name->clear();
                QTest::keyClicks(name, typed);
                QTest::qWait(200);
            }
        }
        QObject::disconnect(connection);
    }

    // Opens the dialog by the action, browses and cancels it; the locks are still held.
    void browseAndCancel(const QString& dialog, const std::function<void()>& open) {
        SCOPED_TRACE(dialog.toStdString());
        bool shown = false;
        whenShown(dialog, [&](QWidget* w) {
            browseTheDatabaseFolder(w);
            shown = true;
            static_cast<QDialog*>(w)->reject();
        });
        open();
        ASSERT_TRUE(waitFor([&] { return shown; }));
        EXPECT_EQ(locks(), SqliteFileLocks::State::Held);
    }

    // Plays the import or export dialog: the database's folder, the name typed, accepted.
    void chooseInFileDialog(const QString& dialog, const QString& file, bool& shown) {
        whenShown(dialog, [this, file, &shown](QWidget* w) {
            browseTheDatabaseFolder(w);
            auto* name = w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(name, nullptr);
            name->setText(file);
            shown = true;
            static_cast<QDialog*>(w)->accept();
        });
    }

    void openJob(const QString& name) {
        doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), name));
    }
};

TEST_F(DatabaseFileLocksTest, EveryFileAndDirectoryDialogListsTheDatabaseFolderAndTheLocksStay) {
    ASSERT_EQ(locks(), SqliteFileLocks::State::Held);
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Importdaten), root());
        // The import directory's "..." and the mapping file's "...", both starting there.
        browseAndCancel(QStringLiteral("dlgVerzeichnis"), [&] {
            click(find(w, QStringLiteral("cmdCommandButton"),
                       frmEigenschaften::Cmd::Importverzeichnis));
        });
        browseAndCancel(QStringLiteral("dlgDatei"), [&] {
            click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Mappingdatei));
        });
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    openJob(kCsvJob);
    ASSERT_TRUE(waitFor([&] { return done; }));

    boxes_->answerNext(QStringLiteral("Alle Aufträge"));
    browseAndCancel(QStringLiteral("dlgExport"),
                    [&] { chooseMenu(QStringLiteral("Datei"), kExport); });
    browseAndCancel(QStringLiteral("dlgImport"),
                    [&] { chooseMenu(QStringLiteral("Datei"), kImport); });
    EXPECT_EQ(locks(), SqliteFileLocks::State::Held);
}

TEST_F(DatabaseFileLocksTest, TheDatabaseChosenForAnImportOrAnExportIsRefusedUntouched) {
    const QString refusal = QStringLiteral(
        "Die Datei %1 gehört zur geöffneten Datenbank des Programms. Sie wird nicht geöffnet, "
        "damit die Datenbank keinen Schaden nimmt; bitte wählen Sie eine andere Datei.");
    bool shown = false;
    chooseInFileDialog(QStringLiteral("dlgImport"), databasePath(), shown);
    chooseMenu(QStringLiteral("Datei"), kImport);
    ASSERT_TRUE(waitFor([&] { return shown && !boxes_->shown().isEmpty(); }));
    EXPECT_EQ(
        boxes_->shown().constLast(),
        QStringLiteral("Die Datei kann nicht gelesen werden:\n") + refusal.arg(databasePath()));
    EXPECT_EQ(locks(), SqliteFileLocks::State::Held);

    shown = false;
    boxes_->answerNext(QStringLiteral("Alle Aufträge"));
    const QString wal = databasePath() + QStringLiteral("-wal");
    chooseInFileDialog(QStringLiteral("dlgExport"), wal, shown);
    chooseMenu(QStringLiteral("Datei"), kExport);
    ASSERT_TRUE(waitFor([&] { return shown && boxes_->shown().size() == 3; }));
    EXPECT_EQ(boxes_->shown().constLast(),
              QStringLiteral("Die Aufträge konnten nicht exportiert werden:\n") + refusal.arg(wal));
    EXPECT_EQ(locks(), SqliteFileLocks::State::Held);
    EXPECT_EQ(scalar(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob")), QStringLiteral("14"));

    // Any other file that is there is replaced after the program's own question.
    const QString existing = root() + QStringLiteral("/Vorhanden.json");
    {
        QFile old(existing);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("alt");
    }
    shown = false;
    boxes_->answerNext(QStringLiteral("Alle Aufträge"));
    boxes_->answerNext(QStringLiteral("Ja"));
    chooseInFileDialog(QStringLiteral("dlgExport"), existing, shown);
    chooseMenu(QStringLiteral("Datei"), kExport);
    ASSERT_TRUE(waitFor([&] { return shown && boxes_->shown().size() == 6; }));
    EXPECT_EQ(boxes_->shown().at(4),
              QStringLiteral("Die Datei %1 ist schon vorhanden.\nWollen Sie sie ersetzen?")
                  .arg(QDir::toNativeSeparators(existing)));
    EXPECT_EQ(boxes_->shown().at(5),
              QStringLiteral("Die Aufträge wurden exportiert nach\n") + existing);
    QFile replaced(existing);
    ASSERT_TRUE(replaced.open(QIODevice::ReadOnly));
    EXPECT_TRUE(replaced.readAll().startsWith("{"));
}

TEST_F(DatabaseFileLocksTest, ASaveAfterTheLocksWereLostIsRefusedAndTheRepeatedSaveGoesThrough) {
    QStringList boxesWhenLost;
    bool uebernehmenWhenLost = false;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        auto* uebernehmen = findIn<QPushButton>(w, QStringLiteral("cmdCommandButton"),
                                                frmEigenschaften::Cmd::Uebernehmen);
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                 QStringLiteral("Nach der Sperre"));
        {
            // A slip of some future code: the database file read beside SQLite.
            QFile file(databasePath());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            file.read(100);
        }
        ASSERT_EQ(locks(), SqliteFileLocks::State::Lost);
        click(uebernehmen);
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 3000);
        boxesWhenLost = boxes_->shown();
        uebernehmenWhenLost = uebernehmen->isEnabled();
        EXPECT_EQ(locks(), SqliteFileLocks::State::Held);
        click(uebernehmen);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    openJob(QStringLiteral("Lieferanten Autohaus Lindner"));
    ASSERT_TRUE(waitFor([&] { return done; }));

    ASSERT_EQ(boxesWhenLost.size(), 1) << boxesWhenLost.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhenLost.at(0).contains(
        QStringLiteral("Die Sperre auf die Datenbank %1 ist verloren gegangen. Damit nichts in "
                       "eine Datei geschrieben wird, die ein anderes Programm inzwischen gelöscht "
                       "haben kann, wurde die letzte Aktion nicht ausgeführt. Die Verbindung "
                       "wurde neu geöffnet; bitte wiederholen Sie die Aktion.")
            .arg(databasePath())))
        << boxesWhenLost.at(0).toStdString();
    EXPECT_TRUE(uebernehmenWhenLost);
    EXPECT_EQ(scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2")),
              QStringLiteral("Nach der Sperre"));
    EXPECT_EQ(boxes_->shown().size(), 1);
}

// The agent service as a program of its own writes runs and log entries all along, while the
// user browses the database's folder in the dialogs, saves jobs and deletes log data. When
// both have stopped, the file is sound and holds everything either wrote.
TEST_F(DatabaseFileLocksTest, TheAgentWritesWhileDialogsSavesAndDeletionsRunAndNothingIsLost) {
    const qint64 runsBefore =
        scalar(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toLongLong();
    const qint64 logBefore =
        scalar(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")).toLongLong();
    QProcess agent;
    agent.setProcessChannelMode(QProcess::MergedChannels);
    agent.start(QStringLiteral(AJV_AGENT),
                {QStringLiteral("--db"), databasePath(), QStringLiteral("--live"),
                 QStringLiteral("--interval-ms"), QStringLiteral("20")});
    ASSERT_TRUE(agent.waitForStarted());

    const QStringList jobs{QStringLiteral("Lieferanten Autohaus Lindner"), kCsvJob,
                           QStringLiteral("Kunden Bäckerei Huber")};
    QStringList saved;
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        boxes_->answerNext(QStringLiteral("Alle Aufträge"));
        browseAndCancel(QStringLiteral("dlgExport"),
                        [&] { chooseMenu(QStringLiteral("Datei"), kExport); });

        const QString description = QStringLiteral("Runde %1 neben dem Dienst").arg(round);
        bool edited = false;
        whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
            typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                     description);
            click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
            edited = true;
        });
        openJob(jobs[round]);
        ASSERT_TRUE(
            waitFor([&] { return edited && !shownWindow(QStringLiteral("frmEigenschaften")); }));
        saved << description;

        deleteTodaysServiceLog();
    }
    agent.terminate();
    ASSERT_TRUE(agent.waitForFinished(10000));
    const QString agentOutput = QString::fromUtf8(agent.readAll());
    program_.reset();  // the program ends too

    QStringList unexpected;
    const qint64 deleted = deletedLogEntries(
        {QStringLiteral("Welche Aufträge sollen exportiert werden?")}, unexpected);
    EXPECT_EQ(unexpected, QStringList());

    const QRegularExpression totals(
        QStringLiteral("Beendet\\. Geschrieben: (\\d+) Ausführungen, (\\d+) Logeinträge"));
    const auto written = totals.match(agentOutput);
    ASSERT_TRUE(written.hasMatch()) << agentOutput.toStdString();
    EXPECT_FALSE(agentOutput.contains(QStringLiteral("Nicht geschrieben")))
        << agentOutput.toStdString();
    const qint64 runs = written.captured(1).toLongLong();
    const qint64 entries = written.captured(2).toLongLong();
    EXPECT_GT(runs, 5);

    EXPECT_EQ(scalar(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM tAutoJobVerlauf")).toLongLong(),
              runsBefore + runs);
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM SYS_JobAgentLogDaten")).toLongLong(),
              logBefore + entries - deleted);
    for (int i = 0; i < jobs.size(); ++i) {
        EXPECT_EQ(scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE Name = '%1'")
                             .arg(jobs[i])),
                  saved[i]);
    }
}

}  // namespace
