#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "QtTestKit.h"
#include "gui/QtValueControls.h"

using namespace qt_test;

namespace {

WindowDecl fieldsWindow() {
    WindowDecl d;
    d.name = QStringLiteral("frmFelder");
    d.caption = QStringLiteral("Felder");
    d.controls << decl("txtTextBox", ControlKind::TextBox, 0, "Name", "Name des Auftrags");
    ControlDecl lines = decl("txtTextBox", ControlKind::TextBox, 2, "Beschreibung");
    lines.multiLine = true;
    d.controls << lines;
    ControlDecl password = decl("ctlKennwort", ControlKind::TextBox, -1, "Kennwort");
    password.password = true;
    d.controls << password;
    d.controls << decl("ctlMaskEdBox", ControlKind::TimeBox);
    d.controls << decl("cmdCommandButton", ControlKind::Button, 0, "OK");
    d.controls << decl("chkCheckBox", ControlKind::CheckBox, 0, "Aktiviert", "Aktivieren");
    ControlDecl once = decl("optOption", ControlKind::OptionButton, 2, "Einmal");
    once.group = QStringLiteral("typ");
    ControlDecl repeated = decl("optOption", ControlKind::OptionButton, 3, "Wiederholt");
    repeated.group = QStringLiteral("typ");
    d.controls << once << repeated;
    d.controls << decl("cboComboBox", ControlKind::ComboBox, 0, "Auftragsart",
                       "Datenart auswählen");
    d.controls << decl("ctlDatePicker", ControlKind::DatePicker, -1, "Am (Datum)");
    return d;
}

class QtValueControlsTest : public ::testing::Test {
  protected:
    RecordedWindow w{fieldsWindow()};
    template <class T>
    T* widget(const char* name, int index = -1) {
        return qobject_cast<T*>(w.view(name, index).keyTarget());
    }
};

TEST_F(QtValueControlsTest, ControlsAreBuiltUnderTheirNamesWithCaptionsAndHints) {
    QtControlView& name = w.view("txtTextBox", 0);
    ASSERT_NE(name.captionLabel(), nullptr);
    EXPECT_EQ(name.captionLabel()->text(), "Name");
    EXPECT_EQ(name.widget()->toolTip(), "Name des Auftrags");
    EXPECT_NE(widget<QPlainTextEdit>("txtTextBox", 2), nullptr);
    EXPECT_EQ(widget<QLineEdit>("ctlKennwort")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(widget<QPushButton>("cmdCommandButton", 0)->text(), "OK");
    EXPECT_EQ(widget<QCheckBox>("chkCheckBox", 0)->text(), "Aktiviert");
    EXPECT_EQ(widget<QCheckBox>("chkCheckBox", 0)->toolTip(), "Aktivieren");
    EXPECT_EQ(widget<QRadioButton>("optOption", 3)->text(), "Wiederholt");
    EXPECT_EQ(w.view("cboComboBox", 0).captionLabel()->text(), "Auftragsart");
    EXPECT_EQ(w.view("ctlDatePicker").captionLabel()->text(), "Am (Datum)");
}

TEST_F(QtValueControlsTest, CodeChangesShowInTheWidgetsAndRaiseOnlyWhatTheRulesSay) {
    auto& name = w.get<ITextBox>("txtTextBox", 0);
    name.setText(QStringLiteral("Erster"));
    name.setCaption(QStringLiteral("Bezeichnung"));
    name.setEnabled(false);
    EXPECT_EQ(widget<QLineEdit>("txtTextBox", 0)->text(), "Erster");
    EXPECT_EQ(w.view("txtTextBox", 0).captionLabel()->text(), "Bezeichnung");
    EXPECT_FALSE(widget<QLineEdit>("txtTextBox", 0)->isEnabled());
    name.setVisible(false);
    EXPECT_TRUE(widget<QLineEdit>("txtTextBox", 0)->isHidden());
    EXPECT_TRUE(w.view("txtTextBox", 0).captionLabel()->isHidden());

    auto& combo = w.get<IComboBox>("cboComboBox", 0);
    combo.AddItem(4, QStringLiteral("Import Buchungen"));
    combo.AddItem(17, QStringLiteral("Import Kunden"));
    combo.setKey(17);
    EXPECT_EQ(widget<QComboBox>("cboComboBox", 0)->currentText(), "Import Kunden");

    w.get<ICheckBox>("chkCheckBox", 0).setValue(1);
    EXPECT_TRUE(widget<QCheckBox>("chkCheckBox", 0)->isChecked());
    w.get<ITimeBox>("ctlMaskEdBox").setText(QStringLiteral("1745"));
    EXPECT_EQ(widget<QLineEdit>("ctlMaskEdBox")->displayText(), "17:45:00");
    w.get<IDatePicker>("ctlDatePicker").setValue(QDate(2026, 12, 1));
    EXPECT_EQ(widget<QDateEdit>("ctlDatePicker")->date(), QDate(2026, 12, 1));

    // No KeyDown and no combo Click by code; Change and check box Click are raised by code too.
    EXPECT_EQ(w.take(), (QStringList{"Change txtTextBox(0)", "Click chkCheckBox(0)",
                                     "Change ctlMaskEdBox", "Change ctlDatePicker"}));
}

TEST_F(QtValueControlsTest, TypingIntoTheWidgetRaisesKeyDownAndChange) {
    QLineEdit* edit = widget<QLineEdit>("txtTextBox", 0);
    QTest::keyClicks(edit, QStringLiteral("ab"));
    EXPECT_EQ(w.get<ITextBox>("txtTextBox", 0).Text(), "ab");
    EXPECT_EQ(w.take(), (QStringList{"KeyDown txtTextBox(0) 65/0", "Change txtTextBox(0)",
                                     "KeyDown txtTextBox(0) 66/0", "Change txtTextBox(0)"}));

    w.window()
        .get<HeadlessTextBox>(QStringLiteral("txtTextBox"), 0)
        .userType(QStringLiteral("Neu"));
    EXPECT_EQ(edit->text(), "Neu");
    EXPECT_EQ(w.take(), (QStringList{"KeyDown txtTextBox(0) 0/0", "Change txtTextBox(0)"}));

    w.window().get<HeadlessTextBox>(QStringLiteral("txtTextBox"), 0).userType(QString());
    EXPECT_EQ(edit->text(), "");
    EXPECT_EQ(w.take(), (QStringList{"KeyDown txtTextBox(0) 0/0", "Change txtTextBox(0)"}));
}

TEST_F(QtValueControlsTest, TextOfManyLinesKeepsItsLineEnds) {
    auto& lines = w.window().get<HeadlessTextBox>(QStringLiteral("txtTextBox"), 2);
    lines.userType(QStringLiteral("Zeile eins\r\nZeile zwei"));
    EXPECT_EQ(lines.Text(), "Zeile eins\r\nZeile zwei");
    EXPECT_EQ(widget<QPlainTextEdit>("txtTextBox", 2)->toPlainText(), "Zeile eins\nZeile zwei");
    EXPECT_EQ(w.take(), (QStringList{"KeyDown txtTextBox(2) 0/0", "Change txtTextBox(2)"}));

    QTest::keyClick(widget<QPlainTextEdit>("txtTextBox", 2), Qt::Key_Return);
    EXPECT_EQ(lines.Text(), "Zeile eins\r\nZeile zwei\r\n");
}

TEST_F(QtValueControlsTest, LockedTextBoxRefusesTyping) {
    auto& name = w.window().get<HeadlessTextBox>(QStringLiteral("txtTextBox"), 0);
    name.setLocked(true);
    EXPECT_TRUE(widget<QLineEdit>("txtTextBox", 0)->isReadOnly());
    EXPECT_THROW(name.userType(QStringLiteral("x")), RaisedError);
    EXPECT_TRUE(w.take().isEmpty());
}

TEST_F(QtValueControlsTest, TimeBoxTakesTypedHoursAndMinutes) {
    auto& time = w.window().get<HeadlessTimeBox>(QStringLiteral("ctlMaskEdBox"));
    time.userTime(QStringLiteral("_5:30"));
    EXPECT_EQ(time.Text(), "_5:30:00");
    EXPECT_EQ(time.Ziffern(), "530");
    EXPECT_EQ(w.take(), (QStringList{"KeyDown ctlMaskEdBox 0/0", "Change ctlMaskEdBox"}));

    time.userTime(QStringLiteral("__:__"));
    EXPECT_EQ(time.Text(), "__:__:00");
    EXPECT_EQ(time.Ziffern(), "");

    QLineEdit* edit = widget<QLineEdit>("ctlMaskEdBox");
    edit->setCursorPosition(0);
    QTest::keyClicks(edit, QStringLiteral("0830"));
    EXPECT_EQ(time.Text(), "08:30:00");
    EXPECT_EQ(time.Ziffern(), "0830");
    EXPECT_EQ(edit->displayText(), "08:30:00");
}

TEST_F(QtValueControlsTest, ButtonAndCheckBoxRaiseClickFromTheirWidgets) {
    QTest::mouseClick(widget<QPushButton>("cmdCommandButton", 0), Qt::LeftButton);
    w.window().get<HeadlessButton>(QStringLiteral("cmdCommandButton"), 0).userClick();
    EXPECT_EQ(w.take(), (QStringList{"Click cmdCommandButton(0)", "Click cmdCommandButton(0)"}));

    auto& check = w.window().get<HeadlessCheckBox>(QStringLiteral("chkCheckBox"), 0);
    QTest::mouseClick(widget<QCheckBox>("chkCheckBox", 0), Qt::LeftButton);
    EXPECT_EQ(check.Value(), 1);
    check.userCheck(1);  // stays: nothing
    check.userCheck(0);
    EXPECT_EQ(check.Value(), 0);
    EXPECT_FALSE(widget<QCheckBox>("chkCheckBox", 0)->isChecked());
    EXPECT_EQ(w.take(), (QStringList{"Click chkCheckBox(0)", "Click chkCheckBox(0)"}));
}

TEST_F(QtValueControlsTest, OptionsOfAGroupExcludeOneAnother) {
    auto& once = w.window().get<HeadlessOptionButton>(QStringLiteral("optOption"), 2);
    auto& repeated = w.window().get<HeadlessOptionButton>(QStringLiteral("optOption"), 3);
    once.setValue(true);
    w.take();
    QTest::mouseClick(widget<QRadioButton>("optOption", 3), Qt::LeftButton);
    EXPECT_TRUE(repeated.Value());
    EXPECT_FALSE(once.Value());
    EXPECT_FALSE(widget<QRadioButton>("optOption", 2)->isChecked());
    // A click on the chosen option leaves it chosen and raises nothing.
    QTest::mouseClick(widget<QRadioButton>("optOption", 3), Qt::LeftButton);
    EXPECT_TRUE(widget<QRadioButton>("optOption", 3)->isChecked());
    EXPECT_EQ(w.take(), (QStringList{"Click optOption(3)"}));
}

TEST_F(QtValueControlsTest, ComboPickOfTheUserRaisesClick) {
    auto& combo = w.window().get<HeadlessComboBox>(QStringLiteral("cboComboBox"), 0);
    combo.AddItem(4, QStringLiteral("Import Buchungen"));
    combo.AddItem(17, QStringLiteral("Import Kunden"));
    combo.userSelect(17);
    EXPECT_EQ(combo.Key(), 17);
    EXPECT_EQ(widget<QComboBox>("cboComboBox", 0)->currentText(), "Import Kunden");
    QComboBox* box = widget<QComboBox>("cboComboBox", 0);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(combo.Key(), 4);
    EXPECT_EQ(w.take(), (QStringList{"Click cboComboBox(0)", "KeyDown cboComboBox(0) 38/0",
                                     "Click cboComboBox(0)"}));
    EXPECT_THROW(combo.userSelect(99), RaisedError);
}

TEST_F(QtValueControlsTest, DatePickerTakesADateOrNone) {
    auto& date = w.window().get<HeadlessDatePicker>(QStringLiteral("ctlDatePicker"));
    date.userDate(QDate(2026, 12, 1));
    EXPECT_EQ(date.Value(), QDate(2026, 12, 1));
    auto* picker = w.view("ctlDatePicker").widget();
    QCheckBox* has = picker->findChild<QCheckBox*>();
    EXPECT_TRUE(has->isChecked());
    date.userDate(QDate(2026, 12, 24));
    date.userDate(std::nullopt);
    EXPECT_FALSE(date.Value().has_value());
    EXPECT_FALSE(has->isChecked());
    EXPECT_FALSE(widget<QDateEdit>("ctlDatePicker")->isEnabled());
    date.userDate(std::nullopt);  // stays: nothing
    EXPECT_EQ(w.take(), (QStringList{"Change ctlDatePicker", "Change ctlDatePicker",
                                     "Change ctlDatePicker"}));
}

}  // namespace
