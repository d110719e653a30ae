#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include "host/JobTransferFields.h"

namespace JobTransfer {

// Runs a statement with its values bound in order; raises the driver's text on failure.
inline QSqlQuery run(const QSqlDatabase& db, const QString& sql, const QVariantList& values = {}) {
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql)) {
        raiseError(q.lastError().text());
    }
    for (const QVariant& v : values) {
        q.addBindValue(v);
    }
    if (!q.exec()) {
        raiseError(q.lastError().text());
    }
    return q;
}

}  // namespace JobTransfer
