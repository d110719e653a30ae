#include "scenario/ScenarioPlay.h"

#include "common/ErrObject.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioLocator.h"
#include "scenario/ScenarioSystem.h"
#include "scenario/ScenarioWorld.h"
#include "suite/ConsoleUi.h"

namespace {

QString describeBox(const QString& text, long flags, const QString& title) {
    return QStringLiteral("%1 (style %2, title %3)")
        .arg(quoteText(text))
        .arg(flags)
        .arg(quoteText(title));
}

QString describeRaised(const RaisedError& e) {
    QString text = e.err().Description;
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    return QStringLiteral("error %1: %2").arg(e.err().Number).arg(text);
}

}  // namespace

ScenarioPlay::ScenarioPlay(QList<ScenarioLine> lines, const WindowKitMaker& kit,
                           CommandTable extraCommands)
    : lines_(std::move(lines)), extraCommands_(std::move(extraCommands)) {
    windows_ = kit ? kit(this) : std::make_shared<HeadlessWindowFactory>(this);
}

ScenarioPlay::~ScenarioPlay() {
    // The system lets go of its windows and objects without anyone left to answer.
    tearingDown_ = true;
    system_.reset();
    locator_.reset();
    world_.reset();
}

QList<ScenarioLine> ScenarioPlay::split(const QString& text) {
    QList<ScenarioLine> lines;
    const QStringList raw = (text.startsWith(QChar(0xFEFF)) ? text.mid(1) : text).split(u'\n');
    for (qsizetype i = 0; i < raw.size(); ++i) {
        QString line = raw.at(i);
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#')) {
            continue;
        }
        lines << ScenarioLine{static_cast<int>(i + 1), trimmed};
    }
    return lines;
}

ScenarioOutcome ScenarioPlay::run() {
    try {
        try {
            world_ = std::make_unique<ScenarioWorld>(*this, windows_);
        } catch (const ScenarioError& e) {
            abort(0, e.reason);
        }
        world_->events().setLineSource([this] { return currentLine(); });
        system_ = std::make_unique<SystemSession>(*world_);
        locator_ = std::make_unique<ScenarioLocator>(*windows_);
        while (!atEnd()) {
            playNext();
        }
        if (auto unchecked = world_->events().firstUnchecked()) {
            abort(unchecked->first.line, unchecked->second);
        }
    } catch (const ScenarioAbort&) {
        // The failure is kept.
    } catch (const std::exception& e) {
        failure_ = ScenarioOutcome{false, currentLine(),
                                   QStringLiteral("unexpected failure: %1").arg(e.what())};
    } catch (...) {
        failure_ = ScenarioOutcome{false, currentLine(), QStringLiteral("unexpected failure")};
    }
    tearingDown_ = true;
    ScenarioOutcome outcome = failure_.value_or(ScenarioOutcome{});
    // One line per failure, and the temporary directory as the scenario writes it.
    outcome.reason.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    outcome.reason.replace(u'\n', u' ');
    if (world_) {
        outcome.reason.replace(world_->root(), QStringLiteral("$ROOT"));
    }
    return outcome;
}

void ScenarioPlay::abort(int line, const QString& reason) {
    if (!failure_) {
        failure_ = ScenarioOutcome{false, line, reason};
    }
    throw ScenarioAbort{};
}

ScenarioCommand ScenarioPlay::commandAt(const ScenarioLine& line) const {
    QList<Token> tokens = tokenizeLine(line.text);
    for (Token& t : tokens) {
        t.text = world_->expand(t.text);
    }
    return ScenarioCommand(line.number, tokens);
}

void ScenarioPlay::playNext() {
    const ScenarioLine& line = lines_.at(next_++);
    struct LineGuard {
        std::vector<int>& stack;
        ~LineGuard() { stack.pop_back(); }
    };
    lineStack_.push_back(line.number);
    LineGuard guard{lineStack_};
    try {
        execute(commandAt(line));
    } catch (const ScenarioAbort&) {
        throw;
    } catch (const ScenarioError& e) {
        abort(line.number, e.reason);
    } catch (const RaisedError& e) {
        abort(line.number, describeRaised(e));
    } catch (const std::exception& e) {
        abort(line.number, QStringLiteral("unexpected failure: %1").arg(e.what()));
    } catch (...) {
        abort(line.number, QStringLiteral("unexpected failure"));
    }
    if (failure_) {
        // The system caught the runner's abort on its way; the failure stands all the same.
        throw ScenarioAbort{};
    }
}

void ScenarioPlay::execute(const ScenarioCommand& command) {
    const CommandTable& table = scenarioCommands();
    auto it = extraCommands_.constFind(command.name());
    if (it == extraCommands_.constEnd()) {
        it = table.constFind(command.name());
        if (it == table.constEnd()) {
            scenarioFail(QStringLiteral("unknown command %1").arg(command.name()));
        }
    }
    (*it)(*this, command);
}

void ScenarioPlay::runModal(const QString& windowName) {
    if (tearingDown_) {
        return;
    }
    if (failure_) {
        throw ScenarioAbort{};
    }
    const int opened = currentLine();
    auto isOpen = [&] {
        HeadlessWindow* w = windows_->find(windowName);
        return w && w->IsModalOpen();
    };
    while (isOpen()) {
        if (atEnd()) {
            abort(opened, QStringLiteral("the window %1, shown modally, is still open at the end "
                                         "of the file")
                              .arg(windowName));
        }
        playNext();
    }
}

ScenarioCommand ScenarioPlay::takeAnswer(const QString& word, const QString& question) {
    if (atEnd()) {
        abort(currentLine(), QStringLiteral("%1 is left unanswered").arg(question));
    }
    const ScenarioLine& line = lines_.at(next_);
    std::optional<ScenarioCommand> command;
    try {
        command = commandAt(line);
    } catch (const ScenarioError& e) {
        abort(line.number, e.reason);
    }
    if (command->name() != word) {
        abort(line.number,
              QStringLiteral("%1 is waiting, but this line does not answer it").arg(question));
    }
    ++next_;
    return *command;
}

long ScenarioPlay::answerMessageBox(const QString& text, long flags, const QString& title) {
    if (tearingDown_) {
        return ConsoleUi::safeAnswer(flags);
    }
    if (failure_) {
        throw ScenarioAbort{};
    }
    const QString question =
        QStringLiteral("the message box %1").arg(describeBox(text, flags, title));
    const ScenarioCommand c = takeAnswer(QStringLiteral("msgbox"), question);
    try {
        const QString expected = c.text(0);
        if (expected != text) {
            scenarioFail(QStringLiteral("the message box reads %1, not %2")
                             .arg(describeBox(text, flags, title), quoteText(expected)));
        }
        std::optional<long> answer;
        for (int i = 1; i < c.argCount(); i += 2) {
            const QString option = c.arg(i).raw;
            if (option == QLatin1String("style")) {
                if (c.integer(i + 1) != flags) {
                    scenarioFail(QStringLiteral("the message box %1 has style %2, not %3")
                                     .arg(quoteText(text))
                                     .arg(flags)
                                     .arg(c.integer(i + 1)));
                }
            } else if (option == QLatin1String("title")) {
                if (c.text(i + 1) != title) {
                    scenarioFail(QStringLiteral("the message box %1 has the title %2")
                                     .arg(quoteText(text), quoteText(title)));
                }
            } else if (option == QLatin1String("answer")) {
                answer = c.integer(i + 1);
            } else {
                scenarioFail(
                    QStringLiteral("msgbox: unknown option %1 (style, title, answer)").arg(option));
            }
        }
        if (!answer) {
            scenarioFail(QStringLiteral("msgbox needs an answer: answer 1, 2, 6 or 7"));
        }
        return *answer;
    } catch (const ScenarioError& e) {
        abort(c.line(), e.reason);
    }
}

std::optional<QString> ScenarioPlay::answerDialog(const QString& word, const QString& question) {
    if (tearingDown_) {
        return std::nullopt;
    }
    if (failure_) {
        throw ScenarioAbort{};
    }
    const ScenarioCommand c = takeAnswer(word, question);
    try {
        c.expectArgs(1, 1);
        if (!c.arg(0).quoted && c.arg(0).raw == QLatin1String("cancel")) {
            return std::nullopt;
        }
        return c.text(0);
    } catch (const ScenarioError& e) {
        abort(c.line(), e.reason);
    }
}

std::optional<QString> ScenarioPlay::answerFileDialog(const QString& title) {
    return answerDialog(QStringLiteral("filedialog"),
                        QStringLiteral("the file dialog %1").arg(quoteText(title)));
}

std::optional<QString> ScenarioPlay::answerDirDialog(const QString& title) {
    return answerDialog(QStringLiteral("dirdialog"),
                        QStringLiteral("the directory dialog %1").arg(quoteText(title)));
}
