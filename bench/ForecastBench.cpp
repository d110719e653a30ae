// Measures the forecast of runs: the plan of a month for 10,000 jobs with 20,000 schedules
// (the schedules read through the program's record set, every start computed and sorted),
// against SQLite itself reading the same rows; and the next ten starts of one schedule, as a
// dialog's list asks for them after each change. Usage:
//
//   build/ajv_bench_vorschau [--db FILE]
//
// The database (by default /tmp/ajv_bench_vorschau.sqlite) is built anew on each run, in
// Europe/Berlin's time unless TZ says otherwise.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimeZone>
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include "bench/BenchRawSqlite.h"
#include "common/Clock.h"
#include "forecast/NextRunsList.h"
#include "forecast/RunForecast.h"
#include "gui/QtWindowFactory.h"
#include "host/ForecastCommand.h"
#include "suite/Database.h"
#include "ui/windows/frmZeitIntervall.h"

namespace {

constexpr int kJobs = 10000;
constexpr int kSchedules = 20000;

// A mix as offices have them: mostly daily and weekly, some monthly, a few every n minutes.
void fill(RawSqlite& raw) {
    std::mt19937 rng(24);
    raw.run(QStringLiteral("BEGIN"));
    for (int j = 1; j <= kJobs; ++j) {
        raw.run(QStringLiteral("INSERT INTO tAutoJobJob (idAutoJob, Name, Aktiviert, DatenArt) "
                               "VALUES (%1, 'Auftrag %1', %2, 17)")
                    .arg(j)
                    .arg(j % 20 == 0 ? 0 : 1));
    }
    for (int s = 1; s <= kSchedules; ++s) {
        const int kind = static_cast<int>(rng() % 20);
        int typ = 4, intervall = 1, faktor = 0, relativ = 0, einheit = 1, tagesIntervall = 1;
        if (kind < 8) {
            typ = 8, intervall = 1 + static_cast<int>(rng() % 127), faktor = 1 + kind % 2;
        } else if (kind < 11) {
            typ = 16, intervall = 1 + static_cast<int>(rng() % 31), faktor = 1;
        } else if (kind < 13) {
            typ = 32, intervall = 1 + static_cast<int>(rng() % 10), faktor = 1,
            relativ = 1 << (kind % 5);
        } else if (kind == 13) {
            einheit = 4, tagesIntervall = 30;  // every 30 minutes 08:00 to 18:00
        } else if (kind == 14) {
            einheit = 8, tagesIntervall = 2;
        }
        raw.run(QStringLiteral(
                    "INSERT INTO tAutoJobSchedule (idAutoJob, Name, Aktiviert, FreqencyType, "
                    "FrequencyInterval, FrequencyRecurrenceFactor, FrequencyRelativeInterval, "
                    "FrequencySubDay, FrequencySubDayinterval, ActiveStartTimeOfDay, "
                    "ActiveEndTimeOfDay, ActiveStartDate, ActiveEndDate) VALUES (%1, 'Zeitplan', "
                    "%2, %3, %4, %5, %6, %7, %8, %9, 180000, '2025-01-01 00:00:00', "
                    "'9999-12-31 00:00:00')")
                    .arg(1 + (s - 1) % kJobs)
                    .arg(s % 25 == 0 ? 0 : 1)
                    .arg(typ)
                    .arg(intervall)
                    .arg(faktor)
                    .arg(relativ)
                    .arg(einheit)
                    .arg(tagesIntervall)
                    .arg(einheit == 1 ? static_cast<int>(rng() % 24) * 10000 + 3000 : 80000));
    }
    raw.run(QStringLiteral("COMMIT"));
}

template <typename F>
double bestMs(int rounds, F&& f) {
    double best = 1e300;
    for (int k = 0; k < rounds; ++k) {
        QElapsedTimer t;
        t.start();
        f();
        best = std::min(best, t.nsecsElapsed() / 1e6);
    }
    return best;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QString path = QStringLiteral("/tmp/ajv_bench_vorschau.sqlite");
    const QStringList args = app.arguments();
    if (args.size() == 3 && args[1] == QStringLiteral("--db")) {
        path = args[2];
    }
    if (qEnvironmentVariableIsEmpty("TZ")) {
        qputenv("TZ", "Europe/Berlin");
    }
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QFile::remove(path + suffix);
    }
    const QDateTime now(QDate(2026, 3, 1), QTime(0, 0));
    auto database = Database::open(path, std::make_shared<FixedClock>(now));
    database->applySchema();
    RawSqlite raw(path);
    fill(raw);

    const QTimeZone zone = QTimeZone::systemTimeZone();
    const qint64 from = now.toSecsSinceEpoch();
    const qint64 to = now.addMonths(1).toSecsSinceEpoch();
    qsizetype starts = 0;
    const double planMs = bestMs(5, [&] {
        LocalClock clock(zone);
        starts = ForecastCommand::plannedStarts(*database, from, to, 0, clock).size();
    });
    const double rawMs = bestMs(5, [&] {
        raw.run(QStringLiteral(
            "SELECT s.* FROM tAutoJobSchedule s INNER JOIN tAutoJobJob j ON j.idAutoJob = "
            "s.idAutoJob WHERE s.Aktiviert <> 0 AND j.Aktiviert <> 0"));
    });

    // The dialog's list: the next ten starts of one schedule, for many schedules in turn.
    std::vector<ScheduleRule> rules;
    std::mt19937 rng(7);
    for (int k = 0; k < 1000; ++k) {
        static const int kTypes[] = {4, 8, 16, 32};
        ScheduleRule r;
        r.lFreqencyType = kTypes[k % 4];
        r.lFrequencyInterval = r.lFreqencyType == 8    ? 1 + static_cast<int>(rng() % 127)
                               : r.lFreqencyType == 16 ? 31
                               : r.lFreqencyType == 32 ? 9
                                                       : 3;
        r.lFrequencyRecurrenceFactor = 1 + static_cast<int>(rng() % 3);
        r.lFrequencyRelativeInterval = 16;
        r.lFrequencySubDay = k % 3 == 0 ? 4 : 1;
        r.lFrequencySubDayinterval = 15;
        r.lActiveStartTimeOfDay = 223000;
        r.lActiveEndTimeOfDay = 20000;
        r.dActiveStartDate = QDate(2024, 1, 1);
        r.dActiveEndDate = QDate(9999, 12, 31);
        rules.push_back(r);
    }
    const double listMs =
        bestMs(3,
               [&] {
                   for (const ScheduleRule& r : rules) {
                       LocalClock clock(zone);
                       RunForecast::runs(
                           r, from, QDateTime(QDate(9999, 12, 31), QTime(0, 0)).toSecsSinceEpoch(),
                           clock, 10);
                   }
               }) /
        static_cast<double>(rules.size());

    // The recurrence dialog's list on Qt widgets, offscreen: one change, one new list.
    QtWindowFactory factory;
    frmZeitIntervall dialog(factory.create(frmZeitIntervall::declaration()));
    dialog.window().Show(false);
    const QDateTime jetzt = now;
    const double dialogMs =
        bestMs(3,
               [&] {
                   for (const ScheduleRule& r : rules) {
                       naechsteAusfuehrungenFuellen(dialog.grdNaechsteAusfuehrungen(), r, QString(),
                                                    jetzt);
                       QApplication::processEvents();
                   }
               }) /
        static_cast<double>(rules.size());

    std::printf("Plan eines Monats, %d Aufträge, %d Zeitpläne: %lld Starts\n", kJobs, kSchedules,
                static_cast<long long>(starts));
    std::printf("  Vorschau          %8.1f ms\n", planMs);
    std::printf("  SQLite (Zeilen)   %8.1f ms\n", rawMs);
    std::printf("  Verhältnis        %8.2fx\n", planMs / rawMs);
    std::printf("Nächste 10 Starts eines Zeitplans: %.3f ms\n", listMs);
    std::printf("Liste im Dialog (Qt, offscreen) nach einer Änderung: %.3f ms\n", dialogMs);
    return 0;
}
