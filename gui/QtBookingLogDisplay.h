#pragma once

#include "common/BookingLogViewer.h"

class QDialog;

// The booking log viewer's window: a small read-only window with the file, the fiscal year,
// the staff member, the display asked for and the file's text ("Datei nicht gefunden" when
// there is none). Each use opens a window of its own that goes when it is closed.
class QtBookingLogDisplay : public BookingLogDisplay {
  public:
    void show(const BookingLogView& view) override;

    // The window for a view, not yet shown; for the program and the tests.
    static QDialog* makeWindow(const BookingLogView& view);
};
