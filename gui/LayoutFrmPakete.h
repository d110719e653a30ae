#pragma once

class QtWindow;

// The job list: the browser fills the window; the bar only carries the menu's state for the
// host and is never shown.
void layoutFrmPakete(QtWindow& window);
