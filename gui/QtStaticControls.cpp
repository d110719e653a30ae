#include "gui/QtStaticControls.h"

namespace {

// A button without a caption opens a choice beside a field.
const QString kChooseCaption = QStringLiteral("...");

}  // namespace

// --- label ---

QtLabel::QtLabel(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    label_ = new QLabel(parent);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    attach(label_, nullptr);
}

void QtLabel::refresh() {
    label_->setText(Caption());
    const QColor color = classicColor(ForeColor());
    QPalette palette;
    if (color.isValid()) {
        palette.setColor(QPalette::WindowText, color);
    }
    label_->setPalette(palette);
}

// --- button ---

QtButton::QtButton(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    button_ = new QPushButton(parent);
    button_->setAutoDefault(false);
    QObject::connect(button_, &QPushButton::clicked, guard(), [this] {
        if (!updating()) {
            WidgetCall::run([&] { HeadlessButton::userClick(); });
        }
    });
    attach(button_, button_);
}

void QtButton::refresh() {
    button_->setText(Caption().isEmpty() ? kChooseCaption : Caption());
}

void QtButton::userClick() {
    throughWidget([this] { button_->click(); });
}

// --- frame ---

QtFrame::QtFrame(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    box_ = new QGroupBox(parent);
    attach(box_, nullptr);
}

void QtFrame::refresh() {
    box_->setTitle(Caption());
}

// --- picture ---

QtPicture::QtPicture(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    frame_ = new QFrame(parent);
    frame_->setFrameShape(QFrame::NoFrame);
    attach(frame_, nullptr);
}

// --- timer ---

QtTimer::QtTimer(const ControlDecl& decl, HeadlessWindow& window, QObject* parent)
    : QtControl(decl, window) {
    timer_ = new QTimer(parent);
    QObject::connect(timer_, &QTimer::timeout, guard(), [this] {
        if (!this->window().isUnloaded()) {
            WidgetCall::run([&] { tick(); });
        }
    });
    stateChanged();
}

QtTimer::~QtTimer() {
    if (timer_) {
        timer_->stop();
    }
}

void QtTimer::stateChanged() {
    if (!timer_) {
        return;
    }
    if (Enabled() && Interval() > 0) {
        if (!timer_->isActive() || timer_->interval() != Interval()) {
            timer_->start(Interval());
        }
    } else {
        timer_->stop();
    }
}
