// The processes of the running applications, each asked once in a refresh however many tasks it has.
#pragma once

#include "framework/CRecords.h"
#include "framework/CStr.h"

struct STaskProcess
{
    DWORD id = 0;
    CStr path;          // of the executable; empty when it cannot be told
    int shellIcon = -1; // of the executable, in the system small-icon list
    uint32_t heapBytes = 0;
    bool heapsWalked = false; // the expensive question: only for a task that shows the figure
};

QV_ARRAY_NAMES(STaskProcess*, "struct STaskProcess *");

class CTaskProcesses
{
    CRecords<STaskProcess> known;

  public:
    STaskProcess& Find(DWORD id);
    // The whole process's, so the same for each of its tasks.
    static uint32_t HeapBytes(STaskProcess& process);
    // At the beginning of each refresh: figures change, and ids are given again.
    void Forget() { known.Clear(); }
};
