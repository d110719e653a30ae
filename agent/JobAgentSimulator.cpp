#include "agent/JobAgentSimulator.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTimeZone>
#include <array>
#include <queue>

#include "agent/AgentWriter.h"
#include "forecast/RunForecast.h"
#include "suite/Database.h"
#include "suite/SqlErrors.h"

namespace {

// Seconds on a plain calendar: day number times 86400 plus the time of day.
qint64 secondsOf(const QDateTime& t) {
    return t.date().toJulianDay() * 86400 + t.time().msecsSinceStartOfDay() / 1000;
}

QDateTime fromSeconds(qint64 s) {
    return QDateTime(QDate::fromJulianDay(s / 86400),
                     QTime(0, 0).addSecs(static_cast<int>(s % 86400)));
}

// 'yyyy-MM-dd HH:mm:ss' without the cost of a general formatter: bulk writes millions.
QByteArray storedText(qint64 s) {
    const QDate d = QDate::fromJulianDay(s / 86400);
    const int secs = static_cast<int>(s % 86400);
    char buf[20];
    auto put = [&buf](int at, int value, int digits) {
        for (int k = digits - 1; k >= 0; --k) {
            buf[at + k] = static_cast<char>('0' + value % 10);
            value /= 10;
        }
    };
    put(0, d.year(), 4);
    buf[4] = '-';
    put(5, d.month(), 2);
    buf[7] = '-';
    put(8, d.day(), 2);
    buf[10] = ' ';
    put(11, secs / 3600, 2);
    buf[13] = ':';
    put(14, secs / 60 % 60, 2);
    buf[16] = ':';
    put(17, secs % 60, 2);
    return QByteArray(buf, 19);
}

// A file in a directory, with the directory's own separator.
QString inDirectory(const QString& dir, const QString& name) {
    return dir + (dir.contains(u'\\') || !dir.contains(u'/') ? u'\\' : u'/') + name;
}

// Julian day of 1970-01-01: a wall clock reading of the forecast in the seconds used here.
constexpr qint64 kEpochSeconds = 2440588LL * 86400;

// A date column as the system reads it: NULL is the zero date.
QDate dateOf(const QVariant& v) {
    if (v.isNull()) {
        return QDate(1899, 12, 30);
    }
    if (v.typeId() == QMetaType::QDateTime || v.typeId() == QMetaType::QDate) {
        return v.toDate();
    }
    return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

}  // namespace

JobAgentSimulator::JobAgentSimulator(std::shared_ptr<Database> database, AgentOptions options)
    : database_(std::move(database)),
      options_(options),
      writer_(AgentWriter::forDatabase(*database_)),
      rng_(options.seed) {}

JobAgentSimulator::~JobAgentSimulator() = default;

int JobAgentSimulator::loadSchedules() {
    QSqlQuery query(QSqlDatabase::database(database_->connectionName(), false));
    QString sql = QStringLiteral(
        "SELECT s.idAutoJobSchedule, j.idAutoJob, j.DatenArt, j.Name, j.MTAPath, j.BackupPath, "
        "j.ErrorMTA, COALESCE(m.ManNr, 0), s.FreqencyType, s.FrequencyInterval, "
        "s.FrequencyRecurrenceFactor, s.FrequencySubDay, s.FrequencySubDayinterval, "
        "s.FrequencyRelativeInterval, s.ActiveStartTimeOfDay, s.ActiveEndTimeOfDay, "
        "s.ActiveStartDate, s.ActiveEndDate, j.Aktiviert "
        "FROM tAutoJobSchedule s JOIN tAutoJobJob j ON j.idAutoJob = s.idAutoJob "
        "LEFT JOIN tMandant m ON m.ManId = j.Ps_Id_Mandant "
        "WHERE s.Aktiviert <> 0");
    if (options_.jobId > 0) {
        sql += QStringLiteral(" AND j.idAutoJob = %1").arg(options_.jobId);
    }
    sql += QStringLiteral(" ORDER BY s.idAutoJobSchedule");
    if (!query.exec(sql)) {
        throw SqlErrors::fromDriver(query.lastError(), sql);
    }
    schedules_.clear();
    while (query.next()) {
        Schedule s;
        s.idSchedule = query.value(0).toLongLong();
        s.idJob = query.value(1).toLongLong();
        s.datenArt = query.value(2).toInt();
        s.jobName = query.value(3).toString();
        s.mtaPath = query.value(4).toString();
        s.backupPath = query.value(5).toString();
        s.errorMta = query.value(6).toString();
        s.mandant = query.value(7).toLongLong();
        s.rule.lFreqencyType = query.value(8).toInt();
        s.rule.lFrequencyInterval = query.value(9).toInt();
        s.rule.lFrequencyRecurrenceFactor = query.value(10).toInt();
        s.rule.lFrequencySubDay = query.value(11).toInt();
        s.rule.lFrequencySubDayinterval = query.value(12).toInt();
        s.rule.lFrequencyRelativeInterval = query.value(13).toInt();
        s.rule.lActiveStartTimeOfDay = query.value(14).toInt();
        s.rule.lActiveEndTimeOfDay = query.value(15).toInt();
        s.rule.dActiveStartDate = dateOf(query.value(16));
        s.rule.dActiveEndDate = dateOf(query.value(17));
        s.jobActive = query.value(18).toInt() != 0;
        schedules_.append(s);
    }
    return static_cast<int>(schedules_.size());
}

int JobAgentSimulator::resultCode(int datenArt) {
    const unsigned roll = rng_() % 100;
    const bool ok = roll < 85;
    const bool nothing = roll >= 95;
    switch (datenArt) {
        case 4:
        case 17:
        case 18:
            return ok ? 1 : nothing ? 2 : 0;
        case 28:
            return ok ? 1 : nothing ? 4 : 0;
        case 30:
            return ok ? 1 : nothing ? 5 : 0;
        case 20:
            return ok ? 10 : 11;
        case 21:
            return ok ? 20 : 21;
        default:
            return ok ? 1 : 0;
    }
}

// The log file a run of this job type leaves in its log directory.
QString JobAgentSimulator::logFileName(const Schedule& s, const QDateTime& at) const {
    const QString stamp = at.toString(QStringLiteral("yyyyMMdd_HHmmss"));
    switch (s.datenArt) {
        case 4:
        case 28:
            return QStringLiteral("Buchungen%1_%2.Log").arg(s.mandant).arg(stamp);
        case 17:
            return QStringLiteral("KUND%1_%2.XLS").arg(s.mandant).arg(stamp);
        case 18:
            return QStringLiteral("LIEF%1_%2.XLS").arg(s.mandant).arg(stamp);
        case 20:
            return QStringLiteral("ScanDokument_%1.txt").arg(stamp);
        case 21:
            return QStringLiteral("Verschlagwortung_%1.txt").arg(stamp);
        default:
            return QStringLiteral("Auftrag%1_%2.log").arg(s.idJob).arg(stamp);
    }
}

void JobAgentSimulator::writeLog(const QDateTime& at, int logTyp, const Schedule* s,
                                 const QString& kategorie, const QString& text,
                                 const QString& zusatz) {
    AgentLogEntry entry;
    entry.at = storedText(secondsOf(at));
    entry.logTyp = logTyp;
    entry.jobArt = s ? s->datenArt : 0;
    entry.autoJobId = s ? s->idJob : 0;
    if (logTyp == 2) {
        entry.auftragKennung = QStringLiteral("%1-%2").arg(s->idJob).arg(
            runAt_.toString(QStringLiteral("yyyyMMddHHmmss")));
        entry.name = s->jobName;
    } else {
        entry.herkunft = QStringLiteral("JobAgent");
        entry.name = QStringLiteral("Dienst");
    }
    entry.kategorie = kategorie;
    entry.text = text;
    entry.zusatz = zusatz;
    writer_->writeLog(entry);
    ++counts_.logEntries;
}

void JobAgentSimulator::writeServiceEntry(const QDateTime& at) {
    writeLog(at, 1, nullptr, QStringLiteral("Information"),
             QStringLiteral("Zeitpläne geprüft: %1 aktive Zeitpläne").arg(schedules_.size()),
             QString());
}

void JobAgentSimulator::writeRun(const Schedule& s, const QDateTime& at) {
    const int code = resultCode(s.datenArt);
    const bool failed = code == 0 || code == 11 || code == 21;
    const bool archive = s.datenArt == 20 || s.datenArt == 21;
    const QString stamp = at.toString(QStringLiteral("yyyyMMdd_HHmmss"));
    runAt_ = at;
    AgentRun run;
    run.idSchedule = s.idSchedule;
    run.at = storedText(secondsOf(at));
    run.code = code;
    run.mtaPath = s.mtaPath;
    // The backup column of archive and direct jobs holds no directory.
    run.backupPath = archive || s.datenArt == 28 ? QString() : inDirectory(s.backupPath, stamp);
    run.errorMta = s.errorMta;
    writer_->writeRun(run);
    ++counts_.runs;
    if (options_.logEntries == 0) {
        writeLog(at, 2, &s, QStringLiteral("Information"), QStringLiteral("Auftrag gestartet"),
                 QString());
        writeLog(at.addSecs(5), 2, &s,
                 failed ? QStringLiteral("Fehler") : QStringLiteral("Information"),
                 failed ? QStringLiteral("Auftrag mit Fehlern beendet")
                        : QStringLiteral("Auftrag beendet"),
                 inDirectory(s.errorMta, logFileName(s, at)));
        if (failed) {
            writeLog(at.addSecs(5), 3, &s, QStringLiteral("Fehler"),
                     QStringLiteral("Auftrag '%1' fehlerhaft beendet").arg(s.jobName), QString());
        }
    }
}

AgentCounts JobAgentSimulator::fillYears() {
    writer_->startBulk();
    counts_ = {};
    const qint64 end = secondsOf(database_->clock().now());
    const qint64 start = secondsOf(database_->clock().now().addYears(-std::max(1, options_.years)));
    const qint64 span = end - start;

    // Each schedule's next run; the earliest goes first, so ids follow the time as the
    // service's would.
    struct Next {
        qint64 at;
        qsizetype schedule;
        qint64 left;  // runs still to write, -1 until the period ends
        qint64 step;  // seconds to the next run; 0 spreads `count` runs evenly over the period,
                      // -1 takes the next start of the forecast
        qint64 index = 0;
        qint64 count = 0;
        qint64 offset = 0;
    };
    // Run k of n evenly over the period, in the middle of its share of it.
    auto spread = [start, span](qint64 k, qint64 n, qint64 offset) {
        return start + span * (2 * k + 1) / (2 * n) + offset;
    };
    auto later = [](const Next& a, const Next& b) { return a.at > b.at; };
    std::priority_queue<Next, std::vector<Next>, decltype(later)> queue(later);
    QMap<long, int> schedulesOfJob;
    for (const Schedule& s : schedules_) {
        ++schedulesOfJob[s.idJob];
    }
    // The forecast's starts of each schedule, a month at a time.
    LocalClock clock(QTimeZone::systemTimeZone());
    const qint64 endUtc = database_->clock().now().toSecsSinceEpoch() + 1;
    std::vector<QList<ForecastRun>> planned(static_cast<size_t>(schedules_.size()));
    std::vector<qint64> plannedTo(
        planned.size(),
        database_->clock().now().addYears(-std::max(1, options_.years)).toSecsSinceEpoch());
    auto nextPlanned = [&](qsizetype i, Next& n) {
        QList<ForecastRun>& runs = planned[static_cast<size_t>(i)];
        qint64& to = plannedTo[static_cast<size_t>(i)];
        while (n.index >= runs.size() && to < endUtc) {
            const qint64 from = to;
            to = std::min(endUtc, from + 31 * 86400LL);
            runs = RunForecast::runs(schedules_[i].rule, from, to, clock);
            n.index = 0;
        }
        if (n.index >= runs.size()) {
            return false;
        }
        n.at = runs[n.index++].wall + kEpochSeconds;
        return true;
    };
    QMap<long, int> seen;
    for (qsizetype i = 0; i < schedules_.size(); ++i) {
        const Schedule& s = schedules_[i];
        if (options_.runsPerJob > 0) {
            const int n = schedulesOfJob[s.idJob];
            const int k = seen[s.idJob]++;
            const qint64 count = options_.runsPerJob / n + (k == 0 ? options_.runsPerJob % n : 0);
            if (count > 0) {
                queue.push(Next{spread(0, count, k), i, count, 0, 0, count, k});
            }
        } else if (s.jobActive) {
            Next n{0, i, -1, -1};
            if (nextPlanned(i, n)) {
                queue.push(n);
            }
        }
    }

    qint64 inBatch = 0;
    qint64 lastServiceDay = -1;
    // Rows of a transaction that fails are gone with it; the transactions before it stay.
    try {
        writer_->begin();
        while (!queue.empty()) {
            Next n = queue.top();
            queue.pop();
            if (n.at > end) {
                continue;
            }
            if (options_.logEntries == 0 && n.at / 86400 != lastServiceDay) {
                lastServiceDay = n.at / 86400;
                writeServiceEntry(fromSeconds(lastServiceDay * 86400 + 3600));
            }
            writeRun(schedules_[n.schedule], fromSeconds(n.at));
            if (++inBatch >= options_.batch) {
                writer_->commit();
                writer_->begin();
                inBatch = 0;
            }
            if (n.step < 0) {
                if (nextPlanned(n.schedule, n)) {
                    queue.push(n);
                }
            } else if (n.left != 1) {
                n.left = n.left > 0 ? n.left - 1 : n.left;
                n.at = n.step > 0 ? n.at + n.step : spread(++n.index, n.count, n.offset);
                queue.push(n);
            }
        }

        // A given number of entries: spread evenly over the period, most of them of the jobs.
        for (qint64 k = 0; k < options_.logEntries; ++k) {
            const QDateTime at = fromSeconds(start + span * k / options_.logEntries);
            const unsigned kind = rng_() % 20;
            if (kind < 14 && !schedules_.isEmpty()) {
                const Schedule& s = schedules_[static_cast<qsizetype>(k % schedules_.size())];
                runAt_ = at;
                writeLog(at, 2, &s, QStringLiteral("Information"),
                         QStringLiteral("Auftrag beendet"),
                         inDirectory(s.errorMta, logFileName(s, at)));
            } else if (kind < 19) {
                writeServiceEntry(at);
            } else {
                writeLog(at, 3, nullptr, QStringLiteral("Fehler"),
                         QStringLiteral("Verbindung zur Datenbank unterbrochen"), QString());
            }
            if (++inBatch >= options_.batch) {
                writer_->commit();
                writer_->begin();
                inBatch = 0;
            }
        }
        writer_->commit();
    } catch (...) {
        writer_->rollback();
        throw;
    }
    return counts_;
}

qint64 JobAgentSimulator::runDue() {
    const QDateTime now = database_->clock().now();
    const qint64 nowUtc = now.toSecsSinceEpoch();
    if (dueFromUtc_ < 0) {
        dueFromUtc_ = nowUtc;  // what was due before the agent started is not made up
    }
    if (nowUtc <= dueFromUtc_) {
        return 0;
    }
    LocalClock clock(QTimeZone::systemTimeZone());
    struct Due {
        qint64 wall;
        qsizetype schedule;
    };
    QList<Due> due;
    for (qsizetype i = 0; i < schedules_.size(); ++i) {
        if (!schedules_[i].jobActive) {
            continue;
        }
        // Starts after the last look, up to and including now.
        for (const ForecastRun& run :
             RunForecast::runs(schedules_[i].rule, dueFromUtc_ + 1, nowUtc + 1, clock)) {
            due.append({run.wall + kEpochSeconds, i});
        }
    }
    std::stable_sort(due.begin(), due.end(),
                     [](const Due& a, const Due& b) { return a.wall < b.wall; });
    const AgentCounts before = counts_;
    try {
        writer_->begin();
        for (const Due& d : due) {
            writeRun(schedules_[d.schedule], fromSeconds(d.wall));
        }
        writer_->commit();
    } catch (...) {
        // Nothing of these runs stays; the next call makes them again.
        writer_->rollback();
        counts_ = before;
        throw;
    }
    dueFromUtc_ = nowUtc;
    return due.size();
}

bool JobAgentSimulator::runOnce() {
    if (schedules_.isEmpty()) {
        return false;
    }
    const AgentCounts before = counts_;
    const Schedule& s = schedules_[next_++ % schedules_.size()];
    const QDateTime now = database_->clock().now();
    try {
        writer_->begin();
        if (next_ % 10 == 1) {
            writeServiceEntry(now);
        }
        writeRun(s, now);
        writer_->commit();
    } catch (...) {
        // Nothing of the run stays, and nothing of it is counted.
        writer_->rollback();
        counts_ = before;
        throw;
    }
    return true;
}
