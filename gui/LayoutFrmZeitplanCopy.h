#pragma once

class QtWindow;

// The dialog that copies a schedule to other jobs: in the frame the instruction, the grid of
// the jobs and the count of the ticked ones; below it the overwrite box, a line, and the row
// of buttons, those that tick and untick all to the left, OK and Abbrechen to the right.
void layoutFrmZeitplanCopy(QtWindow& window);
