#pragma once

#include <gtest/gtest.h>

#include <QDateTime>
#include <stdexcept>

#include "suite/ChangeJournal.h"
#include "suite/Database.h"
#include "tests/suite/JournalRows.h"

// What the change journal keeps of writes on a database with the schema; the same on SQLite
// and on the server. On SQLite the time is the clock's, standing at 22.11.2026 10:00:00; the
// server's clock is its own and is checked by the caller.
inline void checkChangeJournal(Database& db) {
    const bool withTime = !db.onServer();
    const QString at = withTime ? QStringLiteral(" 22.11.2026 10:00:00") : QString();
    auto rs = db.recordsetFactory()();
    rs->Connect();
    auto run = [&](const QString& sql) { rs->Execute(sql); };
    auto set = [&](const QString& name, const QString& value) {
        run(ChangeJournal::settingStatement(name, value));
    };
    const QStringList fields{QStringLiteral("Name"), QStringLiteral("Aktiviert")};

    run(
        QStringLiteral("INSERT INTO tAutoJobJob (Name, Aktiviert, Ps_Id_Mitarbeiter, Erstellt) "
                       "VALUES ('Kunden', 1, 3, getdate())"));
    run(
        QStringLiteral("INSERT INTO tAutoJobSchedule (idAutoJob, Name, Ps_Id) VALUES "
                       "(1, 'Nachts', 4), (1, 'Mittags', 4)"));
    // Saved again as it was, by someone else: no change.
    run(
        QStringLiteral("UPDATE tAutoJobJob SET Ps_Id_Mitarbeiter = 9, LetzteAenderung = "
                       "getdate(), Name = 'Kunden'"));
    // A schedule renamed only in case is a change.
    run(QStringLiteral("UPDATE tAutoJobSchedule SET Name = 'nachts' WHERE idAutoJobSchedule = 1"));
    set(ChangeJournal::kAnlass, QStringLiteral("Deaktivieren"));
    run(QStringLiteral("UPDATE tAutoJobJob SET Aktiviert = 0"));
    set(ChangeJournal::kAnlass, QString());
    EXPECT_EQ(journalRows(*rs, fields, withTime),
              QStringList(
                  {QStringLiteral("1 Bearbeiten 3 1 0 Name:->Kunden Aktiviert:->1") + at,
                   QStringLiteral("1 Zeitplan 4 1 1 Name:->Nachts Aktiviert:->1") + at,
                   QStringLiteral("1 Zeitplan 4 1 2 Name:->Mittags Aktiviert:->1") + at,
                   QStringLiteral("2 Zeitplan 4 1 1 Name:Nachts>nachts Aktiviert:1>1") + at,
                   QStringLiteral("2 Deaktivieren 9 1 0 Name:Kunden>Kunden Aktiviert:1>0") + at}));

    // A failed write leaves neither the job nor its journal row.
    EXPECT_THROW(db.inTransaction([&] {
        run(QStringLiteral("INSERT INTO tAutoJobJob (Name) VALUES ('Halb')"));
        throw std::runtime_error("abgebrochen");
    }),
                 std::runtime_error);
    EXPECT_EQ(journalRows(*rs, {}).size(), 5);

    // A deleted job takes its schedules along, said by the staff member who deletes.
    set(ChangeJournal::kMitarbeiter, QStringLiteral("5"));
    run(QStringLiteral("DELETE FROM tAutoJobJob WHERE idAutoJob = 1"));
    const QStringList rows = journalRows(*rs, {QStringLiteral("Name")}, withTime);
    EXPECT_EQ(rows.mid(5), QStringList({QStringLiteral("3 Löschen 5 1 0 Name:Kunden>-") + at,
                                        QStringLiteral("3 Löschen 5 1 1 Name:nachts>-") + at,
                                        QStringLiteral("3 Löschen 5 1 2 Name:Mittags>-") + at}));

    // A connection that names no workstation writes unjournaled (the demo data).
    set(ChangeJournal::kArbeitsplatz, QString());
    run(QStringLiteral("INSERT INTO tAutoJobJob (Name) VALUES ('Demo')"));
    EXPECT_EQ(journalRows(*rs, {}).size(), 8);
    rs->Disconnect();
}
