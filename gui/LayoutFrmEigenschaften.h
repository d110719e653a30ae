#pragma once

class QtWindow;

// The job editor: the bar on top; on the general page the job's name, type, client and
// description above the panels of the job types, which stand one below the other so that
// whichever the type shows line up; the schedules beside their buttons; the closing buttons
// at the bottom right.
void layoutFrmEigenschaften(QtWindow& window);
