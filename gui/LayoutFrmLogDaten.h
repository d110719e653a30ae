#pragma once

class QtWindow;

// The log data browser: the search's row above, the browser fills the rest of the window.
void layoutFrmLogDaten(QtWindow& window);
