#pragma once

#include <QHash>
#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <memory>

#include "common/Recordset.h"
#include "suite/SqlBackend.h"

class Database;

// The suite's record object over the database's connection (SQLite or PostgreSQL). OpenQuery
// loads the whole result into memory. When the statement reads one table
// (SqlDialect::singleSource) and the lock mode is not 0, the set is updatable: it carries each
// row's locator (rowid or key), so that Update writes back, inserts or deletes that row even
// when the key isn't selected. After an Update(0) the row is
// read again from the table, so the identity and every column of it are readable.
// Moving off a row or AddNew with unsaved writes saves them first.
class DatabaseRecordset : public CRecordset {
  public:
    explicit DatabaseRecordset(std::weak_ptr<Database> database);
    ~DatabaseRecordset() override;

    // Throws when the database is gone. OpenQuery and Execute attach by themselves.
    void Connect() override;
    // The connection belongs to the Database; nothing to release.
    void Disconnect() override;

    long OpenQuery(const QString& sql, long lockMode = 2) override;
    // Discards the set with any unsaved writes; a closed set stays closed.
    void Close() override;
    void AddNew() override;
    void Update(long mode, bool confirm = true) override;
    bool Move(long direction) override;
    // Gives -1 for a statement that returns rows, 0 for one that changes none by nature.
    long Execute(const QString& sql) override;

    bool ReadBool(const QString& field) override;
    QDateTime ReadDate(const QString& field) override;
    long ReadLong(const QString& field) override;
    QString ReadText(const QString& field) override;
    QStringList FieldNames() override;
    QVariant ReadValue(const QString& field) override;
    // The record's values as read, without a look-up by name; unsaved writes included.
    QVariantList ReadValues() override;

    // A date column (declared type holding DATE or TIME) takes a whole number written by
    // WriteLong or WriteText as a day number since 1899-12-30, and a date text in the stored
    // form 'yyyy-MM-dd HH:mm:ss'; an empty text is NULL. Any other column takes an empty
    // text as the empty text, never as NULL.
    void WriteBool(const QString& field, bool value) override;
    void WriteDate(const QString& field, const QDateTime& value) override;
    void WriteLong(const QString& field, long value) override;
    void WriteText(const QString& field, const QString& value) override;

  private:
    struct Column {
        QString name;    // as the system spells it
        QString stored;  // as the database gave it
        bool isDate = false;
    };
    struct Row {
        QList<QVariant> values;
        QList<bool> written;
        QVariantList locator;
        bool isNew = false;
        bool deleted = false;
    };

    QSqlDatabase connection() const;
    SqlBackend& backend() const;
    QString translated(const QString& sql) const;
    void requireOpen() const;
    qsizetype fieldIndex(const QString& field) const;
    Row& currentRow();
    const QVariant& value(const QString& field);
    void write(const QString& field, const QVariant& value);
    void requireUpdatable() const;
    bool pending(const Row& row) const;
    void savePending();
    // The columns written in the row, with their values.
    void writtenColumns(const Row& row, QStringList& names, QVariantList& values) const;
    void insertRow(Row& row);
    void updateRow(Row& row);
    bool rowExists(const Row& row);
    void reloadRow(Row& row);
    qsizetype addColumn(const QString& stored);
    qsizetype seek(qsizetype from, qsizetype step) const;

    std::weak_ptr<Database> database_;
    bool open_ = false;
    QString sql_;
    long lockMode_ = 0;
    std::optional<SqlTable> table_;  // the table rows are written back to, when updatable
    QList<Column> columns_;
    QHash<QString, qsizetype> index_;  // lower-case name -> column
    // The names as the caller spells them, found once: a grid of many rows reads the same
    // few names again and again.
    mutable QHash<QString, qsizetype> spelled_;
    QList<Row> rows_;
    qsizetype current_ = 0;
};
