// The scenario runner: plays the host and the user against the system, one fresh world per
// file (tests/scenarios/*.scn). With --qt the windows are the real Qt windows, off screen
// unless a display is set.
#include <QApplication>
#include <QCoreApplication>
#include <QTextStream>
#include <ctime>
#include <memory>

#include "gui/QtGerman.h"
#include "gui/QtWindowFactory.h"
#include "scenario/ScenarioProgram.h"

namespace {

bool wantsQt(int argc, char* argv[]) {
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--qt") == 0) {
            return true;
        }
    }
    return false;
}

// The offscreen platform warns for every window it cannot size by hints; that says nothing
// about a scenario and would bury the PASS and FAIL lines.
void quietOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains(QLatin1String("does not support propagateSizeHints"))) {
        return;
    }
    QTextStream(stderr) << qFormatLogMessage(type, context, message) << '\n';
}

}  // namespace

int main(int argc, char* argv[]) {
    // As the clock stands still, the zone is fixed: forecasts across a clock change read the
    // same on every machine.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    std::unique_ptr<QCoreApplication> app;
    if (wantsQt(argc, argv)) {
        if (qEnvironmentVariableIsEmpty("DISPLAY") &&
            qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
            qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        qInstallMessageHandler(quietOffscreen);
        app = std::make_unique<QApplication>(argc, argv);
        useGermanEverywhere();
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("autojobverw-scenario"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    const WindowKitMaker qtKit = [](ModalDriver* driver) {
        return std::make_shared<QtWindowFactory>(driver);
    };
    return runScenarioProgram(QCoreApplication::arguments().mid(1), out, err, qtKit);
}
