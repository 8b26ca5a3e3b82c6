// Walks over heaps.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

namespace runner {

namespace {

struct HeapEntry
{
    Word size;
    Word handle;
    Word address;
    Word blockSize;
    Word flags;
    Word locks;
    Word reserved;
    Word process;
    Word heap;
};
static_assert(sizeof(HeapEntry) == 36);

} // namespace

static HANDLE SnapshotArgument(Call& call)
{
    return ObjectArgument<HANDLE>(call, 0, CookieKind::Snapshot);
}

static Word WalkHeaps(Call& call, BOOL(WINAPI* next)(HANDLE, HEAPLIST32*))
{
    const auto record = call.RecordAt<HEAPLIST32>(1);
    NeedSize(call, record.Get(&HEAPLIST32::dwSize), sizeof(HEAPLIST32));
    HEAPLIST32 list = {};
    list.dwSize = sizeof(list);
    const BOOL result = next(SnapshotArgument(call), &list);
    if (result) {
        record.SetAll(list);
    }
    return static_cast<Word>(result);
}

static Word DoListFirst(Call& call)
{
    return WalkHeaps(call, Heap32ListFirst);
}

static Word DoListNext(Call& call)
{
    return WalkHeaps(call, Heap32ListNext);
}

// What the walk needs to go on stays in the entry.
static Word GiveEntry(const Record<HeapEntry>& record, const HEAPENTRY32& entry, BOOL result)
{
    if (result) {
        record.SetAll({sizeof(HeapEntry), WordOf(entry.hHandle), entry.dwAddress, entry.dwBlockSize,
                       entry.dwFlags, entry.dwLockCount, entry.dwResvd, entry.th32ProcessID,
                       entry.th32HeapID});
    }
    return static_cast<Word>(result);
}

static Word DoHeapFirst(Call& call)
{
    const auto record = call.RecordAt<HeapEntry>(1);
    NeedSize(call, record.Get(&HeapEntry::size), sizeof(HeapEntry));
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    const BOOL result = Heap32First(SnapshotArgument(call), &entry, call.Argument(2), call.Argument(3));
    return GiveEntry(record, entry, result);
}

static Word DoHeapNext(Call& call)
{
    const auto record = call.RecordAt<HeapEntry>(1);
    NeedSize(call, record.Get(&HeapEntry::size), sizeof(HeapEntry));
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    entry.dwAddress = record.Get(&HeapEntry::address);
    entry.dwFlags = record.Get(&HeapEntry::flags);
    entry.th32ProcessID = record.Get(&HeapEntry::process);
    entry.th32HeapID = record.Get(&HeapEntry::heap);
    return GiveEntry(record, entry, Heap32Next(SnapshotArgument(call), &entry));
}

static constexpr Bridge bridges[] = {
    {"Heap32First", DoHeapFirst},
    {"Heap32ListFirst", DoListFirst},
    {"Heap32ListNext", DoListNext},
    {"Heap32Next", DoHeapNext},
};

Bridges HeapWalkBridges()
{
    return bridges;
}

} // namespace runner
