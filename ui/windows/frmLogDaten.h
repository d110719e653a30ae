#pragma once

#include <functional>

#include "ui/WindowContract.h"

// The log data browser: one browser that fills the window. A double click on a row and the
// browser's tool "Details" ask for the details of the current row; the close box and the
// window's end both report that the window goes. Above the browser stands the search: the
// words ("Suchen", Ctrl+F in the browser or the boxes), a period by days and the count of
// hits; Enter in any of the boxes asks for the search, Escape for its end. The search waits
// for Enter rather than following each key, since a word's first letters can match millions.
class frmLogDaten : public WindowContract {
  public:
    static const WindowDecl& declaration();
    explicit frmLogDaten(std::unique_ptr<IWindow> window);

    IBrowser& ctlLogDaten() { return get<IBrowser>(QStringLiteral("ctlLogDaten")); }
    ITextBox& txtSuchen() { return get<ITextBox>(QStringLiteral("txtSuchen")); }
    ITextBox& txtSuchenVon() { return get<ITextBox>(QStringLiteral("txtSuchenVon")); }
    ITextBox& txtSuchenBis() { return get<ITextBox>(QStringLiteral("txtSuchenBis")); }
    ILabel& lblSuchTreffer() { return get<ILabel>(QStringLiteral("lblSuchTreffer")); }

    std::function<void()> evShowDetail;
    // Raised on the close request and again when the window unloads.
    std::function<void()> evSchliessen;
    // Enter in the words or a day of the period.
    std::function<void()> evSuchen;
    // Escape: the search ends, the whole log shows again.
    std::function<void()> evSucheBeenden;

    // The browser's tool that opens the details.
    static inline const QString kToolDetails = QStringLiteral("Details");

  private:
    void onControl(const ControlEvent& e) override;
    void onKeyDown(int keyCode, int shift, bool searchBox);
};
