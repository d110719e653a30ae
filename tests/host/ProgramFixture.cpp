#include "tests/host/ProgramFixture.h"

#include <sqlite3.h>

#include <QMenu>
#include <QMenuBar>
#include <QTest>

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
