// One row of the running applications.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CArray.h"
#include "framework/CStr.h"

struct STaskInfo
{
    CStr name;              // never empty
    HWND window = nullptr;  // the top of the owner chain; identifies the task
    int32_t iconIndex = -1; // in the system small-icon list; not -1 once the record is stored
    uint64_t heapBytes = 0; // of the task's process; below 2^32
    HICON icon = nullptr;   // drawn in place of the list's icon when set

    HWND Identity() const { return window; }
};

QV_ARRAY_NAMES(STaskInfo*, "struct STaskInfo *");
