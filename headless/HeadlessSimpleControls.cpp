#include "headless/HeadlessSimpleControls.h"

HeadlessLabel::HeadlessLabel(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessLabel::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessLabel::setForeColor(long color) {
    foreColor_ = color;
    stateChanged();
}

void HeadlessLabel::userKey(int, int) {
    unsupported("key");
}

HeadlessButton::HeadlessButton(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessButton::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessButton::userClick() {
    raise(EventType::Click);
}

HeadlessFrame::HeadlessFrame(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessFrame::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessFrame::userKey(int, int) {
    unsupported("key");
}

void HeadlessPicture::userKey(int, int) {
    unsupported("key");
}

HeadlessTimer::HeadlessTimer(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), interval_(decl.interval) {}

void HeadlessTimer::setInterval(int ms) {
    if (ms < 0) {
        badValue(QStringLiteral("Interval %1").arg(ms));
    }
    interval_ = ms;
    stateChanged();
}

bool HeadlessTimer::tick() {
    if (!Enabled() || interval_ <= 0) {
        return false;
    }
    raise(EventType::Timer);
    return true;
}

void HeadlessTimer::userKey(int, int) {
    unsupported("key");
}
