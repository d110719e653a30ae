#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

// A field's value as each read of the record set gives it. NULL is the empty value of the
// type: false, 0, "", the zero date. A value that doesn't fit the type throws RaisedError 13,
// a number beyond 32 bits RaisedError 6; `field` names the field in the description.
namespace SqlValues {

// Reals round half to even, as the classic runtime's CLng does.
long toLong(const QVariant& value, const QString& field);
// Numbers are true when not 0; texts "true", "wahr", "false", "falsch", "" and number texts.
bool toBool(const QVariant& value, const QString& field);
// Numbers as decimal text with '.', whole reals without fraction.
QString toText(const QVariant& value);
// Date texts (SqlDates.h) or day numbers; an empty text is the zero date.
QDateTime toDate(const QVariant& value, const QString& field);

}  // namespace SqlValues
