#pragma once

class QtWindow;

// The log data browser: the browser fills the window.
void layoutFrmLogDaten(QtWindow& window);
