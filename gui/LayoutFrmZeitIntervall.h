#pragma once

class QtWindow;

// The recurrence dialog: the frequency options on the left beside the place that the daily,
// weekly and monthly frames share (only the chosen one is on show); below them the times of
// the day and the duration, then the job's name and the buttons.
void layoutFrmZeitIntervall(QtWindow& window);
