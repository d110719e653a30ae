// The engine against a slow reference that steps minute by minute through the local clock,
// over random schedules with a fixed seed: clock change days, month ends, leap days and
// windows across midnight.
#include <gtest/gtest.h>

#include <QDateTime>
#include <map>
#include <random>
#include <set>
#include <vector>

#include "forecast/RunForecast.h"
#include "tests/forecast/ForecastTestZone.h"

namespace {

// The local clock of Berlin minute by minute: for every reading the first UTC minute that
// shows it. Readings the clock skips are missing.
std::map<qint64, qint64> firstMoments(qint64 fromUtc, qint64 toUtc) {
    const QTimeZone zone = berlin();
    std::map<qint64, qint64> first;
    for (qint64 u = fromUtc; u < toUtc; u += 60) {
        const qint64 wall = u + zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(u, Qt::UTC));
        first.emplace(wall, u);
    }
    return first;
}

bool matchesCode(const QDate& d, int code) {
    static const int kQtDay[] = {0, 7, 1, 2, 3, 4, 5, 6};
    if (code <= 7) {
        return d.dayOfWeek() == kQtDay[code];
    }
    return code == 8 || (code == 9 && d.dayOfWeek() < 6) || (code == 10 && d.dayOfWeek() > 5);
}

int monthsBetween(const QDate& a, const QDate& b) {
    return (b.year() - a.year()) * 12 + b.month() - a.month();
}

// Whether the day opens a window, by counting rather than by formula.
bool opens(const ScheduleRule& r, const QDate& day) {
    if (day < r.dActiveStartDate || day > r.dActiveEndDate) {
        return false;
    }
    switch (r.lFreqencyType) {
        case 1:
            return day == r.dActiveStartDate;
        case 4:
            return r.dActiveStartDate.daysTo(day) % r.lFrequencyInterval == 0;
        case 8: {
            int weeks = 0;  // Sundays passed since the start date
            for (QDate d = r.dActiveStartDate.addDays(1); d <= day; d = d.addDays(1)) {
                weeks += d.dayOfWeek() == 7 ? 1 : 0;
            }
            return weeks % r.lFrequencyRecurrenceFactor == 0 &&
                   (r.lFrequencyInterval >> (day.dayOfWeek() % 7) & 1);
        }
        case 16:
            return monthsBetween(r.dActiveStartDate, day) % r.lFrequencyRecurrenceFactor == 0 &&
                   day.day() == std::min(r.lFrequencyInterval, day.daysInMonth());
        default: {
            if (monthsBetween(r.dActiveStartDate, day) % r.lFrequencyRecurrenceFactor != 0 ||
                !matchesCode(day, r.lFrequencyInterval)) {
                return false;
            }
            int before = 0;
            int after = 0;
            for (int k = 1; k <= day.daysInMonth(); ++k) {
                const QDate d(day.year(), day.month(), k);
                if (matchesCode(d, r.lFrequencyInterval) && k != day.day()) {
                    ++(k < day.day() ? before : after);
                }
            }
            const int rel = r.lFrequencyRelativeInterval;
            return rel == 16 ? after == 0
                             : before + 1 == (rel == 1   ? 1
                                              : rel == 2 ? 2
                                              : rel == 4 ? 3
                                                         : 4);
        }
    }
}

// The days whose window wants the minute of day m: the day itself, or the day before for a
// window across midnight.
std::vector<int> windowDaysBack(const ScheduleRule& r, int m) {
    const int s = r.lActiveStartTimeOfDay / 10000 * 60 + r.lActiveStartTimeOfDay / 100 % 100;
    if (r.lFreqencyType == 1 || r.lFrequencySubDay == 1) {
        return m == s ? std::vector<int>{0} : std::vector<int>{};
    }
    const int e = r.lActiveEndTimeOfDay / 10000 * 60 + r.lActiveEndTimeOfDay / 100 % 100;
    const int step = r.lFrequencySubDayinterval * (r.lFrequencySubDay == 4 ? 1 : 60);
    std::vector<int> back;
    if (e >= s) {
        if (m >= s && m <= e && (m - s) % step == 0) {
            back.push_back(0);
        }
        return back;
    }
    if (m >= s && (m - s) % step == 0) {
        back.push_back(0);
    }
    if (m <= e && (m + 1440 - s) % step == 0) {
        back.push_back(1);
    }
    return back;
}

std::vector<qint64> reference(const ScheduleRule& r, qint64 fromUtc, qint64 toUtc,
                              const std::map<qint64, qint64>& first) {
    std::set<qint64> moments;
    const qint64 wallFrom = first.begin()->first;
    const qint64 wallTo = first.rbegin()->first;
    for (qint64 w = wallFrom; w <= wallTo; w += 60) {
        const QDate day = QDate(1970, 1, 1).addDays(LocalClock::dayOf(w));
        const int m = static_cast<int>((w - LocalClock::dayOf(w) * 86400) / 60);
        for (const int back : windowDaysBack(r, m)) {
            if (!opens(r, day.addDays(-back))) {
                continue;
            }
            const auto at = first.lower_bound(w);  // a skipped reading: the end of the gap
            if (at != first.end() && at->second >= fromUtc && at->second < toUtc) {
                moments.insert(at->second);
            }
        }
    }
    return {moments.begin(), moments.end()};
}

QTime randomTime(std::mt19937& rng) {
    // Half of them in the small hours, where the clock changes.
    const int hour = rng() % 2 ? static_cast<int>(rng() % 4) : static_cast<int>(rng() % 24);
    static const int kMinutes[] = {0, 0, 15, 30, 30, 45, 7, 59};
    return QTime(hour, kMinutes[rng() % 8]);
}

std::int32_t code(const QTime& t) {
    return t.hour() * 10000 + t.minute() * 100;
}

ScheduleRule randomRule(std::mt19937& rng, const QDate& around) {
    static const int kTypes[] = {1, 4, 4, 8, 8, 16, 32};
    static const int kRelative[] = {1, 2, 4, 8, 16};
    static const int kMinuteSteps[] = {15, 30, 45, 60, 90, 7, 120};
    ScheduleRule r;
    r.lFreqencyType = kTypes[rng() % 7];
    r.lFrequencyRecurrenceFactor = 1 + static_cast<int>(rng() % 3);
    r.lActiveStartTimeOfDay = code(randomTime(rng));
    r.lActiveEndTimeOfDay = code(randomTime(rng));
    r.dActiveStartDate = around.addDays(-static_cast<int>(rng() % 200));
    r.dActiveEndDate =
        rng() % 3 ? QDate(9999, 12, 31) : around.addDays(static_cast<int>(rng() % 6) - 2);
    if (r.dActiveEndDate < r.dActiveStartDate) {
        r.dActiveEndDate = r.dActiveStartDate;
    }
    r.lFrequencySubDay = rng() % 3 == 0 ? 1 : rng() % 2 ? 4 : 8;
    r.lFrequencySubDayinterval =
        r.lFrequencySubDay == 4 ? kMinuteSteps[rng() % 7] : 1 + static_cast<int>(rng() % 5);
    switch (r.lFreqencyType) {
        case 1:
            r.lFrequencySubDay = 1;
            r.dActiveStartDate = around.addDays(static_cast<int>(rng() % 3) - 1);
            r.dActiveEndDate = r.dActiveStartDate;
            break;
        case 4:
            r.lFrequencyInterval = 1 + static_cast<int>(rng() % 4);
            break;
        case 8:
            r.lFrequencyInterval = 1 + static_cast<int>(rng() % 127);
            break;
        case 16:
            r.lFrequencyInterval =
                rng() % 2 ? 28 + static_cast<int>(rng() % 4) : 1 + static_cast<int>(rng() % 31);
            break;
        default:
            r.lFrequencyInterval = 1 + static_cast<int>(rng() % 10);
            r.lFrequencyRelativeInterval = kRelative[rng() % 5];
            break;
    }
    return r;
}

TEST(RunForecastReference, RandomSchedulesAgreeWithTheMinuteByMinuteClock) {
    // Clock changes of 2025 and 2026, month ends, a leap day and plain days.
    const QDate days[] = {QDate(2025, 3, 30),  QDate(2025, 10, 26), QDate(2026, 3, 29),
                          QDate(2026, 10, 25), QDate(2024, 2, 29),  QDate(2025, 2, 28),
                          QDate(2025, 12, 31), QDate(2026, 4, 30),  QDate(2026, 1, 31),
                          QDate(2026, 7, 15)};
    std::mt19937 rng(20260329);
    int compared = 0;
    int nonEmpty = 0;
    for (const QDate& day : days) {
        for (int period = 0; period < 3; ++period) {
            const qint64 from =
                QDateTime(day.addDays(-1), QTime(static_cast<int>(rng() % 24), 0), berlin())
                    .toSecsSinceEpoch();
            const qint64 to = from + (2 + static_cast<qint64>(rng() % 3)) * 86400 + 1800;
            const std::map<qint64, qint64> first = firstMoments(from - 2 * 86400, to + 86400);
            for (int k = 0; k < 25; ++k) {
                const ScheduleRule r = randomRule(rng, day);
                ASSERT_TRUE(ruleFault(r).isEmpty()) << ruleFault(r).toStdString();
                LocalClock clock(berlin());
                std::vector<qint64> got;
                for (const ForecastRun& run : RunForecast::runs(r, from, to, clock)) {
                    got.push_back(run.utc);
                }
                const std::vector<qint64> want = reference(r, from, to, first);
                ASSERT_EQ(got, want)
                    << "type " << r.lFreqencyType << " interval " << r.lFrequencyInterval
                    << " factor " << r.lFrequencyRecurrenceFactor << " rel "
                    << r.lFrequencyRelativeInterval << " unit " << r.lFrequencySubDay << "/"
                    << r.lFrequencySubDayinterval << " " << r.lActiveStartTimeOfDay << "-"
                    << r.lActiveEndTimeOfDay << " "
                    << r.dActiveStartDate.toString(Qt::ISODate).toStdString() << ".."
                    << r.dActiveEndDate.toString(Qt::ISODate).toStdString() << " from " << from;
                ++compared;
                nonEmpty += want.empty() ? 0 : 1;
            }
        }
    }
    EXPECT_EQ(compared, 750);
    EXPECT_GT(nonEmpty, 300);  // the comparison is not carried by empty lists
}

}  // namespace
