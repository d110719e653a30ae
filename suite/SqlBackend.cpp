#include "suite/SqlBackend.h"

#include <QSqlError>
#include <QSqlQuery>

#include "common/ErrObject.h"
#include "suite/SqlErrors.h"

namespace {

bool exec(QSqlQuery& query, const QString& sql, const QVariantList& values) {
    query.setForwardOnly(true);
    if (values.isEmpty()) {
        return query.exec(sql);
    }
    bool ok = query.prepare(sql);
    for (const QVariant& v : values) {
        query.addBindValue(v);
    }
    return ok && query.exec();
}

}  // namespace

QSqlQuery runSql(const SqlBackend& backend, const QSqlDatabase& db, const QString& sql,
                 const QVariantList& values, const QString& shown) {
    backend.ensureOpen(db);
    QSqlQuery query(db);
    if (exec(query, sql, values)) {
        return query;
    }
    QSqlError error = query.lastError();
    query = QSqlQuery();
    switch (backend.recover(db, error)) {
        case SqlBackend::Recovery::Away:
            throw SqlErrors::serverAway(error.text().trimmed());
        case SqlBackend::Recovery::Reopened:
            if (backend.mayRepeat(sql, error)) {
                QSqlQuery again(db);
                if (exec(again, sql, values)) {
                    return again;
                }
                error = again.lastError();
            }
            break;
            throw SqlErrors::serverBack(error.text().trimmed());
        case SqlBackend::Recovery::NotLost:
            break;
    }
    throw backend.failure(error, shown);
}

void runInTransaction(const SqlBackend& backend, QSqlDatabase db,
                      const std::function<void()>& work) {
    backend.ensureOpen(db);
    if (!db.transaction()) {
        throw backend.failure(db.lastError(), QStringLiteral("BEGIN"));
    }
    backend.transactionBegun();
    try {
        work();
    } catch (...) {
        db.rollback();
        backend.transactionEnded();
        throw;
    }
    backend.transactionEnded();
    if (!db.commit()) {
        const QSqlError error = db.lastError();
        db.rollback();
        throw backend.failure(error, QStringLiteral("COMMIT"));
    }
}

QString locatorCondition(const SqlTable& table) {
    QStringList parts;
    for (const QString& expression : table.locator) {
        parts << expression + QStringLiteral(" = ?");
    }
    return parts.join(QStringLiteral(" AND "));
}
