#pragma once

#include <QDateTime>
#include <memory>

#include "common/Clock.h"
#include "common/Services.h"
#include "suite/Database.h"

// A log of 100,000 entries whose dates are not in the order of their ids, with repeated
// dates, NULL texts and a nullable number, behind a view like the log viewer's (vEintrag).
inline std::shared_ptr<Database> makeBrowserTestDatabase() {
    auto db =
        Database::open(QStringLiteral(":memory:"),
                       std::make_shared<FixedClock>(QDateTime(QDate(2026, 11, 22), QTime(10, 0))));
    db->applySchema();
    db->runScript(QStringLiteral(
        "CREATE TABLE tEintrag (Id INTEGER PRIMARY KEY, Datum DATETIME, Typ INTEGER, "
        "  Wert INTEGER, Text TEXT);"
        "CREATE INDEX ixEintragDatum ON tEintrag (Datum);"
        "CREATE VIEW vEintrag AS SELECT Id, Typ, Datum AS [Datum/Uhrzeit], Wert, "
        "  COALESCE(Text, '') AS Text, Text AS Roh FROM tEintrag;"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) "
        "INSERT INTO tEintrag SELECT i, "
        "  datetime(1609459200 + ((i * 7919) % 50000) * 600, 'unixepoch'), "
        "  1 + i % 3, CASE WHEN i % 13 = 0 THEN NULL ELSE (i * 31) % 1000 END, "
        "  CASE WHEN i % 17 = 0 THEN NULL ELSE 'Eintrag ' || (i % 977) END FROM n;"));
    return db;
}

// A registry whose record sets work on the database.
inline Services browserTestWorld(const std::shared_ptr<Database>& db) {
    Services s;
    s.newRecordset = db->recordsetFactory();
    return s;
}
