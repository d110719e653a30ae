#pragma once

#include <QString>

// While the agent writes a run every few milliseconds on its own connection, the program lists
// its jobs, reads and filters a history and the log data, and deletes old log data through its
// record sets: nothing waits into a lock, nothing fails and no written row goes missing. The
// database (a file or a server's address) holds the demo's jobs and schedules.
void checkTheProgramWhileTheAgentWrites(const QString& location);
