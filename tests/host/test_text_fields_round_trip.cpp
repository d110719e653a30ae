// Names and texts with any character in them, typed into the job editor and the schedule
// dialog: stored as typed, read back as typed, and never a statement of their own.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include "common/ColumnLimits.h"
#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"
#include "ui/windows/frmZeitplan.h"

using namespace real_input;

namespace {

// Quotes, a statement of its own, a comment, umlauts, characters beyond Windows-1252 and
// beyond the basic plane.
const QString kAwkward = QStringLiteral(
    "O'Brien \"Zitat\" ''; DELETE FROM tAutoJobJob; -- Rest /* Kommentar */ "
    "Größe ÄÖÜ äöü ß € Ā ł Ω 漢字 😀 \\ % _ [x] ;");

QString longText() {
    QString text = kAwkward;
    while (text.size() < 4000) {
        text += QStringLiteral(" ") + kAwkward;
    }
    return text.left(4000);
}

// Characters a keyboard cannot type in a test come through the clipboard, as a user pastes
// them: selects what the box holds and pastes over it.
void pasteOver(QWidget* box, const QString& text) {
    QWidget* editor = box;
    if (auto* line = box->findChild<QLineEdit*>()) {
        editor = line;
    } else if (auto* lines = box->findChild<QPlainTextEdit*>()) {
        editor = lines->viewport();
    }
    QTest::mouseClick(editor, Qt::LeftButton, {}, QPoint(4, editor->height() / 2));
    QApplication::clipboard()->setText(text);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
}

QString shownText(QWidget* box) {
    const QVariant many = box->property("plainText");
    if (many.isValid()) {
        return many.toString();
    }
    if (auto* line = box->findChild<QLineEdit*>()) {
        return line->text();
    }
    return box->property("text").toString();
}

using TextFieldsRoundTripTest = ProgramFixture;

TEST_F(TextFieldsRoundTripTest, JobNameAndDescriptionAreStoredAndShownAsTyped) {
    const QString jobs = scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob"));
    // The name box takes the hundred characters the server stores; the description any.
    const QString name = ColumnLimits::leftCharacters(kAwkward, ColumnLimits::kAuftragName);
    const QString description = longText();
    QString shownAfterReopen;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        pasteOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Name), kAwkward);
        pasteOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                  description);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Ok));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"),
                                      QStringLiteral("Lieferanten Autohaus Lindner")));
    ASSERT_TRUE(waitFor([&] { return done; }));

    EXPECT_EQ(boxes_->shown(), QStringList());
    EXPECT_EQ(scalar(QStringLiteral("SELECT Name FROM tAutoJobJob WHERE idAutoJob = 2")), name);
    EXPECT_EQ(scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2")),
              description);
    EXPECT_EQ(scalar(QStringLiteral("SELECT count(*) FROM tAutoJobJob")), jobs);

    // Opened again, the editor shows what was stored.
    done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        shownAfterReopen =
            shownText(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    const int row = rowShowing(list(), QStringLiteral("Name"), name);
    ASSERT_GT(row, 0);
    doubleClickRow(list(), row);
    ASSERT_TRUE(waitFor([&] { return done; }));
    EXPECT_EQ(shownAfterReopen, description);
}

TEST_F(TextFieldsRoundTripTest, ScheduleNameIsStoredAsTypedUpToItsLimit) {
    const QString name = ColumnLimits::leftCharacters(longText(), ColumnLimits::kZeitplanName);
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        clickTab(find(w, QStringLiteral("tabControl")), frmEigenschaften::Tab::Zeitplaene);
        whenShown(QStringLiteral("frmZeitplan"), [&](QWidget* plan) {
            pasteOver(find(plan, QStringLiteral("txtTextBox"), frmZeitplan::Txt::Name), longText());
            click(find(plan, QStringLiteral("cmdCommandButton"), frmZeitplan::Cmd::Ok));
        });
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::ZeitplanNeu));
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"),
                                      QStringLiteral("Lieferanten Autohaus Lindner")));
    ASSERT_TRUE(waitFor([&] { return done; }));

    EXPECT_EQ(boxes_->shown(), QStringList());
    EXPECT_EQ(scalar(QStringLiteral("SELECT Name FROM tAutoJobSchedule WHERE idAutoJob = 2 "
                                    "ORDER BY idAutoJobSchedule DESC LIMIT 1")),
              name);
}

}  // namespace
