#pragma once

#include <QDateTime>
#include <QString>

#include "app/RowConflict.h"
#include "jobs/JobRecord.h"

class CRecordset;

// The one writer of a row of tAutoJobJob: the editor's save, the paste and the import of job
// definitions all set a job's columns here, so that a rule of what is stored holds for each.
namespace JobStore {

// The query that finds the row of a job (none for an id without a row).
QString rowQuery(long lJobId);

// The query of every job in the order of their ids.
QString allRowsQuery();

// The query and the deletion of the jobs whose id meets the condition (" = 5", " IN (1,2)").
QString rowsQuery(const QString& sBedingung);
QString deleteStatement(const QString& sBedingung);

// The statement that stamps a job as changed now by lMitarbeiter, when its schedules changed;
// with a row version read, only while the row still has it.
QString touchStatement(long lJobId, long lMitarbeiter,
                       long lZeilenversion = RowConflict::kNichtGelesen);

// Turns the job on the record set's current row off when it is on, else on, and writes it.
void toggleActive(CRecordset& oTL);

// Sets every column of the job on the record set's current row; a new row (after AddNew)
// gets its creation date as well. lMitarbeiter is written as the last editor and dtJetzt as
// the moment of the change.
void writeColumns(CRecordset& oTL, const JobRecord& rec, long lMitarbeiter,
                  const QDateTime& dtJetzt, bool bNeu);

// Reads the stored values of the record set's current row into rec: what the editor shows
// and the export carries, without the captions. A job type that names its staff member in
// Zusatzinfo and an older row without one give the row's last editor. The fields of the
// other kind of directory columns (paths or archive login) keep what rec held.
void readColumns(CRecordset& oTL, JobRecord& rec);

// Adds the job as a new row through the record set, which is connected; its new id.
long insert(CRecordset& oTL, const JobRecord& rec, long lMitarbeiter, const QDateTime& dtJetzt);

}  // namespace JobStore
