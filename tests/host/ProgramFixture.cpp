#include "tests/host/ProgramFixture.h"

#include <sqlite3.h>

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>

#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmLogDatenDel.h"

void ProgramFixture::SetUp() {
    ASSERT_TRUE(dir_.isValid());
    config_ = std::make_shared<SuiteConfig>(SuiteConfig::defaults());
    config_->paths[41] = root() + QStringLiteral("/bin/");
    config_->paths[83] = root() + QStringLiteral("/data");
    config_->paths[6] = root() + QStringLiteral("/suite/");
    config_->iniFilePath = root() + QStringLiteral("/suite.ini");
    config_->traceFilePath = root() + QStringLiteral("/trace.log");
    config_->databasePath = root() + QStringLiteral("/suite.sqlite");
    configure(*config_);
    boxes_ = std::make_unique<real_input::MessageBoxes>();
    program_ = std::make_unique<DesktopProgram>(config_);
    program_->start();
    ASSERT_TRUE(real_input::waitFor([this] { return mainWindow().isVisible(); }));
}

void ProgramFixture::TearDown() {
    program_.reset();
    boxes_.reset();
}

QTableView* ProgramFixture::list() {
    QWidget* browser = real_input::find(&mainWindow(), QStringLiteral("ctlPakete"));
    return browser ? browser->findChild<QTableView*>() : nullptr;
}

QString ProgramFixture::scalar(const QString& sql) {
    sqlite3* db = nullptr;
    QString value = QStringLiteral("<no row>");
    if (sqlite3_open_v2(config_->databasePath.toUtf8().constData(), &db, SQLITE_OPEN_READONLY,
                        nullptr) == SQLITE_OK) {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &st, nullptr) == SQLITE_OK &&
            sqlite3_step(st) == SQLITE_ROW) {
            const auto* text = sqlite3_column_text(st, 0);
            value = text ? QString::fromUtf8(reinterpret_cast<const char*>(text))
                         : QStringLiteral("null");
        }
        sqlite3_finalize(st);
    }
    sqlite3_close(db);
    return value;
}

void ProgramFixture::chooseMenu(const QString& menu, const QString& item) {
    QMenuBar* bar = mainWindow().menuBar();
    auto* popup = mainWindow().findChild<QMenu*>(QStringLiteral("menu") + menu);
    ASSERT_NE(popup, nullptr) << menu.toStdString();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(popup->menuAction()).center());
    ASSERT_TRUE(real_input::waitFor([popup] { return popup->isVisible(); }, 3000));
    ASSERT_TRUE(real_input::clickMenuItem(popup, item)) << item.toStdString();
}

void ProgramFixture::saveNewJobFromTheMenu(const QString& name) {
    const QString importDir = root() + QStringLiteral("/import");
    const QString logDir = root() + QStringLiteral("/log");
    QDir().mkpath(importDir);
    QDir().mkpath(logDir);
    bool done = false;
    real_input::whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        using real_input::find;
        real_input::typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Name),
                             name);
        // The first client and the first staff member, picked with the arrow key.
        for (const char* selection : {"ctlMandant", "ctlMitarbeiterBuchProp"}) {
            QWidget* combo = find(w, QString::fromLatin1(selection));
            real_input::click(combo);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            QTest::keyClick(combo, Qt::Key_Down);
        }
        real_input::typeOver(
            find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Importdaten), importDir);
        real_input::typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Logfiles),
                             logDir);
        boxes_->answerNext(QStringLiteral("Nein"));
        real_input::click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
        done = true;
    });
    chooseMenu(QStringLiteral("Bearbeiten"), QStringLiteral("Neu"));
    ASSERT_TRUE(real_input::waitFor([&] { return done; }));
}

void ProgramFixture::deleteTodaysServiceLog() {
    bool deleting = false;
    real_input::whenShown(QStringLiteral("frmLogDatenDel"), [&](QWidget* w) {
        deleting = true;
        boxes_->answerNext(QStringLiteral("Ja"));
        real_input::click(
            real_input::find(w, QStringLiteral("cmdAktion"), frmLogDatenDel::Aktion::Ok));
    });
    chooseMenu(QStringLiteral("Bearbeiten"), QStringLiteral("Logdaten Dienst löschen"));
    ASSERT_TRUE(real_input::waitFor(
        [&] { return deleting && !real_input::shownWindow(QStringLiteral("frmLogDatenDel")); }));
}

qint64 ProgramFixture::deletedLogEntries(const QStringList& expected,
                                         QStringList& unexpected) const {
    static const QRegularExpression deletedText(
        QStringLiteral("^Es wurden (\\d+) Logeinträge gelöscht\\.$"));
    qint64 deleted = 0;
    for (const QString& text : boxes_->shown()) {
        if (const auto m = deletedText.match(text); m.hasMatch()) {
            deleted += m.captured(1).toLongLong();
        } else if (text == QStringLiteral("Es wurde 1 Logeintrag gelöscht.")) {
            deleted += 1;
        } else if (text != QStringLiteral("Es wurden keine Logeinträge gelöscht.") &&
                   !text.startsWith(QStringLiteral("Wollen Sie die Logdaten")) &&
                   !expected.contains(text)) {
            unexpected << text;
        }
    }
    return deleted;
}
