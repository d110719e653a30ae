#pragma once

#include "headless/HeadlessControl.h"

// Text box (also of many lines or for a password, as declared). Change follows every change
// of the text, by code or by the user; KeyDown only the user's typing.
class HeadlessTextBox : public HeadlessControl, public ITextBox {
  public:
    HeadlessTextBox(const ControlDecl& decl, HeadlessWindow& window);
    QString Text() const override { return text_; }
    // Change when the text differs.
    void setText(const QString& text) override;
    bool Locked() const override { return locked_; }
    void setLocked(bool on) override;
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;

    bool multiLine() const { return decl().multiLine; }
    bool password() const { return decl().password; }

    // KeyDown (key code 0), then the new text and Change. Refused on a locked box.
    void userType(const QString& text) override;

  private:
    QString text_;
    QString caption_;
    bool locked_ = false;
};
