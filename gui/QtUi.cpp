#include "gui/QtUi.h"

#include "gui/QtFileDialog.h"
#include "gui/QtHelpWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QWidget>

namespace {

namespace Answer {
constexpr long Ok = 1;
constexpr long Cancel = 2;
constexpr long Abort = 3;
constexpr long Retry = 4;
constexpr long Ignore = 5;
constexpr long Yes = 6;
constexpr long No = 7;
}  // namespace Answer

MsgBoxButton button(long answer) {
    switch (answer) {
        case Answer::Ok:
            return {QStringLiteral("OK"), answer};
        case Answer::Cancel:
        case Answer::Abort:
            return {QStringLiteral("Abbrechen"), answer};
        case Answer::Retry:
            return {QStringLiteral("Wiederholen"), answer};
        case Answer::Ignore:
            return {QStringLiteral("Ignorieren"), answer};
        case Answer::Yes:
            return {QStringLiteral("Ja"), answer};
        default:
            return {QStringLiteral("Nein"), Answer::No};
    }
}

QMessageBox::ButtonRole roleOf(long answer) {
    switch (answer) {
        case Answer::Ok:
        case Answer::Yes:
            return QMessageBox::AcceptRole;
        case Answer::No:
            return QMessageBox::NoRole;
        case Answer::Cancel:
        case Answer::Abort:
            return QMessageBox::RejectRole;
        default:
            return QMessageBox::ActionRole;
    }
}

// The system's texts end their lines with CR LF.
QString plainLines(const QString& text) {
    QString t = text;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return t;
}

QWidget* dialogParent() {
    return QApplication::activeWindow();
}

// What a file or folder dialog answers the system: the path in the platform's form, nothing
// when the user cancelled.
std::optional<QString> chosen(const QString& path) {
    if (path.isEmpty()) {
        return std::nullopt;
    }
    return QDir::toNativeSeparators(path);
}

}  // namespace

MsgBoxLayout msgBoxLayout(long flags) {
    MsgBoxLayout layout;
    QList<long> answers;
    switch (flags & 0xF) {
        case 1:
            answers = {Answer::Ok, Answer::Cancel};
            layout.escapeButton = 1;
            break;
        case 2:
            answers = {Answer::Abort, Answer::Retry, Answer::Ignore};
            break;
        case 3:
            answers = {Answer::Yes, Answer::No, Answer::Cancel};
            layout.escapeButton = 2;
            break;
        case 4:
            answers = {Answer::Yes, Answer::No};
            break;
        case 5:
            answers = {Answer::Retry, Answer::Cancel};
            layout.escapeButton = 1;
            break;
        default:
            answers = {Answer::Ok};
            layout.escapeButton = 0;
            break;
    }
    for (long a : answers) {
        layout.buttons << button(a);
    }
    const int wanted = static_cast<int>((flags & 0xF00) >> 8);
    layout.defaultButton = wanted < layout.buttons.size() ? wanted : 0;
    switch (flags & 0xF0) {
        case 16:
            layout.icon = QMessageBox::Critical;
            break;
        case 32:
            layout.icon = QMessageBox::Question;
            break;
        case 48:
            layout.icon = QMessageBox::Warning;
            break;
        case 64:
            layout.icon = QMessageBox::Information;
            break;
        default:
            layout.icon = QMessageBox::NoIcon;
            break;
    }
    return layout;
}

QString qtFileFilter(const QString& classicFilter) {
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].trimmed();
        QString patterns = parts[i + 1].trimmed();
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        const QString suffix = QStringLiteral("(%1)").arg(patterns);
        filters << (description.endsWith(suffix)
                        ? description
                        : QStringLiteral("%1 %2").arg(description, suffix));
    }
    return filters.join(QStringLiteral(";;"));
}

long QtUi::MsgBox(const QString& text, long flags, const QString& title) {
    const MsgBoxLayout layout = msgBoxLayout(flags);
    QMessageBox box(layout.icon, title, plainLines(text), QMessageBox::NoButton, dialogParent());
    QList<QPushButton*> buttons;
    for (const MsgBoxButton& b : layout.buttons) {
        buttons << box.addButton(b.text, roleOf(b.answer));
    }
    box.setDefaultButton(buttons.value(layout.defaultButton));
    if (layout.escapeButton >= 0) {
        box.setEscapeButton(buttons.value(layout.escapeButton));
    }
    box.exec();
    const int clicked = buttons.indexOf(qobject_cast<QPushButton*>(box.clickedButton()));
    if (clicked < 0) {
        return layout.escapeButton >= 0 ? layout.buttons[layout.escapeButton].answer
                                        : layout.buttons.first().answer;
    }
    return layout.buttons[clicked].answer;
}

void QtUi::ShowErrorReport(long number, const QString& source, const QString& description) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Fehler"),
                    QStringLiteral("Fehler-Nr: %1\n\n%2").arg(number).arg(plainLines(description)),
                    QMessageBox::NoButton, dialogParent());
    box.setDetailedText(QStringLiteral("Fehlerquelle:\n") + plainLines(source));
    box.setDefaultButton(box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole));
    box.exec();
}

// The suite's help file is not part of this program: the program's own help window shows
// the topic's text from its resources.
void QtUi::ShowHelp(const QString&, const QString& topic) {
    QtHelpWindow::shared(dialogParent())->showTopic(topic);
}

std::optional<QString> QtUi::FileDialog(const QString& title, const QString& filter,
                                        const QString& initialDirectory, const QString& fileName) {
    QFileDialog dialog(dialogParent(), title, initialDirectory, qtFileFilter(filter));
    dialog.setObjectName(QStringLiteral("dlgDatei"));
    QtFileDialog::keepListedFilesClosed(dialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (!fileName.isEmpty()) {
        dialog.selectFile(fileName);
    }
    return chosen(QtFileDialog::chooseFile(dialog));
}

std::optional<QString> QtUi::DirDialog(const QString& title, const QString& start) {
    QFileDialog dialog(dialogParent(), title, start);
    dialog.setObjectName(QStringLiteral("dlgVerzeichnis"));
    QtFileDialog::keepListedFilesClosed(dialog);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosen(QtFileDialog::chooseFile(dialog));
}

void QtUi::SetMousePointer(int pointer) {
    const bool wait = pointer == 11;
    if (wait == waitCursor_) {
        return;
    }
    waitCursor_ = wait;
    if (wait) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}
