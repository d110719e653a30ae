#pragma once

// Lets the window messages that are waiting run, where the system hands control to the host's
// message loop for a moment (DoEvents). Without an event loop nothing waits and nothing runs.
void letPendingMessagesRun();
