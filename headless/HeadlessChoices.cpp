#include "headless/HeadlessChoices.h"

#include "headless/HeadlessWindow.h"

// --- check box ---

HeadlessCheckBox::HeadlessCheckBox(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessCheckBox::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessCheckBox::setValue(int value) {
    if (value < 0 || value > 2) {
        badValue(QStringLiteral("Value %1").arg(value));
    }
    if (value == value_) {
        return;
    }
    value_ = value;
    stateChanged();
    raise(EventType::Click);
}

void HeadlessCheckBox::userClick() {
    setValue(value_ == 1 ? 0 : 1);
}

void HeadlessCheckBox::userCheck(int value) {
    if (value != 0 && value != 1) {
        refuse(QStringLiteral("ein Kontrollkästchen nimmt 0 oder 1, nicht %1").arg(value));
    }
    setValue(value);
}

// --- option button ---

HeadlessOptionButton::HeadlessOptionButton(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessOptionButton::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

QString HeadlessOptionButton::groupKey() const {
    return decl().group.isEmpty() ? QStringLiteral("container:") + decl().container.toLower()
                                  : QStringLiteral("group:") + decl().group.toLower();
}

void HeadlessOptionButton::clearSilently() {
    if (value_) {
        value_ = false;
        stateChanged();
    }
}

void HeadlessOptionButton::setValue(bool on) {
    if (on == value_) {
        return;
    }
    if (!on) {
        clearSilently();
        return;
    }
    for (HeadlessControl* other : window().optionGroup(*this)) {
        if (other != this) {
            static_cast<HeadlessOptionButton*>(other)->clearSilently();
        }
    }
    value_ = true;
    stateChanged();
    raise(EventType::Click);
}

void HeadlessOptionButton::userClick() {
    setValue(true);
}

void HeadlessOptionButton::userCheck(int value) {
    if (value != 1) {
        refuse(QStringLiteral("eine Option lässt sich nur wählen (1), nicht abwählen"));
    }
    setValue(true);
}

// --- combo box ---

HeadlessComboBox::HeadlessComboBox(const ControlDecl& decl, HeadlessWindow& window)
    : HeadlessControl(decl, window), caption_(decl.caption) {}

void HeadlessComboBox::setCaption(const QString& text) {
    caption_ = text;
    stateChanged();
}

void HeadlessComboBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    stateChanged();
}

void HeadlessComboBox::AddItem(long key, const QString& text) {
    items_.append({key, text});
    stateChanged();
}

long HeadlessComboBox::ItemKey(int i) const {
    if (i < 0 || i >= items_.size()) {
        badIndex(QStringLiteral("ItemKey(%1)").arg(i));
    }
    return items_[i].first;
}

QString HeadlessComboBox::ItemTextAt(int i) const {
    if (i < 0 || i >= items_.size()) {
        badIndex(QStringLiteral("ItemTextAt(%1)").arg(i));
    }
    return items_[i].second;
}

long HeadlessComboBox::Key() const {
    return listIndex_ >= 0 ? items_[listIndex_].first : -1;
}

int HeadlessComboBox::indexOfKey(long key) const {
    for (int i = 0; i < items_.size(); ++i) {
        if (items_[i].first == key) {
            return i;
        }
    }
    return -1;
}

void HeadlessComboBox::setKey(long key) {
    listIndex_ = indexOfKey(key);
    stateChanged();
}

void HeadlessComboBox::setListIndex(int i) {
    if (i < -1 || i >= items_.size()) {
        badValue(QStringLiteral("ListIndex %1").arg(i));
    }
    listIndex_ = i;
    stateChanged();
}

QString HeadlessComboBox::ItemText() const {
    return listIndex_ >= 0 ? items_[listIndex_].second : QString();
}

void HeadlessComboBox::userSelect(long key) {
    const int i = indexOfKey(key);
    if (i < 0) {
        refuse(QStringLiteral("die Liste hat keinen Eintrag mit dem Schlüssel %1").arg(key));
    }
    listIndex_ = i;
    stateChanged();
    raise(EventType::Click);
}
