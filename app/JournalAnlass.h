#pragma once

#include <QString>

class CRecordset;

// Names the cause of the writes of jobs and schedules that follow on the record set's
// connection ("Einfügen", "Kopieren", "Aktivieren", ...), for the change journal, until it goes
// out of scope; without one the journal gives a job's write "Bearbeiten" and a schedule's
// "Zeitplan". The record set is connected and outlives it.
class JournalAnlass {
  public:
    JournalAnlass(CRecordset& oTL, const QString& sAnlass);
    ~JournalAnlass();

    JournalAnlass(const JournalAnlass&) = delete;
    JournalAnlass& operator=(const JournalAnlass&) = delete;

  private:
    CRecordset& moTL;
};
