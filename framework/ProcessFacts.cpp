// Facts about processes.
#include "framework/ProcessFacts.h"

#include "framework/PathText.h"

void ProcessImagePath(DWORD processId, CStr& path)
{
    CPathText text;
    // The device takes a process id in the place of a module handle.
    GetModuleFileNameW(reinterpret_cast<HMODULE>(static_cast<ULONG_PTR>(processId)), text.Room(), pathSize);
    path = text;
}

const wchar_t* FileNameOf(const wchar_t* path)
{
    const wchar_t* name = path;
    for (const wchar_t* p = path; *p != 0; ++p) {
        if (*p == L'\\') {
            name = p + 1;
        }
    }
    return name;
}

// Every block counts, the free ones too. False when the heap's first block cannot be had.
static bool AddHeapBlocks(HANDLE snapshot, const HEAPLIST32& heap, uint32_t& sum)
{
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    if (!Heap32First(snapshot, &entry, heap.th32ProcessID, heap.th32HeapID)) {
        return false;
    }
    do {
        sum += entry.dwBlockSize;
    } while (Heap32Next(snapshot, &entry));
    return true;
}

uint32_t ProcessHeapBytes(DWORD processId)
{
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, processId);
    if (snapshot == INVALID_HANDLE_VALUE) {
        return 0;
    }
    uint32_t sum = 0;
    HEAPLIST32 heap = {};
    heap.dwSize = sizeof heap;
    // A heap without a first block ends the whole walk: the heaps behind it are not visited, on purpose.
    BOOL more = Heap32ListFirst(snapshot, &heap);
    while (more && AddHeapBlocks(snapshot, heap, sum)) {
        more = Heap32ListNext(snapshot, &heap);
    }
    CloseToolhelp32Snapshot(snapshot);
    return sum;
}
