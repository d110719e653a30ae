#pragma once

#include <QList>
#include <QStringList>

#include "suite/SchemaUpgrade.h"

// The upgrade's steps for full-text tables (SQLite FTS5), apart from the others: a virtual
// table makes its shadow tables itself, and one that indexes another table's texts starts
// empty and is filled from that table's rows once.
namespace SchemaUpgradeFullText {

// A table that a virtual table of the schema makes for itself.
bool isShadowTable(const QList<SchemaObject>& schema, const SchemaObject& object);
// What follows the creation of the object: the filling of a full-text table from its rows.
QStringList afterCreate(const SchemaObject& object);

}  // namespace SchemaUpgradeFullText
