#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The beginning of a text file's name for one row of the text file grid.
class frmOptTextDatName : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmOptTextDatName(std::unique_ptr<IWindow> window);

    ITextBox& ctlOptDateiNameBeginntMit() {
        return get<ITextBox>(QStringLiteral("ctlOptDateiNameBeginntMit"));
    }
    IButton& cmdOk() { return get<IButton>(QStringLiteral("cmdOk")); }
    IButton& cmdAbbrechen() { return get<IButton>(QStringLiteral("cmdAbbrechen")); }

    // The grid row the window works on.
    int Row() const { return row_; }
    void setRow(int row) { row_ = row; }

    // OK, with the row; the window closes afterwards.
    std::function<void(int row)> evTextDateienNamenUebernehmen;

  private:
    void onControl(const ControlEvent& e) override;
    void close();

    int row_ = 0;
    std::shared_ptr<int> life_ = std::make_shared<int>(0);
};
