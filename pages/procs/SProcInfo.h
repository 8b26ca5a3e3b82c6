// One row of the processes page.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/CStr.h"

// What a command about a process acts on. Ids are given again: before a process is ended its name is
// compared.
struct SProcIdentity
{
    DWORD id = 0;
    CStr name; // of the executable, without its folder
};

struct SProcInfo
{
    CStr name; // of the executable, without its folder
    DWORD id = 0;
    int32_t iconIndex = -1; // in the system small-icon list; negative: drawn without an icon
    uint64_t heapBytes = 0; // below 2^32
    uint32_t threadCount = 0;

    SProcIdentity Identity() const { return {id, name}; }
};

QV_ARRAY_NAMES(SProcInfo*, "struct SProcInfo *");
