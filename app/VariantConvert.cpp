#include "app/VariantConvert.h"

#include <cmath>
#include <limits>

#include "common/ErrObject.h"

namespace {

long roundToLong(double d) {
    const double r = std::nearbyint(d);  // the default rounding mode is half to even
    if (!std::isfinite(r) || r < std::numeric_limits<qint32>::min() ||
        r > std::numeric_limits<qint32>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<long>(r);
}

[[noreturn]] void typeMismatch() {
    throw RaisedError(ErrNumber::TypeMismatch, QStringLiteral("Typen unverträglich"));
}

}  // namespace

long variantToLong(const QVariant& value) {
    if (!value.isValid() || value.isNull()) {
        return 0;
    }
    switch (value.typeId()) {
        case QMetaType::Bool:
            return value.toBool() ? -1 : 0;
        case QMetaType::QString: {
            QString text = value.toString().trimmed();
            text.replace(QLatin1Char(','), QLatin1Char('.'));
            bool ok = false;
            const double d = text.toDouble(&ok);
            if (!ok) {
                typeMismatch();
            }
            return roundToLong(d);
        }
        default: {
            bool ok = false;
            const double d = value.toDouble(&ok);
            if (!ok) {
                typeMismatch();
            }
            return roundToLong(d);
        }
    }
}

long leadingNumber(const QString& text) {
    const QString t = text.trimmed();
    qsizetype i = 0;
    bool negative = false;
    if (i < t.size() && (t[i] == QLatin1Char('-') || t[i] == QLatin1Char('+'))) {
        negative = t[i] == QLatin1Char('-');
        ++i;
    }
    qint64 value = 0;
    for (; i < t.size() && t[i].isDigit() && t[i].unicode() < 128; ++i) {
        value = value * 10 + t[i].digitValue();
        if (value > std::numeric_limits<qint32>::max()) {
            throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
        }
    }
    return static_cast<long>(negative ? -value : value);
}
