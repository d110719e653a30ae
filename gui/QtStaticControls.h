#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "gui/QtControl.h"
#include "headless/HeadlessSimpleControls.h"

// Label: its caption in the fore colour.
class QtLabel : public QtControl<HeadlessLabel> {
  public:
    QtLabel(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);

  protected:
    void refresh() override;

  private:
    QPointer<QLabel> label_;
};

// Button: the user's click raises Click.
class QtButton : public QtControl<HeadlessButton> {
  public:
    QtButton(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userClick() override;

  protected:
    void refresh() override;

  private:
    QPointer<QPushButton> button_;
};

// Frame: a group box with the caption as its title; the controls standing in it go inside.
class QtFrame : public QtControl<HeadlessFrame> {
  public:
    QtFrame(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    QWidget* area(int) const override { return box_; }

  protected:
    void refresh() override;

  private:
    QPointer<QGroupBox> box_;
};

// Picture box: a plain container for the controls standing in it.
class QtPicture : public QtControl<HeadlessPicture> {
  public:
    QtPicture(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    QWidget* area(int) const override { return frame_; }

  private:
    QPointer<QFrame> frame_;
};

// Timer: a QTimer whose ticks raise Timer while it is enabled with an interval.
class QtTimer : public QtControl<HeadlessTimer> {
  public:
    QtTimer(const ControlDecl& decl, HeadlessWindow& window, QObject* parent);
    ~QtTimer() override;
    bool running() const { return timer_ && timer_->isActive(); }

  protected:
    void stateChanged() override;

  private:
    QPointer<QTimer> timer_;
};
