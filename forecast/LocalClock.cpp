#include "forecast/LocalClock.h"

#include <QDateTime>
#include <algorithm>

LocalClock::LocalClock(QTimeZone zone) : zone_(std::move(zone)) {}

int LocalClock::offsetAt(qint64 utc) const {
    return zone_.offsetFromUtc(QDateTime::fromSecsSinceEpoch(utc, Qt::UTC));
}

qint64 LocalClock::wallAt(qint64 utc) const {
    return utc + offsetAt(utc);
}

std::pair<int, int> LocalClock::offsetsAround(qint64 day) {
    if (day == lastDay_) {
        return lastOffsets_;
    }
    auto it = days_.constFind(day);
    if (it == days_.constEnd()) {
        const qint64 midnight = day * kDay;
        it = days_.insert(day, {offsetAt(midnight - kDay), offsetAt(midnight + 2 * kDay)});
    }
    lastDay_ = day;
    lastOffsets_ = *it;
    return lastOffsets_;
}

LocalClock::Moment LocalClock::at(qint64 wall) {
    const auto [before, after] = offsetsAround(dayOf(wall));
    if (before == after) {
        return {wall - before, wall};
    }
    // A change near this day: the reading may lie before it, after it, in both (autumn) or
    // in neither (the spring gap).
    const qint64 early = wall - before;
    const qint64 late = wall - after;
    const bool earlyHolds = offsetAt(early) == before;
    const bool lateHolds = offsetAt(late) == after;
    if (earlyHolds && lateHolds) {
        return {std::min(early, late), wall};
    }
    if (earlyHolds) {
        return {early, wall};
    }
    if (lateHolds) {
        return {late, wall};
    }
    const QTimeZone::OffsetData change =
        zone_.nextTransition(QDateTime::fromSecsSinceEpoch(std::min(early, late) - 1, Qt::UTC));
    const qint64 utc = change.atUtc.toSecsSinceEpoch();
    return {utc, utc + change.offsetFromUtc};
}
