// Blocks of the guest's heap, and uses of what is none.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address caller = 0x1234;
static constexpr Word load = 0xE5910000;
static constexpr Word loadByte = 0xE5D10000;
static constexpr Word storeByte = 0xE5C10000;

static Finding Touch(SmallMachine& guest, Word instruction, Address address)
{
    guest.before.r[1] = {address, 0};
    return FindingOf([&] { guest.Run({instruction}); });
}

TEST(HeapTest, BlocksAreAlignedAndApart)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    std::map<Address, Word> blocks;
    for (const Word size : {1u, 0u, 7u, 8u, 33u, 4096u, 5u}) {
        const Address block = heap.Allocate(size, caller);
        EXPECT_EQ(block % 8, 0u);
        EXPECT_EQ(heap.SizeOf(block), size);
        blocks[block] = size;
    }
    ASSERT_EQ(blocks.size(), 7u);
    for (auto block = blocks.begin(); std::next(block) != blocks.end(); ++block) {
        EXPECT_GE(std::next(block)->first, block->first + block->second + 16);
    }
    EXPECT_EQ(heap.LiveBlocks(), 7u);
    EXPECT_EQ(heap.LiveBytes(), 1u + 7 + 8 + 33 + 4096 + 5);
}

TEST(HeapTest, EveryByteOfABlockIsItsOwn)
{
    SmallMachine guest;
    const Address block = guest.machine.heap.Allocate(5, caller, GuestHeap::Fill::Zero);
    for (Word index = 0; index < 5; index++) {
        guest.before.r[1] = {block + index, 0};
        guest.Run({storeByte, loadByte});
    }
    for (const Address outside : {block - 1, block + 5, block + 20, block - 16}) {
        for (const Word instruction : {loadByte, storeByte}) {
            const Finding finding = Touch(guest, instruction, outside);
            EXPECT_EQ(finding.kind, FindingKind::OutOfBlock);
            ASSERT_TRUE(finding.block);
            EXPECT_EQ(finding.block->address, block);
            EXPECT_EQ(finding.block->size, 5u);
            EXPECT_EQ(finding.block->allocatedAt, caller);
        }
    }
    // A word that begins inside and ends outside.
    EXPECT_EQ(Touch(guest, load, block + 4).kind, FindingKind::OutOfBlock);
}

TEST(HeapTest, FreshBlocksAreUndefinedOrZero)
{
    SmallMachine guest;
    const Address fresh = guest.machine.heap.Allocate(8, caller);
    const Address zeroed = guest.machine.heap.Allocate(8, caller, GuestHeap::Fill::Zero);
    EXPECT_FALSE(guest.machine.memory.IsDefined(fresh, 1));
    EXPECT_NE(*guest.machine.memory.Host(fresh), 0);
    EXPECT_TRUE(guest.machine.memory.IsDefined(zeroed, 8));
    EXPECT_EQ(guest.WordAt(zeroed + 4), 0u);
}

TEST(HeapTest, FreedBlocksAreKnown)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    const Address block = heap.Allocate(16, caller, GuestHeap::Fill::Zero);
    heap.Free(block, 0x5678);
    EXPECT_FALSE(heap.IsBlock(block));
    EXPECT_EQ(heap.LiveBytes(), 0u);
    // Blocks that come later do not take its place.
    for (int count = 0; count < 20; count++) {
        heap.Allocate(16, caller);
    }
    for (const Word instruction : {load, storeByte}) {
        const Finding finding = Touch(guest, instruction, block + 8);
        EXPECT_EQ(finding.kind, FindingKind::Freed);
        ASSERT_TRUE(finding.block);
        EXPECT_EQ(finding.block->address, block);
        EXPECT_EQ(finding.block->freedAt, 0x5678u);
    }
}

TEST(HeapTest, WhatIsNoBlockIsNotFreed)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    const Address block = heap.Allocate(16, caller);
    ExpectFinding(FindingKind::Misuse, [&] { heap.Free(block + 4, caller); });
    ExpectFinding(FindingKind::Misuse, [&] { heap.SizeOf(SmallMachine::data); });
    ExpectFinding(FindingKind::Misuse, [&] { heap.Reallocate(0, 4, caller); });
    heap.Free(block, caller);
    ExpectFinding(FindingKind::Freed, [&] { heap.Free(block, caller); });
    ExpectFinding(FindingKind::Freed, [&] { heap.SizeOf(block); });
}

TEST(HeapTest, ReallocationMoves)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    const Address block = heap.Allocate(8, caller);
    guest.PutWord(block, 0x11223344);
    const Address larger = heap.Reallocate(block, 12, caller);
    EXPECT_NE(larger, block);
    EXPECT_EQ(guest.WordAt(larger), 0x11223344u);
    EXPECT_FALSE(guest.machine.memory.IsDefined(larger + 4, 8));
    EXPECT_EQ(Touch(guest, load, block).kind, FindingKind::Freed);
    const Address smaller = heap.Reallocate(larger, 4, caller, GuestHeap::Fill::Zero);
    EXPECT_EQ(guest.WordAt(smaller), 0x11223344u);
    const Address zeroed = heap.Reallocate(smaller, 16, caller, GuestHeap::Fill::Zero);
    EXPECT_EQ(guest.WordAt(zeroed), 0x11223344u);
    EXPECT_EQ(guest.WordAt(zeroed + 12), 0u);
    EXPECT_EQ(heap.LiveBlocks(), 1u);
}

TEST(HeapTest, LeaksBelongToWhoAllocated)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    heap.Allocate(10, 1);
    heap.Allocate(100, 2);
    heap.Allocate(20, 1);
    heap.Free(heap.Allocate(1000, 3), 3);
    const std::vector<GuestHeap::Leak> leaks = heap.Leaks();
    ASSERT_EQ(leaks.size(), 2u);
    EXPECT_EQ(leaks[0].allocatedAt, 2u);
    EXPECT_EQ(leaks[0].bytes, 100u);
    EXPECT_EQ(leaks[1].allocatedAt, 1u);
    EXPECT_EQ(leaks[1].blocks, 2u);
    EXPECT_EQ(leaks[1].bytes, 30u);
    EXPECT_EQ(heap.MostBytes(), 1130u);
    EXPECT_EQ(heap.Allocations(), 4u);
}

TEST(HeapTest, ALongRunFitsIn)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    const Address kept = heap.Allocate(64, caller, GuestHeap::Fill::Zero);
    // Many times the heap's size, in blocks of many sizes.
    for (Word count = 0; count < 4000; count++) {
        const Address block = heap.Allocate(count * 37 % 3000, caller, GuestHeap::Fill::Zero);
        ASSERT_NE(block, 0u) << count;
        heap.Free(block, caller);
    }
    EXPECT_TRUE(heap.IsBlock(kept));
    EXPECT_EQ(heap.LiveBlocks(), 1u);
    EXPECT_EQ(guest.WordAt(kept + 60), 0u);
    // When all is free again, all but little of it can be had in one piece.
    EXPECT_NE(heap.Allocate(SmallMachine::heapSize - 0x1000, caller), 0u);
}

// Room is made of the older half of the freed blocks.
TEST(HeapTest, WhatWasFreedLatelyIsKnownLongest)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    constexpr Word quarter = SmallMachine::heapSize / 4 - 0x100;
    Address blocks[4];
    for (Address& block : blocks) {
        block = heap.Allocate(quarter, caller);
    }
    for (const Address block : blocks) {
        heap.Free(block, caller);
    }
    EXPECT_NE(heap.Allocate(quarter, caller), 0u);
    EXPECT_EQ(Touch(guest, load, blocks[2]).kind, FindingKind::Freed);
    EXPECT_EQ(Touch(guest, load, blocks[3]).kind, FindingKind::Freed);
}

TEST(HeapTest, AFullHeapGivesNothing)
{
    SmallMachine guest;
    GuestHeap& heap = guest.machine.heap;
    EXPECT_EQ(heap.Allocate(SmallMachine::heapSize, caller), 0u);
    EXPECT_EQ(heap.Allocate(0xFFFFFFFF, caller), 0u);
    const Address block = heap.Allocate(SmallMachine::heapSize / 2, caller);
    EXPECT_NE(block, 0u);
    EXPECT_EQ(heap.Allocate(SmallMachine::heapSize / 2, caller), 0u);
    // What cannot grow stays as it is.
    EXPECT_EQ(heap.Reallocate(block, SmallMachine::heapSize - 0x1000, caller), 0u);
    EXPECT_TRUE(heap.IsBlock(block));
}

TEST(HeapTest, TheLastBlockHasAnEndToo)
{
    SmallMachine guest;
    Address block = 0;
    Word size = SmallMachine::heapSize;
    while (block == 0) {
        size -= 8;
        block = guest.machine.heap.Allocate(size, caller);
    }
    EXPECT_GT(size, SmallMachine::heapSize - 0x1000);
    EXPECT_EQ(Touch(guest, loadByte, block + size).kind, FindingKind::OutOfBlock);
    EXPECT_EQ(Touch(guest, storeByte, block + size).kind, FindingKind::OutOfBlock);
    EXPECT_EQ(Touch(guest, loadByte, SmallMachine::heapBegin + SmallMachine::heapSize).kind,
              FindingKind::Unmapped);
}

} // namespace runner
