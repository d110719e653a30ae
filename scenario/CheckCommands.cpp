// Checking: properties of windows, controls and tools, the windows that are open, the
// database, what the system started, showed as help or reported, and what the host was told.
#include <memory>

#include "common/ErrObject.h"
#include "common/Recordset.h"

#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioCommands.h"
#include "scenario/ScenarioError.h"
#include "scenario/ScenarioLocator.h"
#include "scenario/ScenarioPlay.h"
#include "scenario/ScenarioProperties.h"
#include "scenario/ScenarioSystem.h"
#include "scenario/ScenarioWorld.h"

namespace {

void compare(const QString& what, const ScenarioValue& actual, const ScenarioValue& expected) {
    if (!(actual == expected)) {
        scenarioFail(QStringLiteral("%1 is %2, expected %3")
                         .arg(what, actual.display(), expected.display()));
    }
}

void expectWindow(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(3, 3);
    const QString name = c.arg(1).raw;
    const QString state = c.arg(2).raw;
    const bool open = play.locator().findOpen(name) != nullptr;
    if (state == QLatin1String("open")) {
        if (!open) {
            scenarioFail(QStringLiteral("the window %1 is not open").arg(name));
        }
    } else if (state == QLatin1String("closed")) {
        if (open) {
            scenarioFail(QStringLiteral("the window %1 is open").arg(name));
        }
    } else {
        scenarioFail(QStringLiteral("expect window takes open or closed"));
    }
}

void expectSql(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(4, 4);
    const QString sql = c.text(1);
    // Through a record set, in the dialect the system writes, so that values read the same on
    // every database.
    const std::unique_ptr<CRecordset> query = play.world().database().recordsetFactory()();
    long count = 0;
    try {
        count = query->OpenQuery(sql, 0);
    } catch (const RaisedError& e) {
        scenarioFail(QStringLiteral("the query failed: %1").arg(e.err().Description));
    }
    const QString mode = c.arg(2).raw;
    if (mode == QLatin1String("rows")) {
        const long expected = c.integer(3);
        if (count != expected) {
            scenarioFail(
                QStringLiteral("the query gives %1 rows, expected %2").arg(count).arg(expected));
        }
        return;
    }
    if (mode != QLatin1String("=")) {
        scenarioFail(QStringLiteral("expect sql takes = <value> or rows <n>"));
    }
    const Token& value = c.arg(3);
    const bool expectNull = !value.quoted && value.raw == QLatin1String("null");
    const QString expected = value.quoted ? value.text : value.raw;
    if (count == 0) {
        scenarioFail(QStringLiteral("the query gives no row"));
    }
    const QVariant first = query->ReadValues().value(0);
    const QString actual = first.isNull() ? QStringLiteral("null") : quoteText(first.toString());
    const bool equal = first.isNull() ? expectNull : (!expectNull && first.toString() == expected);
    if (!equal) {
        scenarioFail(QStringLiteral("the query gives %1, expected %2")
                         .arg(actual, expectNull ? QStringLiteral("null") : quoteText(expected)));
    }
}

void expectEvent(ScenarioPlay& play, const ScenarioCommand& c, ScenarioEvents::Kind kind,
                 const QString& what) {
    c.expectArgs(2, 2);
    const QString expected = c.text(1);
    const auto entry = play.world().events().take(kind);
    if (!entry) {
        scenarioFail(
            QStringLiteral("there was no %1 (expected %2)").arg(what, quoteText(expected)));
    }
    if (entry->text != expected) {
        QString reason = QStringLiteral("the %1 was %2, expected %3")
                             .arg(what, quoteText(entry->text), quoteText(expected));
        if (kind == ScenarioEvents::Kind::Error) {
            reason += QStringLiteral(" (%1)").arg(entry->detail);
        }
        scenarioFail(reason);
    }
}

// expect viewer "<file>" buchungen|status <fiscal year id> <staff id>
void expectViewer(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(5, 5);
    const QString display = c.arg(2).raw;
    if (display != QLatin1String("buchungen") && display != QLatin1String("status")) {
        scenarioFail(QStringLiteral("expect viewer takes buchungen or status"));
    }
    const QString expected = quoteText(c.text(1)) + QLatin1Char(' ') + display + QLatin1Char(' ') +
                             QString::number(c.integer(3)) + QLatin1Char(' ') +
                             QString::number(c.integer(4));
    const auto entry = play.world().events().take(ScenarioEvents::Kind::Viewer);
    if (!entry) {
        scenarioFail(
            QStringLiteral("the booking log viewer was not used (expected %1)").arg(expected));
    }
    if (entry->text != expected) {
        scenarioFail(QStringLiteral("the booking log viewer showed %1, expected %2")
                         .arg(entry->text, expected));
    }
}

void expectNotified(ScenarioPlay& play, const ScenarioCommand& c) {
    c.expectArgs(2, 2);
    const long code = c.integer(1);
    QList<long>& notified = play.world().host().notified;
    const QList<long> seen = notified;
    notified.clear();
    if (!seen.contains(code)) {
        QStringList codes;
        for (long n : seen) {
            codes << QString::number(n);
        }
        scenarioFail(QStringLiteral("the host did not receive code %1 (received: %2)")
                         .arg(code)
                         .arg(codes.isEmpty() ? QStringLiteral("none") : codes.join(u' ')));
    }
}

ScenarioValue hostValue(ScenarioPlay& play, const QList<PathPart>& parts) {
    const QString what = parts.size() > 1 ? parts.at(1).name : QString();
    const auto& last = play.system().lastNotify();
    if (parts.size() == 2 && (what == QLatin1String("lParam") || what == QLatin1String("result"))) {
        if (!last) {
            scenarioFail(QStringLiteral("host.%1: no notify has been sent").arg(what));
        }
        return what == QLatin1String("lParam") ? ScenarioValue::number(last->lParam)
                                               : ScenarioValue::boolean(last->result);
    }
    if (parts.size() == 2 && what == QLatin1String("progress")) {
        const auto& progress = play.world().host().progress;
        if (!progress) {
            scenarioFail(QStringLiteral("host.progress: the host was shown no progress"));
        }
        return ScenarioValue::text(progress->first + u'|' + progress->second);
    }
    if (parts.size() == 4 && what == QLatin1String("menu")) {
        const QString key = parts.at(2).name + u'.' + parts.at(3).name;
        const auto& menu = play.world().host().menu;
        const auto it = menu.find(key);
        if (it == menu.end()) {
            scenarioFail(QStringLiteral("the host was sent no state for the tool %1").arg(key));
        }
        return ScenarioValue::boolean(it->second);
    }
    scenarioFail(
        QStringLiteral("the host has host.lParam, host.result, host.progress and "
                       "host.menu.<band>.<tool>"));
}

ScenarioValue propertyValue(ScenarioPlay& play, const QList<PathPart>& parts) {
    ScenarioLocator& locator = play.locator();
    switch (parts.size()) {
        case 2:
            return windowProperty(locator.window(parts.at(0)), parts.at(1));
        case 3:
            return controlProperty(locator.control(parts).control, parts.at(2));
        case 5:
            return toolProperty(locator.tool(parts).tool, parts.at(4));
        default:
            break;
    }
    scenarioFail(
        QStringLiteral("a property is written window.Property, window.control.Property "
                       "or window.bar.band.tool.Property"));
}

void expectCommand(ScenarioPlay& play, const ScenarioCommand& c) {
    const Token& first = c.arg(0);
    if (!first.quoted) {
        if (first.raw == QLatin1String("window")) {
            return expectWindow(play, c);
        }
        if (first.raw == QLatin1String("sql")) {
            return expectSql(play, c);
        }
        if (first.raw == QLatin1String("shell")) {
            return expectEvent(play, c, ScenarioEvents::Kind::Shell,
                               QStringLiteral("program start"));
        }
        if (first.raw == QLatin1String("help")) {
            return expectEvent(play, c, ScenarioEvents::Kind::Help, QStringLiteral("help call"));
        }
        if (first.raw == QLatin1String("error")) {
            return expectEvent(play, c, ScenarioEvents::Kind::Error,
                               QStringLiteral("error report's procedure"));
        }
        if (first.raw == QLatin1String("viewer")) {
            return expectViewer(play, c);
        }
        if (first.raw == QLatin1String("notified")) {
            return expectNotified(play, c);
        }
    }
    c.expectArgs(3, 3);
    c.expectWord(1, QStringLiteral("="));
    const QList<PathPart> parts = c.path(0);
    const ScenarioValue expected = c.value(2);
    const ScenarioValue actual = parts.first().name == QLatin1String("host")
                                     ? hostValue(play, parts)
                                     : propertyValue(play, parts);
    compare(first.raw, actual, expected);
}

}  // namespace

void addCheckCommands(CommandTable& table) {
    table.insert(QStringLiteral("expect"), expectCommand);
}
