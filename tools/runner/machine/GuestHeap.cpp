// Blocks, gaps and the queue of the freed ones.
#include "tools/runner/machine/GuestHeap.h"

#include <algorithm>

namespace runner {

static constexpr int newFill = 0xCD;
static constexpr int freedFill = 0xDD;

GuestHeap::GuestHeap(GuestMemory& guestMemory, FindingSink& findings, Address begin, Word size)
    : memory(guestMemory), sink(findings), mappedEnd(begin)
{
    memory.SetHeap(begin, size, this);
    // A block's red zone lies before it; the last one's is left over here.
    gaps[begin] = size - redZone;
}

Word GuestHeap::Whole(Word size)
{
    return (size + alignment - 1) / alignment * alignment + redZone;
}

// In steps: a process that needs little does not pay for a large heap.
void GuestHeap::MapUpTo(Address end)
{
    constexpr Word step = 0x10000;
    while (mappedEnd < end) {
        memory.Map(mappedEnd, step, CanRead | CanWrite, Content::Undefined);
        mappedEnd += step;
    }
}

Address GuestHeap::TakeGap(Word whole)
{
    // The largest gap is the one at the end, until the heap has once been used up.
    for (auto gap = gaps.rbegin(); gap != gaps.rend(); ++gap) {
        if (gap->second >= whole) {
            const Address begin = gap->first;
            const Word rest = gap->second - whole;
            gaps.erase(std::next(gap).base());
            if (rest != 0) {
                gaps[begin + whole] = rest;
            }
            return begin;
        }
    }
    return 0;
}

void GuestHeap::GiveGap(Address begin, Word length)
{
    auto gap = gaps.emplace(begin, length).first;
    const auto after = std::next(gap);
    if (after != gaps.end() && gap->first + gap->second == after->first) {
        gap->second += after->second;
        gaps.erase(after);
    }
    if (gap != gaps.begin()) {
        const auto before = std::prev(gap);
        if (before->first + before->second == gap->first) {
            before->second += gap->second;
            gaps.erase(gap);
        }
    }
}

void GuestHeap::ReuseFreed()
{
    // The older half: what was freed lately is what stale pointers lead to.
    for (std::size_t left = (freedInOrder.size() + 1) / 2; left > 0; left--) {
        const Block block = freed.at(freedInOrder.front());
        freedInOrder.pop_front();
        freed.erase(block.address);
        memory.SetHeapBytes(block.address, block.size, GuestMemory::ByteState::Outside);
        GiveGap(block.address - redZone, Whole(block.size));
    }
}

Address GuestHeap::Allocate(Word size, Address caller, Fill fill)
{
    if (size > memory.Size()) {
        return 0;
    }
    Address gap = TakeGap(Whole(size));
    while (gap == 0 && !freedInOrder.empty()) {
        ReuseFreed();
        gap = TakeGap(Whole(size));
    }
    if (gap == 0) {
        return 0;
    }
    const Address block = gap + redZone;
    MapUpTo(block + size + redZone);
    live[block] = {block, size, caller, 0};
    memory.SetHeapBytes(block, size, GuestMemory::ByteState::Live);
    std::memset(memory.Host(block), fill == Fill::Zero ? 0 : newFill, size);
    if (fill == Fill::Zero) {
        memory.MarkDefined(block, size); // as nothing is outside the blocks
    }
    allocations++;
    liveBytes += size;
    mostBytes = std::max(mostBytes, liveBytes);
    return block;
}

Block& GuestHeap::LiveBlock(Address block, const char* use)
{
    const auto found = live.find(block);
    if (found != live.end()) {
        return found->second;
    }
    Finding finding;
    finding.kind = freed.contains(block) ? FindingKind::Freed : FindingKind::Misuse;
    finding.address = block;
    finding.text = use;
    finding.block = BlockNear(block);
    sink.Report(finding);
}

void GuestHeap::Free(Address block, Address caller)
{
    Block old = LiveBlock(block, "free of what is no block");
    live.erase(block);
    liveBytes -= old.size;
    old.freedAt = caller;
    freed[block] = old;
    freedInOrder.push_back(block);
    memory.SetHeapBytes(block, old.size, GuestMemory::ByteState::Freed);
    std::memset(memory.Host(block), freedFill, old.size);
    memory.MarkUndefined(block, old.size);
}

Word GuestHeap::SizeOf(Address block)
{
    return LiveBlock(block, "size of what is no block").size;
}

Address GuestHeap::Reallocate(Address block, Word size, Address caller, Fill fill)
{
    const Word kept = std::min(size, LiveBlock(block, "new size for what is no block").size);
    const Address moved = Allocate(size, caller, fill);
    if (moved != 0) {
        memory.CopyWithMarks(moved, block, kept);
        Free(block, caller);
    }
    return moved;
}

std::vector<GuestHeap::Leak> GuestHeap::Leaks() const
{
    std::map<Address, Leak> sums;
    for (const auto& [address, block] : live) {
        Leak& sum = sums.try_emplace(block.allocatedAt, Leak{block.allocatedAt, 0, 0}).first->second;
        sum.blocks++;
        sum.bytes += block.size;
    }
    std::vector<Leak> leaks;
    for (const auto& [address, sum] : sums) {
        leaks.push_back(sum);
    }
    std::ranges::stable_sort(leaks, std::ranges::greater(), &Leak::bytes);
    return leaks;
}

// The block of these that an address is in, or the nearer of its neighbours.
static void TakeNearer(const std::map<Address, Block>& blocks, Address address, std::optional<Block>& nearest,
                       Word& distance)
{
    const auto after = blocks.upper_bound(address);
    if (after != blocks.end() && after->first - address < distance) {
        distance = after->first - address;
        nearest = after->second;
    }
    if (after != blocks.begin()) {
        const Block& before = std::prev(after)->second;
        const Word into = address - before.address;
        const Word behind = into < before.size ? 0 : into - before.size;
        if (behind < distance) {
            distance = behind;
            nearest = before;
        }
    }
}

std::optional<Block> GuestHeap::BlockNear(Address address) const
{
    std::optional<Block> nearest;
    Word distance = allBits;
    TakeNearer(live, address, nearest, distance);
    TakeNearer(freed, address, nearest, distance);
    return nearest;
}

} // namespace runner
