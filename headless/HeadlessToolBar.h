#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "common/CoreLibraries.h"
#include "headless/HeadlessControl.h"
#include "headless/HeadlessTool.h"

// A bar of bands, built from the window's tool declarations for this bar (ToolDecl::bar):
// bands in the order of their first tool, tools and separators in declared order. The user's
// click on a tool raises ToolClick with the tool's name.
//
// For the Qt kit: toolChanged(tool) follows a change of one tool (its default calls
// stateChanged()).
class HeadlessToolBar : public HeadlessControl, public IToolBar, public PictureTarget {
  public:
    HeadlessToolBar(const ControlDecl& decl, HeadlessWindow& window);

    QStringList Bands() const override { return bands_; }
    // The tools of the band without separators, in declared order.
    QStringList ToolNames(const QString& band) const override;
    ITool* Tool(const QString& band, const QString& name) override;

    // PictureTarget: the bar's own picture is kept; a tool picture goes to every tool of that
    // name in every band.
    void setIconPicture(long pictureId) override;
    void setToolPicture(const QString& tool, long pictureId) override;
    long iconPicture() const { return icon_; }

    // The tools of a band, separators included, for drawing.
    QList<HeadlessTool*> bandTools(const QString& band) const;

    // Refused when there is no such band or tool, or the tool is hidden or disabled.
    void userTool(const QString& band, const QString& tool) override;
    void userKey(int keyCode, int shift) override;

  protected:
    virtual void toolChanged(HeadlessTool& tool);

  private:
    struct Band {
        QString name;
        std::vector<std::unique_ptr<HeadlessTool>> tools;
    };
    const Band* band(const QString& name) const;

    QStringList bands_;
    std::vector<Band> bandList_;
    long icon_ = 0;
};
