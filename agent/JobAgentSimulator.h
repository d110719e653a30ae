#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <memory>
#include <random>

#include "forecast/ScheduleRule.h"

class AgentWriter;
class Database;

// Writes what the job agent service writes: runs of the schedules in tAutoJobVerlauf and log
// entries of the service and of the jobs in SYS_JobAgentLogDaten. It reads jobs and schedules
// and never writes to them. Works on an SQLite file and on a PostgreSQL server alike (the
// writing is the AgentWriter's).
struct AgentOptions {
    int years = 0;  // bulk: the period that ends now
    // bulk: runs of each job over the period; 0 as the schedules of the active jobs say, at
    // the moments of the forecast of runs in the machine's time zone
    qint64 runsPerJob = 0;
    qint64 logEntries = 0;  // bulk: log entries over the period; 0 a few per run
    long jobId = 0;         // only this job; 0 all jobs with a schedule
    quint32 seed = 1;       // the same seed writes the same rows
    qint64 batch = 200000;  // bulk: rows per transaction
};

struct AgentCounts {
    qint64 runs = 0;
    qint64 logEntries = 0;
};

class JobAgentSimulator {
  public:
    JobAgentSimulator(std::shared_ptr<Database> database, AgentOptions options);
    ~JobAgentSimulator();

    JobAgentSimulator(const JobAgentSimulator&) = delete;
    JobAgentSimulator& operator=(const JobAgentSimulator&) = delete;

    // Reads the jobs and their active schedules; gives their number. Throws RaisedError.
    int loadSchedules();

    // Fills the period of options.years up to now in large transactions.
    AgentCounts fillYears();
    // One run of the next schedule at the moment now, with its log entries, in one short
    // transaction. Gives false when there is no schedule to run.
    bool runOnce();
    // The runs whose starts the forecast gives after the last call (the first call: after
    // the moment before it) up to and including now, each schedule of an active job at its
    // own moment, in one short transaction. Gives their number.
    qint64 runDue();

    const AgentCounts& counts() const { return counts_; }

  private:
    struct Schedule {
        long idSchedule = 0;
        long idJob = 0;
        int datenArt = 0;
        QString jobName;
        QString mtaPath;
        QString backupPath;
        QString errorMta;
        long mandant = 0;
        bool jobActive = true;
        ScheduleRule rule;  // when the schedule starts the job (forecast/RunForecast.h)
    };

    void writeRun(const Schedule& s, const QDateTime& at);
    void writeLog(const QDateTime& at, int logTyp, const Schedule* s, const QString& kategorie,
                  const QString& text, const QString& zusatz);
    void writeServiceEntry(const QDateTime& at);
    int resultCode(int datenArt);
    QString logFileName(const Schedule& s, const QDateTime& at) const;

    std::shared_ptr<Database> database_;
    AgentOptions options_;
    std::unique_ptr<AgentWriter> writer_;
    QList<Schedule> schedules_;
    qsizetype next_ = 0;
    qint64 dueFromUtc_ = -1;  // runDue: the starts after this moment are still to be made
    QDateTime runAt_;         // the run the job entries being written belong to
    std::mt19937 rng_;
    AgentCounts counts_;
};
