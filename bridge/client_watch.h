// Notices when a client's process has ended, however it ended.
#pragma once

#include <windows.h>

// Finds out which process makes the call that runs on this thread, and from then on tells the peer when that
// process is gone, so that no document stays open for a client that crashed or never released.
// Returns the process identifier, or 0 where the platform does not tell.
DWORD watch_calling_client();
