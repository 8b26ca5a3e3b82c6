// What a page has to ask the platform about each process, and nothing else.
#include "bench/page/BareProcess.h"

static constexpr int textLength = 260;

static DWORD WalkHeaps(DWORD processId)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPHEAPLIST, processId);
    if (snapshot == INVALID_HANDLE_VALUE) {
        return 0;
    }
    DWORD bytes = 0;
    HEAPLIST32 heap;
    heap.dwSize = sizeof(heap);
    HEAPENTRY32 entry;
    entry.dwSize = sizeof(entry);
    for (BOOL more = Heap32ListFirst(snapshot, &heap);
         more && Heap32First(snapshot, &entry, heap.th32ProcessID, heap.th32HeapID);
         more = Heap32ListNext(snapshot, &heap)) {
        do {
            bytes += entry.dwBlockSize;
        } while (Heap32Next(snapshot, &entry));
    }
    CloseToolhelp32Snapshot(snapshot);
    return bytes;
}

void AskBareProcess(DWORD processId)
{
    wchar_t path[textLength];
    // The device takes a process id in the place of a module handle.
    if (GetModuleFileNameW(reinterpret_cast<HMODULE>(static_cast<ULONG_PTR>(processId)), path, textLength)) {
        SHFILEINFOW info;
        SHGetFileInfo(path, 0, &info, sizeof(info), SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
    }
    WalkHeaps(processId);
}
