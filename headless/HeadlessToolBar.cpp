#include "headless/HeadlessToolBar.h"

#include "headless/HeadlessWindow.h"

HeadlessToolBar::HeadlessToolBar(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window) {
    for (const ToolDecl& t : window.declaration().tools) {
        if (t.bar.compare(decl.name, Qt::CaseInsensitive) != 0) {
            continue;
        }
        if (!bands_.contains(t.band)) {
            bands_ << t.band;
            bandList_.push_back(Band{t.band, {}});
        }
        Band& b = bandList_[bands_.indexOf(t.band)];
        auto tool =
            std::make_unique<HeadlessTool>(t.name, t.caption, t.hint, t.picture, t.isSeparator());
        tool->onChanged = [this](HeadlessTool& changed) { toolChanged(changed); };
        b.tools.push_back(std::move(tool));
    }
}

const HeadlessToolBar::Band* HeadlessToolBar::band(const QString& name) const {
    for (const Band& b : bandList_) {
        if (b.name.compare(name, Qt::CaseInsensitive) == 0) {
            return &b;
        }
    }
    return nullptr;
}

QStringList HeadlessToolBar::ToolNames(const QString& bandName) const {
    QStringList names;
    if (const Band* b = band(bandName)) {
        for (const auto& t : b->tools) {
            if (!t->IsSeparator()) {
                names << t->Name();
            }
        }
    }
    return names;
}

ITool* HeadlessToolBar::Tool(const QString& bandName, const QString& name) {
    if (const Band* b = band(bandName)) {
        for (const auto& t : b->tools) {
            if (!t->IsSeparator() && t->Name().compare(name, Qt::CaseInsensitive) == 0) {
                return t.get();
            }
        }
    }
    return nullptr;
}

QList<HeadlessTool*> HeadlessToolBar::bandTools(const QString& bandName) const {
    QList<HeadlessTool*> tools;
    if (const Band* b = band(bandName)) {
        for (const auto& t : b->tools) {
            tools << t.get();
        }
    }
    return tools;
}

void HeadlessToolBar::setIconPicture(long pictureId) {
    icon_ = pictureId;
    stateChanged();
}

void HeadlessToolBar::setToolPicture(const QString& tool, long pictureId) {
    for (const Band& b : bandList_) {
        for (const auto& t : b.tools) {
            if (!t->IsSeparator() && t->Name().compare(tool, Qt::CaseInsensitive) == 0) {
                t->setPicture(pictureId);
            }
        }
    }
}

void HeadlessToolBar::toolChanged(HeadlessTool&) {
    stateChanged();
}

void HeadlessToolBar::userTool(const QString& bandName, const QString& tool) {
    if (!band(bandName)) {
        refuse(QStringLiteral("es gibt kein Band \"%1\"").arg(bandName));
    }
    ITool* t = Tool(bandName, tool);
    if (!t) {
        refuse(QStringLiteral("das Band \"%1\" hat kein Werkzeug \"%2\"").arg(bandName, tool));
    }
    if (!t->Visible()) {
        refuse(QStringLiteral("das Werkzeug \"%1\" ist unsichtbar").arg(tool));
    }
    if (!t->Enabled()) {
        refuse(QStringLiteral("das Werkzeug \"%1\" ist deaktiviert").arg(tool));
    }
    ControlEvent e = makeEvent(EventType::ToolClick);
    e.tool = t->Name();
    raise(e);
}

void HeadlessToolBar::userKey(int, int) {
    unsupported("key");
}
