#pragma once

#include <QList>
#include <QStringList>
#include <optional>

#include "headless/HeadlessControl.h"

// Date picker: Change when the value changes, by code or by the user.
class HeadlessDatePicker : public HeadlessControl, public IDatePicker {
  public:
    HeadlessDatePicker(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    std::optional<QDate> Value() const override { return value_; }
    void setValue(std::optional<QDate> value) override;

    // The user's date, or none: as setValue.
    void userDate(std::optional<QDate> date) override;

  private:
    QString caption_;
    std::optional<QDate> value_;
};

// The in-house selection control: an id of a client, an office or a staff member. Change when
// the id changes, by code or by the user. The display text is what the Qt kit or a test puts
// there with setDisplayText; without one it is the id as decimal text ("" for 0).
class HeadlessSelection : public HeadlessControl, public ISelection {
  public:
    HeadlessSelection(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    long Mode() const override { return mode_; }
    void setMode(long mode) override;
    long Id() const override { return id_; }
    void setId(long id) override;
    QString Text() const override;
    void setDisplayText(const QString& text);

    // The user chooses the record with that id: as setId.
    void userSelect(long id) override;

  private:
    QString caption_;
    long mode_ = 0;
    long id_ = 0;
    std::optional<QString> displayText_;
};

// Tab control: pages with captions (ControlDecl::tabCaptions). Switching by code is silent;
// the user's switch raises TabClick with row = the previous page.
class HeadlessTabControl : public HeadlessControl, public ITabControl {
  public:
    HeadlessTabControl(const ControlDecl& decl, HeadlessWindow& window);
    int Tab() const override { return tab_; }
    void setTab(int page) override;
    int Tabs() const override { return static_cast<int>(captions_.size()); }
    QString TabCaption(int page) const override;
    bool TabEnabled(int page) const override;
    void setTabEnabled(int page, bool on) override;

    // Refused for a page that is not there or disabled; nothing happens on the current page.
    void userTab(int page) override;

  private:
    void checkPage(int page, const char* what) const;

    QStringList captions_;
    QList<bool> enabled_;
    int tab_ = 0;
};
