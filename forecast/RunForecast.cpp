#include "forecast/RunForecast.h"

#include <QDate>
#include <QDateTime>
#include <QTime>
#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr qint64 kDay = LocalClock::kDay;
// Julian day of 1970-01-01, the day 0 of the wall clock's count.
constexpr qint64 kEpochDay = 2440588;

int seconds(std::int32_t hhmmss) {
    return hhmmss / 10000 * 3600 + hhmmss / 100 % 100 * 60 + hhmmss % 100;
}

int monthIndex(const QDate& d) {
    return d.year() * 12 + d.month() - 1;
}

QDate monthStart(int index) {
    return QDate(index / 12, index % 12 + 1, 1);
}

QDate sundayOf(const QDate& d) {
    return d.addDays(-(d.dayOfWeek() % 7));
}

bool hasWeekdayCode(const QDate& d, int code) {
    const int dow = d.dayOfWeek();  // 1 Monday .. 7 Sunday
    switch (code) {
        case 8:
            return true;
        case 9:
            return dow <= 5;
        case 10:
            return dow >= 6;
        default:
            return dow % 7 + 1 == code;
    }
}

// The day of the month that a monthly rule picks; invalid when the month has none.
QDate dayInMonth(const ScheduleRule& r, int month) {
    const QDate first = monthStart(month);
    if (r.lFreqencyType == 16) {
        return first.addDays(std::min(r.lFrequencyInterval, first.daysInMonth()) - 1);
    }
    const int code = r.lFrequencyInterval;
    if (r.lFrequencyRelativeInterval == 16) {
        for (QDate d = first.addDays(first.daysInMonth() - 1); d >= first; d = d.addDays(-1)) {
            if (hasWeekdayCode(d, code)) {
                return d;
            }
        }
        return {};
    }
    const int wanted = r.lFrequencyRelativeInterval == 1   ? 1
                       : r.lFrequencyRelativeInterval == 2 ? 2
                       : r.lFrequencyRelativeInterval == 4 ? 3
                                                           : 4;
    int seen = 0;
    for (QDate d = first; d.month() == first.month(); d = d.addDays(1)) {
        if (hasWeekdayCode(d, code) && ++seen == wanted) {
            return d;
        }
    }
    return {};
}

// The first day from d on that opens a window, the end date aside; invalid when none.
QDate nextDay(const ScheduleRule& r, QDate d) {
    const QDate start = r.dActiveStartDate;
    if (d < start) {
        d = start;
    }
    switch (r.lFreqencyType) {
        case 1:
            return d == start ? d : QDate();
        case 4: {
            const qint64 rest = start.daysTo(d) % r.lFrequencyInterval;
            return rest == 0 ? d : d.addDays(r.lFrequencyInterval - rest);
        }
        case 8: {
            const QDate firstWeek = sundayOf(start);
            const int factor = r.lFrequencyRecurrenceFactor;
            while (d.isValid()) {
                const qint64 week = firstWeek.daysTo(sundayOf(d)) / 7;
                if (week % factor != 0) {
                    d = sundayOf(d).addDays(7 * (factor - week % factor));
                    continue;
                }
                const QDate nextWeek = sundayOf(d).addDays(7);
                for (; d < nextWeek; d = d.addDays(1)) {
                    if (r.lFrequencyInterval & (1 << (d.dayOfWeek() % 7))) {
                        return d;
                    }
                }
            }
            return {};
        }
        default: {
            const int first = monthIndex(start);
            const int factor = r.lFrequencyRecurrenceFactor;
            for (int m = monthIndex(d); m <= 9999 * 12 + 11; ++m) {
                const int rest = (m - first) % factor;
                if (rest != 0) {
                    m += factor - rest - 1;
                    continue;
                }
                const QDate day = dayInMonth(r, m);
                if (day.isValid() && day >= d) {
                    return day;
                }
            }
            return {};
        }
    }
}

// The readings of one window as seconds from the midnight of the day that opens it.
std::vector<qint64> windowSeconds(const ScheduleRule& r) {
    const qint64 start = seconds(r.lActiveStartTimeOfDay);
    if (r.lFreqencyType == 1 || r.lFrequencySubDay == 1) {
        return {start};
    }
    qint64 end = seconds(r.lActiveEndTimeOfDay);
    if (end < start) {
        end += kDay;
    }
    const qint64 step = qint64(r.lFrequencySubDayinterval) * (r.lFrequencySubDay == 4 ? 60 : 3600);
    std::vector<qint64> out;
    for (qint64 t = start; t <= end; t += step) {
        out.push_back(t);
    }
    return out;
}

QDate dateOf(qint64 wall) {
    return QDate::fromJulianDay(LocalClock::dayOf(wall) + kEpochDay);
}

QTime timeOf(qint64 wall) {
    return QTime(0, 0).addSecs(static_cast<int>(wall - LocalClock::dayOf(wall) * kDay));
}

}  // namespace

namespace RunForecast {

void eachRun(const ScheduleRule& r, qint64 fromUtc, qint64 toUtc, LocalClock& clock,
             const std::function<bool(const ForecastRun&)>& take) {
    if (!ruleFault(r).isEmpty() || fromUtc >= toUtc) {
        return;
    }
    // A window opened the day before may still run past midnight.
    const QDate first = dateOf(clock.wallAt(fromUtc)).addDays(-1);
    QDate last = dateOf(clock.wallAt(toUtc - 1));
    if (r.dActiveEndDate.isValid() && r.dActiveEndDate < last) {
        last = r.dActiveEndDate;
    }
    const std::vector<qint64> window = windowSeconds(r);
    qint64 lastUtc = std::numeric_limits<qint64>::min();
    for (QDate d = nextDay(r, first); d.isValid() && d <= last; d = nextDay(r, d.addDays(1))) {
        const qint64 midnight = (d.toJulianDay() - kEpochDay) * kDay;
        for (const qint64 t : window) {
            const LocalClock::Moment m = clock.at(midnight + t);
            if (m.utc < fromUtc) {
                continue;
            }
            if (m.utc >= toUtc) {
                return;
            }
            if (m.utc == lastUtc) {
                continue;  // merged by the spring change: the earlier reading stays
            }
            lastUtc = m.utc;
            if (!take({m.utc, m.wall, midnight + t})) {
                return;
            }
        }
    }
}

QList<ForecastRun> runs(const ScheduleRule& r, qint64 fromUtc, qint64 toUtc, LocalClock& clock,
                        int limit) {
    QList<ForecastRun> out;
    eachRun(r, fromUtc, toUtc, clock, [&](const ForecastRun& run) {
        out.append(run);
        return limit <= 0 || out.size() < limit;
    });
    return out;
}

QString runText(const ForecastRun& run) {
    static const char* const kDays[] = {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    const QDate d = dateOf(run.wall);
    return QString::fromLatin1(kDays[d.dayOfWeek() - 1]) + u' ' +
           d.toString(QStringLiteral("dd.MM.yyyy")) + u' ' +
           timeOf(run.wall).toString(QStringLiteral("HH:mm"));
}

QString changeText(const ForecastRun& run) {
    if (!run.moved()) {
        return {};
    }
    return QStringLiteral("Zeitumstellung: ") +
           timeOf(run.planned).toString(QStringLiteral("HH:mm")) + QStringLiteral(" → ") +
           timeOf(run.wall).toString(QStringLiteral("HH:mm"));
}

QString storedText(qint64 wall) {
    return dateOf(wall).toString(QStringLiteral("yyyy-MM-dd")) + u' ' +
           timeOf(wall).toString(QStringLiteral("HH:mm:ss"));
}

}  // namespace RunForecast
