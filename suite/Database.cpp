#include "suite/Database.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <sqlite3.h>

#include <QFile>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSysInfo>
#include <atomic>

#include "common/DatabaseFiles.h"
#include "suite/ChangeJournal.h"
#include "suite/DatabaseRecordset.h"
#include "suite/PostgresBackend.h"
#include "suite/SchemaUpgrade.h"
#include "suite/SqlErrors.h"
#include "suite/SqlFunctions.h"
#include "suite/SqliteBackend.h"
#include "suite/SqliteFileLocks.h"

namespace {

QString nextConnectionName() {
    static std::atomic<int> counter{0};
    return QStringLiteral("ajv-database-%1").arg(++counter);
}

QSqlDatabase connectionOf(const QString& name) {
    return QSqlDatabase::database(name, false);
}

void execute(sqlite3* db, const char* sql) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw sqliteFailure(db, QString::fromUtf8(sql));
    }
}

// The journal mode a PRAGMA leaves, as SQLite answers it.
QByteArray journalMode(sqlite3* db, const char* pragma) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, pragma, -1, &statement, nullptr) != SQLITE_OK) {
        throw sqliteFailure(db, QString::fromUtf8(pragma));
    }
    QByteArray mode;
    const int rc = sqlite3_step(statement);
    if (rc == SQLITE_ROW) {
        mode = QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    }
    sqlite3_finalize(statement);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE) {
        throw sqliteFailure(db, QString::fromUtf8(pragma));
    }
    return mode.toLower();
}

QString resourceText(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw SqlErrors::raised(
            ErrNumber::Internal,
            QStringLiteral("Die Datei %1 kann nicht gelesen werden.").arg(name));
    }
    return QString::fromUtf8(file.readAll());
}

}  // namespace

Database::Database(QString path, QString connectionName, std::shared_ptr<IClock> clock)
    : path_(std::move(path)),
      connectionName_(std::move(connectionName)),
      clock_(std::move(clock)) {}

Database::~Database() {
    if (QSqlDatabase::contains(connectionName_)) {
        connectionOf(connectionName_).close();
        QSqlDatabase::removeDatabase(connectionName_);
    }
    if (fileId_) {
        DatabaseFiles::closed(path_);
    }
}

std::shared_ptr<Database> Database::open(const QString& path, std::shared_ptr<IClock> clock,
                                         int busyTimeoutMs) {
    if (!clock) {
        clock = std::make_shared<SystemClock>();
    }
    // Owned from here on, so that the destructor removes the connection on any failure below.
    std::shared_ptr<Database> database(new Database(path, nextConnectionName(), clock));
    if (PostgresAddress::isAddress(path)) {
        database->onServer_ = true;
        auto backend = std::make_unique<PostgresBackend>();
        backend->connect(database->connectionName_, PostgresAddress::parse(path), busyTimeoutMs);
        database->backend_ = std::move(backend);
    } else {
        database->backend_ = std::make_unique<SqliteBackend>();
        database->openSqlite(busyTimeoutMs);
    }
    return database;
}

void Database::openSqlite(int busyTimeoutMs) {
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName_);
    if (!db.isValid()) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("Der Datenbanktreiber QSQLITE fehlt."));
    }
    db.setDatabaseName(path_);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs));
    if (!db.open()) {
        throw SqlErrors::fromDriver(db.lastError(), path_);
    }
    setUpSqlite();
    if (path_ != u":memory:") {
        fileId_ = fileIdOf(path_);
    }
    if (fileId_) {
        DatabaseFiles::opened(path_);
    }
}

// What every opening of the connection needs, the first and one after lost locks.
void Database::setUpSqlite() {
    sqlite3* handle = sqliteHandle(connectionOf(connectionName_));
    if (handle == nullptr) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("Die Verbindung gibt keinen SQLite-Zugriff."));
    }
    if (sqlite3_db_readonly(handle, "main") == 1) {
        // Opened without write access: every save would fail later, after the user typed.
        throw SqlErrors::raised(SQLITE_READONLY,
                                QStringLiteral("attempt to write a readonly database"));
    }
    if (!path_.isEmpty() && path_ != u":memory:") {
        // The agent service writes while the window reads.
        walMode_ = journalMode(handle, "PRAGMA journal_mode=WAL") == "wal";
        execute(handle, "PRAGMA synchronous=NORMAL");
    }
    if (registerServerFunctions(handle, clock_.get()) != SQLITE_OK) {
        throw sqliteFailure(handle, QStringLiteral("getdate, datediff, len"));
    }
    execute(handle, ChangeJournal::settingStatement(ChangeJournal::kArbeitsplatz,
                                                    QSysInfo::machineHostName())
                        .toUtf8()
                        .constData());
    installJournal();
}

void Database::installJournal() {
    if (onServer_) {
        return;
    }
    sqlite3* handle = sqliteHandle(connectionOf(connectionName_));
    const QString failure = ChangeJournal::installSqliteTriggers(handle);
    if (!failure.isEmpty()) {
        throw SqlErrors::raised(ErrNumber::Database, failure);
    }
}

bool Database::isEmpty() const {
    return backend_->isEmpty(connectionOf(connectionName_));
}

void Database::applySchema() {
    backend_->applySchema(connectionOf(connectionName_), resourceText(backend_->schemaResource()));
    installJournal();
}

void Database::upgradeSchema() {
    if (onServer_) {
        backend_->upgradeSchema(connectionOf(connectionName_));
        return;
    }
    sqlite3* db = sqliteHandle(connectionOf(connectionName_));
    if (db == nullptr) {
        throw SqlErrors::noConnection();
    }
    const QStringList statements =
        schemaUpgrade(db, resourceText(QStringLiteral(":/db/schema.sql")));
    if (!statements.isEmpty()) {
        runScript(statements.join(QStringLiteral(";\n")) + u';');
    }
    installJournal();
}

QStringList Database::applyDemoData(const QString& folder) {
    QString script = resourceText(QStringLiteral(":/db/demo.sql"));
    script.replace(QStringLiteral("/srv/zpk"),
                   QString(folder).replace(u'\'', QStringLiteral("''")));
    // The demo's jobs are where a new database starts, no change of anyone's.
    runScript(
        ChangeJournal::settingStatement(ChangeJournal::kArbeitsplatz, QString()) +
        QStringLiteral(";\n") + script + QStringLiteral(";\n") +
        ChangeJournal::settingStatement(ChangeJournal::kArbeitsplatz, QSysInfo::machineHostName()) +
        u';');
    QStringList folders;
    const QRegularExpression quoted(
        QStringLiteral("'(%1[^']*)'")
            .arg(QRegularExpression::escape(QString(folder).replace(u'\'', QStringLiteral("''")))));
    for (const QRegularExpressionMatch& m : quoted.globalMatch(script)) {
        const QString path = m.captured(1).replace(QStringLiteral("''"), QStringLiteral("'"));
        // A name with an extension is a file: its folder is what the demo needs.
        const QFileInfo info(path);
        const QString dir = info.suffix().isEmpty() ? path : info.path();
        if (!folders.contains(dir)) {
            folders << dir;
        }
    }
    return folders;
}

void Database::inTransaction(const std::function<void()>& work) {
    runInTransaction(*backend_, connectionOf(connectionName_), work);
}

void Database::runScript(const QString& script) {
    backend_->runScript(connectionOf(connectionName_), script);
}

void Database::checkUsable() {
    checkStillThere();
    checkLocksHeld();
}

void Database::checkStillThere() const {
    if (fileId_ && fileIdOf(path_) != fileId_) {
        throw SqlErrors::raised(
            ErrNumber::Database,
            QStringLiteral("Die Datenbank %1 ist nicht mehr vorhanden: sie wurde gelöscht oder "
                           "verschoben. Änderungen können nicht gespeichert werden; bitte "
                           "beenden Sie das Programm und öffnen Sie die Datenbank neu.")
                .arg(QDir::toNativeSeparators(QFileInfo(path_).absoluteFilePath())));
    }
}

void Database::checkLocksHeld() {
    if (!walMode_ || SqliteFileLocks::ofThisProcess(path_) != SqliteFileLocks::State::Lost) {
        return;
    }
    // The old connection must not write its -wal into the database on closing: another
    // program may have written since, and the -wal may be one it already deleted.
    QSqlDatabase db = connectionOf(connectionName_);
    if (sqlite3* handle = sqliteHandle(db)) {
        sqlite3_db_config(handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    }
    db.close();
    const QString file = QDir::toNativeSeparators(QFileInfo(path_).absoluteFilePath());
    const QString notDone =
        QStringLiteral(
            "Die Sperre auf die Datenbank %1 ist verloren gegangen. Damit nichts in eine Datei "
            "geschrieben wird, die ein anderes Programm inzwischen gelöscht haben kann, wurde die "
            "letzte Aktion nicht ausgeführt.")
            .arg(file);
    if (!db.open()) {
        throw SqlErrors::raised(ErrNumber::Database,
                                notDone + QStringLiteral(" Die Datenbank kann nicht wieder "
                                                         "geöffnet werden; bitte beenden Sie das "
                                                         "Programm und starten Sie es neu."));
    }
    setUpSqlite();
    throw SqlErrors::raised(ErrNumber::Database,
                            notDone + QStringLiteral(" Die Verbindung wurde neu geöffnet; bitte "
                                                     "wiederholen Sie die Aktion."));
}

Services::Factory<CRecordset> Database::recordsetFactory() {
    return [database = weak_from_this()]() -> std::unique_ptr<CRecordset> {
        return std::make_unique<DatabaseRecordset>(database);
    };
}
