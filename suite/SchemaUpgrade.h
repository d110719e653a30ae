#pragma once

#include <QList>
#include <QString>

struct sqlite3;

// One object of a schema as SQLite keeps it.
struct SchemaObject {
    QString type;  // table, index, view, trigger
    QString name;
    QString sql;
};

// The objects a schema script creates, in the order it creates them; the script is run on an
// empty database of its own.
QList<SchemaObject> schemaObjects(const QString& script);

// The statements that bring a database made by an earlier version up to the script's schema:
// what is missing is created, a view that reads otherwise is made anew. Tables that exist
// keep their rows and columns and get the columns they lack, with their defaults.
QStringList schemaUpgrade(sqlite3* db, const QString& script);
