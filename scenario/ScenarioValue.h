#pragma once

#include <QDate>
#include <QString>
#include <QVariant>
#include <optional>

#include "scenario/ScenarioSyntax.h"

// A value of a check: a quoted text, a number, true or false, a date (yyyy-mm-dd) or none
// (an empty date picker). Two values are equal when kind and content are equal; a failed
// check shows both as they would be written.
class ScenarioValue {
  public:
    enum class Kind { Text, Number, Bool, Date, None };

    static ScenarioValue text(const QString& t);
    static ScenarioValue number(double n);
    static ScenarioValue boolean(bool b);
    static ScenarioValue date(std::optional<QDate> d);

    // A value as written in a scenario. Throws ScenarioError for anything else.
    static ScenarioValue parse(const Token& token);
    // A raw value of a grid's cell data, a browser's cell and the like: numbers stay numbers,
    // texts texts; a date and time reads "yyyy-MM-dd HH:mm:ss", an empty or null value "".
    static ScenarioValue fromVariant(const QVariant& v);

    Kind kind() const { return kind_; }
    // As it would be written in a scenario: "text" with escapes, 12, -1000, 1.5, true,
    // 2026-12-01, none.
    QString display() const;

    bool operator==(const ScenarioValue& other) const;

  private:
    Kind kind_ = Kind::None;
    QString text_;
    double number_ = 0;
    bool flag_ = false;
    QDate date_;
};

// A date written yyyy-mm-dd; nothing when the word is no such date.
std::optional<QDate> parseIsoDate(const QString& word);
