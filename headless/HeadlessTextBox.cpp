#include "headless/HeadlessTextBox.h"

#include "common/ColumnLimits.h"

HeadlessTextBox::HeadlessTextBox(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessTextBox::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    stateChanged();
    raise(EventType::Change);
}

void HeadlessTextBox::setLocked(bool on) {
    locked_ = on;
    stateChanged();
}

void HeadlessTextBox::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessTextBox::userType(const QString& text) {
    if (locked_) {
        refuse(QStringLiteral("das Textfeld ist gesperrt (Locked)"));
    }
    if (!raise(EventType::KeyDown)) {
        return;
    }
    // The box takes no more characters than its limit, as the database counts them.
    const int limit = decl().maxLength;
    setText(limit > 0 ? ColumnLimits::leftCharacters(text, limit) : text);
}
