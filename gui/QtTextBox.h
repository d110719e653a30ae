#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

#include "gui/QtControl.h"
#include "headless/HeadlessTextBox.h"
#include "headless/HeadlessTimeBox.h"

// Text box: a line edit (a password edit when declared) or, with many lines, a plain text
// edit, with its caption beside it. Typing raises KeyDown for the key and Change for the text.
class QtTextBox : public QtControl<HeadlessTextBox> {
  public:
    QtTextBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    // Types the text into the widget: one key that replaces the whole text.
    void userType(const QString& text) override;

  protected:
    void refresh() override;

  private:
    void userEdited(const QString& widgetText);
    QString widgetText() const;

    QPointer<QLineEdit> line_;
    QPointer<QPlainTextEdit> lines_;
    // The text being typed by userType: the line ends it had, which the widget turns into
    // its own.
    std::optional<QString> typing_;
};

// Time box: a line edit with the mask "hh:mm:00"; the seconds are fixed literals.
class QtTimeBox : public QtControl<HeadlessTimeBox> {
  public:
    QtTimeBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    // Types hours and minutes into the widget ("_" for a place left empty).
    void userTime(const QString& hhmm) override;
    void userType(const QString& text) override;

  protected:
    void refresh() override;

  private:
    QPointer<QLineEdit> edit_;
};
