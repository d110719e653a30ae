#include "scenario/ScenarioLocator.h"

#include "scenario/ScenarioError.h"
#include "ui/Browser.h"

namespace {

int controlIndex(const PathPart& part) {
    if (!part.args) {
        return -1;
    }
    if (part.args->size() != 1) {
        scenarioFail(QStringLiteral("%1: a control takes one index").arg(part.display()));
    }
    return part.args->first().number();
}

}  // namespace

HeadlessWindow* ScenarioLocator::findOpen(const QString& name) const {
    HeadlessWindow* w = windows_.find(name);
    if (!w || w->isUnloaded()) {
        return nullptr;
    }
    return w;
}

HeadlessWindow& ScenarioLocator::window(const PathPart& part) const {
    if (part.args) {
        scenarioFail(QStringLiteral("%1: a window takes no index").arg(part.display()));
    }
    HeadlessWindow* w = findOpen(part.name);
    if (!w) {
        scenarioFail(QStringLiteral("window %1 is not open").arg(part.name));
    }
    return *w;
}

ScenarioLocator::ControlRef ScenarioLocator::control(const QList<PathPart>& parts) const {
    if (parts.size() < 2) {
        scenarioFail(QStringLiteral("%1 names no control (window.control)")
                         .arg(parts.isEmpty() ? QString() : parts.first().display()));
    }
    HeadlessWindow& w = window(parts.at(0));
    const PathPart& part = parts.at(1);
    IControl* c = w.control(part.name, controlIndex(part));
    if (!c) {
        scenarioFail(QStringLiteral("window %1 has no control %2").arg(w.name(), part.display()));
    }
    return ControlRef{w, *c, w.name() + u'.' + part.display()};
}

ScenarioLocator::ToolRef ScenarioLocator::tool(const QList<PathPart>& parts) const {
    if (parts.size() < 4) {
        scenarioFail(QStringLiteral("a tool is written window.bar.band.tool"));
    }
    ControlRef owner = control(parts.mid(0, 2));
    const QString band = parts.at(2).name;
    const QString name = parts.at(3).name;
    const QString display =
        owner.display + u'.' + parts.at(2).display() + u'.' + parts.at(3).display();
    ITool* t = nullptr;
    if (auto* bar = dynamic_cast<IToolBar*>(&owner.control)) {
        if (!bar->Bands().contains(band)) {
            scenarioFail(QStringLiteral("%1 has no band %2").arg(owner.display, band));
        }
        t = bar->Tool(band, name);
    } else if (auto* browser = dynamic_cast<IBrowser*>(&owner.control)) {
        if (band == QLatin1String("Tools")) {
            t = browser->Tools().Item(name);
        } else if (band == QLatin1String("Menu")) {
            t = browser->Menu().Item(name);
        } else {
            scenarioFail(
                QStringLiteral("%1: a browser's tools lie in Tools or Menu").arg(owner.display));
        }
    } else {
        scenarioFail(QStringLiteral("%1 is neither a bar nor a browser").arg(owner.display));
    }
    if (!t) {
        scenarioFail(QStringLiteral("%1 has no tool %2 in %3").arg(owner.display, name, band));
    }
    return ToolRef{owner.window, owner.control, band, name, *t, display};
}

QString ScenarioLocator::unreachable(const ControlRef& ref) {
    return ref.window.unreachableReason(ref.control);
}

QString ScenarioLocator::unreachable(const ToolRef& ref) {
    const QString owner = ref.window.unreachableReason(ref.owner);
    if (!owner.isEmpty()) {
        return owner;
    }
    if (!ref.tool.Visible()) {
        return QStringLiteral("%1 is hidden").arg(ref.display);
    }
    if (!ref.tool.Enabled()) {
        return QStringLiteral("%1 is disabled").arg(ref.display);
    }
    return {};
}
