#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "headless/HeadlessWindow.h"
#include "headless/UserActions.h"
#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioPlatform.h"

class ScenarioWorld;
class SystemSession;
class ScenarioLocator;

// Makes the window kit for one scenario with the runner as the player of modal windows: the
// in-memory kit by default, the Qt kit with --qt.
using WindowKitMaker = std::function<std::shared_ptr<HeadlessWindowFactory>(ModalDriver*)>;

struct ScenarioLine {
    int number = 0;
    QString text;
};

struct ScenarioOutcome {
    bool passed = true;
    int line = 0;
    QString reason;
};

// One run of one scenario: its lines, its world and the system in it. Plays the lines in
// order; while the system waits in a modal window, a message box or a dialog, the lines that
// follow are played from inside that wait (runModal, answerMessageBox, ...). The first
// failure ends the scenario: it is kept, and every later wait of the system is left at once
// by ScenarioAbort, so that control comes back to run() through the system's own exits.
class ScenarioPlay : public ModalDriver, public ScenarioPrompter {
  public:
    // extraCommands come before the scenario commands of the same name (for the tests).
    ScenarioPlay(QList<ScenarioLine> lines, const WindowKitMaker& kit,
                 CommandTable extraCommands = {});
    ~ScenarioPlay() override;
    ScenarioPlay(const ScenarioPlay&) = delete;
    ScenarioPlay& operator=(const ScenarioPlay&) = delete;

    ScenarioOutcome run();

    // For the commands.
    ScenarioWorld& world() { return *world_; }
    SystemSession& system() { return *system_; }
    ScenarioLocator& locator() { return *locator_; }

    // ModalDriver: plays the next lines until that window is closed.
    void runModal(const QString& windowName) override;
    // ScenarioPrompter: the next line answers.
    long answerMessageBox(const QString& text, long flags, const QString& title) override;
    std::optional<QString> answerFileDialog(const QString& title) override;
    std::optional<QString> answerDirDialog(const QString& title) override;

    // The lines of a scenario file's text: blank lines and '#' lines left out.
    static QList<ScenarioLine> split(const QString& text);

  private:
    void playNext();
    void execute(const ScenarioCommand& command);
    ScenarioCommand commandAt(const ScenarioLine& line) const;
    // The next line, which must be the answer `word`; taken off.
    ScenarioCommand takeAnswer(const QString& word, const QString& question);
    std::optional<QString> answerDialog(const QString& word, const QString& question);
    int currentLine() const { return lineStack_.empty() ? 0 : lineStack_.back(); }
    [[noreturn]] void abort(int line, const QString& reason);
    bool atEnd() const { return next_ >= lines_.size(); }

    QList<ScenarioLine> lines_;
    CommandTable extraCommands_;
    qsizetype next_ = 0;
    std::vector<int> lineStack_;
    std::shared_ptr<HeadlessWindowFactory> windows_;
    std::unique_ptr<ScenarioWorld> world_;
    std::unique_ptr<SystemSession> system_;
    std::unique_ptr<ScenarioLocator> locator_;
    std::optional<ScenarioOutcome> failure_;
    bool tearingDown_ = false;
};
