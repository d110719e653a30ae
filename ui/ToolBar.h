#pragma once

#include <QString>
#include <QStringList>

#include "common/NavBar.h"
#include "ui/Controls.h"

// One tool of a bar, a browser's tool bar or its context menu.
class ITool {
  public:
    virtual ~ITool() = default;
    virtual QString Name() const = 0;
    virtual QString Caption() const = 0;
    // A display tool shows its state in its caption.
    virtual void setCaption(const QString& text) = 0;
    virtual QString ToolTip() const = 0;
    virtual void setToolTip(const QString& text) = 0;
    virtual bool Enabled() const = 0;
    virtual void setEnabled(bool on) = 0;
    virtual bool Visible() const = 0;
    virtual void setVisible(bool on) = 0;
    virtual long Picture() const = 0;
    virtual bool IsSeparator() const = 0;
};

// A bar of bands that hold tools. Its tools are declared with the window; clicks raise
// ToolClick with the tool's name. Implements the step tools' helper interface.
class IToolBar : public virtual IControl, public NavBar {
  public:
    virtual QStringList Bands() const = 0;
    virtual QStringList ToolNames(const QString& band) const = 0;
    // The tool, or nullptr when the band has no such tool.
    virtual ITool* Tool(const QString& band, const QString& name) = 0;

    // NavBar
    QString typeName() const override { return QStringLiteral("ActiveBar2"); }
    void setToolEnabled(const QString& band, const QString& tool, bool enabled) override {
        if (ITool* t = Tool(band, tool)) {
            t->setEnabled(enabled);
        }
    }
};
