#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

class Database;

// A run of a schedule as the agent writes it into tAutoJobVerlauf.
struct AgentRun {
    qint64 idSchedule = 0;
    QByteArray at;  // 'yyyy-MM-dd HH:mm:ss'
    int code = 0;
    QString mtaPath;
    QString backupPath;
    QString errorMta;
};

// A log entry as the agent writes it into SYS_JobAgentLogDaten; an optional text left out is
// written as NULL.
struct AgentLogEntry {
    QByteArray at;  // 'yyyy-MM-dd HH:mm:ss'
    int logTyp = 1;
    int jobArt = 0;
    qint64 autoJobId = 0;
    std::optional<QString> herkunft;
    std::optional<QString> auftragKennung;
    QString kategorie;
    QString name;
    QString text;
    QString zusatz;
};

// Where the agent's rows go: the database's own way of writing them quickly. Rows handed over
// may be kept back until commit(); every call throws RaisedError on failure.
class AgentWriter {
  public:
    virtual ~AgentWriter() = default;

    // The writer for the database's kind (SQLite file or PostgreSQL server).
    static std::unique_ptr<AgentWriter> forDatabase(const Database& database);

    // Before a bulk fill: settings that trade safety against a crash for speed, where the
    // database has them; a bulk fill that breaks off is simply repeated.
    virtual void startBulk() {}
    virtual void begin() = 0;
    virtual void commit() = 0;
    // Never throws: the transaction is gone afterwards, with every row kept back.
    virtual void rollback() noexcept = 0;
    virtual void writeRun(const AgentRun& run) = 0;
    virtual void writeLog(const AgentLogEntry& entry) = 0;
};
