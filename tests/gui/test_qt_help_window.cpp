#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include "common/ModuleHelpers.h"
#include "gui/QtHelpWindow.h"
#include "gui/QtUi.h"

namespace {

QtHelpWindow* shownHelpWindow() {
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* help = dynamic_cast<QtHelpWindow*>(w); help && help->isVisible()) {
            return help;
        }
    }
    return nullptr;
}

TEST(QtHelpWindow, EveryHelpKeyOfTheProgramHasItsText) {
    for (const QString& key :
         {HelpKeys::kJobList, HelpKeys::kJobProperties, HelpKeys::kSchedules}) {
        SCOPED_TRACE(key.toStdString());
        EXPECT_FALSE(QtHelpWindow::topicResource(key).isEmpty());
    }
    EXPECT_TRUE(QtHelpWindow::topicResource(QStringLiteral("HID_UNBEKANNT")).isEmpty());
    EXPECT_TRUE(QtHelpWindow::topicResource(QString()).isEmpty());
}

TEST(QtHelpWindow, ShowHelpOpensOneWindowWithTheTopicsText) {
    QtUi ui;
    ui.ShowHelp(HelpKeys::kHelpFile, HelpKeys::kSchedules);
    QtHelpWindow* help = shownHelpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_FALSE(help->isModal());
    EXPECT_EQ(help->topic(), HelpKeys::kSchedules);
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Hilfe – Zeitpläne anlegen und bearbeiten"));
    EXPECT_TRUE(help->text()->toPlainText().contains(
        QStringLiteral("Ein Auftrag kann mehrere Zeitpläne haben")));

    ui.ShowHelp(HelpKeys::kHelpFile, HelpKeys::kJobList);
    EXPECT_EQ(shownHelpWindow(), help);
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Hilfe – Automatische Aufträge"));
    EXPECT_TRUE(
        help->text()->toPlainText().contains(QStringLiteral("Die Liste zeigt alle Aufträge")));

    auto* close = help->findChild<QPushButton*>(QStringLiteral("cmdSchliessen"));
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(close->text(), QStringLiteral("Schließen"));
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_EQ(shownHelpWindow(), nullptr);
}

TEST(QtHelpWindow, ATopicWithoutTextIsNamedInsteadOfAnEmptyWindow) {
    QtUi ui;
    ui.ShowHelp(HelpKeys::kHelpFile, QStringLiteral("HID_UNBEKANNT"));
    QtHelpWindow* help = shownHelpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Hilfe"));
    const QString text = help->text()->toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("Zu diesem Thema gibt es keinen Hilfetext:")));
    EXPECT_TRUE(text.contains(QStringLiteral("HID_UNBEKANNT")));
    help->close();
}

}  // namespace
