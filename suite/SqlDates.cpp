#include "suite/SqlDates.h"

#include <QRegularExpression>
#include <array>
#include <cmath>
#include <utility>

QDate dayNumberOrigin() {
    return QDate(1899, 12, 30);
}

QDateTime dateFromDayNumber(double days) {
    // A negative number counts whole days back; its fraction is still the time of that day.
    const double whole = std::trunc(days);
    const auto secs = static_cast<qint64>(std::llround(std::fabs(days - whole) * 86400.0));
    const QDate date = dayNumberOrigin().addDays(static_cast<qint64>(whole) + secs / 86400);
    return QDateTime(date, QTime(0, 0).addSecs(static_cast<int>(secs % 86400)));
}

QString storedDateText(const QDateTime& value) {
    return value.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

namespace {

// The stored form 'yyyy-MM-dd HH:mm:ss' read without a pattern: it is by far the most common.
std::optional<QDateTime> parseStoredForm(QStringView t) {
    if (t.size() != 19 || t[4] != u'-' || t[7] != u'-' || t[10] != u' ' || t[13] != u':' ||
        t[16] != u':') {
        return std::nullopt;
    }
    auto number = [&t](int at, int digits) {
        int value = 0;
        for (int k = at; k < at + digits; ++k) {
            if (t[k] < u'0' || t[k] > u'9') {
                return -1;
            }
            value = value * 10 + (t[k].unicode() - u'0');
        }
        return value;
    };
    const int parts[] = {number(0, 4),  number(5, 2),  number(8, 2),
                         number(11, 2), number(14, 2), number(17, 2)};
    for (const int p : parts) {
        if (p < 0) {
            return std::nullopt;
        }
    }
    const QDate date(parts[0], parts[1], parts[2]);
    const QTime time(parts[3], parts[4], parts[5]);
    if (!date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    return QDateTime(date, time);
}

}  // namespace

std::optional<QDateTime> parseDateText(QStringView text) {
    if (auto stored = parseStoredForm(text)) {
        return stored;
    }
    static const QRegularExpression iso(QStringLiteral(
        R"(^(\d{4})-(\d{1,2})-(\d{1,2})(?:[ T](\d{1,2}):(\d{2})(?::(\d{2})(?:[.,](\d{1,9}))?)?)?$)"));
    static const QRegularExpression german(
        QStringLiteral(R"(^(\d{1,2})\.(\d{1,2})\.(\d{4})(?: +(\d{1,2}):(\d{2})(?::(\d{2}))?)?$)"));
    const QString trimmed = text.trimmed().toString();
    int year = 0;
    int month = 0;
    int day = 0;
    QRegularExpressionMatch m = iso.match(trimmed);
    if (m.hasMatch()) {
        year = m.captured(1).toInt();
        month = m.captured(2).toInt();
        day = m.captured(3).toInt();
    } else {
        m = german.match(trimmed);
        if (!m.hasMatch()) {
            return std::nullopt;
        }
        day = m.captured(1).toInt();
        month = m.captured(2).toInt();
        year = m.captured(3).toInt();
    }
    const QDate date(year, month, day);
    const QTime time(m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt());
    if (!date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    // Fractions of a second are dropped: stored dates carry whole seconds.
    return QDateTime(date, time);
}

namespace {

struct PartName {
    const char16_t* name;
    DatePart part;
};

constexpr std::array<PartName, 26> partNames{{
    {u"year", DatePart::Year},       {u"yy", DatePart::Year},    {u"yyyy", DatePart::Year},
    {u"quarter", DatePart::Quarter}, {u"qq", DatePart::Quarter}, {u"q", DatePart::Quarter},
    {u"month", DatePart::Month},     {u"mm", DatePart::Month},   {u"m", DatePart::Month},
    {u"week", DatePart::Week},       {u"wk", DatePart::Week},    {u"ww", DatePart::Week},
    {u"day", DatePart::Day},         {u"dd", DatePart::Day},     {u"d", DatePart::Day},
    {u"dayofyear", DatePart::Day},   {u"dy", DatePart::Day},     {u"y", DatePart::Day},
    {u"hour", DatePart::Hour},       {u"hh", DatePart::Hour},    {u"minute", DatePart::Minute},
    {u"mi", DatePart::Minute},       {u"n", DatePart::Minute},   {u"second", DatePart::Second},
    {u"ss", DatePart::Second},       {u"s", DatePart::Second},
}};

qint64 weekIndex(const QDate& date) {
    // Julian day 0 is a Monday, so day + 1 is a multiple of 7 on every Sunday.
    return (date.toJulianDay() + 1) / 7;
}

qint64 secondIndex(const QDateTime& t) {
    return t.date().toJulianDay() * 86400 + t.time().msecsSinceStartOfDay() / 1000;
}

}  // namespace

std::optional<DatePart> datePartFromName(QStringView name) {
    for (const PartName& p : partNames) {
        if (name.compare(QStringView(p.name), Qt::CaseInsensitive) == 0) {
            return p.part;
        }
    }
    return std::nullopt;
}

QString datePartName(DatePart part) {
    switch (part) {
        case DatePart::Year:
            return QStringLiteral("year");
        case DatePart::Quarter:
            return QStringLiteral("quarter");
        case DatePart::Month:
            return QStringLiteral("month");
        case DatePart::Week:
            return QStringLiteral("week");
        case DatePart::Day:
            return QStringLiteral("day");
        case DatePart::Hour:
            return QStringLiteral("hour");
        case DatePart::Minute:
            return QStringLiteral("minute");
        case DatePart::Second:
            return QStringLiteral("second");
    }
    return {};
}

qint64 dateDiff(DatePart part, const QDateTime& a, const QDateTime& b) {
    const QDate da = a.date();
    const QDate db = b.date();
    switch (part) {
        case DatePart::Year:
            return db.year() - da.year();
        case DatePart::Quarter:
            return (db.year() * 4 + (db.month() - 1) / 3) - (da.year() * 4 + (da.month() - 1) / 3);
        case DatePart::Month:
            return (db.year() * 12 + db.month()) - (da.year() * 12 + da.month());
        case DatePart::Week:
            return weekIndex(db) - weekIndex(da);
        case DatePart::Day:
            return db.toJulianDay() - da.toJulianDay();
        case DatePart::Hour:
            return secondIndex(b) / 3600 - secondIndex(a) / 3600;
        case DatePart::Minute:
            return secondIndex(b) / 60 - secondIndex(a) / 60;
        case DatePart::Second:
            return secondIndex(b) - secondIndex(a);
    }
    return 0;
}

QDateTime startOfUnitsBefore(DatePart part, const QDateTime& now, qint64 n) {
    const QDate today = now.date();
    auto fromSecondIndex = [](qint64 index) {
        return QDateTime(QDate::fromJulianDay(index / 86400),
                         QTime(0, 0).addSecs(static_cast<int>(index % 86400)));
    };
    switch (part) {
        case DatePart::Year:
            return QDateTime(QDate(static_cast<int>(today.year() - n), 1, 1), QTime(0, 0));
        case DatePart::Quarter: {
            const qint64 quarter = today.year() * 4 + (today.month() - 1) / 3 - n;
            return QDateTime(
                QDate(static_cast<int>(quarter / 4), static_cast<int>(quarter % 4) * 3 + 1, 1),
                QTime(0, 0));
        }
        case DatePart::Month: {
            const qint64 month = today.year() * 12 + today.month() - 1 - n;
            return QDateTime(
                QDate(static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, 1),
                QTime(0, 0));
        }
        case DatePart::Week:
            // The first day of week w is the Sunday with Julian day 7w - 1.
            return QDateTime(QDate::fromJulianDay((weekIndex(today) - n) * 7 - 1), QTime(0, 0));
        case DatePart::Day:
            return QDateTime(today.addDays(-n), QTime(0, 0));
        case DatePart::Hour:
            return fromSecondIndex((secondIndex(now) / 3600 - n) * 3600);
        case DatePart::Minute:
            return fromSecondIndex((secondIndex(now) / 60 - n) * 60);
        case DatePart::Second:
            return fromSecondIndex(secondIndex(now) - n);
    }
    return now;
}
