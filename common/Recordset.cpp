#include "common/Recordset.h"

QDateTime zeroDate() {
    return QDateTime(QDate(1899, 12, 30), QTime(0, 0, 0));
}

QVariantList CRecordset::ReadValues() {
    QVariantList values;
    for (const QString& field : FieldNames()) {
        values << ReadValue(field);
    }
    return values;
}
