#include "common/Clock.h"

QDateTime SystemClock::now() const {
    // Whole seconds: stored dates carry no fractions.
    QDateTime t = QDateTime::currentDateTime();
    t.setTime(QTime(t.time().hour(), t.time().minute(), t.time().second()));
    return t;
}
