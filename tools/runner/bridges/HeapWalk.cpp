// Walks over heaps.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/OwnHeap.h"

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

static constexpr Word ownHeap = 1; // the guest has one

static HANDLE HeapSnapshotArgument(Call& call)
{
    return ObjectArgument<HANDLE>(call, 0, CookieKind::Snapshot);
}

static bool IsOwn(Call& call)
{
    return OwnHeap::Instance().IsOpen(call.Argument(0));
}

static Word NoMore()
{
    SetLastError(ERROR_NO_MORE_FILES);
    return FALSE;
}

static Record<HEAPLIST32> ListArgument(Call& call)
{
    const auto record = call.RecordAt<HEAPLIST32>(1);
    NeedSize(call, record.Get(&HEAPLIST32::dwSize), sizeof(HEAPLIST32));
    return record;
}

static Word WalkHeaps(Call& call, BOOL(WINAPI* next)(HANDLE, HEAPLIST32*))
{
    const auto record = ListArgument(call);
    HEAPLIST32 list = {};
    list.dwSize = sizeof(list);
    const BOOL result = next(HeapSnapshotArgument(call), &list);
    if (result) {
        record.SetAll(list);
    }
    return static_cast<Word>(result);
}

static Word DoListFirst(Call& call)
{
    if (IsOwn(call)) {
        ListArgument(call).SetAll({sizeof(HEAPLIST32), GetCurrentProcessId(), ownHeap, 0});
        return TRUE;
    }
    return WalkHeaps(call, Heap32ListFirst);
}

static Word DoListNext(Call& call)
{
    return IsOwn(call) ? NoMore() : WalkHeaps(call, Heap32ListNext);
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

static Word GiveOwnBlock(const Record<HeapEntry>& record, const Block* block)
{
    if (!block) {
        return NoMore();
    }
    record.SetAll({sizeof(HeapEntry), block->address, block->address, block->size, 0, 0, 0,
                   GetCurrentProcessId(), ownHeap});
    return TRUE;
}

static Word DoHeapFirst(Call& call)
{
    const auto record = call.RecordAt<HeapEntry>(1);
    NeedSize(call, record.Get(&HeapEntry::size), sizeof(HeapEntry));
    if (IsOwn(call)) {
        if (call.Argument(2) != GetCurrentProcessId() || call.Argument(3) != ownHeap) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return FALSE;
        }
        return GiveOwnBlock(record, OwnHeap::Instance().First(call.guest.machine.heap, call.Argument(0)));
    }
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    const BOOL result = Heap32First(HeapSnapshotArgument(call), &entry, call.Argument(2), call.Argument(3));
    return GiveEntry(record, entry, result);
}

static Word DoHeapNext(Call& call)
{
    const auto record = call.RecordAt<HeapEntry>(1);
    NeedSize(call, record.Get(&HeapEntry::size), sizeof(HeapEntry));
    if (IsOwn(call)) {
        return GiveOwnBlock(record, OwnHeap::Instance().Next(call.guest.machine.heap, call.Argument(0)));
    }
    HEAPENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    entry.dwAddress = record.Get(&HeapEntry::address);
    entry.dwFlags = record.Get(&HeapEntry::flags);
    entry.th32ProcessID = record.Get(&HeapEntry::process);
    entry.th32HeapID = record.Get(&HeapEntry::heap);
    return GiveEntry(record, entry, Heap32Next(HeapSnapshotArgument(call), &entry));
}

static constexpr Bridge heapWalkRows[] = {
    {"Heap32First", DoHeapFirst},
    {"Heap32ListFirst", DoListFirst},
    {"Heap32ListNext", DoListNext},
    {"Heap32Next", DoHeapNext},
};

Bridges HeapWalkBridges()
{
    return heapWalkRows;
}

} // namespace runner
