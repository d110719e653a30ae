#include "scenario/ScenarioProgram.h"

#include <QFile>

#include "scenario/ScenarioServerDatabase.h"

ScenarioOutcome runScenarioText(const QString& text, const WindowKitMaker& kit) {
    ScenarioPlay play(ScenarioPlay::split(text), kit);
    return play.run();
}

ScenarioOutcome runScenarioFile(const QString& path, const WindowKitMaker& kit) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return ScenarioOutcome{
            false, 0, QStringLiteral("the file cannot be read: %1").arg(file.errorString())};
    }
    return runScenarioText(QString::fromUtf8(file.readAll()), kit);
}

int runScenarioProgram(const QStringList& arguments, QTextStream& out, QTextStream& err,
                       const WindowKitMaker& qtKit) {
    const QString usage =
        QStringLiteral("usage: autojobverw-scenario [--qt] [--postgresql] FILE...");
    bool qt = false;
    QStringList files;
    for (const QString& a : arguments) {
        if (a == QLatin1String("--qt")) {
            qt = true;
        } else if (a == QLatin1String("--postgresql")) {
            ScenarioServerDatabase::use(true);
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "unknown option " << a << "\n" << usage << "\n";
            return 2;
        } else {
            files << a;
        }
    }
    if (files.isEmpty()) {
        err << usage << "\n";
        return 2;
    }
    if (qt && !qtKit) {
        err << "the Qt window kit is not built in\n";
        return 2;
    }
    const WindowKitMaker kit = qt ? qtKit : WindowKitMaker{};
    int passed = 0;
    int failed = 0;
    for (const QString& file : files) {
        const ScenarioOutcome outcome = runScenarioFile(file, kit);
        if (outcome.passed) {
            ++passed;
            out << "PASS " << file << "\n";
        } else {
            ++failed;
            out << "FAIL " << file << ":" << outcome.line << ": " << outcome.reason << "\n";
        }
        out.flush();
    }
    out << passed << " passed, " << failed << " failed\n";
    out.flush();
    return failed == 0 ? 0 : 1;
}
