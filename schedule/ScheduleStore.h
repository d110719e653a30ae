#pragma once

#include <QDateTime>
#include <QString>

class CRecordset;
class cSchedule;

// The one writer of a row of tAutoJobSchedule: the schedule dialog, the schedules repeated
// onto a pasted job and the import of job definitions all set a schedule's columns here.
namespace ScheduleStore {

// The query of the schedules whose column sSchluessel (idAutoJobSchedule or idAutoJob) is lId.
QString rowsQuery(const QString& sSchluessel, long lId);

// The query of a job's schedules in the order in which they were made.
QString jobSchedulesQuery(long lJobId);

// Reads the current row's name, active flag, frequency, times and dates into the schedule.
void readColumns(CRecordset& oTL, cSchedule& o);

// Sets every column of the schedule of job lJobId on the record set's current row (a new one
// after AddNew); lMitarbeiter is written as the last editor and dtJetzt as the moment.
void writeColumns(CRecordset& oTL, const cSchedule& o, long lJobId, long lMitarbeiter,
                  const QDateTime& dtJetzt);

// Adds the schedule as a new row through the record set, which is connected.
void insert(CRecordset& oTL, const cSchedule& o, long lJobId, long lMitarbeiter,
            const QDateTime& dtJetzt);

}  // namespace ScheduleStore
