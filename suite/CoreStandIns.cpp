#include "suite/CoreStandIns.h"

#include <QDateTime>
#include <QLocale>
#include <cmath>
#include <limits>

#include "common/Recordset.h"
#include "common/Services.h"
#include "common/Variants.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

[[noreturn]] void typeMismatch() {
    throw RaisedError(ErrNumber::TypeMismatch, QStringLiteral("Typen unverträglich"));
}

double roundHalfEven(double x) {
    const double lower = std::floor(x);
    const double diff = x - lower;
    if (diff > 0.5) {
        return lower + 1;
    }
    if (diff < 0.5) {
        return lower;
    }
    return std::fmod(lower, 2.0) == 0.0 ? lower : lower + 1;
}

long toLongChecked(double x) {
    if (!std::isfinite(x)) {
        typeMismatch();
    }
    const double r = roundHalfEven(x);
    if (r < std::numeric_limits<qint32>::min() || r > std::numeric_limits<qint32>::max()) {
        throw RaisedError(ErrNumber::Overflow, QStringLiteral("Überlauf"));
    }
    return static_cast<long>(r);
}

double numberInText(const QString& text) {
    QString t = text.trimmed();
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double value = QLocale::c().toDouble(t, &ok);
    if (!ok) {
        typeMismatch();
    }
    return value;
}

// A date as the classic runtime counts it: days since the zero date, the time as fraction.
double dayNumber(const QDateTime& value) {
    const QDateTime zero = zeroDate();
    const qint64 days = zero.date().daysTo(value.date());
    const QTime time = value.time().isValid() ? value.time() : QTime(0, 0);
    return static_cast<double>(days) + time.msecsSinceStartOfDay() / 86400000.0;
}

}  // namespace

PlatformUi& suiteUi() {
    auto& ui = services().ui;
    if (!ui) {
        throw RaisedError(ErrNumber::ObjectRequired, QStringLiteral("Objekt erforderlich"),
                          QStringLiteral("hcore"));
    }
    return *ui;
}

void raiseOn(const ErrorExit& ex) {
    ErrObject err = currentExceptionAsErr();
    if (!ex.creationText().isEmpty()) {
        err.Description += kCrLf + kCrLf + ex.creationText();
    }
    throw RaisedError(err);
}

void SuiteCoreError::Report(long number, const QString& source, const QString& description) {
    suiteUi().ShowErrorReport(number, source, description);
}

long SuiteCoreConvert::ToLong(const QVariant& value) {
    if (isNumberVariant(value)) {
        return toLongChecked(isRealVariant(value) ? value.toDouble()
                                                  : static_cast<double>(value.toLongLong()));
    }
    switch (value.typeId()) {
        case QMetaType::UnknownType:
            return 0;  // an empty variant converts to 0
        case QMetaType::Bool:
            return value.toBool() ? -1 : 0;
        case QMetaType::QString:
            return toLongChecked(numberInText(value.toString()));
        case QMetaType::QByteArray:
            return toLongChecked(numberInText(QString::fromUtf8(value.toByteArray())));
        case QMetaType::QDate:
            return toLongChecked(dayNumber(QDateTime(value.toDate(), QTime(0, 0))));
        case QMetaType::QDateTime:
            return toLongChecked(dayNumber(value.toDateTime()));
        default:
            typeMismatch();
    }
}

long SuiteCoreHelp::ShowHelp(const QString& helpFile, const QString& topic) {
    suiteUi().ShowHelp(helpFile, topic);
    return 0;
}

QString SuiteCoreGlobal::FormatCreateCommand(const QString& dll, const QString& command) {
    return kCrLf + kCrLf + QStringLiteral("Folgender Befehl hat diesen Fehler ausgelöst:") + kCrLf +
           QLatin1Char('"') + command + QLatin1Char('"') + kCrLf + QLatin1Char('(') + dll +
           QLatin1Char(')');
}

long SuiteCoreGlobal::GetInstallationsArt() {
    return config_->installationKind;
}
