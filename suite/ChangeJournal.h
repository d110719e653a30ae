#pragma once

#include <QString>

struct sqlite3;

// The change journal of jobs and schedules (tAutoJobJournal) is written by triggers, in the
// statement of the change itself, so that a change and its journal row are stored together or
// not at all, whichever path writes. They journal the writes of a connection that named its
// workstation (kArbeitsplatz, which every connection of the program does when it opens); who
// is kMitarbeiter, else the writer the row names; the cause of a write is kAnlass, else
// "Bearbeiten" for a job, "Zeitplan" for a schedule and "Löschen" for a deleted job.
// A server database has them in its schema; on SQLite they are made on each connection of
// the program (TEMP triggers), so that other SQLite clients, which lack the program's
// functions, keep writing jobs.
namespace ChangeJournal {

inline const QString kArbeitsplatz = QStringLiteral("ajv.arbeitsplatz");
inline const QString kMitarbeiter = QStringLiteral("ajv.mitarbeiter");
inline const QString kAnlass = QStringLiteral("ajv.anlass");

// Makes the triggers on the connection when its database has the journal table; gives
// SQLite's error text when one cannot be made.
QString installSqliteTriggers(sqlite3* db);

// The statement that sets one of the settings above for the connection, on either database.
inline QString settingStatement(const QString& name, const QString& value) {
    return QStringLiteral("SELECT set_config('%1', '%2', false)")
        .arg(name, QString(value).replace(u'\'', QStringLiteral("''")));
}

}  // namespace ChangeJournal
