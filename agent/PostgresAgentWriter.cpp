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
QString literal(const QString& text) {
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString literal(const QByteArray& latin1) {
    return u'\'' + QLatin1String(latin1) + u'\'';
}

QString optional(const std::optional<QString>& text) {
    return text ? literal(*text) : QStringLiteral("NULL");
}

}  // namespace

PostgresAgentWriter::PostgresAgentWriter(const Database& database)
    : db_(QSqlDatabase::database(database.connectionName(), false)),
      backend_(database.backend()),
      runs_{kInsertRun, {}, 0},
      logs_{kInsertLog, {}, 0} {
    execute(QStringLiteral("SET standard_conforming_strings = on"),
            QStringLiteral("SET standard_conforming_strings = on"));
}

void PostgresAgentWriter::execute(const QString& sql, const QString& shown) {
    // A connection the server dropped is opened again there, so that the next run is written.
    runSql(backend_, db_, sql, {}, shown);
}

void PostgresAgentWriter::begin() {
    runs_.clear();
    logs_.clear();
    execute(QStringLiteral("BEGIN"), QStringLiteral("BEGIN"));
    // Nothing of the transaction is repeated on a connection opened anew after a loss.
    backend_.transactionBegun();
}

void PostgresAgentWriter::commit() {
    try {
        flush(runs_);
        flush(logs_);
        execute(QStringLiteral("COMMIT"), QStringLiteral("COMMIT"));
    } catch (...) {
        backend_.transactionEnded();
        throw;
    }
    backend_.transactionEnded();
}

void PostgresAgentWriter::rollback() noexcept {
    runs_.clear();
    logs_.clear();
    backend_.transactionEnded();
    QSqlQuery(db_).exec(QStringLiteral("ROLLBACK"));
}

void PostgresAgentWriter::writeRun(const AgentRun& run) {
    add(runs_, {QString::number(run.idSchedule), literal(run.at), QString::number(run.code),
                literal(run.mtaPath), literal(run.backupPath), literal(run.errorMta)});
}

void PostgresAgentWriter::writeLog(const AgentLogEntry& entry) {
    add(logs_,
        {literal(entry.at), QString::number(entry.logTyp), QStringLiteral("0"),
         QString::number(entry.jobArt), QString::number(entry.autoJobId), QStringLiteral("0"),
         optional(entry.herkunft), optional(entry.auftragKennung), literal(entry.kategorie),
         literal(entry.name), literal(entry.text), literal(entry.zusatz)});
}

void PostgresAgentWriter::add(Batch& batch, const QStringList& values) {
    batch.text += batch.rows == 0 ? batch.insert : QStringLiteral(", ");
    batch.text += u'(' + values.join(u',') + u')';
    if (++batch.rows >= kRowsPerStatement) {
        flush(batch);
    }
}

// The statement's text keeps its room for the next one; a failure names the table and the
// number of rows, not a thousand rows of values.
void PostgresAgentWriter::flush(Batch& batch) {
    if (batch.rows == 0) {
        return;
    }
    const QString shown = batch.insert + QStringLiteral("... (%1 Zeilen)").arg(batch.rows);
    batch.rows = 0;
    execute(batch.text, shown);
    batch.text.truncate(0);
}
