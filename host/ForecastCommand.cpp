#include "host/ForecastCommand.h"

#include <QDateTime>
#include <algorithm>
#include <vector>

#include "app/cSchedule.h"
#include "common/Recordset.h"
#include "forecast/RunForecast.h"
#include "forecast/ScheduleRuleOf.h"
#include "schedule/ScheduleStore.h"
#include "suite/Database.h"

namespace ForecastCommand {

namespace {

constexpr qint64 kEpochDay = 2440588;  // Julian day of 1970-01-01

// A local time as the wall clock reading; false when the text is no such time.
bool wallOf(const QString& text, qint64& wall) {
    const QDateTime t = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (!t.isValid()) {
        return false;
    }
    wall = (t.date().toJulianDay() - kEpochDay) * LocalClock::kDay +
           t.time().msecsSinceStartOfDay() / 1000;
    return true;
}

QString schedulesQuery(long jobId) {
    QString sql = QStringLiteral(
        "select s.* from tAutoJobSchedule s inner join tAutoJobJob j on j.idAutoJob = "
        "s.idAutoJob where s.Aktiviert <> 0 and j.Aktiviert <> 0");
    if (jobId > 0) {
        sql += QStringLiteral(" and j.idAutoJob = ") + QString::number(jobId);
    }
    // In the order of the lines at one moment: a stable sort by time alone keeps it.
    return sql + QStringLiteral(" order by s.idAutoJob, s.idAutoJobSchedule");
}

bool jobExists(CRecordset& recordset, long jobId) {
    const bool found =
        recordset.OpenQuery(QStringLiteral("select idAutoJob from tAutoJobJob where idAutoJob = ") +
                                QString::number(jobId),
                            2) >= 1;
    recordset.Close();
    return found;
}

// Stable by time. A month holds a million starts: two passes of a counting sort over the
// seconds from the period's start, where they fit into 32 bits.
void sortByTime(QList<PlannedStart>& starts, qint64 fromUtc, qint64 toUtc) {
    if (toUtc - fromUtc >= (qint64(1) << 32)) {
        std::stable_sort(
            starts.begin(), starts.end(),
            [](const PlannedStart& x, const PlannedStart& y) { return x.utc < y.utc; });
        return;
    }
    std::vector<PlannedStart> sorted(static_cast<size_t>(starts.size()));
    std::vector<qsizetype> at(65537);
    for (const int shift : {0, 16}) {
        std::fill(at.begin(), at.end(), 0);
        for (const PlannedStart& p : std::as_const(starts)) {
            ++at[((p.utc - fromUtc) >> shift & 0xFFFF) + 1];
        }
        for (size_t k = 1; k < at.size(); ++k) {
            at[k] += at[k - 1];
        }
        for (const PlannedStart& p : std::as_const(starts)) {
            sorted[static_cast<size_t>(at[(p.utc - fromUtc) >> shift & 0xFFFF]++)] = p;
        }
        std::copy(sorted.begin(), sorted.end(), starts.begin());
    }
}

}  // namespace

QList<PlannedStart> plannedStarts(Database& database, qint64 fromUtc, qint64 toUtc, long jobId,
                                  LocalClock& clock) {
    QList<PlannedStart> starts;
    const std::unique_ptr<CRecordset> recordset = database.recordsetFactory()();
    recordset->Connect();
    if (recordset->OpenQuery(schedulesQuery(jobId), 2) >= 1) {
        do {
            cSchedule o;
            ScheduleStore::readColumns(*recordset, o);
            const long job = recordset->ReadLong(QStringLiteral("idAutoJob"));
            const long schedule = recordset->ReadLong(QStringLiteral("idAutoJobSchedule"));
            RunForecast::eachRun(scheduleRuleOf(o), fromUtc, toUtc, clock,
                                 [&](const ForecastRun& r) {
                                     starts.append({r.utc, r.wall, job, schedule});
                                     return true;
                                 });
        } while (recordset->Move(CRecordset::MoveNext));
    }
    recordset->Close();
    recordset->Disconnect();
    sortByTime(starts, fromUtc, toUtc);
    return starts;
}

int run(Database& database, const Arguments& a, const QTimeZone& zone, QTextStream& out,
        QTextStream& err) {
    const QString form = QStringLiteral("(Form: yyyy-MM-dd HH:mm:ss)");
    LocalClock clock(zone);
    qint64 fromUtc = database.clock().now().toSecsSinceEpoch();
    qint64 fromWall = clock.wallAt(fromUtc);
    if (!a.von.isEmpty()) {
        if (!wallOf(a.von, fromWall)) {
            err << "--von: \"" << a.von << "\" ist kein gültiger Zeitpunkt " << form << ".\n";
            return 1;
        }
        fromUtc = clock.at(fromWall).utc;
    }
    qint64 toWall = fromWall + 7 * LocalClock::kDay;
    if (!a.bis.isEmpty() && !wallOf(a.bis, toWall)) {
        err << "--bis: \"" << a.bis << "\" ist kein gültiger Zeitpunkt " << form << ".\n";
        return 1;
    }
    const qint64 toUtc = clock.at(toWall).utc;
    if (toUtc < fromUtc) {
        err << "--bis liegt vor --von.\n";
        return 1;
    }
    long jobId = 0;
    if (!a.auftrag.isEmpty()) {
        bool ok = false;
        jobId = a.auftrag.toLong(&ok);
        if (!ok || jobId <= 0) {
            err << "--auftrag: \"" << a.auftrag << "\" ist keine Auftragsnummer.\n";
            return 1;
        }
    }

    const std::unique_ptr<CRecordset> recordset = database.recordsetFactory()();
    recordset->Connect();
    if (jobId > 0 && !jobExists(*recordset, jobId)) {
        recordset->Disconnect();
        err << "Den Auftrag " << jobId << " gibt es nicht.\n";
        return 1;
    }
    recordset->Disconnect();
    for (const PlannedStart& l : plannedStarts(database, fromUtc, toUtc, jobId, clock)) {
        out << RunForecast::storedText(l.wall) << '\t' << l.job << '\t' << l.schedule << '\n';
    }
    out.flush();
    return 0;
}

}  // namespace ForecastCommand
