#include "bench/BenchRawPostgres.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include "common/ErrObject.h"
#include "suite/PostgresAddress.h"
#include "suite/PostgresConnection.h"
#include "suite/SqlErrors.h"

namespace {

QSqlQuery execute(const QString& connection, const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(connection, false));
    query.setForwardOnly(true);
    if (!query.exec(sql)) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("%1: %2").arg(sql, query.lastError().text()));
    }
    return query;
}

}  // namespace

RawPostgres::RawPostgres(const QString& address) {
    static int serial = 0;
    connection_ = QStringLiteral("bench-raw-postgres-%1").arg(++serial);
    const PostgresAddress parsed = PostgresAddress::parse(address);
    try {
        PostgresConnection::open(connection_, parsed, {QStringLiteral("autojobverw-bench")});
    } catch (const RaisedError& e) {
        throw SqlErrors::raised(
            ErrNumber::Database,
            QStringLiteral("Keine Verbindung zu %1: %2").arg(parsed.database, e.err().Description));
    }
}

RawPostgres::~RawPostgres() {
    QSqlDatabase::database(connection_, false).close();
    QSqlDatabase::removeDatabase(connection_);
}

long long RawPostgres::run(const QString& sql) {
    QSqlQuery query = execute(connection_, sql);
    if (!query.isSelect()) {
        return query.numRowsAffected();
    }
    long long rows = 0;
    const int columns = query.record().count();
    while (query.next()) {
        for (int c = 0; c < columns; ++c) {
            query.value(c);
        }
        ++rows;
    }
    return rows;
}

long long RawPostgres::number(const QString& sql) {
    QSqlQuery query = execute(connection_, sql);
    return query.next() ? query.value(0).toLongLong() : 0;
}

QStringList RawPostgres::texts(const QString& sql) {
    QSqlQuery query = execute(connection_, sql);
    QStringList values;
    while (query.next()) {
        values << query.value(0).toString();
    }
    return values;
}
