#include "suite/SqliteRecordset.h"

#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>

#include "suite/Database.h"
#include "suite/SqlDates.h"
#include "suite/SqlDialect.h"
#include "suite/SqlErrors.h"
#include "suite/SqlValues.h"

namespace {

const QString rowidColumn = QStringLiteral("_ajv_rowid_");

QString quotedName(const QString& name) {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

// Runs one SQLite statement; `shown` is the statement as the caller wrote it, for the error.
QSqlQuery run(const QSqlDatabase& db, const QString& sql, const QVariantList& values,
              const QString& shown) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    bool ok = false;
    if (values.isEmpty()) {
        ok = query.exec(sql);
    } else {
        ok = query.prepare(sql);
        for (const QVariant& v : values) {
            query.addBindValue(v);
        }
        ok = ok && query.exec();
    }
    if (!ok) {
        throw SqlErrors::fromDriver(query.lastError(), shown);
    }
    return query;
}

// The name of a table of the database, empty for a view or anything else.
QString baseTable(const QSqlDatabase& db, const QString& name, const QString& shown) {
    QSqlQuery query =
        run(db, QStringLiteral("SELECT type FROM sqlite_master WHERE lower(name) = lower(?)"),
            {name}, shown);
    return query.next() && query.value(0).toString() == u"table" ? name : QString();
}

struct TableInfo {
    QHash<QString, bool> columns;  // lower-case name -> is a date column
    QString identity;              // the INTEGER PRIMARY KEY, lower case
};

TableInfo tableInfo(const QSqlDatabase& db, const QString& table, const QString& shown) {
    TableInfo info;
    QSqlQuery query =
        run(db, QStringLiteral("PRAGMA table_info(%1)").arg(quotedName(table)), {}, shown);
    int keys = 0;
    while (query.next()) {
        const QString name = query.value(1).toString().toLower();
        const QString type = query.value(2).toString().toUpper();
        info.columns.insert(name, type.contains(u"DATE") || type.contains(u"TIME"));
        if (query.value(5).toInt() > 0) {
            ++keys;
            info.identity = type == u"INTEGER" ? name : QString();
        }
    }
    if (keys != 1) {
        info.identity.clear();
    }
    return info;
}

QVariant dateValue(const QDateTime& date) {
    return date.isValid() ? QVariant(storedDateText(date)) : QVariant();
}

}  // namespace

SqliteRecordset::SqliteRecordset(std::weak_ptr<Database> database)
    : database_(std::move(database)) {}

SqliteRecordset::~SqliteRecordset() {
    Close();
}

QSqlDatabase SqliteRecordset::connection() const {
    const std::shared_ptr<Database> db = database_.lock();
    if (!db) {
        throw SqlErrors::noConnection();
    }
    return QSqlDatabase::database(db->connectionName(), false);
}

QString SqliteRecordset::translated(const QString& sql) const {
    // getdate() of the period condition is fixed once for the statement, so that its index
    // can serve it.
    const std::shared_ptr<Database> db = database_.lock();
    return db ? SqlDialect::translate(sql, db->clock().now()) : SqlDialect::translate(sql);
}

void SqliteRecordset::Connect() {
    connection();
    database_.lock()->checkStillThere();
}

void SqliteRecordset::Disconnect() {}

long SqliteRecordset::OpenQuery(const QString& sql, long lockMode) {
    Close();
    QString statement = translated(sql);
    const QSqlDatabase db = connection();

    const auto source = SqlDialect::singleSource(statement);
    const QString table = source && lockMode != 0 ? baseTable(db, source->name, sql) : QString();
    TableInfo info;
    if (!table.isEmpty()) {
        info = tableInfo(db, table, sql);
        statement.insert(source->columnsAt, QStringLiteral(" _rowid_ AS ") + rowidColumn + u',');
    }

    QSqlQuery query = run(db, statement, {}, sql);
    const QSqlRecord record = query.record();
    const int first = table.isEmpty() ? 0 : 1;
    tableColumns_ = info.columns;
    for (int i = first; i < record.count(); ++i) {
        addColumn(record.fieldName(i));
    }
    while (query.next()) {
        Row row;
        row.rowid = first ? query.value(0).toLongLong() : 0;
        for (int i = first; i < record.count(); ++i) {
            row.values.append(query.value(i));
        }
        row.written.fill(false, row.values.size());
        rows_.append(row);
    }
    open_ = true;
    sql_ = sql;
    lockMode_ = lockMode;
    table_ = table;
    identity_ = info.identity;
    current_ = 0;
    return static_cast<long>(rows_.size());
}

void SqliteRecordset::Close() {
    open_ = false;
    sql_.clear();
    table_.clear();
    identity_.clear();
    tableColumns_.clear();
    columns_.clear();
    index_.clear();
    spelled_.clear();
    rows_.clear();
    current_ = 0;
}

qsizetype SqliteRecordset::addColumn(const QString& name) {
    const QString key = name.toLower();
    columns_.append(Column{name, tableColumns_.value(key, false)});
    // The first of two equal names wins, as in the suite's record object.
    index_.insert(key, index_.value(key, columns_.size() - 1));
    spelled_.clear();
    for (Row& row : rows_) {
        row.values.append(QVariant());
        row.written.append(false);
    }
    return columns_.size() - 1;
}

void SqliteRecordset::requireOpen() const {
    if (!open_) {
        throw SqlErrors::objectClosed();
    }
}

void SqliteRecordset::requireUpdatable() const {
    requireOpen();
    if (table_.isEmpty()) {
        throw SqlErrors::notUpdatable(sql_);
    }
}

qsizetype SqliteRecordset::fieldIndex(const QString& field) const {
    requireOpen();
    if (const auto known = spelled_.constFind(field); known != spelled_.constEnd()) {
        return *known;
    }
    const auto it = index_.constFind(field.toLower());
    if (it == index_.constEnd()) {
        throw SqlErrors::unknownField(field);
    }
    spelled_.insert(field, *it);
    return *it;
}

SqliteRecordset::Row& SqliteRecordset::currentRow() {
    requireOpen();
    if (current_ < 0 || current_ >= rows_.size() || rows_[current_].deleted) {
        throw SqlErrors::noCurrentRecord();
    }
    return rows_[current_];
}

bool SqliteRecordset::pending(const Row& row) const {
    return !row.deleted && (row.isNew || row.written.contains(true));
}

void SqliteRecordset::savePending() {
    if (!table_.isEmpty() && current_ >= 0 && current_ < rows_.size() && pending(rows_[current_])) {
        Update(UpdateWrite);
    }
}

void SqliteRecordset::AddNew() {
    requireUpdatable();
    savePending();
    Row row;
    row.values.resize(columns_.size());
    row.written.fill(false, columns_.size());
    row.isNew = true;
    rows_.append(row);
    current_ = rows_.size() - 1;
}

void SqliteRecordset::Update(long mode, bool) {
    if (mode != UpdateWrite && mode != UpdateDelete) {
        throw SqlErrors::invalidArgument(QStringLiteral("Update"), mode);
    }
    requireUpdatable();
    Row& row = currentRow();
    if (mode == UpdateDelete) {
        if (!row.isNew) {
            run(connection(),
                QStringLiteral("DELETE FROM %1 WHERE _rowid_ = ?").arg(quotedName(table_)),
                {row.rowid}, sql_);
        }
        row.deleted = true;
        return;
    }
    if (row.isNew) {
        insertRow(row);
    } else if (row.written.contains(true)) {
        updateRow(row);
    } else {
        return;
    }
    row.isNew = false;
    row.written.fill(false);
    reloadRow(row);
}

void SqliteRecordset::insertRow(Row& row) {
    QStringList names;
    QStringList marks;
    QVariantList values;
    for (qsizetype c = 0; c < columns_.size(); ++c) {
        if (row.written[c]) {
            names << quotedName(columns_[c].name);
            marks << QStringLiteral("?");
            values << row.values[c];
        }
    }
    const QString insert =
        names.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(quotedName(table_))
                        : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                              .arg(quotedName(table_), names.join(u", "), marks.join(u", "));
    const QSqlQuery query = run(connection(), insert, values, insert);
    row.rowid = query.lastInsertId().toLongLong();
}

void SqliteRecordset::updateRow(Row& row) {
    QStringList sets;
    QVariantList values;
    qint64 rowid = row.rowid;
    for (qsizetype c = 0; c < columns_.size(); ++c) {
        if (row.written[c]) {
            sets << quotedName(columns_[c].name) + QStringLiteral(" = ?");
            values << row.values[c];
            if (!identity_.isEmpty() && columns_[c].name.toLower() == identity_) {
                rowid = row.values[c].toLongLong();
            }
        }
    }
    values << row.rowid;
    const QString update = QStringLiteral("UPDATE %1 SET %2 WHERE _rowid_ = ?")
                               .arg(quotedName(table_), sets.join(u", "));
    const QSqlQuery query = run(connection(), update, values, update);
    if (query.numRowsAffected() < 1) {
        throw SqlErrors::raised(
            ErrNumber::Database,
            QStringLiteral(
                "Der Datensatz wurde nicht mehr gefunden; er wurde inzwischen gelöscht.\r\n") +
                sql_.trimmed());
    }
    row.rowid = rowid;
}

void SqliteRecordset::reloadRow(Row& row) {
    const QString select =
        QStringLiteral("SELECT * FROM %1 WHERE _rowid_ = ?").arg(quotedName(table_));
    QSqlQuery query = run(connection(), select, {row.rowid}, select);
    if (!query.next()) {
        return;
    }
    const QSqlRecord record = query.record();
    for (int i = 0; i < record.count(); ++i) {
        const QString key = record.fieldName(i).toLower();
        const qsizetype c =
            index_.contains(key) ? index_.value(key) : addColumn(record.fieldName(i));
        row.values[c] = query.value(i);
    }
}

qsizetype SqliteRecordset::seek(qsizetype from, qsizetype step) const {
    qsizetype i = from;
    while (i >= 0 && i < rows_.size() && rows_[i].deleted) {
        i += step;
    }
    return i;
}

bool SqliteRecordset::Move(long direction) {
    requireOpen();
    savePending();
    const qsizetype size = rows_.size();
    switch (direction) {
        case MoveFirst:
            current_ = seek(0, 1);
            break;
        case MoveLast:
            current_ = seek(size - 1, -1);
            break;
        case MovePrevious:
            current_ = current_ < 0 ? -1 : seek(current_ - 1, -1);
            break;
        case MoveNext:
            current_ = current_ >= size ? size : seek(current_ + 1, 1);
            break;
        default:
            throw SqlErrors::invalidArgument(QStringLiteral("Move"), direction);
    }
    return current_ >= 0 && current_ < size;
}

long SqliteRecordset::Execute(const QString& sql) {
    const QString statement = translated(sql);
    const QSqlDatabase db = connection();
    database_.lock()->checkStillThere();
    const QSqlQuery query = run(db, statement, {}, sql);
    const QString keyword = SqlDialect::leadingKeyword(statement);
    if (keyword == u"insert" || keyword == u"update" || keyword == u"delete" ||
        keyword == u"replace") {
        return query.numRowsAffected();
    }
    return query.isSelect() ? -1 : 0;
}

const QVariant& SqliteRecordset::value(const QString& field) {
    const qsizetype c = fieldIndex(field);
    return currentRow().values[c];
}

bool SqliteRecordset::ReadBool(const QString& field) {
    return SqlValues::toBool(value(field), field);
}

QDateTime SqliteRecordset::ReadDate(const QString& field) {
    return SqlValues::toDate(value(field), field);
}

long SqliteRecordset::ReadLong(const QString& field) {
    return SqlValues::toLong(value(field), field);
}

QString SqliteRecordset::ReadText(const QString& field) {
    return SqlValues::toText(value(field));
}

QStringList SqliteRecordset::FieldNames() {
    requireOpen();
    QStringList names;
    for (const Column& c : columns_) {
        names << c.name;
    }
    return names;
}

QVariant SqliteRecordset::ReadValue(const QString& field) {
    return value(field);
}

QVariantList SqliteRecordset::ReadValues() {
    return currentRow().values;
}

void SqliteRecordset::write(const QString& field, const QVariant& value) {
    requireOpen();
    if (lockMode_ == 0) {
        throw SqlErrors::notUpdatable(sql_);
    }
    const qsizetype c = fieldIndex(field);
    Row& row = currentRow();
    row.values[c] = value;
    row.written[c] = true;
}

void SqliteRecordset::WriteBool(const QString& field, bool value) {
    write(field, qint64{value ? 1 : 0});
}

void SqliteRecordset::WriteDate(const QString& field, const QDateTime& value) {
    write(field, dateValue(value));
}

void SqliteRecordset::WriteLong(const QString& field, long value) {
    if (columns_.value(fieldIndex(field)).isDate) {
        write(field, dateValue(dateFromDayNumber(static_cast<double>(value))));
    } else {
        write(field, qint64{value});
    }
}

void SqliteRecordset::WriteText(const QString& field, const QString& value) {
    if (!columns_.value(fieldIndex(field)).isDate) {
        // A null text would be bound as NULL; what is written is a text, the empty one too.
        write(field, value.isNull() ? QString(QLatin1String("")) : value);
        return;
    }
    const QString text = value.trimmed();
    bool isNumber = false;
    const double days = QLocale::c().toDouble(text, &isNumber);
    if (text.isEmpty()) {
        write(field, QVariant());
    } else if (isNumber) {
        write(field, dateValue(dateFromDayNumber(days)));
    } else if (const auto date = parseDateText(text)) {
        write(field, dateValue(*date));
    } else {
        write(field, value);
    }
}
