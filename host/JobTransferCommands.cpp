#include "host/JobTransferCommands.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QTableView>
#include <QTextStream>
#include <optional>

#include "common/DatabaseFiles.h"
#include "common/ErrObject.h"
#include "gui/QtFileDialog.h"
#include "host/JobTransfer.h"
#include "suite/Database.h"

namespace JobTransfer {

namespace {

const QString kFilter = QStringLiteral("Auftragsdefinitionen (*.json);;Alle Dateien (*)");

// Lines of each list in the import's message box; the command line prints them all.
constexpr int kListedInTheBox = 10;

// Writes the whole file or leaves what was there; gives the reason of a failure.
QString writeFile(const QString& file, const QByteArray& bytes) {
    if (DatabaseFiles::isDatabaseFile(file)) {
        return DatabaseFiles::refusal(file);
    }
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        return out.errorString();
    }
    return {};
}

QString readFile(const QString& file, QByteArray& bytes) {
    if (DatabaseFiles::isDatabaseFile(file)) {
        return DatabaseFiles::refusal(file);
    }
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        return in.errorString();
    }
    bytes = in.readAll();
    return {};
}

QString exportTo(Database& database, const QList<long>& ids, const QString& file, int& count) {
    try {
        const QByteArray document = exportJobs(database, ids);
        count = ids.isEmpty() ? -1 : static_cast<int>(ids.size());
        return writeFile(file, document);
    } catch (const RaisedError& e) {
        return e.err().Description;
    }
}

// A file dialog of the program's own kind, so that it looks and answers alike everywhere.
QString chooseFile(QWidget* parent, const QString& name, const QString& title, bool save) {
    QFileDialog dialog(parent, title, QDir::homePath(), kFilter);
    dialog.setObjectName(name);
    QtFileDialog::keepListedFilesClosed(dialog);
    if (save) {
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(QStringLiteral("json"));
        dialog.selectFile(QStringLiteral("Auftraege.json"));
        return QtFileDialog::chooseFileToWrite(dialog);
    }
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return QtFileDialog::chooseFile(dialog);
}

}  // namespace

int exportCommand(Database& database, const QString& file) {
    int count = 0;
    const QString error = exportTo(database, {}, file, count);
    if (!error.isEmpty()) {
        QTextStream(stderr) << "Die Aufträge konnten nicht exportiert werden: " << error << "\n";
        return 1;
    }
    QTextStream(stdout) << "Aufträge exportiert nach " << file << "\n";
    return 0;
}

int importCommand(Database& database, const QString& file, long staffId) {
    QByteArray bytes;
    if (const QString error = readFile(file, bytes); !error.isEmpty()) {
        QTextStream(stderr) << "Die Datei " << file << " kann nicht gelesen werden: " << error
                            << "\n";
        return 1;
    }
    const ImportResult result = importJobs(database, bytes, staffId);
    QTextStream(result.written ? stdout : stderr) << importReport(result) << "\n";
    return result.written ? 0 : 1;
}

QList<long> selectedJobIds(const QTableView* list) {
    QList<long> ids;
    if (!list || !list->model() || !list->selectionModel()) {
        return ids;
    }
    const QAbstractItemModel* model = list->model();
    int idColumn = -1;
    for (int c = 0; c < model->columnCount(); ++c) {
        if (model->headerData(c, Qt::Horizontal).toString() == QStringLiteral("JobId")) {
            idColumn = c;
        }
    }
    if (idColumn < 0) {
        return ids;
    }
    for (const QModelIndex& row : list->selectionModel()->selectedRows()) {
        const long id = model->index(row.row(), idColumn).data().toString().toLong();
        if (id > 0 && !ids.contains(id)) {
            ids << id;
        }
    }
    return ids;
}

// The list always has a row marked: the user says whether only the marked jobs go.
std::optional<QList<long>> chooseJobs(QWidget* parent, const QList<long>& marked) {
    if (marked.isEmpty()) {
        return marked;
    }
    QMessageBox box(QMessageBox::Question, QStringLiteral("Aufträge exportieren"),
                    QStringLiteral("Welche Aufträge sollen exportiert werden?"),
                    QMessageBox::NoButton, parent);
    QPushButton* onlyMarked = box.addButton(QStringLiteral("Nur markierte (%1)").arg(marked.size()),
                                            QMessageBox::AcceptRole);
    QPushButton* all = box.addButton(QStringLiteral("Alle Aufträge"), QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(QStringLiteral("Abbrechen"), QMessageBox::RejectRole));
    box.setDefaultButton(onlyMarked);
    box.exec();
    if (box.clickedButton() == onlyMarked) {
        return marked;
    }
    if (box.clickedButton() == all) {
        return QList<long>();
    }
    return std::nullopt;
}

void exportFromMenu(QWidget* parent, Database& database, const QList<long>& marked) {
    const std::optional<QList<long>> jobIds = chooseJobs(parent, marked);
    if (!jobIds) {
        return;
    }
    const QString title = jobIds->isEmpty() ? QStringLiteral("Alle Aufträge exportieren")
                                            : QStringLiteral("Markierte Aufträge exportieren");
    const QString file = chooseFile(parent, QStringLiteral("dlgExport"), title, true);
    if (file.isEmpty()) {
        return;
    }
    int count = 0;
    const QString error = exportTo(database, *jobIds, file, count);
    if (!error.isEmpty()) {
        QMessageBox::warning(
            parent, QStringLiteral("Aufträge exportieren"),
            QStringLiteral("Die Aufträge konnten nicht exportiert werden:\n%1").arg(error));
        return;
    }
    QMessageBox::information(parent, QStringLiteral("Aufträge exportieren"),
                             QStringLiteral("Die Aufträge wurden exportiert nach\n%1").arg(file));
}

void importFromMenu(QWidget* parent, Database& database, long staffId,
                    const std::function<void()>& refresh) {
    const QString file = chooseFile(parent, QStringLiteral("dlgImport"),
                                    QStringLiteral("Aufträge importieren"), false);
    if (file.isEmpty()) {
        return;
    }
    QByteArray bytes;
    if (const QString error = readFile(file, bytes); !error.isEmpty()) {
        QMessageBox::warning(parent, QStringLiteral("Aufträge importieren"),
                             QStringLiteral("Die Datei kann nicht gelesen werden:\n%1").arg(error));
        return;
    }
    const ImportResult result = importJobs(database, bytes, staffId);
    if (result.written && refresh) {
        refresh();
    }
    QMessageBox box(result.written ? QMessageBox::Information : QMessageBox::Warning,
                    QStringLiteral("Aufträge importieren"), importReport(result, kListedInTheBox),
                    QMessageBox::Ok, parent);
    box.exec();
}

}  // namespace JobTransfer
