#pragma once

#include <QList>
#include <QString>
#include <QTextStream>
#include <QTimeZone>

#include "forecast/LocalClock.h"

class Database;

// --vorschau: the starts of the active schedules of active jobs over a period, one a line.
namespace ForecastCommand {

// One start of a schedule of a job.
struct PlannedStart {
    qint64 utc = 0;
    qint64 wall = 0;  // the local clock's reading (LocalClock)
    long job = 0;
    long schedule = 0;
};

// The starts of the active schedules of active jobs (of job jobId alone when it is above 0)
// from fromUtc to before toUtc, ascending by time, job and schedule.
QList<PlannedStart> plannedStarts(Database& database, qint64 fromUtc, qint64 toUtc, long jobId,
                                  LocalClock& clock);

struct Arguments {
    QString von;      // "yyyy-MM-dd HH:mm:ss", local; empty: now
    QString bis;      // empty: seven days after von
    QString auftrag;  // a job id; empty: all jobs
};

// Prints "yyyy-MM-dd HH:mm:ss<TAB>idAutoJob<TAB>idAutoJobSchedule" per start, ascending by
// time, job and schedule, in the zone's local time; gives 0, or 1 with the message on err
// for a bad argument.
int run(Database& database, const Arguments& arguments, const QTimeZone& zone, QTextStream& out,
        QTextStream& err);

}  // namespace ForecastCommand
