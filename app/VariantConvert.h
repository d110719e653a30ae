#pragma once

#include <QString>
#include <QVariant>

// A value of the host's document data as a 32-bit number, as the classic runtime assigns it:
// numbers are rounded half to even, an empty value is 0, text must hold a number. Anything
// else raises a type mismatch, a value beyond 32 bits an overflow.
long variantToLong(const QVariant& value);

// The number a text begins with, after leading blanks ("  12abc" is 12, "abc" is 0); the
// fraction is dropped.
long leadingNumber(const QString& text);
