#pragma once

// The program speaks German whatever the machine is set to: Qt's own texts (the file and folder
// dialogs, the buttons of message boxes, shortcut names such as "Strg+Q") from Qt's German
// translations, and the German locale for calendars, weekday and month names. Call once after
// the application object is made; the program, the scenario runner and the tests all do.
void useGermanEverywhere();
