#include "host/JobTransfer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include "common/ErrorExit.h"
#include "host/JobTransferFields.h"
#include "host/JobTransferSql.h"
#include "jobs/JobRecord.h"
#include "jobs/JobTypes.h"
#include "jobs/Zusatzinfo.h"

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

QString datePart(const QVariant& v) {
    return v.toString().left(10);
}

QJsonArray schedulesOf(const QSqlDatabase& db, long jobId) {
    QSqlQuery q = run(db,
                      QStringLiteral("select Name, Aktiviert, FreqencyType, FrequencyInterval, "
                                     "FrequencyRecurrenceFactor, FrequencyRelativeInterval, "
                                     "FrequencySubDay, FrequencySubDayinterval, "
                                     "ActiveStartTimeOfDay, ActiveEndTimeOfDay, ActiveStartDate, "
                                     "ActiveEndDate from tAutoJobSchedule where idAutoJob = ? "
                                     "order by idAutoJobSchedule"),
                      {QVariant::fromValue<qlonglong>(jobId)});
    QJsonArray schedules;
    while (q.next()) {
        QJsonObject s;
        s[Key::kName] = q.value(0).toString();
        s[Key::kAktiviert] = q.value(1).toInt() != 0;
        s[Key::kTyp] = q.value(2).toInt();
        s[Key::kIntervall] = q.value(3).toInt();
        s[Key::kWiederholung] = q.value(4).toInt();
        s[Key::kRelativesIntervall] = q.value(5).toInt();
        s[Key::kTagesEinheit] = q.value(6).toInt();
        s[Key::kTagesIntervall] = q.value(7).toInt();
        s[Key::kStartZeit] = timeText(q.value(8).toInt());
        s[Key::kEndZeit] = timeText(q.value(9).toInt());
        s[Key::kStartDatum] = datePart(q.value(10));
        s[Key::kEndDatum] = datePart(q.value(11));
        schedules.append(s);
    }
    return schedules;
}

QJsonObject jobOf(const QSqlDatabase& db, const QSqlRecord& q) {
    const long id = q.value(0).toLongLong();
    const int art = q.value(2).toInt();
    QJsonObject job;
    job[Key::kName] = q.value(1).toString();
    job[Key::kAuftragsart] = art;
    job[Key::kBeschreibung] = q.value(3).toString();
    job[Key::kAktiviert] = q.value(4).toInt() != 0;
    job[Key::kMandant] = clientNumber(db, q.value(8).toLongLong());
    job[Key::kMandKanz] = q.value(9).toInt();
    job[Key::kEinzelLog] = q.value(12).toInt() != 0;
    job[Key::kFremdFormat] = q.value(13).toInt() != 0;
    job[Key::kFremdDateifilter] = q.value(14).toString();
    job[Key::kFremdMapping] = q.value(15).toString();
    job[Key::kVerzeichnis3] = q.value(7).toString();
    if (jobHatArchivAnmeldung(art)) {
        // The archive login: the staff member by name; the password stays behind.
        job[Key::kMitarbeiter] = staffName(db, q.value(5).toString().toLong());
    } else {
        job[Key::kVerzeichnis1] = q.value(5).toString();
        job[Key::kVerzeichnis2] = q.value(6).toString();
    }
    const Zusatzinfo info = zusatzinfoLesen(
        art, zusatzinfoMitVorgabe(art, q.value(11).toString(), q.value(10).toLongLong()));
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
    job[Key::kZeitplaene] = schedulesOf(db, id);
    return job;
}

}  // namespace

QByteArray exportJobs(const QString& connectionName, const QList<long>& jobIds) {
    const QSqlDatabase db = QSqlDatabase::database(connectionName, false);
    QSqlQuery q = run(db, QStringLiteral("select idAutoJob, Name, DatenArt, Beschreibung, "
                                         "Aktiviert, MTAPath, BackupPath, ErrorMTA, "
                                         "Ps_Id_Mandant, MandKanz, Ps_Id_Mitarbeiter, Zusatzinfo, "
                                         "SingleLog, FremdFormat, FremdDateifilter, FremdMapping "
                                         "from tAutoJobJob order by idAutoJob"));
    // Every job is read before the first of its schedules: a connection to a server delivers
    // the rows of one query at a time.
    QList<QSqlRecord> rows;
    while (q.next()) {
        if (jobIds.isEmpty() || jobIds.contains(static_cast<long>(q.value(0).toLongLong()))) {
            rows << q.record();
        }
    }
    QJsonArray jobs;
    for (const QSqlRecord& row : rows) {
        jobs.append(jobOf(db, row));
    }
    QJsonObject document;
    document[Key::kFormat] = kFormat;
    document[Key::kVersion] = kVersion;
    document[Key::kAuftraege] = jobs;
    return QJsonDocument(document).toJson(QJsonDocument::Indented);
}

}  // namespace JobTransfer
