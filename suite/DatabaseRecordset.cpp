#include "suite/DatabaseRecordset.h"

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

const QString locatorPrefix = QStringLiteral("_ajv_locator_");
// The column in which a table counts the writes of each row.
const QString kVersionColumn = QStringLiteral("zeilenversion");

QVariant dateValue(const QDateTime& date) {
    return date.isValid() ? QVariant(storedDateText(date)) : QVariant();
}

}  // namespace

DatabaseRecordset::DatabaseRecordset(std::weak_ptr<Database> database)
    : database_(std::move(database)) {}

DatabaseRecordset::~DatabaseRecordset() {
    Close();
}

QSqlDatabase DatabaseRecordset::connection() const {
    const std::shared_ptr<Database> db = database_.lock();
    if (!db) {
        throw SqlErrors::noConnection();
    }
    return QSqlDatabase::database(db->connectionName(), false);
}

SqlBackend& DatabaseRecordset::backend() const {
    const std::shared_ptr<Database> db = database_.lock();
    if (!db) {
        throw SqlErrors::noConnection();
    }
    return db->backend();
}

QString DatabaseRecordset::translated(const QString& sql) const {
    // getdate() of the period condition is fixed once for the statement, so that its index
    // can serve it.
    const std::shared_ptr<Database> db = database_.lock();
    return db ? db->backend().translate(sql, db->clock().now()) : SqlDialect::translate(sql);
}

void DatabaseRecordset::Connect() {
    connection();
    database_.lock()->checkUsable();
}

void DatabaseRecordset::Disconnect() {}

long DatabaseRecordset::OpenQuery(const QString& sql, long lockMode) {
    Close();
    QString statement = translated(sql);
    const QSqlDatabase db = connection();
    SqlBackend& server = backend();

    const auto source = SqlDialect::singleSource(statement);
    std::optional<SqlTable> table =
        source && lockMode != 0 ? server.table(db, source->name, sql) : std::nullopt;
    const int first = table ? static_cast<int>(table->locator.size()) : 0;
    if (table) {
        QString locator;
        for (int k = 0; k < first; ++k) {
            locator += u' ' + table->locator[k] + QStringLiteral(" AS ") + locatorPrefix +
                       QString::number(k) + u',';
        }
        statement.insert(source->columnsAt, locator);
    }

    QSqlQuery query = runSql(server, db, statement, {}, sql);
    const QSqlRecord record = query.record();
    table_ = table;
    for (int i = first; i < record.count(); ++i) {
        addColumn(record.fieldName(i));
    }
    for (qsizetype c = 0; c < columns_.size(); ++c) {
        columns_[c].name = server.columnName(columns_[c].stored, sql);
    }
    while (query.next()) {
        Row row;
        for (int i = 0; i < first; ++i) {
            row.locator.append(query.value(i));
        }
        for (int i = first; i < record.count(); ++i) {
            row.values.append(server.value(query.value(i)));
        }
        row.written.fill(false, row.values.size());
        rows_.append(row);
    }
    open_ = true;
    sql_ = sql;
    lockMode_ = lockMode;
    current_ = 0;
    return static_cast<long>(rows_.size());
}

void DatabaseRecordset::Close() {
    open_ = false;
    sql_.clear();
    table_.reset();
    columns_.clear();
    index_.clear();
    spelled_.clear();
    rows_.clear();
    current_ = 0;
}

qsizetype DatabaseRecordset::addColumn(const QString& stored) {
    const QString key = stored.toLower();
    columns_.append(Column{stored, stored, table_ && table_->columns.value(key, false)});
    // The first of two equal names wins, as in the suite's record object.
    index_.insert(key, index_.value(key, columns_.size() - 1));
    spelled_.clear();
    for (Row& row : rows_) {
        row.values.append(QVariant());
        row.written.append(false);
    }
    return columns_.size() - 1;
}

void DatabaseRecordset::requireOpen() const {
    if (!open_) {
        throw SqlErrors::objectClosed();
    }
}

void DatabaseRecordset::requireUpdatable() const {
    requireOpen();
    if (!table_) {
        throw SqlErrors::notUpdatable(sql_);
    }
}

qsizetype DatabaseRecordset::fieldIndex(const QString& field) const {
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

DatabaseRecordset::Row& DatabaseRecordset::currentRow() {
    requireOpen();
    if (current_ < 0 || current_ >= rows_.size() || rows_[current_].deleted) {
        throw SqlErrors::noCurrentRecord();
    }
    return rows_[current_];
}

bool DatabaseRecordset::pending(const Row& row) const {
    return !row.deleted && (row.isNew || row.written.contains(true));
}

void DatabaseRecordset::savePending() {
    if (table_ && current_ >= 0 && current_ < rows_.size() && pending(rows_[current_])) {
        Update(UpdateWrite);
    }
}

void DatabaseRecordset::AddNew() {
    requireUpdatable();
    savePending();
    Row row;
    row.values.resize(columns_.size());
    row.written.fill(false, columns_.size());
    row.isNew = true;
    rows_.append(row);
    current_ = rows_.size() - 1;
}

void DatabaseRecordset::Update(long mode, bool) {
    if (mode != UpdateWrite && mode != UpdateDelete) {
        throw SqlErrors::invalidArgument(QStringLiteral("Update"), mode);
    }
    requireUpdatable();
    Row& row = currentRow();
    if (mode == UpdateDelete) {
        if (!row.isNew) {
            const QString remove =
                QStringLiteral("DELETE FROM %1 WHERE %2")
                    .arg(backend().quotedName(table_->name), locatorCondition(*table_));
            runSql(backend(), connection(), remove, row.locator, sql_);
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

void DatabaseRecordset::writtenColumns(const Row& row, QStringList& names,
                                       QVariantList& values) const {
    for (qsizetype c = 0; c < columns_.size(); ++c) {
        if (row.written[c]) {
            names << columns_[c].stored;
            values << row.values[c];
        }
    }
}

void DatabaseRecordset::insertRow(Row& row) {
    QStringList names;
    QVariantList values;
    writtenColumns(row, names, values);
    row.locator = backend().insert(connection(), *table_, names, values);
}

void DatabaseRecordset::updateRow(Row& row) {
    QStringList names;
    QVariantList values;
    writtenColumns(row, names, values);
    // A row that counts its writes is written only while it has the version read with it:
    // no write of another workstation in between is undone unnoticed.
    SqlTable checked = *table_;
    QVariantList where = row.locator;
    const qsizetype version = index_.value(kVersionColumn, -1);
    if (version >= 0 && table_->columns.contains(kVersionColumn) && !row.written[version]) {
        checked.locator << backend().quotedName(columns_[version].stored);
        where << row.values[version];
    }
    const auto locator = backend().update(connection(), checked, names, values, where);
    if (!locator) {
        throw SqlErrors::raised(
            ErrNumber::Database,
            (rowExists(row) ? QStringLiteral("Der Datensatz wurde inzwischen an einem anderen "
                                             "Arbeitsplatz geändert; Ihre Änderung wurde nicht "
                                             "gespeichert. Bitte wiederholen Sie die "
                                             "Aktion.\r\n")
                            : QStringLiteral("Der Datensatz wurde nicht mehr gefunden; er wurde "
                                             "inzwischen gelöscht.\r\n")) +
                sql_.trimmed());
    }
    row.locator = locator->mid(0, table_->locator.size());
}

bool DatabaseRecordset::rowExists(const Row& row) {
    SqlBackend& server = backend();
    const QString select = QStringLiteral("SELECT 1 FROM %1 WHERE %2")
                               .arg(server.quotedName(table_->name), locatorCondition(*table_));
    return runSql(server, connection(), select, row.locator, select).next();
}

void DatabaseRecordset::reloadRow(Row& row) {
    SqlBackend& server = backend();
    const QString select = QStringLiteral("SELECT * FROM %1 WHERE %2")
                               .arg(server.quotedName(table_->name), locatorCondition(*table_));
    QSqlQuery query = runSql(server, connection(), select, row.locator, select);
    if (!query.next()) {
        return;
    }
    const QSqlRecord record = query.record();
    for (int i = 0; i < record.count(); ++i) {
        const QString key = record.fieldName(i).toLower();
        qsizetype c = index_.value(key, -1);
        if (c < 0) {
            c = addColumn(record.fieldName(i));
            columns_[c].name = server.columnName(columns_[c].stored, sql_);
        }
        row.values[c] = server.value(query.value(i));
    }
}

qsizetype DatabaseRecordset::seek(qsizetype from, qsizetype step) const {
    qsizetype i = from;
    while (i >= 0 && i < rows_.size() && rows_[i].deleted) {
        i += step;
    }
    return i;
}

bool DatabaseRecordset::Move(long direction) {
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

long DatabaseRecordset::Execute(const QString& sql) {
    const QString statement = translated(sql);
    const QSqlDatabase db = connection();
    database_.lock()->checkUsable();
    const QSqlQuery query = runSql(backend(), db, statement, {}, sql);
    const QString keyword = SqlDialect::leadingKeyword(statement);
    if (keyword == u"insert" || keyword == u"update" || keyword == u"delete" ||
        keyword == u"replace") {
        return query.numRowsAffected();
    }
    return query.isSelect() ? -1 : 0;
}

const QVariant& DatabaseRecordset::value(const QString& field) {
    const qsizetype c = fieldIndex(field);
    return currentRow().values[c];
}

bool DatabaseRecordset::ReadBool(const QString& field) {
    return SqlValues::toBool(value(field), field);
}

QDateTime DatabaseRecordset::ReadDate(const QString& field) {
    return SqlValues::toDate(value(field), field);
}

long DatabaseRecordset::ReadLong(const QString& field) {
    return SqlValues::toLong(value(field), field);
}

QString DatabaseRecordset::ReadText(const QString& field) {
    return SqlValues::toText(value(field));
}

QStringList DatabaseRecordset::FieldNames() {
    requireOpen();
    QStringList names;
    for (const Column& c : columns_) {
        names << c.name;
    }
    return names;
}

QVariant DatabaseRecordset::ReadValue(const QString& field) {
    return value(field);
}

QVariantList DatabaseRecordset::ReadValues() {
    return currentRow().values;
}

void DatabaseRecordset::write(const QString& field, const QVariant& value) {
    requireOpen();
    if (lockMode_ == 0) {
        throw SqlErrors::notUpdatable(sql_);
    }
    const qsizetype c = fieldIndex(field);
    Row& row = currentRow();
    row.values[c] = value;
    row.written[c] = true;
}

void DatabaseRecordset::WriteBool(const QString& field, bool value) {
    write(field, qint64{value ? 1 : 0});
}

void DatabaseRecordset::WriteDate(const QString& field, const QDateTime& value) {
    write(field, dateValue(value));
}

void DatabaseRecordset::WriteLong(const QString& field, long value) {
    if (columns_.value(fieldIndex(field)).isDate) {
        write(field, dateValue(dateFromDayNumber(static_cast<double>(value))));
    } else {
        write(field, qint64{value});
    }
}

void DatabaseRecordset::WriteText(const QString& field, const QString& value) {
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
