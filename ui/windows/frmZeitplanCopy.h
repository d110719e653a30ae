#pragma once

#include <cstdint>
#include <functional>

#include "ui/WindowContract.h"

// Copying a schedule to other jobs: the instruction, the grid of the other jobs with a tick
// each, the count of the ticked ones, whether same-named schedules are overwritten, and the
// buttons that tick all, untick all, copy or cancel. The window raises its events; the
// controller fills it, follows the ticks and copies.
class frmZeitplanCopy : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmZeitplanCopy(std::unique_ptr<IWindow> window);

    IFrame& fraZeitplanCopy() { return get<IFrame>(QStringLiteral("fraZeitplanCopy")); }
    ILabel& lblZeitplanHinweisCopy() {
        return get<ILabel>(QStringLiteral("lblZeitplanHinweisCopy"));
    }
    IGrid& grdAuftrag() { return get<IGrid>(QStringLiteral("grdAuftrag")); }
    ILabel& lblZeitplanCopyInfo() { return get<ILabel>(QStringLiteral("lblZeitplanCopyInfo")); }
    ICheckBox& chkUeberschreiben() { return get<ICheckBox>(QStringLiteral("chkUeberschreiben")); }
    IButton& cmdAuswaehlen() { return get<IButton>(QStringLiteral("cmdAuswaehlen")); }
    IButton& cmdAbwaehlen() { return get<IButton>(QStringLiteral("cmdAbwaehlen")); }
    IButton& cmdOk() { return get<IButton>(QStringLiteral("cmdOk")); }
    IButton& cmdAbbrechen() { return get<IButton>(QStringLiteral("cmdAbbrechen")); }

    // OK, with the value of chkUeberschreiben (1 overwrite, 0 not).
    std::function<void(std::uint8_t& byZeitplanUeberschreiben)> evZeitplanCopyOk;
    // Abbrechen.
    std::function<void()> evZeitplanCopyCancel;
    // "Alle abwählen" (true) or "Alle auswählen" (false).
    std::function<void(bool& bAbwaehlen)> evZeitplanWaehlen;
    // A click into the grid, with the row and column of the cell clicked (row 0: the heading).
    std::function<void(int row, int col)> grdAuftrag_Click;

  private:
    void onControl(const ControlEvent& e) override;
};
