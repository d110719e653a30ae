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

// Column name and its definition as ALTER TABLE ... ADD COLUMN takes it.
QList<QPair<QString, QString>> columnsOf(sqlite3* db, const QString& table) {
    QList<QPair<QString, QString>> columns;
    sqlite3_stmt* st = nullptr;
    const QByteArray sql = "PRAGMA table_info(\"" +
                           QString(table).replace(u'"', QStringLiteral("\"\"")).toUtf8() + "\")";
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &st, nullptr) != SQLITE_OK) {
        throw SqlErrors::raised(ErrNumber::Internal, QString::fromUtf8(sqlite3_errmsg(db)));
    }
    while (sqlite3_step(st) == SQLITE_ROW) {
        const QString name = text(st, 1);
        QString definition = u'"' + name + QStringLiteral("\" ") + text(st, 2);
        if (sqlite3_column_int(st, 3) != 0) {
            definition += QStringLiteral(" NOT NULL");
        }
        if (sqlite3_column_type(st, 4) != SQLITE_NULL) {
            definition += QStringLiteral(" DEFAULT ") + text(st, 4);
        }
        columns.append({name, definition});
    }
    sqlite3_finalize(st);
    return columns;
}

// The columns a table of the schema has and the database's table of that name lacks.
QStringList missingColumns(sqlite3* db, sqlite3* wanted, const QString& table) {
    QStringList present;
    for (const auto& column : columnsOf(db, table)) {
        present << column.first.toLower();
    }
    QStringList statements;
    for (const auto& column : columnsOf(wanted, table)) {
        if (!present.contains(column.first.toLower())) {
            statements
                << QStringLiteral("ALTER TABLE \"%1\" ADD COLUMN %2").arg(table, column.second);
        }
    }
    return statements;
}

sqlite3* scratchOf(const QString& script) {
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
    return scratch;
}

}  // namespace

QList<SchemaObject> schemaObjects(const QString& script) {
    sqlite3* scratch = scratchOf(script);
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
    sqlite3* scratch = scratchOf(script);
    const QList<SchemaObject> schema = objectsOf(scratch);
    // Columns first: a trigger or view made afterwards may name them.
    for (const SchemaObject& wanted : schema) {
        if (wanted.type == QLatin1String("table") && find(wanted) &&
            !SchemaUpgradeFullText::isShadowTable(schema, wanted)) {
            try {
                statements << missingColumns(db, scratch, wanted.name);
            } catch (...) {
                sqlite3_close(scratch);
                throw;
            }
        }
    }
    sqlite3_close(scratch);
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
