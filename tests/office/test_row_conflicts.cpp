// Two workstations on one job: this process is the first, driven through its widgets; the
// second is a connection of its own writing beside it, on the SQLite file and on the server.
// Whatever the second wrote meanwhile is undone only after the first user's yes.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTableView>
#include <QTest>

#include "suite/Database.h"
#include "suite/PostgresConnection.h"
#include "tests/host/ProgramFixture.h"
#include "tests/postgresql/ServerDatabase.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmZeitplan.h"

using namespace real_input;

namespace {

const QString kJob = QStringLiteral("Kunden Bäckerei Huber");

QString jobChanged(const QString& name) {
    return QStringLiteral(
               "Der Auftrag „%1“ wurde inzwischen von Jonas Keller am 24.11.2026 um "
               "09:15:30 Uhr geändert.\n\nSollen Ihre Eingaben trotzdem gespeichert "
               "werden?\n\nJa: Ihre Eingaben ersetzen diese Änderungen.\nNein: Die "
               "gespeicherte Fassung wird angezeigt, Ihre Eingaben werden verworfen.\n"
               "Abbrechen: Weiter bearbeiten.")
        .arg(name);
}

class RowConflicts : public ProgramFixture, public ::testing::WithParamInterface<bool> {
  protected:
    bool onServer() const { return GetParam(); }

    void configure(SuiteConfig& config) override {
        QDir().mkpath(root() + QStringLiteral("/in"));
        QDir().mkpath(root() + QStringLiteral("/backup"));
        QDir().mkpath(root() + QStringLiteral("/log"));
        if (onServer()) {
            server_ = std::make_unique<ServerDatabase>();
            config.databasePath = PostgresConnection::addressOf(server_->name());
        } else {
            config.databasePath = root() + QStringLiteral("/buero.sqlite");
        }
        config.mitId = 2;
        {
            auto db = Database::open(config.databasePath, nullptr);
            db->applySchema();
            db->runScript(
                QStringLiteral(
                    "INSERT INTO tMitarbeiter (MitId, Name) VALUES (1, 'Administrator'), "
                    "(2, 'Anna Berger'), (3, 'Jonas Keller');"
                    "INSERT INTO tMandant (ManId, ManNr, Kanzlei, Name) VALUES "
                    "(1, 10010, 0, 'Bäckerei Huber GmbH');"
                    "INSERT INTO tSuiteText (TextId, Text) VALUES (1236, 'Kesto');"
                    "INSERT INTO tAutoJobJob (Name, Beschreibung, Aktiviert, DatenArt, MTAPath, "
                    "BackupPath, ErrorMTA, Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, "
                    "Erstellt, LetzteAenderung) VALUES ('%1', 'Stammdaten', 1, 17, '%2/in', "
                    "'%2/backup', '%2/log', 1, 0, 2, '2', '2026-11-01 08:00:00', "
                    "'2026-11-01 08:00:00');"
                    "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
                    "FrequencyInterval, FrequencySubDay, ActiveStartTimeOfDay, ActiveEndTimeOfDay, "
                    "ActiveStartDate, ActiveEndDate, Ps_Id, LetzteAenderung) VALUES (1, "
                    "'Nachts', 1, 4, 1, 1, 20000, 235959, '2026-11-01 00:00:00', "
                    "'9999-12-31 00:00:00', 2, '2026-11-01 08:00:00')")
                    .arg(kJob, root()));
        }
        if (onServer()) {
            other_ = server_->connect();
        } else {
            other_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("platz2"));
            other_.setDatabaseName(config.databasePath);
            other_.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
            ASSERT_TRUE(other_.open());
        }
    }

    void TearDown() override {
        ProgramFixture::TearDown();
        if (!onServer()) {
            other_.close();
            other_ = QSqlDatabase();
            QSqlDatabase::removeDatabase(QStringLiteral("platz2"));
        }
    }

    // The second workstation's statement.
    void elsewhere(const QString& sql) {
        QSqlQuery q(other_);
        ASSERT_TRUE(q.exec(sql)) << q.lastError().text().toStdString();
    }
    QString stored(const QString& sql) {
        QSqlQuery q(other_);
        if (!q.exec(sql) || !q.next()) {
            return QStringLiteral("<no row>");
        }
        QStringList values;
        for (int i = 0; i < q.record().count(); ++i) {
            values << q.value(i).toString();
        }
        return values.join(u'|');
    }
    // Jonas Keller renames the job at the second workstation.
    void renamedElsewhere() {
        elsewhere(QStringLiteral(
            "UPDATE tAutoJobJob SET Name = 'Kunden Huber neu', Ps_Id_Mitarbeiter = 3, "
            "LetzteAenderung = '2026-11-24 09:15:30' WHERE idAutoJob = 1"));
    }

    // Opens the job, types a new description, lets the second workstation act, presses the
    // button and answers the question; then plays after(w) in the still open window, if so.
    void saveAfter(const std::function<void()>& meanwhile, const QString& answer, int button,
                   const std::function<void(QWidget*)>& after = {}) {
        bool done = false;
        whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
            typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                     QStringLiteral("Von Anna"));
            meanwhile();
            boxes_->answerNext(answer);
            click(find(w, QStringLiteral("cmdCommandButton"), button));
            if (after) {
                after(w);
            }
            done = true;
        });
        doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kJob));
        ASSERT_TRUE(waitFor([&] { return done; }));
    }

    QString text(QWidget* w, int box) {
        return findIn<QLineEdit>(w, QStringLiteral("txtTextBox"), box)
                   ? findIn<QLineEdit>(w, QStringLiteral("txtTextBox"), box)->text()
                   : findIn<QPlainTextEdit>(w, QStringLiteral("txtTextBox"), box)->toPlainText();
    }

    std::unique_ptr<ServerDatabase> server_;
    QSqlDatabase other_;
};

TEST_P(RowConflicts, AJobChangedElsewhereIsOverwrittenOnlyAfterYes) {
    saveAfter([&] { renamedElsewhere(); }, QStringLiteral("Ja"), frmEigenschaften::Cmd::Ok);
    ASSERT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(boxes_->shown().first(), jobChanged(QStringLiteral("Kunden Huber neu")));
    // Yes writes the window's values, all of them, as they were shown.
    EXPECT_EQ(stored(QStringLiteral("SELECT Name, Beschreibung, Ps_Id_Mitarbeiter, Zeilenversion "
                                    "FROM tAutoJobJob")),
              kJob + QStringLiteral("|Von Anna|2|2"));
    EXPECT_FALSE(shownWindow(QStringLiteral("frmEigenschaften")));
}

TEST_P(RowConflicts, NoShowsTheStoredJobAndCancelKeepsTheInput) {
    QString afterNo;
    QString nameAfterNo;
    bool uebernehmenAfterNo = true;
    saveAfter(
        [&] { renamedElsewhere(); }, QStringLiteral("Nein"), frmEigenschaften::Cmd::Uebernehmen,
        [&](QWidget* w) {
            waitFor([&] { return !boxes_->shown().isEmpty(); }, 2000);
            afterNo = text(w, frmEigenschaften::Txt::Beschreibung);
            nameAfterNo = text(w, frmEigenschaften::Txt::Name);
            uebernehmenAfterNo =
                find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Uebernehmen)
                    ->isEnabled();
            // Another change elsewhere, and this time the user goes on editing.
            typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                     QStringLiteral("Zweiter Versuch"));
            elsewhere(
                QStringLiteral("UPDATE tAutoJobJob SET Beschreibung = 'Von Jonas', "
                               "Ps_Id_Mitarbeiter = 3, LetzteAenderung = "
                               "'2026-11-24 09:15:30'"));
            boxes_->answerNext(QStringLiteral("Abbrechen"));
            click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
            waitFor([&] { return boxes_->shown().size() == 2; }, 2000);
            EXPECT_EQ(text(w, frmEigenschaften::Txt::Beschreibung),
                      QStringLiteral("Zweiter Versuch"));
            click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        });
    ASSERT_EQ(boxes_->shown().size(), 2) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(boxes_->shown().at(0), jobChanged(QStringLiteral("Kunden Huber neu")));
    EXPECT_EQ(boxes_->shown().at(1), jobChanged(QStringLiteral("Kunden Huber neu")));
    // No: the window shows what is stored, nothing of the input is written.
    EXPECT_EQ(afterNo, QStringLiteral("Stammdaten"));
    EXPECT_EQ(nameAfterNo, QStringLiteral("Kunden Huber neu"));
    EXPECT_FALSE(uebernehmenAfterNo);
    // Cancel: nothing written, the second workstation's description stays.
    EXPECT_EQ(stored(QStringLiteral("SELECT Name, Beschreibung FROM tAutoJobJob")),
              QStringLiteral("Kunden Huber neu|Von Jonas"));
}

TEST_P(RowConflicts, AJobDeletedElsewhereComesBackOnlyAfterYesAndWithoutSchedules) {
    const auto deleted = [&] {
        elsewhere(QStringLiteral("DELETE FROM tAutoJobSchedule WHERE idAutoJob = 1"));
        elsewhere(QStringLiteral("DELETE FROM tAutoJobJob WHERE idAutoJob = 1"));
    };
    const QString question = QStringLiteral(
        "Der Auftrag „Kunden Bäckerei Huber“ wurde inzwischen an einem anderen Arbeitsplatz "
        "gelöscht.\n\nSoll er mit Ihren Eingaben neu angelegt werden?");
    bool stillOpen = false;
    saveAfter(deleted, QStringLiteral("Nein"), frmEigenschaften::Cmd::Ok, [&](QWidget* w) {
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 2000);
        stillOpen = w->isVisible();
        EXPECT_EQ(text(w, frmEigenschaften::Txt::Beschreibung), QStringLiteral("Von Anna"));
        boxes_->answerNext(QStringLiteral("Ja"));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Uebernehmen));
        waitFor([&] { return boxes_->shown().size() == 2; }, 2000);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
    });
    EXPECT_TRUE(stillOpen);
    ASSERT_EQ(boxes_->shown().size(), 2) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(boxes_->shown().at(0), question);
    EXPECT_EQ(boxes_->shown().at(1), question);
    EXPECT_EQ(stored(QStringLiteral("SELECT count(*), max(idAutoJob) > 1, max(Name), "
                                    "max(Beschreibung) FROM tAutoJobJob")),
              QStringLiteral("1|%1|%2|Von Anna").arg(onServer() ? "true" : "1", kJob));
    EXPECT_EQ(stored(QStringLiteral("SELECT count(*) FROM tAutoJobSchedule")), QStringLiteral("0"));
}

TEST_P(RowConflicts, AScheduleChangedOrDeletedElsewhereAsksAsTheJobDoes) {
    const QString changed = QStringLiteral(
        "Der Zeitplan „Nachts geändert“ wurde inzwischen von Jonas Keller am 24.11.2026 um "
        "09:15:30 Uhr geändert.\n\nSollen Ihre Eingaben trotzdem gespeichert werden?\n\nJa: Ihre "
        "Eingaben ersetzen diese Änderungen.\nNein: Die gespeicherte Fassung wird angezeigt, Ihre "
        "Eingaben werden verworfen.\nAbbrechen: Weiter bearbeiten.");
    QStringList names;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        auto* grid = findIn<QTableView>(w, QStringLiteral("grdZeitplan"));
        const auto dialog = [&](const std::function<void()>& meanwhile, const QString& answer,
                                const std::function<void(QWidget*)>& inDialog) {
            bool played = false;
            whenShown(QStringLiteral("frmZeitplan"), [&](QWidget* d) {
                typeOver(find(d, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name),
                         QStringLiteral("Nachts von Anna"));
                meanwhile();
                boxes_->answerNext(answer);
                click(find(d, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
                waitFor([&] { return false; }, 200);
                inDialog(d);
                played = true;
            });
            doubleClickRow(grid, 1);
            ASSERT_TRUE(waitFor([&] { return played; }));
        };
        const auto renamed = [&] {
            elsewhere(
                QStringLiteral("UPDATE tAutoJobSchedule SET Name = 'Nachts geändert', Ps_Id = "
                               "3, LetzteAenderung = '2026-11-24 09:15:30'"));
        };
        // No: the dialog shows the stored schedule; then Cancel leaves the input; then Yes.
        dialog(renamed, QStringLiteral("Nein"), [&](QWidget* d) {
            names << findIn<QLineEdit>(d, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name)
                         ->text();
            typeOver(find(d, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name),
                     QStringLiteral("Nachts von Anna"));
            elsewhere(
                QStringLiteral("UPDATE tAutoJobSchedule SET Aktiviert = 0, LetzteAenderung "
                               "= '2026-11-24 09:15:30'"));
            boxes_->answerNext(QStringLiteral("Abbrechen"));
            click(find(d, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
            waitFor([&] { return false; }, 200);
            names << findIn<QLineEdit>(d, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name)
                         ->text();
            boxes_->answerNext(QStringLiteral("Ja"));
            click(find(d, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
        });
        names << stored(QStringLiteral("SELECT Name, Aktiviert, Ps_Id FROM tAutoJobSchedule"));
        // Deleted elsewhere: No writes nothing and keeps the dialog, Yes makes it anew.
        dialog([&] { elsewhere(QStringLiteral("DELETE FROM tAutoJobSchedule")); },
               QStringLiteral("Nein"),
               [&](QWidget* d) {
                   names << QString::number(d->isVisible());
                   boxes_->answerNext(QStringLiteral("Ja"));
                   click(find(d, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
               });
        names << stored(
            QStringLiteral("SELECT count(*), max(Name), max(idAutoJob) FROM "
                           "tAutoJobSchedule"));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kJob));
    ASSERT_TRUE(waitFor([&] { return done; }, 20000));

    const QString gone = QStringLiteral(
        "Der Zeitplan „Nachts von Anna“ wurde inzwischen an einem anderen Arbeitsplatz "
        "gelöscht.\n\nSoll er mit Ihren Eingaben neu angelegt werden?");
    EXPECT_EQ(boxes_->shown(), (QStringList{changed, changed, changed, gone, gone}));
    EXPECT_EQ(names,
              (QStringList{QStringLiteral("Nachts geändert"), QStringLiteral("Nachts von Anna"),
                           QStringLiteral("Nachts von Anna|1|2"), QStringLiteral("1"),
                           QStringLiteral("1|Nachts von Anna|1")}));
    // The window's own stamp on its job did not count against it: the job is unchanged
    // elsewhere and its save asks nothing.
    EXPECT_EQ(stored(QStringLiteral("SELECT Ps_Id_Mitarbeiter FROM tAutoJobJob")),
              QStringLiteral("2"));
}

TEST_P(RowConflicts, TheWindowsOwnStampsAndSavesNeverCountAgainstIt) {
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        for (const char* beschreibung : {"Erste", "Zweite", "Dritte"}) {
            typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                     QString::fromUtf8(beschreibung));
            if (QByteArray(beschreibung) != "Dritte") {
                click(find(w, QStringLiteral("cmdCommandButton"),
                           frmEigenschaften::Cmd::Uebernehmen));
            }
        }
        // A schedule saved from the window stamps the job; the next save of the job is its own.
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        bool played = false;
        whenShown(QStringLiteral("frmZeitplan"), [&](QWidget* d) {
            click(find(d, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
            played = true;
        });
        doubleClickRow(findIn<QTableView>(w, QStringLiteral("grdZeitplan")), 1);
        waitFor([&] { return played; });
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kJob));
    ASSERT_TRUE(waitFor([&] { return done; }, 20000));
    EXPECT_TRUE(boxes_->shown().isEmpty()) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(stored(QStringLiteral("SELECT Beschreibung, Zeilenversion FROM tAutoJobJob")),
              QStringLiteral("Dritte|4"));
}

TEST_P(RowConflicts, TextBoxesTakeNoMoreCharactersThanTheServerStores) {
    const QString hundred(100, u'x');
    QString emoji;
    for (int i = 0; i < 100; ++i) {
        emoji += QString::fromUcs4(U"\U0001F600", 1);
    }
    QStringList taken;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        QWidget* name = find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Name);
        typeOver(name, hundred + QStringLiteral("y"));
        taken << static_cast<QLineEdit*>(name)->text();
        // No key types them: they come pasted, over the whole text.
        QApplication::clipboard()->setText(emoji + QStringLiteral("z"));
        click(name);
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        taken << static_cast<QLineEdit*>(name)->text();
        QWidget* log = find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Logfiles);
        typeOver(log, root() + u'/' + QString(300, u'l'));
        taken << QString::number(static_cast<QLineEdit*>(log)->text().size());
        typeOver(log, root() + QStringLiteral("/log"));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kJob));
    ASSERT_TRUE(waitFor([&] { return done; }));
    EXPECT_EQ(taken, (QStringList{hundred, emoji, QStringLiteral("255")}));
    // A hundred characters beyond the 16-bit range are a hundred characters on the server too.
    EXPECT_TRUE(boxes_->shown().isEmpty()) << boxes_->shown().join(u'|').toStdString();
    EXPECT_EQ(stored(QStringLiteral("SELECT Name FROM tAutoJobJob")), emoji);
}

INSTANTIATE_TEST_SUITE_P(BothDatabases, RowConflicts, ::testing::Values(false, true),
                         [](const ::testing::TestParamInfo<bool>& info) {
                             return info.param ? std::string("PostgreSQL") : std::string("SQLite");
                         });

}  // namespace
