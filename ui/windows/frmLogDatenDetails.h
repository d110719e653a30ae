#pragma once

#include <functional>

#include "ui/WindowContract.h"

// One log entry in read-only fields, with the four step tools and the display tool "AktVon"
// ("3/17") on the band barMain of tbrMain.
class frmLogDatenDetails : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmLogDatenDetails(std::unique_ptr<IWindow> window);

    // The indexes of the fields, by what each shows.
    struct Feld {
        static constexpr int Herkunft = 0;  // "Job Kennung" for the jobs' log
        static constexpr int Mitarbeiter = 1;
        static constexpr int DatumUhrzeit = 2;
        static constexpr int Kategorie = 3;
        static constexpr int Art = 4;
        static constexpr int Name = 5;
        static constexpr int Text = 6;
        static constexpr int Zusatz = 7;
    };

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
