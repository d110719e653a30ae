#include "agent/PostgresAgentWriter.h"

#include <QSqlError>
#include <QSqlQuery>

#include "common/ErrObject.h"
#include "suite/Database.h"
#include "suite/SqlBackend.h"

namespace {

const QString kInsertRun = QStringLiteral(
    "INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, "
    "BackupPath, ErrorMTA) VALUES ");
const QString kInsertLog = QStringLiteral(
    "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId, "
    "MitarbeiterId, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz) VALUES ");

// A text as an SQL literal. The connection keeps standard_conforming_strings on, so a
// backslash is an ordinary character and only the quote needs doubling.
void appendLiteral(QString& to, const QString& text) {
    to += u'\'';
    if (text.contains(u'\'')) {
        to += QString(text).replace(u'\'', QStringLiteral("''"));
    } else {
        to += text;
    }
    to += u'\'';
}

void appendLiteral(QString& to, const QByteArray& latin1) {
    to += u'\'';
    to += QLatin1String(latin1);
    to += u'\'';
}

void appendOptional(QString& to, const std::optional<QString>& text) {
    if (text) {
        appendLiteral(to, *text);
    } else {
        to += QStringLiteral("NULL");
    }
}

}  // namespace

PostgresAgentWriter::PostgresAgentWriter(const Database& database)
    : db_(QSqlDatabase::database(database.connectionName(), false)), backend_(database.backend()) {
    execute(QStringLiteral("SET standard_conforming_strings = on"),
            QStringLiteral("SET standard_conforming_strings = on"));
}

void PostgresAgentWriter::execute(const QString& sql, const QString& shown) {
    // A connection the server dropped is opened again there, so that the next run is written.
    runSql(backend_, db_, sql, {}, shown);
}

void PostgresAgentWriter::begin() {
    runs_.truncate(0);
    runCount_ = 0;
    logs_.truncate(0);
    logCount_ = 0;
    execute(QStringLiteral("BEGIN"), QStringLiteral("BEGIN"));
}

void PostgresAgentWriter::commit() {
    flushRuns();
    flushLogs();
    execute(QStringLiteral("COMMIT"), QStringLiteral("COMMIT"));
}

void PostgresAgentWriter::rollback() noexcept {
    runs_.truncate(0);
    runCount_ = 0;
    logs_.truncate(0);
    logCount_ = 0;
    QSqlQuery(db_).exec(QStringLiteral("ROLLBACK"));
}

void PostgresAgentWriter::writeRun(const AgentRun& run) {
    runs_ += runCount_ == 0 ? kInsertRun : QStringLiteral(", ");
    runs_ += u'(';
    runs_ += QString::number(run.idSchedule);
    runs_ += u',';
    appendLiteral(runs_, run.at);
    runs_ += u',';
    runs_ += QString::number(run.code);
    runs_ += u',';
    appendLiteral(runs_, run.mtaPath);
    runs_ += u',';
    appendLiteral(runs_, run.backupPath);
    runs_ += u',';
    appendLiteral(runs_, run.errorMta);
    runs_ += u')';
    if (++runCount_ >= kRowsPerStatement) {
        flushRuns();
    }
}

void PostgresAgentWriter::writeLog(const AgentLogEntry& entry) {
    logs_ += logCount_ == 0 ? kInsertLog : QStringLiteral(", ");
    logs_ += u'(';
    appendLiteral(logs_, entry.at);
    logs_ += u',';
    logs_ += QString::number(entry.logTyp);
    logs_ += QStringLiteral(",0,");
    logs_ += QString::number(entry.jobArt);
    logs_ += u',';
    logs_ += QString::number(entry.autoJobId);
    logs_ += QStringLiteral(",0,");
    appendOptional(logs_, entry.herkunft);
    logs_ += u',';
    appendOptional(logs_, entry.auftragKennung);
    logs_ += u',';
    appendLiteral(logs_, entry.kategorie);
    logs_ += u',';
    appendLiteral(logs_, entry.name);
    logs_ += u',';
    appendLiteral(logs_, entry.text);
    logs_ += u',';
    appendLiteral(logs_, entry.zusatz);
    logs_ += u')';
    if (++logCount_ >= kRowsPerStatement) {
        flushLogs();
    }
}

// The statement's text keeps its room for the next one; a failure names the table and the
// number of rows, not a thousand rows of values.
void PostgresAgentWriter::flushRuns() {
    if (runCount_ == 0) {
        return;
    }
    const QString shown = kInsertRun + QStringLiteral("... (%1 Zeilen)").arg(runCount_);
    runCount_ = 0;
    execute(runs_, shown);
    runs_.truncate(0);
}

void PostgresAgentWriter::flushLogs() {
    if (logCount_ == 0) {
        return;
    }
    const QString shown = kInsertLog + QStringLiteral("... (%1 Zeilen)").arg(logCount_);
    logCount_ = 0;
    execute(logs_, shown);
    logs_.truncate(0);
}
