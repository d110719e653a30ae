#pragma once

#include <memory>

#include "ui/WindowContract.h"

// Asks which part of a bookings log to show: the status or the imported bookings. The
// answer stays readable after the window has closed.
class frmBuchLogAbfrage : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmBuchLogAbfrage(std::unique_ptr<IWindow> window);

    // The indexes of the two buttons: the import's status log, or the bookings' log.
    struct Prot {
        static constexpr int Status = 0;
        static constexpr int Buchungen = 1;
    };

    // A description with simple bold marks "<b>" and "</b>".
    ILabel& ctlBuchunglog() { return get<ILabel>(QStringLiteral("ctlBuchunglog")); }
    IButton& cmdProtBuch(int index) { return get<IButton>(QStringLiteral("cmdProtBuch"), index); }

    // False after "Status" (and when closed without a choice), true after "Buchungen".
    bool pbBuchProtokoll() const { return buchProtokoll_; }

  private:
    void onControl(const ControlEvent& e) override;

    bool buchProtokoll_ = false;
};
