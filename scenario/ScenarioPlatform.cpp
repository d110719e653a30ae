#include "scenario/ScenarioPlatform.h"

#include "scenario/ScenarioSyntax.h"

#include <QDir>
#include <QFileInfo>

long ScenarioPlatform::MsgBox(const QString& text, long flags, const QString& title) {
    return prompter_.answerMessageBox(text, flags, title);
}

void ScenarioPlatform::ShowErrorReport(long number, const QString& source,
                                       const QString& description) {
    QString detail = QStringLiteral("%1: %2").arg(number).arg(description);
    detail.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    events_.add(ScenarioEvents::Kind::Error, errorProcedure(source), detail);
}

void ScenarioPlatform::ShowHelp(const QString& helpFile, const QString& topic) {
    events_.add(ScenarioEvents::Kind::Help, topic, helpFile);
}

std::optional<QString> ScenarioPlatform::FileDialog(const QString& title, const QString&,
                                                    const QString&, const QString&) {
    return prompter_.answerFileDialog(title);
}

std::optional<QString> ScenarioPlatform::DirDialog(const QString& title, const QString&) {
    return prompter_.answerDirDialog(title);
}

bool ScenarioShell::Start(const QString& program, const QStringList& arguments, int) {
    events_.add(ScenarioEvents::Kind::Shell, (QStringList{program} + arguments).join(u' '));
    return true;
}

bool ScenarioShell::Open(const QString& path) {
    events_.add(ScenarioEvents::Kind::Shell, QStringLiteral("xdg-open ") + path);
    return true;
}

void ScenarioBookingLogDisplay::show(const BookingLogView& view) {
    events_.add(
        ScenarioEvents::Kind::Viewer,
        quoteText(view.datei) + QLatin1Char(' ') +
            (view.buchungen ? QStringLiteral("buchungen") : QStringLiteral("status")) +
            QLatin1Char(' ') + QString::number(view.wirtschaftsjahr) + QLatin1Char(' ') +
            QString::number(view.mitarbeiter),
        view.gefunden ? QStringLiteral("Datei gefunden") : QStringLiteral("Datei nicht gefunden"));
}
