// The guest's heap. No two blocks touch, and a freed block is not used again for long: whatever goes astray
// hits no block.
#pragma once

#include "tools/runner/machine/GuestMemory.h"

#include <deque>
#include <map>

namespace runner {

class GuestHeap : private BlockFinder
{
  public:
    // A leak's sum by the place that allocated.
    struct Leak
    {
        Address allocatedAt;
        std::size_t blocks;
        std::uint64_t bytes;
    };
    enum class Fill
    {
        None,
        Zero,
    };

  private:
    static constexpr Word redZone = 32;
    static constexpr Word alignment = 8;

    GuestMemory& memory;
    FindingSink& sink;
    std::map<Address, Block> live;
    std::map<Address, Block> freed;
    std::deque<Address> freedInOrder;
    std::map<Address, Word> gaps; // red zones included
    Address mappedEnd;
    std::uint64_t liveBytes = 0;
    std::uint64_t mostBytes = 0;
    std::uint64_t allocations = 0;

  public:
    GuestHeap(GuestMemory& guestMemory, FindingSink& findings, Address begin, Word size);
    GuestHeap(const GuestHeap&) = delete;
    GuestHeap& operator=(const GuestHeap&) = delete;

    // 0 when the heap is full. Caller: the guest's place, which reports name.
    Address Allocate(Word size, Address caller, Fill fill = Fill::None);
    // These report an address that is no block, or a freed one.
    void Free(Address block, Address caller);
    Word SizeOf(Address block);
    // The block moves always: a pointer to the old one is as stale as it can be.
    Address Reallocate(Address block, Word size, Address caller, Fill fill = Fill::None);
    bool IsBlock(Address address) const { return live.contains(address); }

    std::size_t LiveBlocks() const { return live.size(); }
    std::uint64_t LiveBytes() const { return liveBytes; }
    std::uint64_t MostBytes() const { return mostBytes; }
    std::uint64_t Allocations() const { return allocations; }
    const std::map<Address, Block>& Blocks() const { return live; }
    // The most bytes first.
    std::vector<Leak> Leaks() const;

    std::optional<Block> BlockNear(Address address) const override;

  private:
    static Word Whole(Word size);
    Address TakeGap(Word whole);
    void MapUpTo(Address end);
    void GiveGap(Address begin, Word length);
    void ReuseFreed();
    Block& LiveBlock(Address block, const char* use);
};

} // namespace runner
