#include "gui/QtValueControls.h"

#include <QHBoxLayout>
#include <QTabBar>

#include "common/Services.h"

// --- date picker ---

QtDatePicker::QtDatePicker(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    auto* box = new QWidget(parent);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    has_ = new QCheckBox(box);
    has_->setToolTip(QStringLiteral("Datum angeben"));
    edit_ = new QDateEdit(box);
    edit_->setCalendarPopup(true);
    edit_->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    edit_->setMinimumDate(QDate(100, 1, 1));
    edit_->setDate(clockNow().date());
    row->addWidget(has_);
    row->addWidget(edit_);
    QObject::connect(has_, &QCheckBox::clicked, guard(), [this] {
        if (!updating()) {
            WidgetCall::run([&] { HeadlessDatePicker::userDate(widgetValue()); });
        }
    });
    QObject::connect(edit_, &QDateEdit::dateChanged, guard(), [this] {
        if (!updating() && has_->isChecked()) {
            WidgetCall::run([&] { HeadlessDatePicker::userDate(widgetValue()); });
        }
    });
    attach(box, edit_, new QLabel(parent));
    watch(has_);
}

std::optional<QDate> QtDatePicker::widgetValue() const {
    if (!has_->isChecked()) {
        return std::nullopt;
    }
    return edit_->date();
}

void QtDatePicker::refresh() {
    captionLabel()->setText(Caption());
    const QSignalBlocker blockBox(has_);
    const QSignalBlocker blockEdit(edit_);
    has_->setChecked(Value().has_value());
    if (Value()) {
        edit_->setDate(*Value());
    }
    edit_->setEnabled(Value().has_value());
}

void QtDatePicker::userDate(std::optional<QDate> date) {
    if (date && !date->isValid()) {
        date.reset();
    }
    if (date == Value()) {
        return;  // the widget stands there already: nothing changes
    }
    throughWidget([&] {
        if (!date) {
            has_->click();
        } else if (!has_->isChecked()) {
            {
                const QSignalBlocker block(edit_);
                edit_->setDate(*date);
            }
            has_->click();
        } else {
            edit_->setDate(*date);
        }
    });
}

// --- tab control ---

QtTabControl::QtTabControl(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    tabs_ = new QTabWidget(parent);
    for (const QString& caption : decl.tabCaptions) {
        auto* page = new QWidget(tabs_);
        tabs_->addTab(page, caption);
        pages_ << page;
    }
    QObject::connect(tabs_, &QTabWidget::currentChanged, guard(), [this](int page) {
        if (!updating() && page >= 0) {
            WidgetCall::run([&] { HeadlessTabControl::userTab(page); });
        }
    });
    attach(tabs_, tabs_->tabBar());
}

QWidget* QtTabControl::area(int page) const {
    return page >= 0 && page < pages_.size() ? pages_[page].data() : nullptr;
}

void QtTabControl::refresh() {
    for (int i = 0; i < Tabs() && i < tabs_->count(); ++i) {
        tabs_->setTabText(i, TabCaption(i));
        tabs_->setTabEnabled(i, TabEnabled(i));
    }
    tabs_->setCurrentIndex(Tab());
}

void QtTabControl::userTab(int page) {
    if (page < 0 || page >= tabs_->count() || !TabEnabled(page) || page == Tab()) {
        HeadlessTabControl::userTab(page);  // refuses, or nothing on the current page
        return;
    }
    throughWidget([&] { tabs_->setCurrentIndex(page); });
}
