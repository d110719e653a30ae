#pragma once

#include <QVariant>

// Whether a variant holds a number (whole or real), as the record library and the lists
// compare and convert them. A flag counts as a number only where asked for.
inline bool isNumberVariant(const QVariant& v, bool flagIsNumber = false) {
    switch (v.typeId()) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::ULong:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Char:
        case QMetaType::SChar:
        case QMetaType::UChar:
        case QMetaType::Double:
        case QMetaType::Float:
            return true;
        case QMetaType::Bool:
            return flagIsNumber;
        default:
            return false;
    }
}

// Whether a variant holds a real number rather than a whole one.
inline bool isRealVariant(const QVariant& v) {
    return v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float;
}
