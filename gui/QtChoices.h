#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QRadioButton>

#include "gui/QtControl.h"
#include "headless/HeadlessChoices.h"

// Check box: the user's click toggles it (Click); setting the value by code raises Click too,
// as the in-memory control does.
class QtCheckBox : public QtControl<HeadlessCheckBox> {
  public:
    QtCheckBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userClick() override;
    void userCheck(int value) override;

  protected:
    void refresh() override;

  private:
    QPointer<QCheckBox> box_;
};

// Option button: a radio button; the group is kept by the in-memory control, so the widget is
// not exclusive by itself.
class QtOptionButton : public QtControl<HeadlessOptionButton> {
  public:
    QtOptionButton(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userClick() override;
    void userCheck(int value) override;

  protected:
    void refresh() override;

  private:
    QPointer<QRadioButton> button_;
};

// Combo box: items with their keys as item data; the user's pick raises Click.
class QtComboBox : public QtControl<HeadlessComboBox> {
  public:
    QtComboBox(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userSelect(long key) override;

  protected:
    void refresh() override;

  private:
    QPointer<QComboBox> combo_;
};
