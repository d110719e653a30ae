// Export and import of job definitions through the menu "Datei" of the program users start.
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>

#include "host/JobTransfer.h"
#include "tests/host/ProgramFixture.h"

using namespace real_input;

namespace {

const QString kExport = QStringLiteral("Aufträge exportieren…");
const QString kImport = QStringLiteral("Aufträge importieren…");

// Plays the file dialog: chooses the file, or cancels when it is empty.
void answerFileDialog(const QString& dialog, const QString& file, bool& shown) {
    whenShown(dialog, [file, &shown](QWidget* w) {
        shown = true;
        auto* fd = qobject_cast<QFileDialog*>(w);
        ASSERT_NE(fd, nullptr);
        if (file.isEmpty()) {
            fd->reject();
            return;
        }
        // Typed into the file name field, as a person does.
        auto* name = fd->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(name, nullptr);
        name->setText(file);
        static_cast<QDialog*>(fd)->accept();  // as the button "Speichern" or "Öffnen" does
    });
}

QJsonArray jobsIn(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(f.readAll())
                                             .object()[QStringLiteral("auftraege")]
                                             .toArray()
                                       : QJsonArray();
}

}  // namespace

using JobTransferMenuTest = ProgramFixture;

TEST_F(JobTransferMenuTest, TheFileMenuOffersExportAndImportBeforeBeenden) {
    auto* menu = mainWindow().findChild<QMenu*>(QStringLiteral("menuDatei"));
    ASSERT_NE(menu, nullptr);
    QStringList items;
    for (QAction* a : menu->actions()) {
        items << (a->isSeparator() ? QStringLiteral("-") : a->text());
    }
    EXPECT_EQ(items,
              (QStringList{kExport, kImport, QStringLiteral("-"), QStringLiteral("&Beenden")}));
}

TEST_F(JobTransferMenuTest, CancelInTheFileDialogsDoesNothing) {
    const QString file = root() + QStringLiteral("/Auftraege.json");
    // Cancel in the question which jobs go, then in the file dialog.
    chooseMenu(QStringLiteral("Datei"), kExport);
    ASSERT_TRUE(waitFor([&] { return boxes_->shown().size() == 1; }));
    boxes_->answerNext(QStringLiteral("Alle Aufträge"));
    bool shown = false;
    answerFileDialog(QStringLiteral("dlgExport"), QString(), shown);
    chooseMenu(QStringLiteral("Datei"), kExport);
    ASSERT_TRUE(waitFor([&] { return shown; }));
    shown = false;
    answerFileDialog(QStringLiteral("dlgImport"), QString(), shown);
    chooseMenu(QStringLiteral("Datei"), kImport);
    ASSERT_TRUE(waitFor([&] { return shown; }));

    EXPECT_FALSE(QFile::exists(file));
    EXPECT_EQ(boxes_->shown(), (QStringList(2, QStringLiteral("Welche Aufträge sollen exportiert "
                                                              "werden?"))));
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob")), QStringLiteral("14"));
}

TEST_F(JobTransferMenuTest, ExportOfTheSelectedJobThenImportAddsItAndTheListShowsIt) {
    const QString file = root() + QStringLiteral("/lindner.json");
    const int row =
        rowShowing(list(), QStringLiteral("Name"), QStringLiteral("Lieferanten Autohaus Lindner"));
    ASSERT_GE(row, 0);
    clickRow(list(), row);
    boxes_->answerNext(QStringLiteral("Nur markierte (1)"));
    bool shown = false;
    answerFileDialog(QStringLiteral("dlgExport"), file, shown);
    chooseMenu(QStringLiteral("Datei"), kExport);
    ASSERT_TRUE(waitFor([&] { return boxes_->shown().size() == 2; }));
    EXPECT_EQ(boxes_->shown().at(1),
              QStringLiteral("Die Aufträge wurden exportiert nach\n%1").arg(file));
    const QJsonArray jobs = jobsIn(file);
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(jobs[0][QStringLiteral("name")].toString(),
              QStringLiteral("Lieferanten Autohaus Lindner"));

    const int rowsBefore = list()->model()->rowCount();
    shown = false;
    answerFileDialog(QStringLiteral("dlgImport"), file, shown);
    chooseMenu(QStringLiteral("Datei"), kImport);
    ASSERT_TRUE(waitFor([&] { return boxes_->shown().size() == 3; }));
    EXPECT_EQ(boxes_->shown().at(2),
              QStringLiteral("1 Auftrag importiert.\n\n"
                             "Diese Namen gab es schon; die Aufträge wurden als neue Aufträge "
                             "angelegt:\n  \"Lieferanten Autohaus Lindner\"\n\n"
                             "Importiert:\n  \"Lieferanten Autohaus Lindner\""));
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob where Name = "
                                    "'Lieferanten Autohaus Lindner'")),
              QStringLiteral("2"));
    EXPECT_TRUE(waitFor([&] { return list()->model()->rowCount() == rowsBefore + 1; }));
}

TEST_F(JobTransferMenuTest, ABrokenFileIsToldAndNothingIsWritten) {
    const QString file = root() + QStringLiteral("/kaputt.json");
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(R"({"format": "autojobverw-auftraege", "version": 1, "auftraege": [{"name": "A"}]})");
    f.close();
    bool shown = false;
    answerFileDialog(QStringLiteral("dlgImport"), file, shown);
    chooseMenu(QStringLiteral("Datei"), kImport);
    ASSERT_TRUE(waitFor([&] { return !boxes_->shown().isEmpty(); }));
    EXPECT_TRUE(boxes_->shown().at(0).startsWith(
        QStringLiteral("Es wurde kein Auftrag importiert:\nAuftrag \"A\": \"auftragsart\" fehlt.")))
        << boxes_->shown().at(0).toStdString();
    EXPECT_EQ(scalar(QStringLiteral("select count(*) from tAutoJobJob")), QStringLiteral("14"));
}
