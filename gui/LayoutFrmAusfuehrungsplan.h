#pragma once

class QtWindow;

// The plan of starts: the period and the two filters in one row; the steps back and forth
// around the period's name; the list filling the window; the summary and "Schließen" below.
void layoutFrmAusfuehrungsplan(QtWindow& window);
