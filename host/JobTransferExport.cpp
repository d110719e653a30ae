#include "host/JobTransfer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include "app/cSchedule.h"
#include "common/ErrorExit.h"
#include "common/Recordset.h"
#include "host/JobTransferFields.h"
#include "host/JobTransferSql.h"
#include "jobs/JobRecord.h"
#include "jobs/JobStore.h"
#include "jobs/JobTypes.h"
#include "jobs/Zusatzinfo.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTime.h"
#include "suite/Database.h"

namespace JobTransfer {

namespace {

QString staffName(const QSqlDatabase& db, long id) {
    if (id <= 0) {
        return {};
    }
    QSqlQuery q = run(db, QStringLiteral("select Name from tMitarbeiter where MitId = ?"),
                      {QVariant::fromValue<qlonglong>(id)});
    return q.next() ? q.value(0).toString() : QString();
}

QString clientNumber(const QSqlDatabase& db, long id) {
    if (id <= 0) {
        return {};
    }
    QSqlQuery q = run(db, QStringLiteral("select ManNr, Kanzlei from tMandant where ManId = ?"),
                      {QVariant::fromValue<qlonglong>(id)});
    if (!q.next()) {
        return {};
    }
    return (q.value(1).toInt() != 0 ? QStringLiteral("K") : QString()) + q.value(0).toString();
}

QString dayOf(const QDateTime& moment) {
    return moment.date().toString(QStringLiteral("yyyy-MM-dd"));
}

QJsonArray schedulesOf(CRecordset& recordset, long jobId) {
    QJsonArray schedules;
    if (recordset.OpenQuery(ScheduleStore::jobSchedulesQuery(jobId), 2) >= 1) {
        do {
            cSchedule o;
            ScheduleStore::readColumns(recordset, o);
            QJsonObject s;
            s[Key::kName] = o.psName;
            s[Key::kAktiviert] = o.pbyAktiviert != 0;
            s[Key::kTyp] = static_cast<int>(o.plFrequencyType);
            s[Key::kIntervall] = static_cast<int>(o.plFrequencyIntervall);
            s[Key::kWiederholung] = static_cast<int>(o.plFrequencyRecurreFactor);
            s[Key::kRelativesIntervall] = static_cast<int>(o.plFrequencyRelativeIntervall);
            s[Key::kTagesEinheit] = static_cast<int>(o.plFrequencySubDay);
            s[Key::kTagesIntervall] = static_cast<int>(o.plFrequencySubDayIntervall);
            s[Key::kStartZeit] = timeText(zeitAlsZahl(o.pvActiveStartTimeOfDay));
            s[Key::kEndZeit] = timeText(zeitAlsZahl(o.pvActiveEndTimeOfDay));
            s[Key::kStartDatum] = dayOf(o.pdtActiveStartDate);
            s[Key::kEndDatum] = dayOf(o.pdtActiveEndDate);
            schedules.append(s);
        } while (recordset.Move(CRecordset::MoveNext));
    }
    recordset.Close();
    return schedules;
}

QJsonObject jobOf(const QSqlDatabase& db, const JobRecord& rec) {
    const int art = rec.bytDatenArt;
    QJsonObject job;
    job[Key::kName] = rec.sName;
    job[Key::kAuftragsart] = art;
    job[Key::kBeschreibung] = rec.sBeschreibung;
    job[Key::kAktiviert] = rec.bytAktiviert != 0;
    job[Key::kMandant] = clientNumber(db, rec.lMandant);
    job[Key::kMandKanz] = rec.bytMandKanz;
    job[Key::kEinzelLog] = rec.bSingleLog;
    job[Key::kFremdFormat] = rec.bFremdFormat;
    job[Key::kFremdDateifilter] = rec.sFremdDateifilter;
    job[Key::kFremdMapping] = rec.sFremdMapping;
    job[Key::kVerzeichnis3] = rec.sVerzeichnis3;
    if (jobHatArchivAnmeldung(art)) {
        // The archive login: the staff member by name; the password stays behind.
        job[Key::kMitarbeiter] = staffName(db, rec.lArchivMitarbeiter);
    } else {
        job[Key::kVerzeichnis1] = rec.sVerzeichnis1;
        job[Key::kVerzeichnis2] = rec.sVerzeichnis2;
    }
    const Zusatzinfo info = zusatzinfoLesen(art, rec.sZusatzinfo);
    if (zusatzinfoMitMitarbeiter(art)) {
        job[Key::kMitarbeiter] = staffName(db, info.lMitarbeiterId);
    }
    if (art == DatenArt::Nivora) {
        job[Key::kHaendlerSchluessel] = static_cast<int>(info.lHaendlerSchluessel);
    }
    if (art == DatenArt::Textdatei) {
        job[Key::kSkript] = info.sSkript;
        job[Key::kTextdateien] = info.sTextdateien;
    }
    return job;
}

}  // namespace

QByteArray exportJobs(Database& database, const QList<long>& jobIds) {
    const QSqlDatabase db = QSqlDatabase::database(database.connectionName(), false);
    const std::unique_ptr<CRecordset> recordset = database.recordsetFactory()();
    recordset->Connect();
    // The jobs are read through the editor's reader, each before the first of its schedules:
    // a connection to a server delivers the rows of one query at a time.
    QList<JobRecord> records;
    if (recordset->OpenQuery(JobStore::allRowsQuery(), 2) >= 1) {
        do {
            const long id = recordset->ReadLong(QStringLiteral("idAutoJob"));
            if (jobIds.isEmpty() || jobIds.contains(id)) {
                JobRecord rec;
                rec.lJobId = id;
                JobStore::readColumns(*recordset, rec);
                records << rec;
            }
        } while (recordset->Move(CRecordset::MoveNext));
    }
    recordset->Close();
    QJsonArray jobs;
    for (const JobRecord& rec : records) {
        QJsonObject job = jobOf(db, rec);
        job[Key::kZeitplaene] = schedulesOf(*recordset, rec.lJobId);
        jobs.append(job);
    }
    recordset->Disconnect();
    QJsonObject document;
    document[Key::kFormat] = kFormat;
    document[Key::kVersion] = kVersion;
    document[Key::kAuftraege] = jobs;
    return QJsonDocument(document).toJson(QJsonDocument::Indented);
}

}  // namespace JobTransfer
