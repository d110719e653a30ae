#include <gtest/gtest.h>

#include "QtTestKit.h"
#include "gui/QtKeys.h"
#include "gui/QtUi.h"

namespace {

QString buttons(const MsgBoxLayout& layout) {
    QStringList parts;
    for (const MsgBoxButton& b : layout.buttons) {
        parts << QStringLiteral("%1=%2").arg(b.text).arg(b.answer);
    }
    return parts.join(QLatin1Char(' '));
}

TEST(QtUiMessageBox, ButtonSetsGiveGermanButtonsAndTheClassicAnswers) {
    EXPECT_EQ(buttons(msgBoxLayout(0)), "OK=1");
    EXPECT_EQ(buttons(msgBoxLayout(1)), "OK=1 Abbrechen=2");
    EXPECT_EQ(buttons(msgBoxLayout(2)), "Abbrechen=3 Wiederholen=4 Ignorieren=5");
    EXPECT_EQ(buttons(msgBoxLayout(3)), "Ja=6 Nein=7 Abbrechen=2");
    EXPECT_EQ(buttons(msgBoxLayout(4)), "Ja=6 Nein=7");
    EXPECT_EQ(buttons(msgBoxLayout(5)), "Wiederholen=4 Abbrechen=2");
}

TEST(QtUiMessageBox, EscapeGivesCancelOnlyWhereTheBoxHasIt) {
    EXPECT_EQ(msgBoxLayout(0).escapeButton, 0);
    EXPECT_EQ(msgBoxLayout(1).escapeButton, 1);
    EXPECT_EQ(msgBoxLayout(2).escapeButton, -1);
    EXPECT_EQ(msgBoxLayout(3).escapeButton, 2);
    EXPECT_EQ(msgBoxLayout(4).escapeButton, -1);
    EXPECT_EQ(msgBoxLayout(5).escapeButton, 1);
}

TEST(QtUiMessageBox, IconsAndDefaultButtonsComeFromTheirBits) {
    EXPECT_EQ(msgBoxLayout(16).icon, QMessageBox::Critical);
    EXPECT_EQ(msgBoxLayout(36).icon, QMessageBox::Question);
    EXPECT_EQ(msgBoxLayout(48).icon, QMessageBox::Warning);
    EXPECT_EQ(msgBoxLayout(64).icon, QMessageBox::Information);
    EXPECT_EQ(msgBoxLayout(4).icon, QMessageBox::NoIcon);

    const MsgBoxLayout style35 = msgBoxLayout(35);  // yes, no, cancel with question mark
    EXPECT_EQ(buttons(style35), "Ja=6 Nein=7 Abbrechen=2");
    EXPECT_EQ(style35.icon, QMessageBox::Question);
    EXPECT_EQ(style35.defaultButton, 0);
    EXPECT_EQ(msgBoxLayout(4 + 256).defaultButton, 1);
    EXPECT_EQ(msgBoxLayout(3 + 512).defaultButton, 2);
    EXPECT_EQ(msgBoxLayout(4 + 512).defaultButton, 0);  // no third button: the first
}

TEST(QtUiFileFilter, ClassicPairsBecomeQtFilters) {
    EXPECT_EQ(qtFileFilter(QStringLiteral("Skriptdateien (*.opt)|*.opt")), "Skriptdateien (*.opt)");
    EXPECT_EQ(qtFileFilter(QStringLiteral("Textdateien|*.txt;*.csv|Alle Dateien|*.*")),
              "Textdateien (*.txt *.csv);;Alle Dateien (*.*)");
    EXPECT_EQ(qtFileFilter(QString()), "");
}

TEST(QtKeysTest, CodesOfTheSystemAndQtKeysMapBothWays) {
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_F1), 112);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_Return), 13);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_Enter), 13);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_Delete), 46);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_Escape), 27);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_A), 65);
    EXPECT_EQ(QtKeys::codeOf(Qt::Key_unknown), 0);
    for (int code : {8, 9, 13, 27, 32, 37, 40, 46, 48, 65, 90, 112, 123}) {
        EXPECT_EQ(QtKeys::codeOf(QtKeys::qtKeyOf(code)), code) << code;
    }
    EXPECT_EQ(QtKeys::shiftOf(Qt::ShiftModifier | Qt::AltModifier), 5);
    EXPECT_EQ(QtKeys::modifiersOf(2), Qt::ControlModifier);
}

}  // namespace
