#include "bench/scale/ScaleBenchServer.h"

#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QThread>
#include <cstdio>

#include "common/ErrObject.h"
#include "suite/PostgresAddress.h"
#include "suite/PostgresConnection.h"
#include "suite/SqlErrors.h"

namespace ScaleBenchServer {

namespace {

const QString kMaintenance = QStringLiteral("bench-maintenance");
const QString kRaw = QStringLiteral("bench-raw");

QSqlDatabase connectTo(const QString& connection, const PostgresAddress& address) {
    try {
        return PostgresConnection::open(connection, address, {QStringLiteral("autojobverw-bench")});
    } catch (const RaisedError& e) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("Keine Verbindung zu %1: %2")
                                    .arg(address.database, e.err().Description));
    }
}

QSqlDatabase maintenance() {
    if (QSqlDatabase::contains(kMaintenance)) {
        QSqlDatabase db = QSqlDatabase::database(kMaintenance, false);
        if (db.isOpen()) {
            return db;
        }
    }
    return connectTo(kMaintenance, PostgresAddress::parse(address(QStringLiteral("postgres"))));
}

QSqlQuery run(const QSqlDatabase& db, const QString& sql) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(sql)) {
        throw SqlErrors::raised(ErrNumber::Database,
                                QStringLiteral("%1: %2").arg(sql, query.lastError().text()));
    }
    return query;
}

bool exists(const QString& database) {
    QSqlQuery query = run(maintenance(), QStringLiteral("SELECT 1 FROM pg_database WHERE "
                                                        "datname = '%1'")
                                             .arg(database));
    return query.next();
}

bool allVisible(const QSqlDatabase& db) {
    QSqlQuery query = run(db, QStringLiteral("SELECT count(*) FROM pg_class WHERE relkind = 'r' "
                                             "AND relnamespace = 'public'::regnamespace AND "
                                             "relallvisible < relpages"));
    return query.next() && query.value(0).toInt() == 0;
}

// Every row of the query, every column read.
qint64 readAll(QSqlQuery& query) {
    qint64 rows = 0;
    const int columns = query.record().count();
    while (query.next()) {
        for (int c = 0; c < columns; ++c) {
            query.value(c);
        }
        ++rows;
    }
    return rows;
}

}  // namespace

QString address(const QString& database) {
    return PostgresConnection::addressOf(database);
}

QString describe() {
    QSqlQuery query = run(maintenance(), QStringLiteral("SHOW server_version"));
    const QString version = query.next() ? query.value(0).toString() : QString();
    const QString host = qEnvironmentVariable("PGHOST");
    return QStringLiteral("PostgreSQL %1 auf %2:%3")
        .arg(version, host.isEmpty() ? QStringLiteral("localhost") : host,
             qEnvironmentVariable("PGPORT", QStringLiteral("5432")));
}

QString dataSet(const QString& database, const std::function<void(const QString&)>& make) {
    if (!exists(database)) {
        std::fprintf(stdout, "Erzeuge die Datenbank %s ...\n", database.toLocal8Bit().constData());
        std::fflush(stdout);
        QElapsedTimer t;
        t.start();
        const QString partial = database + QStringLiteral("_partial");
        drop(partial);
        run(maintenance(),
            QStringLiteral("CREATE DATABASE %1 ENCODING 'UTF8' TEMPLATE template0").arg(partial));
        make(address(partial));
        {
            // Written once and read many times: the visibility map and the statistics are
            // made now, not by the first measurement. A vacuum cannot mark pages all visible
            // while another transaction (an automatic analyze of the new rows) still might
            // not see them; then it is repeated.
            const QSqlDatabase db = connectTo(kRaw, PostgresAddress::parse(address(partial)));
            run(db, QStringLiteral("VACUUM (ANALYZE)"));
            for (int again = 0; again < 20 && !allVisible(db); ++again) {
                QThread::msleep(500);
                run(db, QStringLiteral("VACUUM"));
            }
        }
        QSqlDatabase::removeDatabase(kRaw);
        run(maintenance(), QStringLiteral("ALTER DATABASE %1 RENAME TO %2").arg(partial, database));
        std::fprintf(stdout, "  fertig in %.1f s\n", t.elapsed() / 1000.0);
        std::fflush(stdout);
    }
    return address(database);
}

void copy(const QString& from, const QString& to) {
    drop(to);
    // A copy of the files beats copying block by block through the log for large databases.
    QSqlQuery version = run(maintenance(), QStringLiteral("SHOW server_version_num"));
    const bool fileCopy = version.next() && version.value(0).toInt() >= 150000;
    run(maintenance(),
        QStringLiteral("CREATE DATABASE %1 TEMPLATE %2%3")
            .arg(to, from, fileCopy ? QStringLiteral(" STRATEGY FILE_COPY") : QString()));
}

void drop(const QString& database) {
    run(maintenance(), QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(database));
}

Timed rawList(const QString& address, qint64 limit) {
    QElapsedTimer t;
    t.start();
    Timed r;
    {
        const QSqlDatabase db = connectTo(kRaw, PostgresAddress::parse(address));
        QString sql = QStringLiteral("SELECT * FROM V_ZPK_Applications_System_AutoJob");
        if (limit >= 0) {
            sql += QStringLiteral(" LIMIT %1").arg(limit);
        }
        QSqlQuery query = run(db, sql);
        r.rows = readAll(query);
        r.ms = t.nsecsElapsed() / 1e6;
    }
    QSqlDatabase::removeDatabase(kRaw);
    return r;
}

Timed rawHistory(const QString& address, const QString& start) {
    Timed r;
    {
        const QSqlDatabase db = connectTo(kRaw, PostgresAddress::parse(address));
        QElapsedTimer t;
        t.start();
        QSqlQuery query =
            run(db, QStringLiteral("SELECT v.*, s.idAutoJob FROM tAutoJobSchedule s JOIN "
                                   "tAutoJobVerlauf v ON s.idAutoJobSchedule = v.idAutoJobSchedule "
                                   "WHERE s.idAutoJob = 1 AND v.LetzteAusfuehrung >= '%1'")
                        .arg(start));
        r.rows = readAll(query);
        r.ms = t.nsecsElapsed() / 1e6;
    }
    QSqlDatabase::removeDatabase(kRaw);
    return r;
}

Timed rawDelete(const QString& address, const QString& sql) {
    Timed r;
    {
        const QSqlDatabase db = connectTo(kRaw, PostgresAddress::parse(address));
        QElapsedTimer t;
        t.start();
        QSqlQuery query = run(db, sql);
        r.rows = query.numRowsAffected();
        r.ms = t.nsecsElapsed() / 1e6;
    }
    QSqlDatabase::removeDatabase(kRaw);
    return r;
}

}  // namespace ScaleBenchServer
