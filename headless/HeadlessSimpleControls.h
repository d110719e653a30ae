#pragma once

#include "headless/HeadlessControl.h"

// Label: caption and fore colour. Takes no user action.
class HeadlessLabel : public HeadlessControl, public ILabel {
  public:
    HeadlessLabel(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    long ForeColor() const override { return foreColor_; }
    void setForeColor(long color) override;
    void userKey(int keyCode, int shift) override;

  private:
    QString caption_;
    long foreColor_ = -1;
};

// Button: the user's click raises Click.
class HeadlessButton : public HeadlessControl, public IButton {
  public:
    HeadlessButton(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    void userClick() override;

  private:
    QString caption_;
};

// Frame: a caption around other controls (ControlDecl::container names it).
class HeadlessFrame : public HeadlessControl, public IFrame {
  public:
    HeadlessFrame(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    void userKey(int keyCode, int shift) override;

  private:
    QString caption_;
};

// Picture box: a container without caption.
class HeadlessPicture : public HeadlessControl, public IPicture {
  public:
    using HeadlessControl::HeadlessControl;
    void userKey(int keyCode, int shift) override;
};

// Timer: ticks while enabled with an interval above 0. The in-memory kit has no clock of its
// own: tick() is called by whoever plays time (a test, the Qt kit's QTimer).
class HeadlessTimer : public HeadlessControl, public ITimer {
  public:
    HeadlessTimer(const ControlDecl& decl, HeadlessWindow& window);
    int Interval() const override { return interval_; }
    void setInterval(int ms) override;
    // Raises Timer when enabled and the interval is above 0; gives whether it ticked.
    bool tick();
    void userKey(int keyCode, int shift) override;

  private:
    int interval_;
};
