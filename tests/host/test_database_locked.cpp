// Another program holds the database's write lock longer than the program waits: the user is
// told, what was typed stays in the window, and the next try after the lock is gone succeeds.
#include <sqlite3.h>

#include <QPushButton>

#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmZeitplan.h"

using namespace real_input;

namespace {

// A second writer on the database file, as the agent service is one.
class ForeignWriter {
  public:
    explicit ForeignWriter(const QString& path) { sqlite3_open(path.toUtf8().constData(), &db_); }
    ~ForeignWriter() { sqlite3_close(db_); }
    bool lock() { return sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == 0; }
    void release() { sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr); }

  private:
    sqlite3* db_ = nullptr;
};

class DatabaseLockedTest : public ProgramFixture {
  protected:
    void configure(SuiteConfig& config) override { config.busyTimeoutMs = 150; }
};

// What a text box shows, one line or many.
QString shownText(QWidget* box) {
    const QVariant many = box->property("plainText");
    return many.isValid() ? many.toString() : box->property("text").toString();
}

const QString kLindner = QStringLiteral("Lieferanten Autohaus Lindner");
// What the user reads of a lock kept past the wait, the driver's words on the next line.
const QString kLockWaitLines = QStringLiteral(
    "Die Daten werden gerade an einem anderen Arbeitsplatz gespeichert. Bitte versuchen Sie es "
    "in einigen Sekunden erneut; Ihre Eingaben bleiben erhalten.\ndatabase is locked");

TEST_F(DatabaseLockedTest, UebernehmenWhileLockedKeepsTheInputAndSucceedsLater) {
    const QString stored =
        QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2");
    const QString before = scalar(stored);
    ForeignWriter writer(config_->databasePath);
    QStringList boxesWhileLocked;
    QString textAfterFailure;
    bool uebernehmenAfterFailure = false;
    QString storedWhileLocked;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        auto* uebernehmen = findIn<QPushButton>(w, QStringLiteral("cmdCommandButton"),
                                                frmEigenschaften::Cmd::Uebernehmen);
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                 QStringLiteral("Neue Beschreibung"));
        ASSERT_TRUE(writer.lock());
        click(uebernehmen);
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 3000);
        boxesWhileLocked = boxes_->shown();
        storedWhileLocked = scalar(stored);
        textAfterFailure =
            shownText(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung));
        uebernehmenAfterFailure = uebernehmen->isEnabled();

        writer.release();
        click(uebernehmen);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kLindner));
    ASSERT_TRUE(waitFor([&] { return done; }));

    ASSERT_EQ(boxesWhileLocked.size(), 1) << boxesWhileLocked.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhileLocked.at(0).contains(kLockWaitLines))
        << boxesWhileLocked.at(0).toStdString();
    EXPECT_FALSE(boxesWhileLocked.at(0).contains(QStringLiteral("tAutoJobJob")))
        << boxesWhileLocked.at(0).toStdString();
    EXPECT_EQ(storedWhileLocked, before);
    EXPECT_EQ(textAfterFailure, QStringLiteral("Neue Beschreibung"));
    EXPECT_TRUE(uebernehmenAfterFailure);
    EXPECT_EQ(scalar(stored), QStringLiteral("Neue Beschreibung"));
    EXPECT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
}

TEST_F(DatabaseLockedTest, ScheduleOkWhileLockedKeepsTheDialogAndSucceedsLater) {
    const QString count = QStringLiteral(
        "SELECT count(*) FROM tAutoJobSchedule WHERE idAutoJob = 2 AND Name = 'Nachts'");
    ASSERT_EQ(scalar(count), QStringLiteral("0"));
    ForeignWriter writer(config_->databasePath);
    QStringList boxesWhileLocked;
    bool dialogAfterFailure = false;
    QString nameAfterFailure;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        whenShown(QStringLiteral("frmZeitplan"), [&](QWidget* plan) {
            typeOver(find(plan, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name),
                     QStringLiteral("Nachts"));
            ASSERT_TRUE(writer.lock());
            click(find(plan, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
            waitFor([&] { return !boxes_->shown().isEmpty(); }, 3000);
            boxesWhileLocked = boxes_->shown();
            dialogAfterFailure = shownWindow(QStringLiteral("frmZeitplan")) != nullptr;
            nameAfterFailure =
                shownText(find(plan, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name));
            writer.release();
            click(find(plan, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
        });
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::ZeitplanNeu));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"), kLindner));
    ASSERT_TRUE(waitFor([&] { return done; }));

    ASSERT_EQ(boxesWhileLocked.size(), 1) << boxesWhileLocked.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhileLocked.at(0).contains(kLockWaitLines))
        << boxesWhileLocked.at(0).toStdString();
    EXPECT_TRUE(dialogAfterFailure);
    EXPECT_EQ(nameAfterFailure, QStringLiteral("Nachts"));
    EXPECT_EQ(scalar(count), QStringLiteral("1"));
    EXPECT_EQ(boxes_->shown().size(), 1) << boxes_->shown().join(u'|').toStdString();
}

}  // namespace
