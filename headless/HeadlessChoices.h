#pragma once

#include <QList>
#include <QPair>

#include "headless/HeadlessControl.h"

// Check box: Click on every change of the value, by code too; nothing when it stays.
class HeadlessCheckBox : public HeadlessControl, public ICheckBox {
  public:
    HeadlessCheckBox(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    int Value() const override { return value_; }
    // 0, 1 or 2 (greyed); Click when it changes.
    void setValue(int value) override;

    // Toggles 1 to 0 and else to 1 (Click).
    void userClick() override;
    // Clicked to that value, 0 or 1 (Click when it changes).
    void userCheck(int value) override;

  private:
    QString caption_;
    int value_ = 0;
};

// Option button: options of one group (ControlDecl::group, or else of one container) in one
// window exclude one another. Setting one true clears the others silently and raises Click
// for it alone, by code too; setting false raises nothing.
class HeadlessOptionButton : public HeadlessControl, public IOptionButton {
  public:
    HeadlessOptionButton(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    bool Value() const override { return value_; }
    void setValue(bool on) override;

    // Chooses the option (Click when it was not chosen).
    void userClick() override;
    // 1 chooses, 0 is refused (an option cannot be cleared by a click).
    void userCheck(int value) override;

    // The key that makes options one group: "group:<group>" or "container:<container>".
    QString groupKey() const;

  private:
    void clearSilently();

    QString caption_;
    bool value_ = false;
};

// Combo box of items with a numeric key and a text. Selecting by code is silent; the user's
// pick raises Click.
class HeadlessComboBox : public HeadlessControl, public IComboBox {
  public:
    HeadlessComboBox(const ControlDecl& decl, HeadlessWindow& window);
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    void Clear() override;
    void AddItem(long key, const QString& text) override;
    int ItemCount() const override { return static_cast<int>(items_.size()); }
    long ItemKey(int i) const override;
    QString ItemTextAt(int i) const override;
    long Key() const override;
    // The first item with that key; none selected when there is no such item.
    void setKey(long key) override;
    int ListIndex() const override { return listIndex_; }
    // -1 for none; another position outside the list raises 380.
    void setListIndex(int i) override;
    QString ItemText() const override;

    // The position of the first item with that key, -1 when none.
    int indexOfKey(long key) const;

    // The user picks the item with that key: it is selected and Click raised (also when it
    // was selected already). Refused when the list has no such key.
    void userSelect(long key) override;

  private:
    QString caption_;
    QList<QPair<long, QString>> items_;
    int listIndex_ = -1;
};
