#pragma once

#include <QString>
#include <memory>

#include "common/CoreLibraries.h"

// Message box styles and answers in use.
namespace MsgStyle {
constexpr long YesNo = 4;
constexpr long YesNoCancelQuestion = 35;
constexpr long YesNoQuestion = 36;
constexpr long Information = 64;
constexpr long Warning = 48;
constexpr long Critical = 16;
}  // namespace MsgStyle

namespace MsgAnswer {
constexpr long Ok = 1;
constexpr long Cancel = 2;
constexpr long Yes = 6;
constexpr long No = 7;
}  // namespace MsgAnswer

// The message box of a controller class: the suite's box with the system's title, through a
// core tools object that lives as long as the owning class.
class MessageBoxOwner {
  public:
    explicit MessageBoxOwner(QString sKlasse) : sKlasse_(std::move(sKlasse)) {}

    long mlMsgBox(const QString& sText, long lFlags, const QString& sTitel = {},
                  const QString& sHelpDatei = {}, long lKontext = 0);

  private:
    QString sKlasse_;
    std::unique_ptr<CoreToolsClass> moCoreTools;
};
