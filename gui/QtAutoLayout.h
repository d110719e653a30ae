#pragma once

class QtWindow;

// Lays out any window from its declaration: bars at the top; tab pages, frames and pictures
// holding the controls declared in them; fields in rows with their captions to the left and
// a choice button ("...") or a unit label to the right; check boxes and options in rows; grids,
// browsers and tab controls stretching; the command buttons of each area in a row at its
// bottom, the closing ones (OK, Abbrechen, ...) to the right.
void autoLayout(QtWindow& window);
