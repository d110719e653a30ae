// The stand-in of the host application: opens the suite's database (the embedded demo
// database unless one is named) and tells what it holds.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include "common/ErrorExit.h"
#include "host/DemoSummary.h"
#include "suite/ConsoleUi.h"
#include "suite/Database.h"
#include "suite/SuiteConfig.h"
#include "suite/SuiteServices.h"

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("autojobverw"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Konfiguration automatischer Aufträge. Without --db the program opens "
                       "the embedded demo database, creating it on first start."));
    parser.addHelpOption();
    QCommandLineOption dbOption(QStringLiteral("db"),
                                QStringLiteral("The SQLite database to open (created with the "
                                               "schema and the demo data when new)."),
                                QStringLiteral("PATH"));
    QCommandLineOption configOption(
        QStringLiteral("config"),
        QStringLiteral("The configuration file (default: %1).").arg(SuiteConfig::defaultFile()),
        QStringLiteral("FILE"));
    parser.addOption(dbOption);
    parser.addOption(configOption);
    parser.process(app);

    QTextStream out(stdout);
    QTextStream err(stderr);
    const QString configFile =
        parser.isSet(configOption) ? parser.value(configOption) : SuiteConfig::defaultFile();
    auto config = std::make_shared<SuiteConfig>(SuiteConfig::load(configFile));
    if (parser.isSet(dbOption)) {
        config->databasePath = parser.value(dbOption);
    }

    auto clock = std::make_shared<SystemClock>();
    std::shared_ptr<Database> db;
    try {
        db = openSuiteDatabase(*config, clock);
    } catch (const RaisedError& e) {
        err << "Die Datenbank " << config->databasePath
            << " kann nicht geöffnet werden: " << e.err().Description << "\n";
        return 1;
    }
    ScopedServices scope(makeSuiteServices(config, db, std::make_shared<ConsoleUi>(), clock));

    out << "Datenbank: " << db->path() << "\n" << demoSummary();
    return 0;
}
