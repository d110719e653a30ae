#pragma once

#include "gui/QtControl.h"
#include "headless/HeadlessDialogs.h"

// The file and directory dialogs have no place in the window: they open through the
// platform's user interface, which is QtUi in the program with windows.
class QtFileDialog : public QtControl<HeadlessFileDialog> {
  public:
    using QtControl::QtControl;
};

class QtDirDialog : public QtControl<HeadlessDirDialog> {
  public:
    using QtControl::QtControl;
};
