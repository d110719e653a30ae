// Setting up the world: clock, document data, the suite's answers, staff and clients, files
// and rows.
#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioFiles.h"
#include "scenario/ScenarioPlay.h"
#include "scenario/ScenarioWorld.h"

namespace {

void clockCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const QString written = c.arg(0).raw + u' ' + c.arg(1).raw;
    const QDateTime moment = QDateTime::fromString(written, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (!moment.isValid()) {
        scenarioFail(QStringLiteral("clock: %1 is no moment yyyy-mm-dd hh:mm:ss").arg(written));
    }
    play.world().clock().set(moment);
}

void contextCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 99);
    for (int i = 0; i < c.argCount(); ++i) {
        const QString& assignment = c.arg(i).text;
        const qsizetype eq = assignment.indexOf(u'=');
        if (eq <= 0) {
            scenarioFail(QStringLiteral("context: %1 is not Name=value").arg(c.arg(i).raw));
        }
        const QString name = assignment.left(eq);
        const QString value = assignment.mid(eq + 1);
        if (name == QLatin1String("DocName")) {
            play.world().host().docName = value;
        } else if (!play.world().dokument().set(name, value)) {
            scenarioFail(QStringLiteral("context: the document data have no field %1").arg(name));
        }
    }
}

void suiteCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    const QString what = c.arg(0).raw;
    SuiteConfig& config = play.world().config();
    if (what == QLatin1String("installationsart")) {
        c.expectArgs(2, 2);
        config.installationKind = c.integer(1);
    } else if (what == QLatin1String("text")) {
        c.expectArgs(3, 3);
        play.world().setText(c.integer(1), c.text(2));
    } else if (what == QLatin1String("path")) {
        c.expectArgs(3, 3);
        config.paths.insert(c.integer(1), c.text(2));
    } else {
        scenarioFail(
            QStringLiteral("suite: unknown setting %1 (installationsart, text, path)").arg(what));
    }
}

void staffCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    play.world().setStaff(c.integer(0), c.text(1));
}

void clientCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 3);
    if (c.hasArg(2)) {
        c.expectWord(2, QStringLiteral("office"));
    }
    play.world().setClient(c.integer(0), c.integer(1), c.hasArg(2));
}

void mkdirCommand(ScenarioPlay&, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    makeDirectory(c.text(0));
}

void fileCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 2);
    const long size = c.hasArg(1) ? c.integer(1) : 0;
    if (size < 0) {
        scenarioFail(QStringLiteral("file: a size is not negative"));
    }
    makeFile(c.text(0), size, play.world().clock().now());
}

void binlogCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 9999);
    QList<int> markers;
    for (int i = 1; i < c.argCount(); ++i) {
        markers << static_cast<int>(c.integer(i));
    }
    writeBookingsLog(c.text(0), markers, play.world().clock().now());
}

void optfileCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 9999);
    QList<QPair<QString, QString>> entries;
    for (int i = 1; i < c.argCount(); ++i) {
        const QString entry = c.text(i);
        const qsizetype eq = entry.indexOf(u'=');
        if (eq <= 0) {
            scenarioFail(
                QStringLiteral("optfile: %1 is not \"<table>=<text file>\"").arg(c.arg(i).raw));
        }
        entries << qMakePair(entry.left(eq), entry.mid(eq + 1));
    }
    writeOptionFile(c.text(0), entries, play.world().clock().now());
}

void sqlCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    play.world().runSql(c.text(0));
}

}  // namespace

void addSetupCommands(CommandTable& table) {
    table.insert(QStringLiteral("clock"), clockCommand);
    table.insert(QStringLiteral("context"), contextCommand);
    table.insert(QStringLiteral("suite"), suiteCommand);
    table.insert(QStringLiteral("staff"), staffCommand);
    table.insert(QStringLiteral("client"), clientCommand);
    table.insert(QStringLiteral("mkdir"), mkdirCommand);
    table.insert(QStringLiteral("file"), fileCommand);
    table.insert(QStringLiteral("binlog"), binlogCommand);
    table.insert(QStringLiteral("optfile"), optfileCommand);
    table.insert(QStringLiteral("sql"), sqlCommand);
}
