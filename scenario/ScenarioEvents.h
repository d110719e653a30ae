#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <optional>

// What the system did that a scenario must check: program starts, help calls and error
// reports, each with the scenario line during which it happened. Checks take the oldest
// unchecked one; at the end of a file every one must have been checked.
class ScenarioEvents {
  public:
    struct Entry {
        QString text;    // the command line, the help topic, the error's procedure, the
                         // viewer's file, display, fiscal year and staff member
        QString detail;  // for an error report: its number and description
        int line = 0;
    };
    enum class Kind { Shell, Help, Error, Viewer };

    // The line that is being played; set by the runner.
    void setLineSource(std::function<int()> source) { lineSource_ = std::move(source); }

    void add(Kind kind, const QString& text, const QString& detail = {});
    // The oldest unchecked entry of that kind, taken off the list; nothing when there is none.
    std::optional<Entry> take(Kind kind);
    // The first entry left unchecked, of any kind, with a reason that says what it was.
    std::optional<std::pair<Entry, QString>> firstUnchecked() const;

  private:
    QList<Entry>& list(Kind kind);

    QList<Entry> shell_;
    QList<Entry> help_;
    QList<Entry> errors_;
    QList<Entry> viewer_;
    std::function<int()> lineSource_;
};

// The procedure an error report came from: the last line of the source (behind the last
// CR LF), the part behind its last '.', without a " (Zeile n)" ending.
QString errorProcedure(const QString& source);
