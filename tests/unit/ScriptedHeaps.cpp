// Heaps of processes that exist only in a script.
#include "tests/unit/ScriptedHeaps.h"

static ScriptedHeaps* scriptedHeaps;
static const auto snapshotHandle = reinterpret_cast<HANDLE>(0x5A5A);
static const DWORD firstHeapId = 0x40000;
static DWORD process; // of the open snapshot
static size_t heapNumber;
static size_t blockNumber;

static HANDLE WINAPI TakeSnapshot(DWORD flags, DWORD processId)
{
    scriptedHeaps->snapshots.push_back(processId);
    scriptedHeaps->snapshotFlags.push_back(flags);
    if (scriptedHeaps->processes.find(processId) == scriptedHeaps->processes.end()) {
        return INVALID_HANDLE_VALUE;
    }
    scriptedHeaps->open++;
    process = processId;
    return snapshotHandle;
}

static BOOL WINAPI CloseSnapshot(HANDLE snapshot)
{
    scriptedHeaps->badRequest |= snapshot != snapshotHandle || scriptedHeaps->open == 0;
    scriptedHeaps->open--;
    return TRUE;
}

static BOOL GiveHeap(HANDLE snapshot, HEAPLIST32* list)
{
    scriptedHeaps->badRequest |= snapshot != snapshotHandle || list->dwSize != sizeof(HEAPLIST32);
    if (heapNumber >= scriptedHeaps->processes[process].size()) {
        return FALSE;
    }
    list->th32ProcessID = process;
    list->th32HeapID = firstHeapId + static_cast<DWORD>(heapNumber);
    return TRUE;
}

static BOOL WINAPI FirstHeap(HANDLE snapshot, HEAPLIST32* list)
{
    heapNumber = 0;
    return GiveHeap(snapshot, list);
}

static BOOL WINAPI NextHeap(HANDLE snapshot, HEAPLIST32* list)
{
    heapNumber++;
    return GiveHeap(snapshot, list);
}

static BOOL GiveBlock(HEAPENTRY32* entry)
{
    scriptedHeaps->badRequest |= entry->dwSize != sizeof(HEAPENTRY32);
    const ScriptedHeap& heap = scriptedHeaps->processes[process][heapNumber];
    if (blockNumber >= heap.blocks.size()) {
        return FALSE;
    }
    entry->dwBlockSize = heap.blocks[blockNumber];
    entry->dwFlags = heap.blockFlags;
    return TRUE;
}

static BOOL WINAPI FirstBlock(HANDLE snapshot, HEAPENTRY32* entry, DWORD processId, DWORD heapId)
{
    scriptedHeaps->badRequest |= snapshot != snapshotHandle || processId != process ||
                                 heapId != firstHeapId + static_cast<DWORD>(heapNumber);
    scriptedHeaps->visitedHeaps.push_back(heapId - firstHeapId);
    blockNumber = 0;
    return GiveBlock(entry);
}

static BOOL WINAPI NextBlock(HANDLE snapshot, HEAPENTRY32* entry)
{
    scriptedHeaps->badRequest |= snapshot != snapshotHandle;
    blockNumber++;
    return GiveBlock(entry);
}

ScriptedHeaps::ScriptedHeaps()
    : hooks{{"CreateToolhelp32Snapshot", TakeSnapshot},
            {"CloseToolhelp32Snapshot", CloseSnapshot},
            {"Heap32ListFirst", FirstHeap},
            {"Heap32ListNext", NextHeap},
            {"Heap32First", FirstBlock},
            {"Heap32Next", NextBlock}}
{
    scriptedHeaps = this;
}

ScriptedHeaps::~ScriptedHeaps()
{
    scriptedHeaps = nullptr;
}
