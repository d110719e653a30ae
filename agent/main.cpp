// autojobverw-agent: plays the job agent service against a database, in bulk or live.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <atomic>
#include <csignal>
#include <cstdio>

#include "agent/JobAgentSimulator.h"
#include "common/CommandLine.h"
#include "common/ErrObject.h"
#include "suite/Database.h"
#include "suite/PostgresAddress.h"

namespace {

std::atomic<bool> stopRequested{false};

void requestStop(int) {
    stopRequested = true;
}

void print(const QString& line, FILE* to = stdout) {
    std::fprintf(to, "%s\n", line.toLocal8Bit().constData());
    std::fflush(to);
}

QString totals(const AgentCounts& c) {
    return QStringLiteral("Geschrieben: %1 Ausführungen, %2 Logeinträge")
        .arg(c.runs)
        .arg(c.logEntries);
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("autojobverw-agent"));
    const QCommandLineOption dbOption(
        QStringLiteral("db"),
        QStringLiteral("SQLite-Datenbank oder Adresse einer PostgreSQL-Datenbank "
                       "(postgresql://benutzer@host:port/name, postgresql:///name)."),
        QStringLiteral("PFAD|ADRESSE"));
    const QCommandLineOption yearsOption(QStringLiteral("years"),
                                         QStringLiteral("Füllt so viele Jahre bis heute."),
                                         QStringLiteral("N"));
    const QCommandLineOption liveOption(QStringLiteral("live"),
                                        QStringLiteral("Schreibt laufend, bis er beendet wird."));
    const QCommandLineOption intervalOption(
        QStringLiteral("interval-ms"),
        QStringLiteral("Live: statt nach den Zeitplänen eine Ausführung in diesem Abstand, "
                       "reihum (Last für Tests)."),
        QStringLiteral("MS"));
    const QCommandLineOption countOption(QStringLiteral("count"),
                                         QStringLiteral("Live: endet nach so vielen Ausführungen."),
                                         QStringLiteral("N"));
    const QCommandLineOption runsOption(
        QStringLiteral("runs-per-job"),
        QStringLiteral("Bulk: Ausführungen je Auftrag statt nach Zeitplan."), QStringLiteral("N"));
    const QCommandLineOption logOption(
        QStringLiteral("log-entries"),
        QStringLiteral("Bulk: genau so viele Logeinträge statt einiger je Ausführung."),
        QStringLiteral("N"));
    const QCommandLineOption jobOption(QStringLiteral("job"),
                                       QStringLiteral("Nur dieser Auftrag (idAutoJob)."),
                                       QStringLiteral("ID"));
    const QCommandLineOption seedOption(QStringLiteral("seed"),
                                        QStringLiteral("Startwert des Zufalls (Vorgabe 1)."),
                                        QStringLiteral("N"), QStringLiteral("1"));
    CommandLine commandLine(
        QStringLiteral(
            "Schreibt, was der Dienst des Job-Agenten schreibt: Ausführungen in tAutoJobVerlauf "
            "und Logeinträge in SYS_JobAgentLogDaten, zu den Aufträgen und Zeitplänen der "
            "Datenbank."),
        {dbOption, yearsOption, liveOption, intervalOption, countOption, runsOption, logOption,
         jobOption, seedOption});
    commandLine.process(app);
    const QCommandLineParser& parser = commandLine.parser();

    const QString path = parser.value(dbOption);
    if (path.isEmpty() || parser.isSet(liveOption) == parser.isSet(yearsOption)) {
        print(QStringLiteral("Bitte --db PFAD und entweder --years N oder --live angeben."),
              stderr);
        return 2;
    }
    // A database on a server is found by connecting to it.
    const bool onServer = PostgresAddress::isAddress(path);
    if (!onServer && !QFileInfo::exists(path)) {
        print(QStringLiteral("Die Datenbank %1 gibt es nicht.").arg(path), stderr);
        return 2;
    }
    AgentOptions options;
    options.years = parser.value(yearsOption).toInt();
    options.runsPerJob = parser.value(runsOption).toLongLong();
    options.logEntries = parser.value(logOption).toLongLong();
    options.jobId = parser.value(jobOption).toLong();
    options.seed = parser.value(seedOption).toUInt();

    try {
        auto database = Database::open(path, std::make_shared<SystemClock>());
        if (database->isEmpty()) {
            print(QStringLiteral("Die Datenbank %1 hat keine Tabellen.")
                      .arg(onServer ? PostgresAddress::withoutPassword(path) : path),
                  stderr);
            return 2;
        }
        JobAgentSimulator agent(database, options);
        const int schedules = agent.loadSchedules();
        if (schedules == 0) {
            print(QStringLiteral("Keine aktiven Zeitpläne: nichts zu tun."), stderr);
            return 1;
        }
        if (!parser.isSet(liveOption)) {
            if (options.years < 1) {
                print(QStringLiteral("--years braucht eine Zahl ab 1."), stderr);
                return 2;
            }
            QElapsedTimer timer;
            timer.start();
            const AgentCounts c = agent.fillYears();
            print(totals(c) + QStringLiteral(" in %1 s").arg(timer.elapsed() / 1000.0, 0, 'f', 1));
            return 0;
        }

        std::signal(SIGINT, requestStop);
        std::signal(SIGTERM, requestStop);
        // As the service does, the runs come at the schedules' starts (the forecast's); with
        // --interval-ms one comes after the other at that pace instead, to load a database.
        const bool paced = parser.isSet(intervalOption);
        const int interval = paced ? std::max(1, parser.value(intervalOption).toInt()) : 1000;
        const qint64 limit =
            parser.isSet(countOption) ? parser.value(countOption).toLongLong() : -1;
        print(paced ? QStringLiteral("Live: %1 Zeitpläne, eine Ausführung alle %2 ms")
                          .arg(schedules)
                          .arg(interval)
                    : QStringLiteral("Live: %1 Zeitpläne, Ausführungen zu ihren Startzeiten")
                          .arg(schedules));
        while (!stopRequested && (limit < 0 || agent.counts().runs < limit)) {
            try {
                if (paced) {
                    agent.runOnce();
                    print(totals(agent.counts()));
                } else if (agent.runDue() > 0) {
                    print(totals(agent.counts()));
                }
            } catch (const RaisedError& e) {
                print(QStringLiteral("Nicht geschrieben: %1").arg(e.err().Description), stderr);
            }
            for (int waited = 0; waited < interval && !stopRequested; waited += 10) {
                QThread::msleep(static_cast<unsigned long>(std::min(10, interval - waited)));
            }
        }
        print(QStringLiteral("Beendet. ") + totals(agent.counts()));
        return 0;
    } catch (const RaisedError& e) {
        print(e.err().Description, stderr);
        return 1;
    }
}
