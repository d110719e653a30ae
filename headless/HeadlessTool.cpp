#include "headless/HeadlessTool.h"

#include "common/ErrObject.h"
#include "headless/HeadlessControl.h"

HeadlessTool::HeadlessTool(QString name, QString caption, QString toolTip, long picture,
                           bool separator, int type)
    : name_(std::move(name)),
      caption_(std::move(caption)),
      toolTip_(std::move(toolTip)),
      picture_(picture),
      separator_(separator),
      type_(type) {}

void HeadlessTool::stateChanged() {
    if (onChanged) {
        onChanged(*this);
    }
}

void HeadlessTool::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessTool::setToolTip(const QString& text) {
    toolTip_ = text;
    stateChanged();
}

void HeadlessTool::setEnabled(bool on) {
    if (on == enabled_) {
        return;
    }
    enabled_ = on;
    stateChanged();
}

void HeadlessTool::setVisible(bool on) {
    if (on == visible_) {
        return;
    }
    visible_ = on;
    stateChanged();
}

void HeadlessTool::setPicture(long picture) {
    picture_ = picture;
    stateChanged();
}

HeadlessToolList::HeadlessToolList(QString name) : name_(std::move(name)) {}

ITool* HeadlessToolList::Add(const QString& name, int type, const QString& caption, long picture) {
    auto tool = std::make_unique<HeadlessTool>(name, caption, caption, picture, type == 5, type);
    tool->onChanged = [this](HeadlessTool&) {
        if (onChanged) {
            onChanged();
        }
    };
    ITool* t = tool.get();
    owned_.push_back(std::move(tool));
    entries_.append(t);
    if (onChanged) {
        onChanged();
    }
    return t;
}

void HeadlessToolList::AddTool(ITool* tool) {
    if (!tool) {
        throw RaisedError(ErrNumber::ObjectRequired, QStringLiteral("Objekt erforderlich"),
                          QStringLiteral("%1.AddTool").arg(name_));
    }
    entries_.append(tool);
    if (onChanged) {
        onChanged();
    }
}

ITool* HeadlessToolList::Item(const QString& name) {
    for (ITool* t : entries_) {
        if (t->Name().compare(name, Qt::CaseInsensitive) == 0) {
            return t;
        }
    }
    return nullptr;
}

ITool* HeadlessToolList::At(int i) {
    if (i < 0 || i >= entries_.size()) {
        throw RaisedError(
            HeadlessErr::InvalidArrayIndex,
            QStringLiteral("Ungültiger Index für Eigenschaftenfeld (%1.At(%2))").arg(name_).arg(i),
            name_);
    }
    return entries_[i];
}
