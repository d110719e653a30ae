#pragma once

#include <functional>

#include "ui/WindowContract.h"

// One log entry in read-only fields, with the four step tools and the display tool "AktVon"
// ("3/17") on the band barMain of tbrMain.
class frmLogDatenDetails : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmLogDatenDetails(std::unique_ptr<IWindow> window);

    // 0 Herkunft (Job Kennung), 1 Mitarbeiter, 2 Datum/Uhrzeit, 3 Kategorie, 4 Art, 5 Name,
    // 6 Text, 7 Zusatz.
    ITextBox& txtDetails(int index) { return get<ITextBox>(QStringLiteral("txtDetails"), index); }
    IToolBar& tbrMain() { return get<IToolBar>(QStringLiteral("tbrMain")); }

    static constexpr int kFelder = 8;
    static inline const QString kBand = QStringLiteral("barMain");
    static inline const QString kToolAktVon = QStringLiteral("AktVon");

    // Raised on the close request and again when the window unloads.
    std::function<void()> evSchliessen;
    // Any tool of the bar, by its name.
    std::function<void(const QString& sToolName)> evNavigation;

  private:
    void onControl(const ControlEvent& e) override;
};
