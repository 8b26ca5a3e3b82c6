// The exports of the tool-help substitute: snapshots, and the walk over heaps.
#include "platform/pc/common/ProcessPath.h"
#include "platform/pc/toolhelp/Snapshot.h"
#include "platform/pc/toolhelp/SystemWalk.h"

#include <algorithm>
#include <vector>

// The heap snapshots that are open. Every other handle is the system's own.
static std::vector<HeapSnapshot*> snapshots;

static HeapSnapshot* FindSnapshot(HANDLE handle)
{
    const auto found = std::find(snapshots.begin(), snapshots.end(), handle);
    return found == snapshots.end() ? nullptr : *found;
}

static BOOL Fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

static BOOL FillList(const HeapSnapshot& snapshot, HEAPLIST32* list)
{
    if (snapshot.currentHeap >= snapshot.HeapCount()) {
        return Fail(ERROR_NO_MORE_FILES);
    }
    list->th32ProcessID = snapshot.ProcessId();
    list->th32HeapID = snapshot.currentHeap + 1;
    list->dwFlags = 0;
    return TRUE;
}

static BOOL FillEntry(bool found, SIZE_T size, HEAPENTRY32* entry)
{
    if (!found) {
        return Fail(ERROR_NO_MORE_FILES);
    }
    constexpr SIZE_T largest = 0xFFFFFFFF;
    entry->dwBlockSize = static_cast<DWORD>(std::min(size, largest));
    return TRUE;
}

extern "C" HANDLE WINAPI ce_CreateToolhelp32Snapshot(DWORD flags, DWORD processId)
{
    flags &= ~TH32CS_SNAPNOHEAPS; // which the PC's walk over processes never has
    const bool ofModules = (flags & TH32CS_SNAPMODULE) != 0;
    const bool ofHeaps = (flags & TH32CS_SNAPHEAPLIST) != 0;
    if (ofModules || ofHeaps) {
        const handheld::ProcessScript* const script =
            handheld::ScriptOfProcess(processId ? processId : GetCurrentProcessId());
        if (script && ((ofModules && script->noModuleSnapshot) || (ofHeaps && script->noHeaps))) {
            SetLastError(ERROR_ACCESS_DENIED);
            return INVALID_HANDLE_VALUE;
        }
    }
    if (!ofHeaps) {
        return TakeSystemSnapshot(flags, processId);
    }
    HeapSnapshot* const snapshot = TakeHeapSnapshot(processId);
    if (!snapshot) {
        return INVALID_HANDLE_VALUE;
    }
    snapshots.push_back(snapshot);
    return snapshot;
}

extern "C" BOOL WINAPI ce_CloseToolhelp32Snapshot(HANDLE handle)
{
    HeapSnapshot* const snapshot = FindSnapshot(handle);
    if (!snapshot) {
        return CloseHandle(handle);
    }
    snapshots.erase(std::find(snapshots.begin(), snapshots.end(), snapshot));
    delete snapshot;
    return TRUE;
}

extern "C" BOOL WINAPI ce_Heap32ListFirst(HANDLE handle, HEAPLIST32* list)
{
    HeapSnapshot* const snapshot = FindSnapshot(handle);
    if (!snapshot || list->dwSize != sizeof(HEAPLIST32)) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    snapshot->currentHeap = 0;
    return FillList(*snapshot, list);
}

extern "C" BOOL WINAPI ce_Heap32ListNext(HANDLE handle, HEAPLIST32* list)
{
    HeapSnapshot* const snapshot = FindSnapshot(handle);
    if (!snapshot || list->dwSize != sizeof(HEAPLIST32)) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    ++snapshot->currentHeap;
    return FillList(*snapshot, list);
}

extern "C" BOOL WINAPI ce_Heap32First(HANDLE handle, HEAPENTRY32* entry, DWORD processId, DWORD heapId)
{
    HeapSnapshot* const snapshot = FindSnapshot(handle);
    if (!snapshot || entry->dwSize != sizeof(HEAPENTRY32) || processId != snapshot->ProcessId() ||
        heapId == 0 || heapId > snapshot->HeapCount()) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    const DWORD size = entry->dwSize;
    *entry = {};
    entry->dwSize = size;
    entry->th32ProcessID = processId;
    entry->th32HeapID = heapId;
    SIZE_T blockSize = 0;
    const bool found = snapshot->FirstBlock(heapId - 1, blockSize);
    return FillEntry(found, blockSize, entry);
}

extern "C" BOOL WINAPI ce_Heap32Next(HANDLE handle, HEAPENTRY32* entry)
{
    HeapSnapshot* const snapshot = FindSnapshot(handle);
    if (!snapshot || entry->dwSize != sizeof(HEAPENTRY32)) {
        return Fail(ERROR_INVALID_PARAMETER);
    }
    SIZE_T blockSize = 0;
    const bool found = snapshot->NextBlock(blockSize);
    return FillEntry(found, blockSize, entry);
}
