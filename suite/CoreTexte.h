#pragma once

#include "common/CoreLibraries.h"

// The suite's texts, read from its text table on every call, so that a text changed while the
// program runs is seen at once. Pictures are put on the target by number; what a number looks
// like is the window kit's business.
class SuiteCoreTexte : public CoreTexteClass {
  public:
    QString GetText(const QVariant& textId) override;
    void SetFormIcon(PictureTarget& window, long pictureId) override;
    void GetBilder(PictureTarget& bar, const QList<QPair<QString, long>>& tools) override;
};
