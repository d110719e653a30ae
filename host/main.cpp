// The stand-in of the host application: opens the suite's database (the embedded demo
// database unless one is named) and shows the job agent's document, the list of automatic
// jobs, in a main window with the host's menus.
#include <QApplication>
#include <QIcon>
#include <QTextStream>
#include <QTimeZone>
#include <cstdlib>

#include "common/CommandLine.h"
#include "common/ErrorExit.h"
#include "gui/QtGerman.h"
#include "gui/QtUi.h"
#include "host/DatabaseOpenFailure.h"
#include "host/DemoSummary.h"
#include "host/DesktopProgram.h"
#include "host/ForecastCommand.h"
#include "host/HostMainWindow.h"
#include "host/JobTransferCommands.h"
#include "host/JournalCsv.h"
#include "suite/SuiteConfig.h"

namespace {

struct Options {
    QString configFile;
    bool summary = false;
    QString shot;
    QString exportFile;
    QString importFile;
    bool journal = false;
    QString journalJob;
    bool forecast = false;
    ForecastCommand::Arguments forecastArguments;
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
        hasArgument(argc, argv, "--journal") || hasArgument(argc, argv, "--vorschau") ||
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
    const QCommandLineOption db(
        QStringLiteral("db"),
        QStringLiteral("Die Datenbank: eine SQLite-Datei (neu angelegt mit dem Schema und den "
                       "Demodaten) oder postgresql://benutzer@host:port/name für eine Datenbank "
                       "auf einem PostgreSQL-Server (leer erhält sie das Schema; das Kennwort "
                       "kommt aus ~/.pgpass oder PGPASSWORD)."),
        QStringLiteral("PFAD|ADRESSE"));
    const QCommandLineOption configFile(
        QStringLiteral("config"),
        QStringLiteral("Die Konfigurationsdatei (Vorgabe: %1).").arg(SuiteConfig::defaultFile()),
        QStringLiteral("DATEI"));
    const QCommandLineOption mandant(
        QStringLiteral("mandant"),
        QStringLiteral("Id des Mandanten, für den das Dokument geöffnet wird (0: alle)."),
        QStringLiteral("ID"));
    const QCommandLineOption mitarbeiter(QStringLiteral("mitarbeiter"),
                                         QStringLiteral("Id des arbeitenden Mitarbeiters."),
                                         QStringLiteral("ID"));
    const QCommandLineOption aktentyp(
        QStringLiteral("aktentyp"),
        QStringLiteral("Art der Akte: 1 nur Mandanten, 2 nur Kanzleien, 4 Mandanten und "
                       "Kanzleien."),
        QStringLiteral("N"));
    const QCommandLineOption installationsart(
        QStringLiteral("installationsart"),
        QStringLiteral("Art der Installation: 1 lokal, 0 Server."), QStringLiteral("N"));
    const QCommandLineOption summary(
        QStringLiteral("summary"),
        QStringLiteral("Zeigt, was die Datenbank enthält, statt das Fenster zu öffnen."));
    const QCommandLineOption shot(
        QStringLiteral("shot"),
        QStringLiteral("Öffnet das Fenster ohne Bildschirm, speichert ein Bild davon in DATEI "
                       "und endet."),
        QStringLiteral("DATEI"));
    const QCommandLineOption exportJobs(
        QStringLiteral("export"),
        QStringLiteral("Schreibt die Definitionen aller Aufträge mit ihren Zeitplänen in DATEI "
                       "(JSON)."),
        QStringLiteral("DATEI"));
    const QCommandLineOption importJobs(
        QStringLiteral("import"),
        QStringLiteral("Fügt die Aufträge aus DATEI (von --export geschrieben) als neue "
                       "Aufträge hinzu; hat die Datei einen Fehler, wird nichts geschrieben."),
        QStringLiteral("DATEI"));
    const QCommandLineOption journal(
        QStringLiteral("journal"),
        QStringLiteral("Schreibt das Änderungsprotokoll als CSV (Semikolon, UTF-8) auf die "
                       "Standardausgabe: mit einer folgenden Auftrags-Id das dieses Auftrags, "
                       "sonst das aller Aufträge."));
    const QCommandLineOption vorschau(
        QStringLiteral("vorschau"),
        QStringLiteral("Gibt die Starts der aktiven Zeitpläne aktiver Aufträge aus, je Zeile "
                       "Zeitpunkt (Ortszeit), Auftrag und Zeitplan, getrennt durch Tabulatoren."));
    const QCommandLineOption von(
        QStringLiteral("von"),
        QStringLiteral("Mit --vorschau: Beginn des Zeitraums, eingeschlossen (Vorgabe: jetzt)."),
        QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QCommandLineOption bis(
        QStringLiteral("bis"),
        QStringLiteral("Mit --vorschau: Ende des Zeitraums, ausgeschlossen (Vorgabe: sieben "
                       "Tage nach dem Beginn)."),
        QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const QCommandLineOption auftrag(
        QStringLiteral("auftrag"),
        QStringLiteral("Mit --vorschau: nur die Starts dieses Auftrags."), QStringLiteral("ID"));
    CommandLine commandLine(
        QStringLiteral("Konfiguration automatischer Aufträge. Ohne --db öffnet das Programm die "
                       "eingebettete Demodatenbank und legt sie beim ersten Start an."),
        {db, configFile, mandant, mitarbeiter, aktentyp, installationsart, summary, shot,
         exportJobs, importJobs, vorschau, von, bis, auftrag, journal});
    commandLine.process(app);
    const QCommandLineParser& parser = commandLine.parser();

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
    o.journal = parser.isSet(journal);
    if (o.journal) {
        const QStringList rest = parser.positionalArguments();
        if (rest.size() > 1) {
            QTextStream(stderr) << QStringLiteral(
                "Nach --journal steht höchstens eine "
                "Auftrags-Id.\n");
            std::exit(EXIT_FAILURE);
        }
        o.journalJob = rest.value(0);
    }
    o.forecast = parser.isSet(vorschau);
    o.forecastArguments = {parser.value(von), parser.value(bis), parser.value(auftrag)};
    if (!o.forecast && (parser.isSet(von) || parser.isSet(bis) || parser.isSet(auftrag))) {
        QTextStream(stderr) << "autojobverw: --von, --bis und --auftrag gelten nur mit "
                               "--vorschau.\n";
        std::exit(1);
    }
    return o;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!prepareDisplay(argc, argv)) {
        return 2;
    }
    QApplication app(argc, argv);
    useGermanEverywhere();
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
        if (options.summary || options.forecast || options.journal || !options.shot.isEmpty()) {
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
    if (options.journal) {
        return JournalCsv::command(program->database(), options.journalJob);
    }
    if (options.forecast) {
        QTextStream out(stdout);
        QTextStream err(stderr);
        try {
            return ForecastCommand::run(program->database(), options.forecastArguments,
                                        QTimeZone::systemTimeZone(), out, err);
        } catch (const RaisedError& e) {
            err << e.err().Description << "\n";
            return 1;
        }
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
