#include "gui/QtChoices.h"

namespace {

Qt::CheckState checkState(int value) {
    switch (value) {
        case 1:
            return Qt::Checked;
        case 2:
            return Qt::PartiallyChecked;
        default:
            return Qt::Unchecked;
    }
}

}  // namespace

// --- check box ---

QtCheckBox::QtCheckBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    box_ = new QCheckBox(parent);
    QObject::connect(box_, &QCheckBox::clicked, guard(), [this] {
        if (!updating()) {
            WidgetCall::run([&] { HeadlessCheckBox::userClick(); });
        }
    });
    attach(box_, box_);
}

void QtCheckBox::refresh() {
    box_->setText(Caption());
    box_->setTristate(Value() == 2);
    box_->setCheckState(checkState(Value()));
}

void QtCheckBox::userClick() {
    throughWidget([this] { box_->click(); });
}

void QtCheckBox::userCheck(int value) {
    if ((value != 0 && value != 1) || value == Value()) {
        HeadlessCheckBox::userCheck(value);  // refuses a bad value, nothing when it stays
        return;
    }
    throughWidget([this] { box_->click(); });
}

// --- option button ---

QtOptionButton::QtOptionButton(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    button_ = new QRadioButton(parent);
    button_->setAutoExclusive(false);
    QObject::connect(button_, &QRadioButton::clicked, guard(), [this] {
        if (updating()) {
            return;
        }
        std::weak_ptr<void> life = this->window().lifeToken();
        WidgetCall::run([this] { HeadlessOptionButton::userClick(); });
        if (!life.expired()) {
            sync();  // a click on the chosen option leaves it chosen
        }
    });
    attach(button_, button_);
}

void QtOptionButton::refresh() {
    button_->setText(Caption());
    button_->setChecked(Value());
}

void QtOptionButton::userClick() {
    throughWidget([this] { button_->click(); });
}

void QtOptionButton::userCheck(int value) {
    if (value != 1) {
        HeadlessOptionButton::userCheck(value);  // refuses
        return;
    }
    throughWidget([this] { button_->click(); });
}

// --- combo box ---

QtComboBox::QtComboBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    combo_ = new QComboBox(parent);
    combo_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    QObject::connect(combo_, &QComboBox::activated, guard(), [this](int i) {
        if (!updating() && i >= 0 && i < ItemCount()) {
            WidgetCall::run([&] { HeadlessComboBox::userSelect(ItemKey(i)); });
        }
    });
    attach(combo_, combo_, new QLabel(parent));
}

void QtComboBox::refresh() {
    captionLabel()->setText(Caption());
    bool same = combo_->count() == ItemCount();
    for (int i = 0; same && i < ItemCount(); ++i) {
        same = combo_->itemText(i) == ItemTextAt(i) &&
               combo_->itemData(i).toLongLong() == static_cast<qlonglong>(ItemKey(i));
    }
    if (!same) {
        combo_->clear();
        for (int i = 0; i < ItemCount(); ++i) {
            combo_->addItem(ItemTextAt(i), QVariant::fromValue<qlonglong>(ItemKey(i)));
        }
    }
    combo_->setCurrentIndex(ListIndex());
}

void QtComboBox::userSelect(long key) {
    const int i = indexOfKey(key);
    if (i < 0) {
        HeadlessComboBox::userSelect(key);  // refuses
        return;
    }
    {
        const QSignalBlocker block(combo_);
        combo_->setCurrentIndex(i);
    }
    throughWidget([&] { Q_EMIT combo_->activated(i); });
}
