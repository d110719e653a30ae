#include "suite/ConsoleUi.h"

#include <iostream>

#include "common/MessageBox.h"

namespace {

// Line ends of the system's texts are CR LF; the console wants LF.
std::string forConsole(const QString& text) {
    QString t = text;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return t.toStdString();
}

}  // namespace

ConsoleUi::ConsoleUi() : out_(std::cerr) {}

long ConsoleUi::safeAnswer(long flags) {
    switch (flags & 0xF) {
        case 1:  // OK, cancel
        case 3:  // yes, no, cancel
        case 5:  // retry, cancel
            return MsgAnswer::Cancel;
        case 2:  // abort, retry, ignore
            return 3;
        case 4:  // yes, no
            return MsgAnswer::No;
        default:
            return MsgAnswer::Ok;
    }
}

long ConsoleUi::MsgBox(const QString& text, long flags, const QString& title) {
    const long answer = safeAnswer(flags);
    out_ << "[" << forConsole(title) << "] " << forConsole(text) << "\n(Stil " << flags
         << ", Antwort " << answer << ")" << std::endl;
    return answer;
}

void ConsoleUi::ShowErrorReport(long number, const QString& source, const QString& description) {
    out_ << "Fehler-Nr: " << number << "\n"
         << forConsole(description) << "\nFehlerquelle: " << forConsole(source) << std::endl;
}

void ConsoleUi::ShowHelp(const QString& helpFile, const QString& topic) {
    out_ << "Hilfe: " << forConsole(helpFile) << " " << forConsole(topic) << std::endl;
}

void ConsoleUi::SetMousePointer(int /*pointer*/) {}

// Without windows no file can be chosen: the dialogs answer as cancelled.
std::optional<QString> ConsoleUi::FileDialog(const QString&, const QString&, const QString&,
                                             const QString&) {
    return std::nullopt;
}

std::optional<QString> ConsoleUi::DirDialog(const QString&, const QString&) {
    return std::nullopt;
}
