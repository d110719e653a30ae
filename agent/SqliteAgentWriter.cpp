#include "agent/SqliteAgentWriter.h"

#include <sqlite3.h>

#include <QSqlDatabase>
#include <QSqlDriver>

#include "suite/Database.h"
#include "suite/SqlErrors.h"

namespace {

sqlite3* handleOf(const Database& database) {
    const QSqlDatabase db = QSqlDatabase::database(database.connectionName(), false);
    const QVariant handle = db.driver() != nullptr ? db.driver()->handle() : QVariant();
    if (handle.isValid() && qstrcmp(handle.typeName(), "sqlite3*") == 0) {
        return *static_cast<sqlite3* const*>(handle.constData());
    }
    throw SqlErrors::raised(ErrNumber::Database,
                            QStringLiteral("Die Verbindung gibt keinen SQLite-Zugriff."));
}

void check(sqlite3* db, int rc, const char* what) {
    if (rc != SQLITE_OK && rc != SQLITE_DONE && rc != SQLITE_ROW) {
        throw SqlErrors::raised(rc & 0xff, QString::fromUtf8(sqlite3_errmsg(db)) +
                                               QStringLiteral("\r\n") + QString::fromUtf8(what));
    }
}

void bindText(sqlite3_stmt* st, int at, const QByteArray& text) {
    sqlite3_bind_text(st, at, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void bindText(sqlite3_stmt* st, int at, const QString& text) {
    bindText(st, at, text.toUtf8());
}

void bindOptional(sqlite3_stmt* st, int at, const std::optional<QString>& text) {
    if (text) {
        bindText(st, at, *text);
    } else {
        sqlite3_bind_null(st, at);
    }
}

const char* const kInsertRun =
    "INSERT INTO tAutoJobVerlauf (idAutoJobSchedule, LetzteAusfuehrung, Erfolgreich, MTAPath, "
    "BackupPath, ErrorMTA) VALUES (?, ?, ?, ?, ?, ?)";
const char* const kInsertLog =
    "INSERT INTO SYS_JobAgentLogDaten (DatumUhrzeit, LogTyp, LogSubTyp, JobArt, AutoJobId, "
    "MitarbeiterId, Herkunft, AuftragKennung, Kategorie, Name, Text, Zusatz) "
    "VALUES (?, ?, 0, ?, ?, 0, ?, ?, ?, ?, ?, ?)";

}  // namespace

SqliteAgentWriter::SqliteAgentWriter(const Database& database) : db_(handleOf(database)) {}

SqliteAgentWriter::~SqliteAgentWriter() {
    sqlite3_finalize(insertRun_);
    sqlite3_finalize(insertLog_);
}

void SqliteAgentWriter::prepare() {
    if (insertRun_ == nullptr) {
        check(db_, sqlite3_prepare_v2(db_, kInsertRun, -1, &insertRun_, nullptr), kInsertRun);
        check(db_, sqlite3_prepare_v2(db_, kInsertLog, -1, &insertLog_, nullptr), kInsertLog);
    }
}

void SqliteAgentWriter::startBulk() {
    sqlite3_exec(db_, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    sqlite3_exec(db_, "PRAGMA cache_size=-65536", nullptr, nullptr, nullptr);
}

void SqliteAgentWriter::begin() {
    prepare();
    // Immediate: the write lock is taken at once, so the transaction never has to give up
    // halfway for a reader that turned writer.
    check(db_, sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), "BEGIN");
}

void SqliteAgentWriter::commit() {
    check(db_, sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr), "COMMIT");
}

void SqliteAgentWriter::rollback() noexcept {
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    if (insertRun_ != nullptr) {
        sqlite3_reset(insertRun_);
        sqlite3_reset(insertLog_);
    }
}

void SqliteAgentWriter::writeRun(const AgentRun& run) {
    sqlite3_stmt* st = insertRun_;
    sqlite3_bind_int64(st, 1, run.idSchedule);
    bindText(st, 2, run.at);
    sqlite3_bind_int(st, 3, run.code);
    bindText(st, 4, run.mtaPath);
    bindText(st, 5, run.backupPath);
    bindText(st, 6, run.errorMta);
    check(db_, sqlite3_step(st), kInsertRun);
    sqlite3_reset(st);
}

void SqliteAgentWriter::writeLog(const AgentLogEntry& entry) {
    sqlite3_stmt* st = insertLog_;
    bindText(st, 1, entry.at);
    sqlite3_bind_int(st, 2, entry.logTyp);
    sqlite3_bind_int(st, 3, entry.jobArt);
    sqlite3_bind_int64(st, 4, entry.autoJobId);
    bindOptional(st, 5, entry.herkunft);
    bindOptional(st, 6, entry.auftragKennung);
    bindText(st, 7, entry.kategorie);
    bindText(st, 8, entry.name);
    bindText(st, 9, entry.text);
    bindText(st, 10, entry.zusatz);
    check(db_, sqlite3_step(st), kInsertLog);
    sqlite3_reset(st);
}
