// The stand-in of the host application: opens the suite's database (the embedded demo
// database unless one is named) and shows the job agent's document, the list of automatic
// jobs, in a main window with the host's menus.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTextStream>

#include "common/ErrorExit.h"
#include "gui/QtUi.h"
#include "host/DatabaseOpenFailure.h"
#include "host/DemoSummary.h"
#include "host/DesktopProgram.h"
#include "host/HostMainWindow.h"
#include "host/JobTransferCommands.h"
#include "suite/SuiteConfig.h"

namespace {

struct Options {
    QString configFile;
    bool summary = false;
    QString shot;
    QString exportFile;
    QString importFile;
};

bool hasArgument(int argc, char* argv[], const char* name) {
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], name) == 0) {
            return true;
        }
    }
    return false;
}

// Without a display the windows cannot open; the summary and the picture need none.
bool prepareDisplay(int argc, char* argv[]) {
    const bool windowless =
        hasArgument(argc, argv, "--summary") || hasArgument(argc, argv, "--export") ||
        hasArgument(argc, argv, "--import") || hasArgument(argc, argv, "--shot") ||
        hasArgument(argc, argv, "--help") || hasArgument(argc, argv, "-h");
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ||
        !qEnvironmentVariableIsEmpty("DISPLAY") ||
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return true;
    }
    if (windowless) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    QTextStream(stderr) << "Kein Bildschirm gefunden (DISPLAY ist nicht gesetzt). "
                           "Mit --summary zeigt das Programm den Inhalt der Datenbank.\n";
    return false;
}

// Reads the options into the configuration; the document data of the options win over the
// configuration file's.
Options parseOptions(const QApplication& app, SuiteConfig& config) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Konfiguration automatischer Aufträge. Without --db the program opens the embedded "
        "demo database, creating it on first start."));
    parser.addHelpOption();
    const QCommandLineOption db(QStringLiteral("db"),
                                QStringLiteral("The database to open: an SQLite file (created "
                                               "with the schema and the demo data when new), or "
                                               "postgresql://user@host:port/name for a database "
                                               "on a PostgreSQL server (given the schema when "
                                               "empty; the password comes from ~/.pgpass or "
                                               "PGPASSWORD)."),
                                QStringLiteral("PATH|URL"));
    const QCommandLineOption configFile(
        QStringLiteral("config"),
        QStringLiteral("The configuration file (default: %1).").arg(SuiteConfig::defaultFile()),
        QStringLiteral("FILE"));
    const QCommandLineOption mandant(QStringLiteral("mandant"),
                                     QStringLiteral("Id of the client the document is opened "
                                                    "for (0: all)."),
                                     QStringLiteral("ID"));
    const QCommandLineOption mitarbeiter(QStringLiteral("mitarbeiter"),
                                         QStringLiteral("Id of the staff member working."),
                                         QStringLiteral("ID"));
    const QCommandLineOption aktentyp(
        QStringLiteral("aktentyp"),
        QStringLiteral("Kind of file: 1 clients only, 2 offices only, 4 clients and offices."),
        QStringLiteral("N"));
    const QCommandLineOption installationsart(
        QStringLiteral("installationsart"),
        QStringLiteral("Kind of installation: 1 local, 0 server."), QStringLiteral("N"));
    const QCommandLineOption summary(
        QStringLiteral("summary"),
        QStringLiteral("Print what the database holds instead of opening the window."));
    const QCommandLineOption shot(
        QStringLiteral("shot"),
        QStringLiteral("Open the window off screen, save a picture of it and end."),
        QStringLiteral("FILE"));
    const QCommandLineOption exportJobs(
        QStringLiteral("export"),
        QStringLiteral("Write the definitions of all jobs with their schedules to FILE (JSON)."),
        QStringLiteral("FILE"));
    const QCommandLineOption importJobs(
        QStringLiteral("import"),
        QStringLiteral("Add the jobs of FILE (written by --export) as new jobs; nothing is "
                       "written when the file has a problem."),
        QStringLiteral("FILE"));
    parser.addOptions({db, configFile, mandant, mitarbeiter, aktentyp, installationsart, summary,
                       shot, exportJobs, importJobs});
    parser.process(app);

    Options o;
    o.configFile = parser.isSet(configFile) ? parser.value(configFile) : SuiteConfig::defaultFile();
    config = SuiteConfig::load(o.configFile);
    if (parser.isSet(db)) {
        config.databasePath = parser.value(db);
    }
    auto number = [&](const QCommandLineOption& option, long& target) {
        if (parser.isSet(option)) {
            target = parser.value(option).toLong();
        }
    };
    number(mandant, config.manId);
    number(mitarbeiter, config.mitId);
    number(aktentyp, config.aktenTyp);
    number(installationsart, config.installationKind);
    o.summary = parser.isSet(summary);
    o.shot = parser.value(shot);
    o.exportFile = parser.value(exportJobs);
    o.importFile = parser.value(importJobs);
    return o;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!prepareDisplay(argc, argv)) {
        return 2;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("autojobverw"));
    // Installed, the desktop entry and the icon theme carry the program's name and icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("autojobverw"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("autojobverw")));

    auto config = std::make_shared<SuiteConfig>();
    const Options options = parseOptions(app, *config);

    std::unique_ptr<DesktopProgram> program;
    try {
        program = std::make_unique<DesktopProgram>(config);
    } catch (const RaisedError& e) {
        // A desktop user never sees the console: the window-less modes keep writing there,
        // the window says it in a message box.
        const QString text = databaseOpenFailureText(config->databasePath, e.err());
        if (options.summary || !options.shot.isEmpty()) {
            QTextStream(stderr) << QString(text).replace(QStringLiteral("\r\n"),
                                                         QStringLiteral("\n"))
                                << "\n";
        } else {
            QtUi ui;
            showDatabaseOpenFailure(ui, text);
        }
        return 1;
    }

    if (!options.importFile.isEmpty()) {
        return JobTransfer::importCommand(program->database(), options.importFile, config->mitId);
    }
    if (!options.exportFile.isEmpty()) {
        return JobTransfer::exportCommand(program->database(), options.exportFile);
    }
    if (options.summary) {
        QTextStream(stdout) << "Datenbank: " << program->database().path() << "\n" << demoSummary();
        return 0;
    }

    program->start();
    if (!options.shot.isEmpty()) {
        QApplication::processEvents();
        const bool saved = program->window().grab().save(options.shot);
        program->end();
        return saved ? 0 : 1;
    }
    return app.exec();
}
