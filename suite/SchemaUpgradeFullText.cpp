#include "suite/SchemaUpgradeFullText.h"

namespace {

bool isVirtual(const SchemaObject& o) {
    return o.type == QLatin1String("table") &&
           o.sql.startsWith(QStringLiteral("CREATE VIRTUAL TABLE"), Qt::CaseInsensitive);
}

}  // namespace

namespace SchemaUpgradeFullText {

bool isShadowTable(const QList<SchemaObject>& schema, const SchemaObject& object) {
    if (object.type != QLatin1String("table") || isVirtual(object)) {
        return false;
    }
    for (const SchemaObject& v : schema) {
        if (isVirtual(v) && object.name.startsWith(v.name + u'_', Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

QStringList afterCreate(const SchemaObject& object) {
    if (!isVirtual(object) ||
        !object.sql.contains(QStringLiteral("content="), Qt::CaseInsensitive)) {
        return {};
    }
    return {QStringLiteral("INSERT INTO \"%1\" (\"%1\") VALUES ('rebuild')").arg(object.name)};
}

}  // namespace SchemaUpgradeFullText
