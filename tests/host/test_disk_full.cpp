// The database cannot grow (a full disk, here a page limit on the program's connection): the
// user is told once, nothing is half written, the input stays for the next try.
#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"

using namespace real_input;

namespace {

using DiskFullTest = ProgramFixture;

TEST_F(DiskFullTest, UebernehmenOnAFullDatabaseKeepsTheInputAndWritesNothing) {
    const QString stored =
        QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2");
    const QString before = scalar(stored);
    const QString pages = scalar(QStringLiteral("PRAGMA page_count"));
    // Far more than the free pages of the file hold.
    const QString description = QStringLiteral("Umsätze des Autohauses; ").repeated(8000);
    QStringList boxesWhenFull;
    QString storedWhenFull;
    QString textWhenFull;
    bool uebernehmenWhenFull = false;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        auto* uebernehmen = findIn<QPushButton>(w, QStringLiteral("cmdCommandButton"),
                                                frmEigenschaften::Cmd::Uebernehmen);
        auto* box = find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung);
        QWidget* editor =
            box->findChild<QPlainTextEdit*>() ? box->findChild<QPlainTextEdit*>()->viewport() : box;
        QTest::mouseClick(editor, Qt::LeftButton);
        QApplication::clipboard()->setText(description);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);

        program_->database().runScript(QStringLiteral("PRAGMA max_page_count = ") + pages);
        click(uebernehmen);
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 3000);
        boxesWhenFull = boxes_->shown();
        storedWhenFull = scalar(stored);
        textWhenFull = box->property("plainText").toString();
        uebernehmenWhenFull = uebernehmen->isEnabled();

        program_->database().runScript(QStringLiteral("PRAGMA max_page_count = 1073741823"));
        click(uebernehmen);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"),
                                      QStringLiteral("Lieferanten Autohaus Lindner")));
    ASSERT_TRUE(waitFor([&] { return done; }));

    ASSERT_EQ(boxesWhenFull.size(), 1) << boxesWhenFull.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhenFull.at(0).startsWith(QStringLiteral("Fehler-Nr: 13")))
        << boxesWhenFull.at(0).toStdString();
    EXPECT_TRUE(boxesWhenFull.at(0).contains(QStringLiteral("database or disk is full")));
    EXPECT_EQ(storedWhenFull, before);
    EXPECT_EQ(textWhenFull, description);
    EXPECT_TRUE(uebernehmenWhenFull);
    EXPECT_EQ(scalar(stored), description);
    EXPECT_EQ(boxes_->shown().size(), 1);
}

}  // namespace
