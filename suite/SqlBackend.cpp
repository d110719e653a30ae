#include "suite/SqlBackend.h"

#include <QSqlError>
#include <QSqlQuery>

#include "common/ErrObject.h"

QSqlQuery runSql(const SqlBackend& backend, const QSqlDatabase& db, const QString& sql,
                 const QVariantList& values, const QString& shown) {
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
        const QSqlError error = query.lastError();
        query = QSqlQuery();
        backend.recover(db, error);
        throw backend.failure(error, shown);
    }
    return query;
}

QString locatorCondition(const SqlTable& table) {
    QStringList parts;
    for (const QString& expression : table.locator) {
        parts << expression + QStringLiteral(" = ?");
    }
    return parts.join(QStringLiteral(" AND "));
}
