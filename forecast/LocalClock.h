#pragma once

#include <QHash>
#include <QTimeZone>
#include <QtGlobal>
#include <limits>
#include <utility>

// The wall clock of a time zone. Moments are seconds since 1970-01-01 00:00 UTC; a wall clock
// reading is counted the same way as if the zone were UTC, so that whole days are multiples
// of 86400 and a day's readings are its midnight plus the seconds of the day.
class LocalClock {
  public:
    explicit LocalClock(QTimeZone zone);

    struct Moment {
        qint64 utc = 0;
        qint64 wall = 0;  // what the clock shows then
    };

    // The moment at which the clock first shows the reading: of a reading that the autumn
    // change repeats the first occurrence; of one that the spring change skips the first
    // moment after the gap (02:30 -> 03:00 in Europe/Berlin).
    Moment at(qint64 wall);

    // What the clock shows at a moment.
    qint64 wallAt(qint64 utc) const;

    const QTimeZone& zone() const { return zone_; }

    static constexpr qint64 kDay = 86400;
    static qint64 dayOf(qint64 wall) {
        return wall >= 0 ? wall / kDay : -((-wall + kDay - 1) / kDay);
    }

  private:
    int offsetAt(qint64 utc) const;
    // The offsets a day before and two days after the day's midnight; equal on the days far
    // from a change, where every reading of the day maps by one offset.
    std::pair<int, int> offsetsAround(qint64 day);

    QTimeZone zone_;
    QHash<qint64, std::pair<int, int>> days_;
    // The day asked for last: a schedule's starts come day by day.
    qint64 lastDay_ = std::numeric_limits<qint64>::min();
    std::pair<int, int> lastOffsets_;
};
