#pragma once

class QtWindow;

// The details of a log entry: the automatic layout, with the tool "AktVon" shown as the
// display it is, which a click doesn't reach.
void layoutFrmLogDatenDetails(QtWindow& window);
