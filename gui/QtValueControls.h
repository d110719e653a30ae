#pragma once

#include <QCheckBox>
#include <QDateEdit>
#include <QPointer>
#include <QTabWidget>

#include "gui/QtControl.h"
#include "headless/HeadlessValueControls.h"

// Date picker: a check box that says whether there is a date, and the date edit.
class QtDatePicker : public QtControl<HeadlessDatePicker> {
  public:
    QtDatePicker(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    void userDate(std::optional<QDate> date) override;
    QWidget* keyTarget() const override { return edit_; }

  protected:
    void refresh() override;

  private:
    std::optional<QDate> widgetValue() const;

    QPointer<QCheckBox> has_;
    QPointer<QDateEdit> edit_;
};

// Tab control: a tab widget whose pages hold the controls declared on them. The user's switch
// raises TabClick.
class QtTabControl : public QtControl<HeadlessTabControl> {
  public:
    QtTabControl(const ControlDecl& decl, HeadlessWindow& window, QWidget* parent);
    QWidget* area(int page) const override;
    void userTab(int page) override;

  protected:
    void refresh() override;

  private:
    QPointer<QTabWidget> tabs_;
    QList<QPointer<QWidget>> pages_;
};
