#include "suite/SqlValues.h"

#include <QLocale>
#include <cmath>
#include <limits>
#include <optional>
#include <variant>

#include "common/Recordset.h"
#include "suite/SqlDates.h"
#include "suite/SqlErrors.h"

namespace SqlValues {

namespace {

using Number = std::variant<qint64, double>;

bool isText(const QVariant& value) {
    const int id = value.metaType().id();
    return id == QMetaType::QString || id == QMetaType::QByteArray;
}

std::optional<Number> numberOfText(const QString& raw) {
    const QString text = raw.trimmed();
    bool ok = false;
    const qint64 whole = text.toLongLong(&ok);
    if (ok) {
        return whole;
    }
    double real = QLocale::c().toDouble(text, &ok);
    if (!ok) {
        real = QLocale(QLocale::German, QLocale::Germany).toDouble(text, &ok);
    }
    return ok && std::isfinite(real) ? std::optional<Number>(real) : std::nullopt;
}

// NULL is 0; a text that holds no number gives nothing.
std::optional<Number> numberOf(const QVariant& value) {
    if (value.isNull()) {
        return qint64{0};
    }
    switch (value.metaType().id()) {
        case QMetaType::Double:
        case QMetaType::Float:
            return value.toDouble();
        case QMetaType::QString:
        case QMetaType::QByteArray:
            return numberOfText(value.toString());
        default: {
            bool ok = false;
            const qint64 whole = value.toLongLong(&ok);
            return ok ? std::optional<Number>(whole) : std::nullopt;
        }
    }
}

}  // namespace

long toLong(const QVariant& value, const QString& field) {
    const std::optional<Number> number = numberOf(value);
    if (!number) {
        throw SqlErrors::typeMismatch(field);
    }
    // std::nearbyint rounds half to even in the default rounding mode.
    const double rounded = std::holds_alternative<qint64>(*number)
                               ? static_cast<double>(std::get<qint64>(*number))
                               : std::nearbyint(std::get<double>(*number));
    if (rounded < std::numeric_limits<qint32>::min() ||
        rounded > std::numeric_limits<qint32>::max()) {
        throw SqlErrors::overflow(field);
    }
    return static_cast<long>(rounded);
}

bool toBool(const QVariant& value, const QString& field) {
    if (isText(value) && !value.isNull()) {
        const QString text = value.toString().trimmed().toLower();
        if (text.isEmpty() || text == u"false" || text == u"falsch") {
            return false;
        }
        if (text == u"true" || text == u"wahr") {
            return true;
        }
    }
    const std::optional<Number> number = numberOf(value);
    if (!number) {
        throw SqlErrors::typeMismatch(field);
    }
    return std::holds_alternative<qint64>(*number) ? std::get<qint64>(*number) != 0
                                                   : std::get<double>(*number) != 0.0;
}

QString toText(const QVariant& value) {
    if (value.isNull()) {
        return {};
    }
    switch (value.metaType().id()) {
        case QMetaType::Double:
        case QMetaType::Float: {
            const double real = value.toDouble();
            if (std::trunc(real) == real && std::fabs(real) < 1e15) {
                return QString::number(static_cast<qint64>(real));
            }
            return QString::number(real, 'g', QLocale::FloatingPointShortest);
        }
        case QMetaType::QByteArray:
            return QString::fromUtf8(value.toByteArray());
        default:
            return value.toString();
    }
}

QDateTime toDate(const QVariant& value, const QString& field) {
    if (value.isNull()) {
        return zeroDate();
    }
    if (isText(value)) {
        const QString text = value.toString();
        if (text.trimmed().isEmpty()) {
            return zeroDate();
        }
        if (auto date = parseDateText(text)) {
            return *date;
        }
    }
    const std::optional<Number> number = numberOf(value);
    if (!number) {
        throw SqlErrors::typeMismatch(field);
    }
    return dateFromDayNumber(std::holds_alternative<qint64>(*number)
                                 ? static_cast<double>(std::get<qint64>(*number))
                                 : std::get<double>(*number));
}

}  // namespace SqlValues
