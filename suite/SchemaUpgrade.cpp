#include "suite/SchemaUpgrade.h"

#include <sqlite3.h>

#include "suite/SchemaUpgradeFullText.h"
#include "suite/SqlErrors.h"

namespace {

QString text(sqlite3_stmt* st, int column) {
    const auto* value = sqlite3_column_text(st, column);
    return value ? QString::fromUtf8(reinterpret_cast<const char*>(value)) : QString();
}

QList<SchemaObject> objectsOf(sqlite3* db) {
    QList<SchemaObject> objects;
    sqlite3_stmt* st = nullptr;
    const char* sql =
        "SELECT type, name, sql FROM sqlite_master WHERE sql IS NOT NULL "
        "AND name NOT LIKE 'sqlite_%' ORDER BY rowid";
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) != SQLITE_OK) {
        throw SqlErrors::raised(ErrNumber::Internal, QString::fromUtf8(sqlite3_errmsg(db)));
    }
    while (sqlite3_step(st) == SQLITE_ROW) {
        objects << SchemaObject{text(st, 0), text(st, 1), text(st, 2)};
    }
    sqlite3_finalize(st);
    return objects;
}

}  // namespace

QList<SchemaObject> schemaObjects(const QString& script) {
    sqlite3* scratch = nullptr;
    sqlite3_open(":memory:", &scratch);
    char* message = nullptr;
    if (sqlite3_exec(scratch, script.toUtf8().constData(), nullptr, nullptr, &message) !=
        SQLITE_OK) {
        const QString why = QString::fromUtf8(message ? message : "");
        sqlite3_free(message);
        sqlite3_close(scratch);
        throw SqlErrors::raised(ErrNumber::Internal, why);
    }
    QList<SchemaObject> objects = objectsOf(scratch);
    sqlite3_close(scratch);
    return objects;
}

QStringList schemaUpgrade(sqlite3* db, const QString& script) {
    QList<SchemaObject> present = objectsOf(db);
    const auto find = [&present](const SchemaObject& o) -> const SchemaObject* {
        for (const SchemaObject& p : present) {
            if (p.type == o.type && p.name.compare(o.name, Qt::CaseInsensitive) == 0) {
                return &p;
            }
        }
        return nullptr;
    };
    QStringList statements;
    const QList<SchemaObject> schema = schemaObjects(script);
    for (const SchemaObject& wanted : schema) {
        if (SchemaUpgradeFullText::isShadowTable(schema, wanted)) {
            continue;
        }
        const SchemaObject* have = find(wanted);
        if (!have) {
            statements << wanted.sql << SchemaUpgradeFullText::afterCreate(wanted);
        } else if (wanted.type == QLatin1String("view") && have->sql != wanted.sql) {
            statements << QStringLiteral("DROP VIEW \"%1\"").arg(have->name) << wanted.sql;
        }
    }
    return statements;
}
