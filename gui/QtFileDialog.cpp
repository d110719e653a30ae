#include "gui/QtFileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "common/DatabaseFiles.h"

namespace {

// Icons and types from what stat and the name tell: a folder, a drive, a file of a suffix.
class NameOnlyIconProvider : public QFileIconProvider {
  public:
    NameOnlyIconProvider() { setOptions(DontUseCustomDirectoryIcons); }

    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& info) const override {
        if (info.isRoot()) {
            return icon(Drive);
        }
        return icon(info.isDir() ? Folder : File);
    }

    QString type(const QFileInfo& info) const override {
        if (info.isRoot()) {
            return QStringLiteral("Laufwerk");
        }
        if (info.isDir()) {
            return QStringLiteral("Ordner");
        }
        const QString suffix = info.suffix();
        return suffix.isEmpty() ? QStringLiteral("Datei")
                                : QStringLiteral("%1-Datei").arg(suffix.toUpper());
    }
};

}  // namespace

namespace QtFileDialog {

void keepListedFilesClosed(QFileDialog& dialog) {
    // One for the program's life: a dialog does not own its provider.
    static NameOnlyIconProvider provider;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(&provider);
}

QString chooseFile(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return dialog.selectedFiles().constFirst();
}

QString chooseFileToWrite(QFileDialog& dialog) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    for (;;) {
        const QString file = chooseFile(dialog);
        if (file.isEmpty() || !QFileInfo::exists(file) || DatabaseFiles::isDatabaseFile(file)) {
            return file;
        }
        QMessageBox question(QMessageBox::Question, dialog.windowTitle(),
                             QStringLiteral("Die Datei %1 ist schon vorhanden.\n"
                                            "Wollen Sie sie ersetzen?")
                                 .arg(QDir::toNativeSeparators(file)),
                             QMessageBox::NoButton, dialog.parentWidget());
        QPushButton* yes = question.addButton(QStringLiteral("Ja"), QMessageBox::YesRole);
        question.setDefaultButton(question.addButton(QStringLiteral("Nein"), QMessageBox::NoRole));
        question.exec();
        if (question.clickedButton() == yes) {
            return file;
        }
    }
}

}  // namespace QtFileDialog
