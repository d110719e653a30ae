// Playing the user: every action goes through the kit's UserActions, as a user's would.
// Clicks, typing, picks, dates, times and grid actions need a control the user can reach.
#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioLocator.h"
#include "scenario/ScenarioPlay.h"

namespace {

using ControlRef = ScenarioLocator::ControlRef;

UserActions& actionsOf(IControl& control, const QString& display) {
    auto* actions = dynamic_cast<UserActions*>(&control);
    if (!actions) {
        scenarioFail(QStringLiteral("%1 takes no user actions").arg(display));
    }
    return *actions;
}

// The control, which the user must be able to reach.
ControlRef reachable(ScenarioPlay& play, const ScenarioCommand& c, int i) {
    ControlRef ref = play.locator().control(c.path(i));
    const QString reason = ScenarioLocator::unreachable(ref);
    if (!reason.isEmpty()) {
        scenarioFail(QStringLiteral("%1 %2: the user cannot reach it: %3")
                         .arg(c.name(), ref.display, reason));
    }
    return ref;
}

void clickCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    const QList<PathPart> parts = c.path(0);
    if (parts.size() == 4) {
        const ScenarioLocator::ToolRef ref = play.locator().tool(parts);
        const QString reason = ScenarioLocator::unreachable(ref);
        if (!reason.isEmpty()) {
            scenarioFail(
                QStringLiteral("click %1: the user cannot reach it: %2").arg(ref.display, reason));
        }
        actionsOf(ref.owner, ref.display).userTool(ref.band, ref.name);
        return;
    }
    if (parts.size() != 2) {
        scenarioFail(
            QStringLiteral("click takes a control (window.control) or a tool "
                           "(window.bar.band.tool)"));
    }
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userClick();
}

void typeCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const QString text = c.text(1);
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userType(text);
}

void setCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    ControlRef ref = play.locator().control(c.path(0));
    const Token& value = c.arg(1);
    if (value.quoted) {
        if (auto* t = dynamic_cast<ITextBox*>(&ref.control)) {
            t->setText(value.text);
        } else if (auto* tb = dynamic_cast<ITimeBox*>(&ref.control)) {
            tb->setText(value.text);
        } else {
            scenarioFail(QStringLiteral("set: %1 takes no text").arg(ref.display));
        }
        return;
    }
    const long n = c.integer(1);
    if (auto* s = dynamic_cast<ISelection*>(&ref.control)) {
        s->setId(n);
    } else if (auto* t = dynamic_cast<ITextBox*>(&ref.control)) {
        t->setText(QString::number(n));
    } else if (auto* combo = dynamic_cast<IComboBox*>(&ref.control)) {
        combo->setKey(n);
    } else {
        scenarioFail(QStringLiteral("set: %1 takes no number").arg(ref.display));
    }
}

void checkCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const long value = c.integer(1);
    if (value != 0 && value != 1) {
        scenarioFail(QStringLiteral("check takes 0 or 1"));
    }
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userCheck(static_cast<int>(value));
}

void selectCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const long key = c.integer(1);
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userSelect(key);
}

void dateCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    std::optional<QDate> date;
    if (c.arg(1).raw != QLatin1String("none")) {
        date = parseIsoDate(c.arg(1).raw);
        if (!date) {
            scenarioFail(QStringLiteral("date takes yyyy-mm-dd or none, not %1").arg(c.arg(1).raw));
        }
    }
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userDate(date);
}

void timeCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const QString hhmm = c.text(1);
    ControlRef ref = reachable(play, c, 0);
    actionsOf(ref.control, ref.display).userTime(hhmm);
}

int shiftState(const ScenarioCommand& c, int i) {
    if (!c.hasArg(i)) {
        return 0;
    }
    if (!c.arg(i).quoted && c.arg(i).raw == QLatin1String("shift")) {
        return 1;
    }
    return static_cast<int>(c.integer(i));
}

void keyCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 3);
    const QList<PathPart> parts = c.path(0);
    const int code = static_cast<int>(c.integer(1));
    const int shift = shiftState(c, 2);
    if (parts.size() == 1) {
        HeadlessWindow& w = play.locator().window(parts.first());
        static_cast<WindowUserActions&>(w).userKey(code, shift);
        return;
    }
    ControlRef ref = play.locator().control(parts);
    actionsOf(ref.control, ref.display).userKey(code, shift);
}

void gridCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(4, 4);
    const QString action = c.arg(1).raw;
    const int row = static_cast<int>(c.integer(2));
    const int col = static_cast<int>(c.integer(3));
    if (action != QLatin1String("click") && action != QLatin1String("dblclick") &&
        action != QLatin1String("toggle")) {
        scenarioFail(
            QStringLiteral("grid: unknown action %1 (click, dblclick, toggle)").arg(action));
    }
    ControlRef ref = reachable(play, c, 0);
    UserActions& actions = actionsOf(ref.control, ref.display);
    if (action == QLatin1String("toggle")) {
        actions.userGridToggle(row, col);
    } else {
        actions.userGridClick(row, col, action == QLatin1String("dblclick"));
    }
}

QList<int> rowList(const QString& written) {
    QList<int> rows;
    for (const QString& part : written.split(u',')) {
        bool ok = false;
        const int row = part.trimmed().toInt(&ok);
        if (!ok) {
            scenarioFail(QStringLiteral("browser select: %1 is no list of rows").arg(written));
        }
        rows << row;
    }
    return rows;
}

void browserCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(3, 3);
    ControlRef ref = play.locator().control(c.path(0));
    UserActions& actions = actionsOf(ref.control, ref.display);
    const QString action = c.arg(1).raw;
    if (action == QLatin1String("select")) {
        actions.userBrowserSelect(rowList(c.arg(2).raw));
    } else if (action == QLatin1String("open")) {
        actions.userBrowserOpen(static_cast<int>(c.integer(2)));
    } else {
        scenarioFail(QStringLiteral("browser: unknown action %1 (select, open)").arg(action));
    }
}

void tabCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    ControlRef ref = play.locator().control(c.path(0));
    actionsOf(ref.control, ref.display).userTab(static_cast<int>(c.integer(1)));
}

HeadlessWindow& windowArg(ScenarioPlay& play, const ScenarioCommand& c) {
    const QList<PathPart> parts = c.path(0);
    if (parts.size() != 1) {
        scenarioFail(QStringLiteral("%1 takes a window").arg(c.name()));
    }
    return play.locator().window(parts.first());
}

void closeCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    static_cast<WindowUserActions&>(windowArg(play, c)).userClose();
}

void shotCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const QString file = c.text(1);
    static_cast<WindowUserActions&>(windowArg(play, c)).shot(file);
}

// The bookings log question: "Status" or "Buchungen".
void chooseCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(1, 1);
    const QString choice = c.arg(0).raw;
    int index = -1;
    if (choice == QLatin1String("status")) {
        index = 0;
    } else if (choice == QLatin1String("buchungen")) {
        index = 1;
    } else {
        scenarioFail(QStringLiteral("choose takes status or buchungen"));
    }
    const QString windowName = QStringLiteral("frmBuchLogAbfrage");
    if (!play.locator().findOpen(windowName)) {
        scenarioFail(
            QStringLiteral("choose: no bookings log question (%1) is open").arg(windowName));
    }
    ControlRef ref =
        play.locator().control({PathPart{windowName, false, {}},
                                PathPart{QStringLiteral("cmdProtBuch"), false,
                                         QList<PathArg>{PathArg{QString::number(index), false}}}});
    const QString reason = ScenarioLocator::unreachable(ref);
    if (!reason.isEmpty()) {
        scenarioFail(QStringLiteral("choose %1: the user cannot reach it: %2").arg(choice, reason));
    }
    actionsOf(ref.control, ref.display).userClick();
}

void unexpectedAnswer(ScenarioPlay&, const ScenarioCommand& c) {
    const QString what = c.name() == QLatin1String("msgbox") ? QStringLiteral("message box")
                         : c.name() == QLatin1String("filedialog")
                             ? QStringLiteral("file dialog")
                             : QStringLiteral("directory dialog");
    scenarioFail(QStringLiteral("no %1 is waiting for this answer").arg(what));
}

}  // namespace

void addUserCommands(CommandTable& table) {
    table.insert(QStringLiteral("click"), clickCommand);
    table.insert(QStringLiteral("type"), typeCommand);
    table.insert(QStringLiteral("set"), setCommand);
    table.insert(QStringLiteral("check"), checkCommand);
    table.insert(QStringLiteral("select"), selectCommand);
    table.insert(QStringLiteral("date"), dateCommand);
    table.insert(QStringLiteral("time"), timeCommand);
    table.insert(QStringLiteral("key"), keyCommand);
    table.insert(QStringLiteral("grid"), gridCommand);
    table.insert(QStringLiteral("browser"), browserCommand);
    table.insert(QStringLiteral("tab"), tabCommand);
    table.insert(QStringLiteral("close"), closeCommand);
    table.insert(QStringLiteral("shot"), shotCommand);
    table.insert(QStringLiteral("choose"), chooseCommand);
    table.insert(QStringLiteral("msgbox"), unexpectedAnswer);
    table.insert(QStringLiteral("filedialog"), unexpectedAnswer);
    table.insert(QStringLiteral("dirdialog"), unexpectedAnswer);
}
