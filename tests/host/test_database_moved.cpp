// The database file is moved away while the program runs: a save is refused with a message
// that says so instead of writing into a file nobody reads; moved back, the save succeeds.
#include <QFile>
#include <QPushButton>

#include "tests/host/ProgramFixture.h"
#include "ui/windows/frmEigenschaften.h"

using namespace real_input;

namespace {

using DatabaseMovedTest = ProgramFixture;

TEST_F(DatabaseMovedTest, UebernehmenAfterTheFileWasMovedIsRefusedAndKeepsTheInput) {
    const QString path = config_->databasePath;
    const QString elsewhere = path + QStringLiteral(".verschoben");
    QStringList boxesWhenMoved;
    bool uebernehmenWhenMoved = false;
    bool done = false;
    whenShown(QStringLiteral("frmEigenschaften"), [&](QWidget* w) {
        auto* uebernehmen = findIn<QPushButton>(w, QStringLiteral("cmdCommandButton"),
                                                frmEigenschaften::Cmd::Uebernehmen);
        typeOver(find(w, QStringLiteral("txtTextBox"), frmEigenschaften::Txt::Beschreibung),
                 QStringLiteral("Nach dem Umzug"));
        ASSERT_TRUE(QFile::rename(path, elsewhere));
        click(uebernehmen);
        waitFor([&] { return !boxes_->shown().isEmpty(); }, 3000);
        boxesWhenMoved = boxes_->shown();
        uebernehmenWhenMoved = uebernehmen->isEnabled();
        ASSERT_TRUE(QFile::rename(elsewhere, path));
        click(uebernehmen);
        click(find(w, QStringLiteral("cmdCommandButton"), frmEigenschaften::Cmd::Abbrechen));
        done = true;
    });
    doubleClickRow(list(), rowShowing(list(), QStringLiteral("Name"),
                                      QStringLiteral("Lieferanten Autohaus Lindner")));
    ASSERT_TRUE(waitFor([&] { return done; }));

    ASSERT_EQ(boxesWhenMoved.size(), 1) << boxesWhenMoved.join(u'|').toStdString();
    EXPECT_TRUE(boxesWhenMoved.at(0).contains(
        QStringLiteral("Die Datenbank %1 ist nicht mehr vorhanden: sie wurde gelöscht oder "
                       "verschoben. Änderungen können nicht gespeichert werden")
            .arg(path)))
        << boxesWhenMoved.at(0).toStdString();
    EXPECT_TRUE(uebernehmenWhenMoved);
    EXPECT_EQ(scalar(QStringLiteral("SELECT Beschreibung FROM tAutoJobJob WHERE idAutoJob = 2")),
              QStringLiteral("Nach dem Umzug"));
    EXPECT_EQ(boxes_->shown().size(), 1);
}

}  // namespace
