// Memory: the guest's heap, and the functions that copy and compare bytes.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/Host.h"

#include <algorithm>

#include <cstring>

namespace runner {

static GuestMemory& MemoryOf(Call& call)
{
    return call.guest.machine.memory;
}

static Address PlaceOf(Call& call)
{
    return call.guest.machine.Allocator(call.guest.symbols);
}

static Word DoLocalAlloc(Call& call)
{
    const Word flags = call.Argument(0);
    if ((flags & ~Word{LMEM_ZEROINIT}) != 0) {
        call.guest.Misuse("flags of a block that the device does not have", flags);
    }
    const auto fill = (flags & LMEM_ZEROINIT) != 0 ? GuestHeap::Fill::Zero : GuestHeap::Fill::None;
    return call.guest.machine.heap.Allocate(call.Argument(1), PlaceOf(call), fill);
}

static Word DoMalloc(Call& call)
{
    return call.guest.machine.heap.Allocate(call.Argument(0), PlaceOf(call));
}

static void Free(Call& call)
{
    if (const Address block = call.Argument(0)) {
        call.guest.machine.heap.Free(block, PlaceOf(call));
    }
}

static Word DoLocalFree(Call& call)
{
    Free(call);
    return 0;
}

static Word DoFree(Call& call)
{
    Free(call);
    return call.NoResult();
}

// Checks both ranges; what is undefined stays so where it is copied to.
static Word Move(Call& call, bool mayOverlap)
{
    const Address to = call.Argument(0);
    const Address from = call.Argument(1);
    const Word size = call.Argument(2);
    if (size != 0) {
        if (!mayOverlap && to < from + size && from < to + size) {
            call.guest.Misuse("memcpy of bytes onto themselves", to);
        }
        MemoryOf(call).Checked(from, 1, size, Access::Look);
        MemoryOf(call).Checked(to, 1, size, Access::Reserve);
        MemoryOf(call).CopyWithMarks(to, from, size);
    }
    return to;
}

static Word DoMemcpy(Call& call)
{
    return Move(call, false);
}

static Word DoMemmove(Call& call)
{
    return Move(call, true);
}

static Word DoMemset(Call& call)
{
    const Word size = call.Argument(2);
    if (size != 0) {
        std::memset(MemoryOf(call).Checked(call.Argument(0), 1, size, Access::Write), call.Signed(1), size);
    }
    return call.Argument(0);
}

static Word DoMemcmp(Call& call)
{
    const Word size = call.Argument(2);
    if (size == 0) {
        return 0;
    }
    const void* first = MemoryOf(call).Checked(call.Argument(0), 1, size, Access::Read);
    return static_cast<Word>(
        std::memcmp(first, MemoryOf(call).Checked(call.Argument(1), 1, size, Access::Read), size));
}

namespace {

struct Sorting
{
    Call& call;
    Address base;
    Word count;
    Word size;
    Address comparison;

    Address At(Word index) const { return base + index * size; }
    // The guest's comparison may look at both elements only.
    bool IsBefore(Word a, Word b) const
    {
        return static_cast<std::int32_t>(call.guest.CallBack(comparison, At(a), At(b))) < 0;
    }
    void Swap(Word a, Word b) const
    {
        std::uint8_t* first = MemoryOf(call).Host(At(a));
        std::swap_ranges(first, first + size, MemoryOf(call).Host(At(b)));
    }
    void Sink(Word root, Word end) const
    {
        for (Word child; (child = 2 * root + 1) < end; root = child) {
            if (child + 1 < end && IsBefore(child, child + 1)) {
                child++;
            }
            if (!IsBefore(root, child)) {
                return;
            }
            Swap(root, child);
        }
    }
};

} // namespace

// In place, as the library does it. Which of two equal elements comes first is nobody's promise, so a heap
// sort, which changes their order, is as good as any.
static Word DoQsort(Call& call)
{
    const Sorting sorting{call, call.Argument(0), call.Argument(1), call.Argument(2), call.Argument(3)};
    if (sorting.count != 0 && sorting.size != 0) {
        MemoryOf(call).Checked(sorting.base, 1, sorting.count * sorting.size, Access::Read);
    }
    for (Word root = sorting.count / 2; root-- > 0;) {
        sorting.Sink(root, sorting.count);
    }
    for (Word end = sorting.count; end-- > 1;) {
        sorting.Swap(0, end);
        sorting.Sink(0, end);
    }
    return call.NoResult();
}

static constexpr Bridge memoryRows[] = {
    {"LocalAlloc", DoLocalAlloc}, {"LocalFree", DoLocalFree}, {"free", DoFree},
    {"malloc", DoMalloc},         {"memcmp", DoMemcmp},       {"memcpy", DoMemcpy},
    {"memmove", DoMemmove},       {"memset", DoMemset},       {"qsort", DoQsort},
};

Bridges MemoryBridges()
{
    return memoryRows;
}

} // namespace runner
