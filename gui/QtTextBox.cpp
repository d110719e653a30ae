#include "gui/QtTextBox.h"

#include <QFontMetrics>
#include <QSignalBlocker>
#include <algorithm>

#include "common/ColumnLimits.h"

namespace {

// The system keeps line ends as CR LF; the widget knows only LF.
QString withCrLf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return text;
}

QString withLf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
}

}  // namespace

QtTextBox::QtTextBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    auto* caption = new QLabel(parent);
    QWidget* editor = nullptr;
    if (decl.multiLine) {
        lines_ = new QPlainTextEdit(parent);
        lines_->setTabChangesFocus(true);
        lines_->setMinimumHeight(QFontMetrics(lines_->font()).lineSpacing() * 4);
        QObject::connect(lines_, &QPlainTextEdit::textChanged, guard(), [this] {
            if (!updating()) {
                userEdited(lines_->toPlainText());
            }
        });
        editor = lines_;
    } else {
        line_ = new QLineEdit(parent);
        if (decl.password) {
            line_->setEchoMode(QLineEdit::Password);
        }
        QObject::connect(line_, &QLineEdit::textEdited, guard(), [this](const QString& text) {
            if (!updating()) {
                userEdited(text);
            }
        });
        editor = line_;
    }
    attach(editor, editor, caption);
}

QString QtTextBox::widgetText() const {
    return line_ ? line_->text() : lines_ ? withCrLf(lines_->toPlainText()) : QString();
}

void QtTextBox::refresh() {
    captionLabel()->setText(Caption());
    if (line_) {
        if (line_->text() != Text()) {
            line_->setText(Text());
        }
        line_->setReadOnly(Locked());
    } else if (lines_) {
        if (lines_->toPlainText() != withLf(Text())) {
            lines_->setPlainText(withLf(Text()));
        }
        lines_->setReadOnly(Locked());
    }
}

void QtTextBox::userEdited(const QString& text) {
    QString value = text;
    const int limit = decl().maxLength;
    if (line_ && limit > 0 && ColumnLimits::characters(value) > limit) {
        // The box stops taking characters at its limit, counted as the database counts them
        // (QLineEdit's own limit counts a character beyond the 16-bit range twice).
        value = ColumnLimits::leftCharacters(value, limit);
        const int cursor = std::min(line_->cursorPosition(), static_cast<int>(value.size()));
        const QSignalBlocker block(line_);
        line_->setText(value);
        line_->setCursorPosition(cursor);
    }
    if (lines_) {
        value = typing_ && withLf(*typing_) == text ? *typing_ : withCrLf(text);
    }
    WidgetCall::run([&] { HeadlessTextBox::setText(value); });
}

void QtTextBox::userType(const QString& text) {
    QWidget* editor = keyTarget();
    if (Locked() || !editor) {
        HeadlessTextBox::userType(text);
        return;
    }
    if (line_) {
        line_->selectAll();
    } else {
        lines_->selectAll();
    }
    std::weak_ptr<void> life = this->window().lifeToken();
    typing_ = text;
    throughWidget([&] {
        if (text.isEmpty()) {
            sendKey(editor, 0, 0, KeyRoute::Typing, {}, Qt::Key_Backspace);
        } else if (text.at(0).isPrint()) {
            sendKey(editor, 0, 0, KeyRoute::Typing, text);
        } else {
            // No key types a text that starts with a control character: the key, then the text.
            sendKey(editor, 0, 0, KeyRoute::Control);
            if (life.expired()) {
                return;
            }
            if (line_) {
                {
                    const QSignalBlocker block(line_);
                    line_->setText(text);
                }
                Q_EMIT line_->textEdited(line_->text());
            } else {
                {
                    const QSignalBlocker block(lines_);
                    lines_->setPlainText(withLf(text));
                }
                userEdited(lines_->toPlainText());
            }
        }
    });
    if (!life.expired()) {
        typing_.reset();
    }
}

// --- time box ---

QtTimeBox::QtTimeBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent)
    : QtControl(decl, window) {
    edit_ = new QLineEdit(parent);
    edit_->setInputMask(QStringLiteral("00:00:\\0\\0;_"));
    edit_->setMaximumWidth(
        QFontMetrics(edit_->font()).horizontalAdvance(QStringLiteral("00:00:00")) + 24);
    QObject::connect(edit_, &QLineEdit::textEdited, guard(), [this] {
        if (!updating()) {
            WidgetCall::run([&] { HeadlessTimeBox::setText(edit_->displayText()); });
        }
    });
    attach(edit_, edit_);
}

void QtTimeBox::refresh() {
    if (edit_->displayText() != Text()) {
        edit_->setText(Text());
    }
}

void QtTimeBox::userTime(const QString& hhmm) {
    edit_->setCursorPosition(0);
    edit_->selectAll();
    const QString typed = hhmm.isEmpty() ? QStringLiteral("_") : hhmm;
    throughWidget([&] { sendKey(edit_, 0, 0, KeyRoute::Typing, typed); });
}

void QtTimeBox::userType(const QString& text) {
    userTime(text);
}
