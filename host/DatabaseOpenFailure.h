#pragma once

#include <QString>

#include "common/ErrObject.h"

class PlatformUi;

// What the user reads when the suite's database cannot be opened at start: the file, the
// cause in plain words, the database's own message and that the program ends.
QString databaseOpenFailureText(const QString& path, const ErrObject& error);

// Shows that text in the platform's message box (critical, one button); the program ends
// after it.
void showDatabaseOpenFailure(PlatformUi& ui, const QString& text);
