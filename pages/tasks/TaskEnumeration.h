// Lists the running applications, each once, front-most first.
#pragma once

#include "pages/tasks/CTaskRecords.h"

// Callback of EnumWindows; taskArray is a CTaskRecords*, to which the record of a new task is appended. Goes
// on enumerating for every window that is not null.
BOOL CALLBACK EnumTasksProc(HWND window, LPARAM taskArray);
