#include "headless/HeadlessValueControls.h"

// --- date picker ---

HeadlessDatePicker::HeadlessDatePicker(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessDatePicker::setValue(std::optional<QDate> value) {
    if (value && !value->isValid()) {
        value.reset();
    }
    if (value == value_) {
        return;
    }
    value_ = value;
    stateChanged();
    raise(EventType::Change);
}

void HeadlessDatePicker::userDate(std::optional<QDate> date) {
    setValue(date);
}

// --- selection ---

HeadlessSelection::HeadlessSelection(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessSelection::setMode(long mode) {
    mode_ = mode;
    stateChanged();
}

void HeadlessSelection::setId(long id) {
    if (id == id_) {
        return;
    }
    id_ = id;
    displayText_.reset();
    stateChanged();
    raise(EventType::Change);
}

QString HeadlessSelection::Text() const {
    if (displayText_) {
        return *displayText_;
    }
    return id_ == 0 ? QString() : QString::number(id_);
}

void HeadlessSelection::setDisplayText(const QString& text) {
    displayText_ = text;
    stateChanged();
}

void HeadlessSelection::userSelect(long id) {
    setId(id);
}

// --- tab control ---

HeadlessTabControl::HeadlessTabControl(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), captions_(decl.tabCaptions) {
    enabled_.fill(true, captions_.size());
}

void HeadlessTabControl::checkPage(int page, const char* what) const {
    if (page < 0 || page >= captions_.size()) {
        badIndex(QStringLiteral("%1(%2)").arg(QLatin1String(what)).arg(page));
    }
}

void HeadlessTabControl::setTab(int page) {
    if (page < 0 || page >= captions_.size()) {
        badValue(QStringLiteral("Tab %1").arg(page));
    }
    if (page == tab_) {
        return;
    }
    tab_ = page;
    stateChanged();
}

QString HeadlessTabControl::TabCaption(int page) const {
    checkPage(page, "TabCaption");
    return captions_[page];
}

bool HeadlessTabControl::TabEnabled(int page) const {
    checkPage(page, "TabEnabled");
    return enabled_[page];
}

void HeadlessTabControl::setTabEnabled(int page, bool on) {
    checkPage(page, "TabEnabled");
    enabled_[page] = on;
    stateChanged();
}

void HeadlessTabControl::userTab(int page) {
    if (page < 0 || page >= captions_.size()) {
        refuse(QStringLiteral("es gibt keine Seite %1").arg(page));
    }
    if (!enabled_[page]) {
        refuse(
            QStringLiteral("die Seite %1 \"%2\" ist deaktiviert").arg(page).arg(captions_[page]));
    }
    if (page == tab_) {
        return;
    }
    ControlEvent e = makeEvent(EventType::TabClick);
    e.row = tab_;
    tab_ = page;
    stateChanged();
    raise(e);
}
