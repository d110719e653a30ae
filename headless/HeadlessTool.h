#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "ui/Browser.h"
#include "ui/ToolBar.h"

// One tool of a bar, of a browser's tool bar or of its context menu. The owner (bar or
// browser) hears of every change through onChanged and passes it to its own hook.
class HeadlessTool : public ITool {
  public:
    HeadlessTool(QString name, QString caption, QString toolTip, long picture, bool separator,
                 int type = 0);

    QString Name() const override { return name_; }
    QString Caption() const override { return caption_; }
    void setCaption(const QString& text) override;
    QString ToolTip() const override { return toolTip_; }
    void setToolTip(const QString& text) override;
    bool Enabled() const override { return enabled_; }
    void setEnabled(bool on) override;
    bool Visible() const override { return visible_; }
    void setVisible(bool on) override;
    long Picture() const override { return picture_; }
    void setPicture(long picture);
    bool IsSeparator() const override { return separator_; }
    // The type given to IToolList::Add (5 a separator), 0 for a bar's tool.
    int type() const { return type_; }

    // Whom to tell of a change; set by the owner.
    std::function<void(HeadlessTool&)> onChanged;

  protected:
    // Called after every change of state; tells onChanged.
    virtual void stateChanged();

  private:
    QString name_;
    QString caption_;
    QString toolTip_;
    long picture_;
    bool separator_;
    int type_;
    bool enabled_ = true;
    bool visible_ = true;
};

// A list of tools the logic fills at run time (a browser's Tools and Menu). Add creates and
// owns a tool; AddTool shows a tool of another list here too (the same object, its state
// shared). onChanged hears of every change of the list and of its own tools.
class HeadlessToolList : public IToolList {
  public:
    explicit HeadlessToolList(QString name);
    ITool* Add(const QString& name, int type, const QString& caption, long picture) override;
    void AddTool(ITool* tool) override;
    // The first tool of that name (case-insensitive), nullptr when none.
    ITool* Item(const QString& name) override;
    int Count() const override { return static_cast<int>(entries_.size()); }
    // Raises 381 outside 0 .. Count-1.
    ITool* At(int i) override;

    // "Tools" or "Menu".
    const QString& name() const { return name_; }
    QList<ITool*> tools() const { return entries_; }

    std::function<void()> onChanged;

  private:
    QString name_;
    std::vector<std::unique_ptr<HeadlessTool>> owned_;
    QList<ITool*> entries_;
};
