#include "host/JournalCsv.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTextStream>
#include <memory>

#include "common/ErrObject.h"
#include "common/Recordset.h"
#include "suite/Database.h"

namespace JournalCsv {

namespace {

const QString kKopf = QStringLiteral(
    "Zeitpunkt;Mitarbeiter;Arbeitsplatz;Auftrags-Id;Auftrag;Zeitplan-Id;Zeitplan;Art;Anlass;"
    "Vorher;Nachher");

QString field(const QString& value) {
    if (!value.contains(u';') && !value.contains(u'"') && !value.contains(u'\n') &&
        !value.contains(u'\r')) {
        return value;
    }
    return u'"' + QString(value).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString kindText(long art) {
    switch (art) {
        case 1:
            return QStringLiteral("neu");
        case 2:
            return QStringLiteral("geändert");
        case 3:
            return QStringLiteral("gelöscht");
        default:
            return QString::number(art);
    }
}

// The name a journal row's JSON gives its job or schedule: after the change, else before it.
QString nameIn(const QString& nachher, const QString& vorher) {
    const QString json = nachher.isEmpty() ? vorher : nachher;
    return QJsonDocument::fromJson(json.toUtf8()).object().value(QStringLiteral("Name")).toString();
}

}  // namespace

QString text(Database& database, std::optional<long> jobId) {
    const std::unique_ptr<CRecordset> rs = database.recordsetFactory()();
    rs->Connect();
    QString sql = QStringLiteral(
        "SELECT j.Zeitpunkt, COALESCE(m.Name, '') AS Mitarbeiter, j.Arbeitsplatz, j.idAutoJob, "
        "COALESCE(a.Name, '') AS Auftrag, COALESCE(j.idAutoJobSchedule, 0) AS idAutoJobSchedule, "
        "j.Art, j.Anlass, j.Vorher, j.Nachher FROM tAutoJobJournal j "
        "LEFT JOIN tMitarbeiter m ON m.MitId = j.Ps_Id_Mitarbeiter "
        "LEFT JOIN tAutoJobJob a ON a.idAutoJob = j.idAutoJob");
    if (jobId) {
        sql += QStringLiteral(" WHERE j.idAutoJob = %1").arg(*jobId);
    }
    sql += QStringLiteral(" ORDER BY j.Zeitpunkt, j.idAutoJobJournal");

    QString out = kKopf + QStringLiteral("\r\n");
    if (rs->OpenQuery(sql, 2) >= 1) {
        do {
            const QString vorher = rs->ReadText(QStringLiteral("Vorher"));
            const QString nachher = rs->ReadText(QStringLiteral("Nachher"));
            const long scheduleId = rs->ReadLong(QStringLiteral("idAutoJobSchedule"));
            // A job row names its job as it stood then; a schedule row names its schedule.
            QString job = rs->ReadText(QStringLiteral("Auftrag"));
            QString schedule;
            if (scheduleId == 0) {
                job = nameIn(nachher, vorher);
            } else {
                schedule = nameIn(nachher, vorher);
            }
            const QStringList fields{rs->ReadDate(QStringLiteral("Zeitpunkt"))
                                         .toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")),
                                     rs->ReadText(QStringLiteral("Mitarbeiter")),
                                     rs->ReadText(QStringLiteral("Arbeitsplatz")),
                                     QString::number(rs->ReadLong(QStringLiteral("idAutoJob"))),
                                     job,
                                     scheduleId == 0 ? QString() : QString::number(scheduleId),
                                     schedule,
                                     kindText(rs->ReadLong(QStringLiteral("Art"))),
                                     rs->ReadText(QStringLiteral("Anlass")),
                                     vorher,
                                     nachher};
            QStringList line;
            for (const QString& f : fields) {
                line << field(f);
            }
            out += line.join(u';') + QStringLiteral("\r\n");
        } while (rs->Move(CRecordset::MoveNext));
    }
    rs->Close();
    return out;
}

int command(Database& database, const QString& jobArgument) {
    std::optional<long> jobId;
    if (!jobArgument.isEmpty()) {
        bool ok = false;
        const long id = jobArgument.toLong(&ok);
        if (!ok || id <= 0) {
            QTextStream(stderr) << QStringLiteral(
                                       "Nach --journal steht die Id eines Auftrags (eine Zahl "
                                       "größer als 0), nicht „%1“.\n")
                                       .arg(jobArgument);
            return 1;
        }
        jobId = id;
    }
    try {
        QTextStream out(stdout);
        out.setEncoding(QStringConverter::Utf8);
        out << text(database, jobId);
        return 0;
    } catch (const RaisedError& e) {
        QTextStream(stderr) << QStringLiteral("Das Änderungsprotokoll ist nicht zu lesen: %1\n")
                                   .arg(e.err().Description);
        return 1;
    }
}

}  // namespace JournalCsv
