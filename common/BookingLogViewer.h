#pragma once

#include <QString>

// The suite's viewer of a bookings import's log: it is told the fiscal year, the staff
// member, a mode and the file, then shows either the imported bookings or the status.
class BookingLogViewer {
  public:
    virtual ~BookingLogViewer() = default;
    virtual void SetWirtschaftsjahr(long lWjId) = 0;
    virtual void SetMitarbeiter(long lMitId) = 0;
    virtual void SetModus(long lModus) = 0;
    virtual void SetDateiname(const QString& sDatei) = 0;
    virtual void ShowBuchungen() = 0;
    virtual void ShowStatus() = 0;
};

// What the viewer shows: the file it was given, the fiscal year, the staff member, which
// display was asked for, and the file's text when it could be read.
struct BookingLogView {
    QString datei;
    long wirtschaftsjahr = 0;
    long mitarbeiter = 0;
    long modus = 0;
    bool buchungen = false;
    bool gefunden = false;
    QString text;
};

// Where the viewer's window appears: a real window in the program, a record in the
// scenarios.
class BookingLogDisplay {
  public:
    virtual ~BookingLogDisplay() = default;
    virtual void show(const BookingLogView& view) = 0;
};
