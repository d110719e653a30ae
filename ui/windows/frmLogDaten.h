#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The log data browser: one browser that fills the window. A double click on a row and the
// browser's tool "Details" ask for the details of the current row; the close box and the
// window's end both report that the window goes.
class frmLogDaten : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmLogDaten(std::unique_ptr<IWindow> window);

    IBrowser& ctlLogDaten() { return get<IBrowser>(QStringLiteral("ctlLogDaten")); }

    std::function<void()> evShowDetail;
    // Raised on the close request and again when the window unloads.
    std::function<void()> evSchliessen;

    // The browser's tool that opens the details.
    static inline const QString kToolDetails = QStringLiteral("Details");

  private:
    void onControl(const ControlEvent& e) override;
};
