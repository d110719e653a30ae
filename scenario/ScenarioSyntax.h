#pragma once

#include <QList>
#include <QString>
#include <optional>

// The words of a scenario line. Lines are split at blanks; a text in double quotes may hold
// blanks and the escapes \" \\ \r \n \t. Paths such as
// frmPakete.barMenu.Bearbeiten."Auftrag ausführen".Enabled or grdData.TextMatrix(1,2) are
// split into their parts by parsePath().

struct Token {
    QString raw;          // as written, quotes and escapes included
    QString text;         // quotes removed and escapes resolved
    bool quoted = false;  // the whole word was one quoted text
};

// The words of a line. Throws ScenarioError on a text left open or an unknown escape.
QList<Token> tokenizeLine(const QString& line);

// An argument in parentheses: an index, a row and column, a column's name.
struct PathArg {
    QString text;
    bool quoted = false;

    // The argument as a whole number; throws ScenarioError when it is none.
    int number() const;
};

struct PathPart {
    QString name;
    bool quoted = false;
    // Present when the part was written with parentheses, even empty ones.
    std::optional<QList<PathArg>> args;

    // "txtTextBox(0)", "\"Auftrag ausführen\"": the part as it would be written.
    QString display() const;
};

// The parts of a path, split at the dots outside quotes and parentheses. Throws
// ScenarioError on an empty part, a text left open or parentheses left open.
QList<PathPart> parsePath(const QString& raw);

// Writes a text as a quoted scenario text, escapes included.
QString quoteText(const QString& text);
