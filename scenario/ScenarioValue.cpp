#include "scenario/ScenarioValue.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <cmath>

#include "common/Variants.h"
#include "scenario/ScenarioError.h"

ScenarioValue ScenarioValue::text(const QString& t) {
    ScenarioValue v;
    v.kind_ = Kind::Text;
    v.text_ = t;
    return v;
}

ScenarioValue ScenarioValue::number(double n) {
    ScenarioValue v;
    v.kind_ = Kind::Number;
    v.number_ = n;
    return v;
}

ScenarioValue ScenarioValue::boolean(bool b) {
    ScenarioValue v;
    v.kind_ = Kind::Bool;
    v.flag_ = b;
    return v;
}

ScenarioValue ScenarioValue::date(std::optional<QDate> d) {
    ScenarioValue v;
    if (d) {
        v.kind_ = Kind::Date;
        v.date_ = *d;
    }
    return v;
}

std::optional<QDate> parseIsoDate(const QString& word) {
    static const QRegularExpression shape(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}$"));
    if (!shape.match(word).hasMatch()) {
        return std::nullopt;
    }
    const QDate d = QDate::fromString(word, QStringLiteral("yyyy-MM-dd"));
    if (!d.isValid()) {
        return std::nullopt;
    }
    return d;
}

ScenarioValue ScenarioValue::parse(const Token& token) {
    if (token.quoted) {
        return text(token.text);
    }
    const QString& w = token.raw;
    if (w == QLatin1String("true") || w == QLatin1String("false")) {
        return boolean(w == QLatin1String("true"));
    }
    if (w == QLatin1String("none")) {
        return date(std::nullopt);
    }
    if (auto d = parseIsoDate(w)) {
        return date(d);
    }
    static const QRegularExpression numeric(QStringLiteral("^-?\\d+(\\.\\d+)?$"));
    if (numeric.match(w).hasMatch()) {
        return number(QLocale::c().toDouble(w));
    }
    scenarioFail(QStringLiteral("%1 is no value: write a text in double quotes, a number, true, "
                                "false, a date yyyy-mm-dd or none")
                     .arg(w));
}

ScenarioValue ScenarioValue::fromVariant(const QVariant& v) {
    if (!v.isValid() || v.isNull()) {
        return text(QString());
    }
    if (v.typeId() == QMetaType::Bool) {
        return boolean(v.toBool());
    }
    if (isNumberVariant(v)) {
        return number(v.toDouble());
    }
    switch (v.typeId()) {
        case QMetaType::QDate:
            return date(v.toDate());
        case QMetaType::QDateTime:
            return text(v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        default:
            return text(v.toString());
    }
}

QString ScenarioValue::display() const {
    switch (kind_) {
        case Kind::Text:
            return quoteText(text_);
        case Kind::Number:
            if (std::floor(number_) == number_ && std::fabs(number_) < 1e15) {
                return QString::number(static_cast<qint64>(number_));
            }
            return QString::number(number_, 'g', 15);
        case Kind::Bool:
            return flag_ ? QStringLiteral("true") : QStringLiteral("false");
        case Kind::Date:
            return date_.toString(QStringLiteral("yyyy-MM-dd"));
        case Kind::None:
            break;
    }
    return QStringLiteral("none");
}

bool ScenarioValue::operator==(const ScenarioValue& other) const {
    if (kind_ != other.kind_) {
        return false;
    }
    switch (kind_) {
        case Kind::Text:
            return text_ == other.text_;
        case Kind::Number:
            return number_ == other.number_;
        case Kind::Bool:
            return flag_ == other.flag_;
        case Kind::Date:
            return date_ == other.date_;
        case Kind::None:
            break;
    }
    return true;
}
