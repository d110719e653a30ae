#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

// The record object of the suite's data library: the one way to the database. A procedure
// creates its own object, works and releases it; nothing stays open between calls.
// Every failure is thrown as RaisedError carrying number, description and source.
class CRecordset {
  public:
    virtual ~CRecordset() = default;

    // Directions of Move.
    static constexpr long MoveFirst = 0;
    static constexpr long MoveLast = 1;
    static constexpr long MovePrevious = 2;
    static constexpr long MoveNext = 3;

    // Update modes.
    static constexpr long UpdateWrite = 0;
    static constexpr long UpdateDelete = 1;

    virtual void Connect() = 0;
    virtual void Disconnect() = 0;

    // Opens a result set with the cursor on the first record and gives the record count.
    // Lock mode 2 allows Update; 0 is read only.
    virtual long OpenQuery(const QString& sql, long lockMode = 2) = 0;
    virtual void Close() = 0;

    // Starts a new record; the next Update(0) inserts it.
    virtual void AddNew() = 0;
    // Mode 0 writes the current record back (an insert after AddNew), mode 1 deletes it.
    virtual void Update(long mode, bool confirm = true) = 0;
    // Moves the cursor; true while a record is current.
    virtual bool Move(long direction) = 0;
    // Runs one statement without a result set and gives the rows affected.
    virtual long Execute(const QString& sql) = 0;

    // A NULL field reads as the empty value of its type: false, 0, "", the zero date.
    // Field names are case-insensitive.
    virtual bool ReadBool(const QString& field) = 0;
    virtual QDateTime ReadDate(const QString& field) = 0;
    virtual long ReadLong(const QString& field) = 0;
    virtual QString ReadText(const QString& field) = 0;

    // The columns of the open result set, in their order, and one field's raw value (null
    // for NULL): what a list that shows any query needs.
    virtual QStringList FieldNames() = 0;
    virtual QVariant ReadValue(const QString& field) = 0;
    // Every field's raw value of the current record, in the order of FieldNames: what a list
    // reading many rows needs. By default through ReadValue.
    virtual QVariantList ReadValues();

    // Writes go into the buffer of the current record and read back before Update.
    virtual void WriteBool(const QString& field, bool value) = 0;
    virtual void WriteDate(const QString& field, const QDateTime& value) = 0;
    virtual void WriteLong(const QString& field, long value) = 0;
    virtual void WriteText(const QString& field, const QString& value) = 0;
};

// The date a NULL date field reads as, and the origin of day numbers: 1899-12-30 00:00:00.
QDateTime zeroDate();
