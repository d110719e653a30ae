#include "suite/PostgresBackend.h"

#include <QDate>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QThread>

#include "suite/PostgresConnection.h"
#include "suite/SqlDates.h"
#include "suite/SqlDialect.h"
#include "suite/SqlErrors.h"
#include "suite/SqlFullText.h"
#include "suite/SqlTokens.h"

namespace {

// SQLite's primary result codes, which the system reports for database failures.
constexpr long kError = 1;
constexpr long kBusy = 5;
constexpr long kReadOnly = 8;
constexpr long kFull = 13;
constexpr long kConstraint = 19;

// A server's SQLSTATE as the result code SQLite gives for the same failure, so that a failure
// reads the same on either database.
long resultCode(const QString& state) {
    if (state.startsWith(u"23")) {
        return kConstraint;
    }
    if (state == u"40001" || state == u"40P01" || state == u"55P03" || state == u"57014") {
        return kBusy;  // waited too long for another writer
    }
    if (state == u"25006" || state == u"42501") {
        return kReadOnly;
    }
    if (state == u"53100") {
        return kFull;
    }
    if (state.startsWith(u"08") || state.startsWith(u"57P") || state.startsWith(u"28") ||
        state == u"3D000") {
        return SqlErrors::CantOpen;
    }
    return kError;
}

// The names as the system spells them: every name of the embedded SQLite schema, which keeps
// the spelling the agent service and the statements use.
const QHash<QString, QString>& schemaSpelling() {
    static const QHash<QString, QString> spelling = [] {
        QHash<QString, QString> names;
        QFile file(QStringLiteral(":/db/schema.sql"));
        if (file.open(QIODevice::ReadOnly)) {
            for (const SqlToken& t : tokenizeSql(QString::fromUtf8(file.readAll()))) {
                if (t.kind == SqlTokenKind::Word || t.kind == SqlTokenKind::QuotedName) {
                    const QString name = unquotedName(t);
                    names.insert(name.toLower(), name);
                }
            }
        }
        return names;
    }();
    return spelling;
}

// The server ended the session or cannot be reached any more.
bool connectionLost(const QSqlError& error) {
    const QString state = error.nativeErrorCode();
    if (!state.isEmpty()) {
        return state.startsWith(u"08") || state.startsWith(u"57P");
    }
    const QString text = error.text();
    return error.type() == QSqlError::ConnectionError ||
           text.contains(u"server closed the connection") ||
           text.contains(u"no connection to the server") ||
           text.contains(u"terminating connection");
}

QString quoted(const QString& name) {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QStringList quotedAll(const QStringList& names) {
    QStringList out;
    for (const QString& n : names) {
        out << quoted(n.toLower());
    }
    return out;
}

QVariantList locatorOf(const QSqlQuery& query) {
    QVariantList values;
    for (int i = 0; i < query.record().count(); ++i) {
        values << query.value(i);
    }
    return values;
}

}  // namespace

void PostgresBackend::connect(const QString& connectionName, const PostgresAddress& address,
                              int busyTimeoutMs) {
    session_.lockTimeoutMs = busyTimeoutMs;
    const QSqlDatabase db = PostgresConnection::open(connectionName, address, session_);
    const QString readOnly = QStringLiteral("SHOW transaction_read_only");
    QSqlQuery query = runSql(*this, db, readOnly, {}, readOnly);
    if (query.next() && query.value(0).toString() == u"on") {
        // A standby or a read-only user: every save would fail later, after the user typed.
        throw SqlErrors::raised(kReadOnly,
                                QStringLiteral("cannot execute in a read-only transaction"));
    }
}

bool PostgresBackend::reopen(QSqlDatabase db) const {
    // A restarting server answers again within a few seconds; a server that stays away is
    // reported after that time, with the input still in the window.
    constexpr qint64 kWartezeitMs = 5000;
    constexpr unsigned long kPauseMs = 250;
    QElapsedTimer waited;
    waited.start();
    db.close();
    while (!db.open()) {
        if (waited.elapsed() >= kWartezeitMs) {
            return false;
        }
        QThread::msleep(kPauseMs);
    }
    PostgresConnection::applySession(db, session_);
    return true;
}

void PostgresBackend::ensureOpen(QSqlDatabase db) const {
    // A connection closed by a failed reconnect raises no error of its own: it is opened
    // here before the next statement.
    if (!db.isOpen() && !reopen(db)) {
        throw SqlErrors::serverAway(db.lastError().text().trimmed());
    }
}

SqlBackend::Recovery PostgresBackend::recover(QSqlDatabase db, const QSqlError& error) const {
    if (!connectionLost(error)) {
        return Recovery::NotLost;
    }
    return reopen(db) ? Recovery::Reopened : Recovery::Away;
}

bool PostgresBackend::mayRepeat(const QString& sql, const QSqlError& error) const {
    if (inTransaction()) {
        return false;
    }
    // The server ended the session (a restart, an administrator): a statement it was running
    // was rolled back, one sent afterwards never ran. A read may always run again.
    return error.nativeErrorCode().startsWith(u"57P") ||
           SqlDialect::leadingKeyword(sql) == u"select";
}

QString PostgresBackend::translate(const QString& serverSql, const QDateTime& now) const {
    return SqlDialect::translate(SqlFullText::rewrite(serverSql, SqlDialect::Target::Postgres), now,
                                 SqlDialect::Target::Postgres);
}

std::optional<SqlTable> PostgresBackend::table(const QSqlDatabase& db, const QString& name,
                                               const QString& shown) {
    const QString key = name.toLower();
    if (const auto known = tables_.constFind(key); known != tables_.constEnd()) {
        return *known;
    }
    QSqlQuery kind =
        runSql(*this, db,
               QStringLiteral("SELECT c.oid::bigint, c.relname FROM pg_class c "
                              "WHERE c.oid = to_regclass(?) AND c.relkind IN ('r', 'p')"),
               {quoted(key)}, shown);
    if (!kind.next()) {
        tables_.insert(key, std::nullopt);
        return std::nullopt;
    }
    const qlonglong oid = kind.value(0).toLongLong();
    SqlTable info;
    info.name = kind.value(1).toString();
    QSqlQuery columns =
        runSql(*this, db,
               QStringLiteral("SELECT attname, format_type(atttypid, atttypmod) FROM pg_attribute "
                              "WHERE attrelid = ?::oid AND attnum > 0 AND NOT attisdropped "
                              "ORDER BY attnum"),
               {oid}, shown);
    while (columns.next()) {
        const QString type = columns.value(1).toString();
        info.columns.insert(columns.value(0).toString().toLower(), type.startsWith(u"timestamp") ||
                                                                       type.startsWith(u"date") ||
                                                                       type.startsWith(u"time"));
    }
    QSqlQuery keys =
        runSql(*this, db,
               QStringLiteral("SELECT a.attname FROM pg_index i JOIN pg_attribute a "
                              "ON a.attrelid = i.indrelid AND a.attnum = ANY (i.indkey) "
                              "WHERE i.indrelid = ?::oid AND i.indisprimary ORDER BY a.attnum"),
               {oid}, shown);
    while (keys.next()) {
        const QString column = keys.value(0).toString().toLower();
        info.locator << quoted(column);
        info.locatorColumns << column;
    }
    if (info.locator.isEmpty()) {
        // Without a key the row's place; an update gives the new one back.
        info.locator << QStringLiteral("ctid");
        info.locatorColumns << QString();
    }
    tables_.insert(key, info);
    return info;
}

QString PostgresBackend::quotedName(const QString& name) const {
    return quoted(name.toLower());
}

QVariantList PostgresBackend::insert(const QSqlDatabase& db, const SqlTable& table,
                                     const QStringList& columns, const QVariantList& values) {
    QStringList marks;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        marks << QStringLiteral("?");
    }
    const QString returning = QStringLiteral(" RETURNING ") + table.locator.join(u", ");
    const QString insert =
        columns.isEmpty()
            ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(quoted(table.name)) + returning
            : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                      .arg(quoted(table.name), quotedAll(columns).join(u", "), marks.join(u", ")) +
                  returning;
    QSqlQuery query = runSql(*this, db, insert, values, insert);
    return query.next() ? locatorOf(query) : QVariantList{};
}

std::optional<QVariantList> PostgresBackend::update(const QSqlDatabase& db, const SqlTable& table,
                                                    const QStringList& columns,
                                                    const QVariantList& values,
                                                    const QVariantList& locator) {
    QStringList sets;
    for (const QString& column : quotedAll(columns)) {
        sets << column + QStringLiteral(" = ?");
    }
    const QString update = QStringLiteral("UPDATE %1 SET %2 WHERE %3 RETURNING %4")
                               .arg(quoted(table.name), sets.join(u", "), locatorCondition(table),
                                    table.locator.join(u", "));
    QSqlQuery query = runSql(*this, db, update, values + locator, update);
    if (!query.next()) {
        return std::nullopt;
    }
    return locatorOf(query);
}

QVariant PostgresBackend::value(const QVariant& read) const {
    if (read.isNull()) {
        return {};
    }
    switch (read.typeId()) {
        case QMetaType::QDateTime:
            return storedDateText(read.toDateTime());
        case QMetaType::QDate:
            return storedDateText(QDateTime(read.toDate(), QTime(0, 0)));
        case QMetaType::Int:
        case QMetaType::Short:
        case QMetaType::UInt:
        case QMetaType::UShort:
        case QMetaType::Long:
            return read.toLongLong();
        default:
            return read;
    }
}

QString PostgresBackend::columnName(const QString& returned, const QString& statement) const {
    if (statement != spelledFor_) {
        spelledFor_ = statement;
        spelling_.clear();
        for (const SqlToken& t : tokenizeSql(statement)) {
            if (t.kind == SqlTokenKind::Word || t.kind == SqlTokenKind::QuotedName) {
                const QString name = unquotedName(t);
                spelling_.insert(name.toLower(), name);
            }
        }
    }
    const QString key = returned.toLower();
    if (const auto it = spelling_.constFind(key); it != spelling_.constEnd()) {
        return *it;
    }
    return schemaSpelling().value(key, returned);
}

RaisedError PostgresBackend::failure(const QSqlError& error, const QString& shown) const {
    QString text = error.databaseText().trimmed();
    if (text.isEmpty()) {
        text = error.driverText().trimmed();
    }
    const QString state = error.nativeErrorCode();
    if (!state.isEmpty() && !text.contains(state)) {
        text += QStringLiteral(" (SQLSTATE ") + state + u')';
    }
    const long number = connectionLost(error) ? SqlErrors::CantOpen
                        : state.isEmpty()     ? ErrNumber::Database
                                              : resultCode(state);
    if (number == kBusy) {
        return SqlErrors::lockWait(number, text);
    }
    return SqlErrors::raised(
        number, shown.isEmpty() ? text : text + QStringLiteral("\r\n") + shown.trimmed());
}

bool PostgresBackend::isEmpty(const QSqlDatabase& db) const {
    const QString sql = QStringLiteral(
        "SELECT count(*) FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
        "WHERE n.nspname = current_schema() AND c.relkind IN ('r', 'p', 'v')");
    QSqlQuery query = runSql(*this, db, sql, {}, sql);
    return query.next() && query.value(0).toLongLong() == 0;
}

namespace {

// Runs the statements in one transaction; `before` runs first within it and tells whether to
// go on.
void scriptInTransaction(const SqlBackend& backend, QSqlDatabase db, const QString& script,
                         const std::function<bool()>& before) {
    runInTransaction(backend, db, [&] {
        if (before()) {
            for (const QString& statement : splitPostgresScript(script)) {
                runSql(backend, db, statement, {}, statement.left(400));
            }
        }
    });
}

}  // namespace

void PostgresBackend::runScript(const QSqlDatabase& db, const QString& script) const {
    scriptInTransaction(*this, db, script, [] { return true; });
}

void PostgresBackend::applySchema(const QSqlDatabase& db, const QString& script) const {
    scriptInTransaction(*this, db, script, [&] {
        // Two workstations starting on a new database at once: the second waits for the
        // first and then finds the schema there.
        const QString lock = QStringLiteral("SELECT pg_advisory_xact_lock(7202611)");
        runSql(*this, db, lock, {}, lock);
        return isEmpty(db);
    });
}

void PostgresBackend::upgradeSchema(const QSqlDatabase& db) const {
    // The objects the upgrade adds tell whether it ran; the check comes first without the
    // lock, so that a current database costs one query at the start.
    const auto behind = [&] {
        const QString added = QStringLiteral(
            "SELECT (SELECT count(*) FROM information_schema.columns WHERE table_schema = "
            "current_schema() AND table_name = 'tautojobschedule' AND column_name = "
            "'zeilenversion') + (SELECT count(*) FROM pg_indexes WHERE schemaname = "
            "current_schema() AND indexname = 'ixjobagentlogdaten_suche') + (SELECT count(*) "
            "FROM information_schema.tables WHERE table_schema = current_schema() AND "
            "table_name = 'tautojobjournal')");
        QSqlQuery query = runSql(*this, db, added, {}, added);
        return query.next() && query.value(0).toLongLong() < 3;
    };
    if (!behind()) {
        return;
    }
    QFile file(QStringLiteral(":/db/upgrade.postgresql.sql"));
    file.open(QIODevice::ReadOnly);
    scriptInTransaction(*this, db, QString::fromUtf8(file.readAll()), [&] {
        const QString lock = QStringLiteral("SELECT pg_advisory_xact_lock(7202611)");
        runSql(*this, db, lock, {}, lock);
        return behind();
    });
}

QStringList splitPostgresScript(const QString& script) {
    QStringList statements;
    QString current;
    const qsizetype n = script.size();
    bool significant = false;
    auto finish = [&]() {
        if (significant) {
            statements << current.trimmed();
        }
        current.clear();
        significant = false;
    };
    for (qsizetype i = 0; i < n;) {
        const QChar c = script[i];
        if (c == u'-' && i + 1 < n && script[i + 1] == u'-') {
            const qsizetype end = script.indexOf(u'\n', i);
            const qsizetype stop = end < 0 ? n : end;
            current += script.mid(i, stop - i);
            i = stop;
        } else if (c == u'/' && i + 1 < n && script[i + 1] == u'*') {
            const qsizetype end = script.indexOf(QLatin1String("*/"), i + 2);
            const qsizetype stop = end < 0 ? n : end + 2;
            current += script.mid(i, stop - i);
            i = stop;
        } else if (c == u'\'' || c == u'"') {
            qsizetype j = i + 1;
            while (j < n && !(script[j] == c && !(j + 1 < n && script[j + 1] == c))) {
                j += script[j] == c ? 2 : 1;
            }
            current += script.mid(i, j + 1 - i);
            significant = true;
            i = j + 1;
        } else if (c == u'$') {
            // $tag$ ... $tag$
            qsizetype j = i + 1;
            while (j < n && (script[j].isLetterOrNumber() || script[j] == u'_')) {
                ++j;
            }
            if (j < n && script[j] == u'$') {
                const QString tag = script.mid(i, j + 1 - i);
                const qsizetype end = script.indexOf(tag, j + 1);
                const qsizetype stop = end < 0 ? n : end + tag.size();
                current += script.mid(i, stop - i);
                i = stop;
            } else {
                current += c;
                i = i + 1;
            }
            significant = true;
        } else if (c == u';') {
            finish();
            ++i;
        } else {
            current += c;
            significant = significant || !c.isSpace();
            ++i;
        }
    }
    finish();
    return statements;
}
