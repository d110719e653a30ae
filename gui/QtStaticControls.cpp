#include "gui/QtStaticControls.h"

namespace {

// A button without a caption opens a choice beside a field.
const QString kChooseCaption = QStringLiteral("...");

// The caption with its bold marks as rich text: everything else stands as written, lines
// break at CR LF, and lines holding a tab become rows of two aligned columns.
QString boldMarksAsHtml(const QString& caption) {
    auto inline_ = [](const QString& text) {
        QString html = text.toHtmlEscaped();
        html.replace(QStringLiteral("&lt;b&gt;"), QStringLiteral("<b>"));
        html.replace(QStringLiteral("&lt;/b&gt;"), QStringLiteral("</b>"));
        return html;
    };
    QString html;
    bool inTable = false;
    const QStringList lines =
        QString(caption).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(u'\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString& line = lines.at(i);
        const qsizetype tab = line.indexOf(u'\t');
        if (tab >= 0) {
            if (!inTable) {
                html += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"1\">");
                inTable = true;
            }
            html += QStringLiteral("<tr><td>") + inline_(line.left(tab)) +
                    QStringLiteral("</td><td>&nbsp;&nbsp;&nbsp;") + inline_(line.mid(tab + 1)) +
                    QStringLiteral("</td></tr>");
            continue;
        }
        if (inTable) {
            html += QStringLiteral("</table>");
            inTable = false;
        }
        html += inline_(line);
        if (i + 1 < lines.size()) {
            html += QStringLiteral("<br>");
        }
    }
    if (inTable) {
        html += QStringLiteral("</table>");
    }
    return html;
}

}  // namespace

// --- label ---

QtLabel::QtLabel(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    label_ = new QLabel(parent);
    label_->setTextFormat(decl.boldMarks ? Qt::RichText : Qt::PlainText);
    label_->setWordWrap(true);
    attach(label_, nullptr);
}

void QtLabel::refresh() {
    label_->setText(decl().boldMarks ? boldMarksAsHtml(Caption()) : Caption());
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
