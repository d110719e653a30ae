#pragma once

class QtWindow;

// The schedule dialog: name and active flag on top; in the frame of the schedule type the
// single run with its date and time, below it the repeating plan with its description and
// the button that changes it; the closing buttons at the bottom right.
void layoutFrmZeitplan(QtWindow& window);
