// BusyBlocks: how many blocks of a heap are in use; without one, of the process's, where the system keeps its
// own.
#pragma once

#include <windows.h>

inline int BusyBlocks(HANDLE heap = GetProcessHeap())
{
    PROCESS_HEAP_ENTRY entry = {};
    int count = 0;
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) {
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
    }
    HeapUnlock(heap);
    return count;
}
