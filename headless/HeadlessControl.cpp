#include "headless/HeadlessControl.h"

#include "common/ErrObject.h"
#include "headless/HeadlessWindow.h"

HeadlessControl::HeadlessControl(const ControlDecl& decl, HeadlessWindow& window)
    : decl_(decl),
      window_(window),
      enabled_(decl.enabled),
      visible_(decl.visible),
      toolTip_(decl.hint) {}

HeadlessControl::~HeadlessControl() = default;

void HeadlessControl::setEnabled(bool on) {
    enabled_ = on;
    stateChanged();
}

void HeadlessControl::setVisible(bool on) {
    visible_ = on;
    stateChanged();
}

void HeadlessControl::setTabStop(bool on) {
    tabStop_ = on;
    stateChanged();
}

void HeadlessControl::setToolTip(const QString& text) {
    toolTip_ = text;
    stateChanged();
}

void HeadlessControl::setTop(int top) {
    top_ = top;
    stateChanged();
}

void HeadlessControl::setHeight(int height) {
    height_ = height;
    stateChanged();
}

void HeadlessControl::setLeft(int left) {
    left_ = left;
    stateChanged();
}

void HeadlessControl::setWidth(int width) {
    width_ = width;
    stateChanged();
}

void HeadlessControl::SetFocus() {
    window_.moveFocus(*this);
}

bool HeadlessControl::Focused() const {
    return window_.focusedControl() == this;
}

void HeadlessControl::userKey(int keyCode, int shift) {
    ControlEvent e = makeEvent(EventType::KeyDown);
    e.keyCode = keyCode;
    e.shift = shift;
    raise(e);
}

QString HeadlessControl::fullName() const {
    return decl_.index >= 0 ? QStringLiteral("%1(%2)").arg(decl_.name).arg(decl_.index)
                            : decl_.name;
}

bool HeadlessControl::raise(EventType type) {
    return raise(makeEvent(type));
}

bool HeadlessControl::raise(ControlEvent event) {
    return window_.raise(event);
}

ControlEvent HeadlessControl::makeEvent(EventType type) const {
    ControlEvent e;
    e.type = type;
    e.control = decl_.name;
    e.index = decl_.index;
    return e;
}

QString HeadlessControl::describe() const {
    return window_.name() + QLatin1Char('.') + fullName();
}

void HeadlessControl::refuse(const QString& reason) const {
    throw RaisedError(ErrNumber::Internal, QStringLiteral("%1: %2").arg(describe(), reason),
                      QStringLiteral("headless"));
}

void HeadlessControl::badValue(const QString& what) const {
    throw RaisedError(
        HeadlessErr::InvalidPropertyValue,
        QStringLiteral("Unzulässiger Eigenschaftswert (%1: %2)").arg(describe(), what), fullName());
}

void HeadlessControl::badIndex(const QString& what) const {
    throw RaisedError(
        HeadlessErr::InvalidArrayIndex,
        QStringLiteral("Ungültiger Index für Eigenschaftenfeld (%1: %2)").arg(describe(), what),
        fullName());
}
