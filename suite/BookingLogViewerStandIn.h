#pragma once

#include "common/BookingLogViewer.h"

// The stand-in of the suite's booking log viewer: it reads the file it was given and hands
// the display that was asked for to the registry's display. A file that cannot be read shows
// as not found; a very long one is cut off after its first mebibyte.
class SuiteBookingLogViewer : public BookingLogViewer {
  public:
    void SetWirtschaftsjahr(long lWjId) override { view_.wirtschaftsjahr = lWjId; }
    void SetMitarbeiter(long lMitId) override { view_.mitarbeiter = lMitId; }
    void SetModus(long lModus) override { view_.modus = lModus; }
    void SetDateiname(const QString& sDatei) override { view_.datei = sDatei; }
    void ShowBuchungen() override { show(true); }
    void ShowStatus() override { show(false); }

    // The view as it would be shown, for the display and the tests.
    static BookingLogView makeView(BookingLogView view, bool buchungen);

  private:
    void show(bool buchungen);

    BookingLogView view_;
};
