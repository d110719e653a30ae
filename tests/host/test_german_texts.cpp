// The program speaks German on a machine set to any language: Qt's own texts in its dialogs,
// the names of shortcut keys and the calendar of the date pickers.
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include "tests/host/ProgramFixture.h"

using namespace real_input;

namespace {

using GermanTextsTest = ProgramFixture;

TEST_F(GermanTextsTest, QtsOwnDialogsShortcutsAndCalendarsReadGerman) {
    // The key names as menus show them (the offscreen platform gives "Beenden" no key of its
    // own; on a desktop it is Ctrl+Q).
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_Q).toString(QKeySequence::NativeText),
              QStringLiteral("Strg+Q"));
    EXPECT_EQ(QLocale().dayName(1, QLocale::ShortFormat), QStringLiteral("Mo."));
    EXPECT_EQ(QLocale().monthName(3), QStringLiteral("März"));

    QString lookIn;
    QString cancel;
    whenShown(QStringLiteral("dlgImport"), [&](QWidget* w) {
        if (auto* label = w->findChild<QLabel*>(QStringLiteral("lookInLabel"))) {
            lookIn = label->text();
        }
        if (auto* box = w->findChild<QDialogButtonBox*>()) {
            if (QPushButton* button = box->button(QDialogButtonBox::Cancel)) {
                cancel = button->text();
            }
        }
        static_cast<QDialog*>(w)->reject();
    });
    chooseMenu(QStringLiteral("Datei"), QStringLiteral("Aufträge importieren…"));
    EXPECT_EQ(lookIn, QStringLiteral("Suchen in:"));
    EXPECT_EQ(cancel, QStringLiteral("Abbrechen"));
}

}  // namespace
