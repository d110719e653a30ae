#include "headless/HeadlessTimeBox.h"

namespace {
const QChar kEmpty = QLatin1Char('_');
}

HeadlessTimeBox::HeadlessTimeBox(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), places_(4, kEmpty) {}

QString HeadlessTimeBox::Text() const {
    return places_.left(2) + QLatin1Char(':') + places_.mid(2, 2) + QStringLiteral(":00");
}

QString HeadlessTimeBox::Ziffern() const {
    QString digits;
    for (QChar c : places_) {
        if (c != kEmpty) {
            digits += c;
        }
    }
    return digits;
}

QString HeadlessTimeBox::placesOf(const QString& text) {
    QString places;
    for (QChar c : text) {
        if (places.size() == 4) {
            break;
        }
        if ((c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == kEmpty) {
            places += c;
        }
    }
    while (places.size() < 4) {
        places += kEmpty;
    }
    return places;
}

void HeadlessTimeBox::setText(const QString& text) {
    const QString places = placesOf(text);
    if (places == places_) {
        return;
    }
    places_ = places;
    stateChanged();
    raise(EventType::Change);
}

void HeadlessTimeBox::userTime(const QString& hhmm) {
    if (!raise(EventType::KeyDown)) {
        return;
    }
    setText(hhmm);
}

void HeadlessTimeBox::userType(const QString& text) {
    userTime(text);
}
