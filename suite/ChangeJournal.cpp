#include "suite/ChangeJournal.h"

#include <sqlite3.h>

#include <QStringList>

namespace ChangeJournal {

namespace {

const QStringList kJobColumns{QStringLiteral("idAutoJob"),    QStringLiteral("Erstellt"),
                              QStringLiteral("Name"),         QStringLiteral("Beschreibung"),
                              QStringLiteral("Aktiviert"),    QStringLiteral("DatenArt"),
                              QStringLiteral("MTAPath"),      QStringLiteral("BackupPath"),
                              QStringLiteral("ErrorMTA"),     QStringLiteral("Ps_Id_Mandant"),
                              QStringLiteral("MandKanz"),     QStringLiteral("Ps_Id_Mitarbeiter"),
                              QStringLiteral("Zusatzinfo"),   QStringLiteral("SingleLog"),
                              QStringLiteral("FremdFormat"),  QStringLiteral("FremdDateifilter"),
                              QStringLiteral("FremdMapping"), QStringLiteral("LetzteAenderung")};
const QStringList kScheduleColumns{QStringLiteral("idAutoJobSchedule"),
                                   QStringLiteral("idAutoJob"),
                                   QStringLiteral("Name"),
                                   QStringLiteral("Aktiviert"),
                                   QStringLiteral("FreqencyType"),
                                   QStringLiteral("FrequencyRecurrenceFactor"),
                                   QStringLiteral("FrequencyInterval"),
                                   QStringLiteral("FrequencyRelativeInterval"),
                                   QStringLiteral("FrequencySubDayinterval"),
                                   QStringLiteral("FrequencySubDay"),
                                   QStringLiteral("ActiveStartTimeOfDay"),
                                   QStringLiteral("ActiveEndTimeOfDay"),
                                   QStringLiteral("ActiveStartDate"),
                                   QStringLiteral("ActiveEndDate"),
                                   QStringLiteral("LetzteAenderung"),
                                   QStringLiteral("Ps_Id")};
// A save stamps who and when and counts the row's version even when nothing else changed:
// such a save is no change.
const QStringList kStamps{QStringLiteral("idAutoJobSchedule"), QStringLiteral("Ps_Id_Mitarbeiter"),
                          QStringLiteral("Ps_Id"), QStringLiteral("LetzteAenderung")};

QString jsonOf(const QString& row, const QStringList& columns) {
    QStringList pairs;
    for (const QString& c : columns) {
        pairs << QStringLiteral("'%1', %2.%1").arg(c, row);
    }
    return QStringLiteral("json_object(%1)").arg(pairs.join(QStringLiteral(", ")));
}

QString changed(const QStringList& columns) {
    QStringList tests;
    for (const QString& c : columns) {
        if (!kStamps.contains(c)) {
            tests << QStringLiteral("NEW.%1 IS NOT OLD.%1 COLLATE BINARY").arg(c);
        }
    }
    return tests.join(QStringLiteral(" OR "));
}

QString setting(const QString& name) {
    return QStringLiteral("current_setting('%1', 1)").arg(name);
}

// One journal row; the values are expressions of the trigger.
QString journalRow(const QString& who, const QString& job, const QString& schedule, int art,
                   const QString& vorher, const QString& nachher, const QString& anlass) {
    return QStringLiteral(
               "SELECT getdate(), COALESCE(NULLIF(CAST(%1 AS INTEGER), 0), %2, 0), %3, %4, %5, %6, "
               "%7, "
               "%8, "
               "COALESCE(NULLIF(%9, ''), '%10')")
        .arg(setting(kMitarbeiter), who, setting(kArbeitsplatz), job, schedule)
        .arg(art)
        .arg(vorher, nachher, setting(kAnlass), anlass);
}

const QString kInsert = QStringLiteral(
    "INSERT INTO tAutoJobJournal (Zeitpunkt, Ps_Id_Mitarbeiter, Arbeitsplatz, idAutoJob, "
    "idAutoJobSchedule, Art, Vorher, Nachher, Anlass) ");

QString trigger(const QString& name, const QString& event, const QString& table,
                const QString& condition, const QStringList& statements) {
    QString body;
    for (const QString& s : statements) {
        body += QStringLiteral("    ") + kInsert + s + QStringLiteral(";\n");
    }
    return QStringLiteral(
               "CREATE TEMP TRIGGER IF NOT EXISTS %1 AFTER %2 ON %3 FOR EACH ROW WHEN "
               "COALESCE(%4, '') <> ''%5\nBEGIN\n%6END")
        .arg(name, event, table, setting(kArbeitsplatz),
             condition.isEmpty() ? QString() : QStringLiteral(" AND (%1)").arg(condition), body);
}

QStringList sqliteTriggers() {
    const QString job = QStringLiteral("tAutoJobJob");
    const QString schedule = QStringLiteral("tAutoJobSchedule");
    const QString null = QStringLiteral("NULL");
    const QString bearbeiten = QStringLiteral("Bearbeiten");
    const QString zeitplan = QStringLiteral("Zeitplan");
    return {
        trigger(
            QStringLiteral("trAutoJobJob_Journal_Neu"), QStringLiteral("INSERT"), job, {},
            {journalRow(QStringLiteral("NEW.Ps_Id_Mitarbeiter"), QStringLiteral("NEW.idAutoJob"),
                        null, 1, null, jsonOf(QStringLiteral("NEW"), kJobColumns), bearbeiten)}),
        trigger(
            QStringLiteral("trAutoJobJob_Journal_Aenderung"), QStringLiteral("UPDATE"), job,
            changed(kJobColumns),
            {journalRow(QStringLiteral("NEW.Ps_Id_Mitarbeiter"), QStringLiteral("NEW.idAutoJob"),
                        null, 2, jsonOf(QStringLiteral("OLD"), kJobColumns),
                        jsonOf(QStringLiteral("NEW"), kJobColumns), bearbeiten)}),
        // A deleted job takes its schedules with it, as far as the journal is concerned.
        trigger(
            QStringLiteral("trAutoJobJob_Journal_Loeschung"), QStringLiteral("DELETE"), job, {},
            {journalRow(QStringLiteral("OLD.Ps_Id_Mitarbeiter"), QStringLiteral("OLD.idAutoJob"),
                        null, 3, jsonOf(QStringLiteral("OLD"), kJobColumns), null,
                        QStringLiteral("Löschen")),
             journalRow(QStringLiteral("OLD.Ps_Id_Mitarbeiter"), QStringLiteral("s.idAutoJob"),
                        QStringLiteral("s.idAutoJobSchedule"), 3,
                        jsonOf(QStringLiteral("s"), kScheduleColumns), null,
                        QStringLiteral("Löschen")) +
                 QStringLiteral(" FROM tAutoJobSchedule s WHERE s.idAutoJob = OLD.idAutoJob "
                                "ORDER BY s.idAutoJobSchedule")}),
        trigger(QStringLiteral("trAutoJobSchedule_Journal_Neu"), QStringLiteral("INSERT"), schedule,
                {},
                {journalRow(QStringLiteral("NEW.Ps_Id"), QStringLiteral("NEW.idAutoJob"),
                            QStringLiteral("NEW.idAutoJobSchedule"), 1, null,
                            jsonOf(QStringLiteral("NEW"), kScheduleColumns), zeitplan)}),
        trigger(QStringLiteral("trAutoJobSchedule_Journal_Aenderung"), QStringLiteral("UPDATE"),
                schedule, changed(kScheduleColumns),
                {journalRow(QStringLiteral("NEW.Ps_Id"), QStringLiteral("NEW.idAutoJob"),
                            QStringLiteral("NEW.idAutoJobSchedule"), 2,
                            jsonOf(QStringLiteral("OLD"), kScheduleColumns),
                            jsonOf(QStringLiteral("NEW"), kScheduleColumns), zeitplan)}),
        trigger(QStringLiteral("trAutoJobSchedule_Journal_Loeschung"), QStringLiteral("DELETE"),
                schedule, {},
                {journalRow(QStringLiteral("OLD.Ps_Id"), QStringLiteral("OLD.idAutoJob"),
                            QStringLiteral("OLD.idAutoJobSchedule"), 3,
                            jsonOf(QStringLiteral("OLD"), kScheduleColumns), null, zeitplan)}),
    };
}

}  // namespace

QString installSqliteTriggers(sqlite3* db) {
    sqlite3_stmt* st = nullptr;
    bool present = false;
    if (sqlite3_prepare_v2(db,
                           "SELECT 1 FROM main.sqlite_master WHERE type = 'table' AND name = "
                           "'tAutoJobJournal' COLLATE NOCASE",
                           -1, &st, nullptr) == SQLITE_OK) {
        present = sqlite3_step(st) == SQLITE_ROW;
    }
    sqlite3_finalize(st);
    if (!present) {
        return {};
    }
    for (const QString& statement : sqliteTriggers()) {
        if (sqlite3_exec(db, statement.toUtf8().constData(), nullptr, nullptr, nullptr) !=
            SQLITE_OK) {
            return QString::fromUtf8(sqlite3_errmsg(db));
        }
    }
    return {};
}

}  // namespace ChangeJournal
