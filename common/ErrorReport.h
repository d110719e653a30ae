#pragma once

#include <QString>

#include "common/ErrObject.h"

// The error report shared by every procedure. Err() is the error currently passing, as the
// classic runtime held it; the three module values keep an error safe while a procedure
// cleans up.

ErrObject& Err();

// Reports the error currently in Err(): version head, call path, extra text, line number;
// raises it again when bRaise is set, otherwise shows it through Core_gErrorHandling.
void Core_gFehler(const QString& sProc, const QString& sKlasse, bool bRaise, const QString& sExtra);
// Puts the version head in front of the error's source the first time an error passes.
void Core_gQuelleSetzen();
// Shows the error in the suite's error dialog, or in a plain message box when that fails.
// Never raises.
void Core_gErrorHandling(ErrObject& oErr);
// Keeps the current error in the module values so that cleaning up cannot destroy it.
void Core_gFehlerMerken(const QString& sInfo);
// Puts the kept error back into Err() and empties the module values.
void Core_gFehlerZurueck();

// The module values, for inspection.
struct SavedError {
    long number = 0;
    QString description;
    QString source;
};
const SavedError& savedError();
