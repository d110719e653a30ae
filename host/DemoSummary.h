#pragma once

#include <QString>

// What the database holds, in a few lines: jobs by type, schedules, runs, log entries.
QString demoSummary();
