// Closing all running applications.
#pragma once

#include "platform/ce.h"

// Callback of EnumWindows: asks the task behind an eligible window to close and waits for its answer. Spared
// are the program itself, the window handle given as sparedWindow (may be 0), untitled tasks and the shell's
// windows. A task with several eligible windows is asked once for each.
BOOL CALLBACK CloseAllTasksProc(HWND window, LPARAM sparedWindow);
