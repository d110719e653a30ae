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
#include <atomic>

#include <sys/stat.h>

#include "suite/SchemaUpgrade.h"
#include "suite/SqlErrors.h"
#include "suite/SqlFunctions.h"
#include "suite/SqliteRecordset.h"

namespace {

QString nextConnectionName() {
    static std::atomic<int> counter{0};
    return QStringLiteral("ajv-database-%1").arg(++counter);
}

sqlite3* sqliteHandle(const QSqlDatabase& db) {
    const QVariant handle = db.driver()->handle();
    if (handle.isValid() && qstrcmp(handle.typeName(), "sqlite3*") == 0) {
        return *static_cast<sqlite3* const*>(handle.constData());
    }
    return nullptr;
}

QSqlDatabase connectionOf(const QString& name) {
    return QSqlDatabase::database(name, false);
}

RaisedError sqliteFailure(sqlite3* db, const QString& statement) {
    return SqlErrors::raised(
        sqlite3_errcode(db) & 0xff,
        QString::fromUtf8(sqlite3_errmsg(db)) + QStringLiteral("\r\n") + statement.trimmed());
}

void execute(sqlite3* db, const char* sql) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw sqliteFailure(db, QString::fromUtf8(sql));
    }
}

// Runs the statements of a script one after the other, so that a failure names its statement.
void runStatements(sqlite3* db, const QByteArray& script) {
    const char* tail = script.constData();
    while (*tail != '\0') {
        const char* start = tail;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db, start, -1, &statement, &tail) != SQLITE_OK) {
            throw sqliteFailure(db, QString::fromUtf8(start).left(200));
        }
        if (statement == nullptr) {
            continue;  // blanks or comments only
        }
        int rc = SQLITE_ROW;
        while (rc == SQLITE_ROW) {
            rc = sqlite3_step(statement);
        }
        sqlite3_finalize(statement);
        if (rc != SQLITE_DONE) {
            throw sqliteFailure(db, QString::fromUtf8(start, static_cast<int>(tail - start)));
        }
    }
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
}

std::shared_ptr<Database> Database::open(const QString& path, std::shared_ptr<IClock> clock,
                                         int busyTimeoutMs) {
    if (!clock) {
        clock = std::make_shared<SystemClock>();
    }
    // Owned from here on, so that the destructor removes the connection on any failure below.
    std::shared_ptr<Database> database(new Database(path, nextConnectionName(), clock));
    QSqlDatabase db =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), database->connectionName_);
    if (!db.isValid()) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("Der Datenbanktreiber QSQLITE fehlt."));
    }
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs));
    if (!db.open()) {
        throw SqlErrors::fromDriver(db.lastError(), path);
    }
    sqlite3* handle = sqliteHandle(db);
    if (handle == nullptr) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("Die Verbindung gibt keinen SQLite-Zugriff."));
    }
    if (sqlite3_db_readonly(handle, "main") == 1) {
        // Opened without write access: every save would fail later, after the user typed.
        throw SqlErrors::raised(SQLITE_READONLY,
                                QStringLiteral("attempt to write a readonly database"));
    }
    if (!path.isEmpty() && path != u":memory:") {
        // The agent service writes while the window reads.
        execute(handle, "PRAGMA journal_mode=WAL");
        execute(handle, "PRAGMA synchronous=NORMAL");
    }
    struct stat info {};
    if (!path.isEmpty() && path != u":memory:" && ::stat(QFile::encodeName(path), &info) == 0) {
        database->device_ = info.st_dev;
        database->inode_ = info.st_ino;
    }
    if (registerServerFunctions(handle, database->clock_.get()) != SQLITE_OK) {
        throw sqliteFailure(handle, QStringLiteral("getdate, datediff, len"));
    }
    return database;
}

bool Database::isEmpty() const {
    QSqlQuery query(connectionOf(connectionName_));
    const QString sql = QStringLiteral(
        "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
    if (!query.exec(sql) || !query.next()) {
        throw SqlErrors::fromDriver(query.lastError(), sql);
    }
    return query.value(0).toLongLong() == 0;
}

void Database::applySchema() {
    runScript(resourceText(QStringLiteral(":/db/schema.sql")));
}

void Database::upgradeSchema() {
    sqlite3* db = sqliteHandle(connectionOf(connectionName_));
    if (db == nullptr) {
        throw SqlErrors::noConnection();
    }
    const QStringList statements =
        schemaUpgrade(db, resourceText(QStringLiteral(":/db/schema.sql")));
    if (!statements.isEmpty()) {
        runScript(statements.join(QStringLiteral(";\n")) + u';');
    }
}

QStringList Database::applyDemoData(const QString& folder) {
    QString script = resourceText(QStringLiteral(":/db/demo.sql"));
    script.replace(QStringLiteral("/srv/zpk"),
                   QString(folder).replace(u'\'', QStringLiteral("''")));
    runScript(script);
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

void Database::runScript(const QString& script) {
    sqlite3* db = sqliteHandle(connectionOf(connectionName_));
    if (db == nullptr) {
        throw SqlErrors::noConnection();
    }
    // One transaction for the whole script: it applies completely or not at all. A script
    // therefore holds no transaction statements of its own.
    const bool ownTransaction = sqlite3_get_autocommit(db) != 0;
    if (ownTransaction) {
        execute(db, "BEGIN");
    }
    try {
        runStatements(db, script.toUtf8());
    } catch (...) {
        if (ownTransaction) {
            sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        }
        throw;
    }
    if (ownTransaction) {
        execute(db, "COMMIT");
    }
}

void Database::checkStillThere() const {
    if (inode_ == 0) {
        return;
    }
    struct stat info {};
    if (::stat(QFile::encodeName(path_), &info) != 0 || info.st_dev != device_ ||
        info.st_ino != inode_) {
        throw SqlErrors::raised(
            ErrNumber::Database,
            QStringLiteral("Die Datenbank %1 ist nicht mehr vorhanden: sie wurde gelöscht oder "
                           "verschoben. Änderungen können nicht gespeichert werden; bitte "
                           "beenden Sie das Programm und öffnen Sie die Datenbank neu.")
                .arg(QDir::toNativeSeparators(QFileInfo(path_).absoluteFilePath())));
    }
}

Services::Factory<CRecordset> Database::recordsetFactory() {
    return [database = weak_from_this()]() -> std::unique_ptr<CRecordset> {
        return std::make_unique<SqliteRecordset>(database);
    };
}
