#pragma once

#include <functional>
#include <memory>

#include "ui/WindowContract.h"

// The text files of an import script that needs several: one row per table with the text
// file it reads, the buttons that choose a row's file or path and the beginning of its name.
class frmOptTextDateien : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmOptTextDateien(std::unique_ptr<IWindow> window);

    // The indexes of the choice buttons: the data path, or the start of the file names.
    struct Auswahl {
        static constexpr int Pfad = 0;
        static constexpr int NamensAnfang = 1;
    };

    IGrid& grdFileNames() { return get<IGrid>(QStringLiteral("grdFileNames")); }
    IButton& ctlOptTextDatei(int index) {
        return get<IButton>(QStringLiteral("ctlOptTextDatei"), index);
    }
    IButton& cmdOk() { return get<IButton>(QStringLiteral("cmdOk")); }
    IButton& cmdAbbrechen() { return get<IButton>(QStringLiteral("cmdAbbrechen")); }
    IFileDialog& ctlCommonDialog() { return get<IFileDialog>(QStringLiteral("ctlCommonDialog")); }

    // A choice for the grid's current row: its file or path, or its name's beginning (Auswahl).
    std::function<void(int row, int index)> evTextDateiAuswaehlen;
    // OK: the rows are to be taken over; the window closes afterwards.
    std::function<void()> evTextDateienUebernehmen;

  private:
    void onControl(const ControlEvent& e) override;
    void choose(int index);
    void close();

    // Gone when the contract is; a handler may release it.
    std::shared_ptr<int> life_ = std::make_shared<int>(0);
};
