// How the host's side reaches the guest's memory.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address place = SmallMachine::data + 0x100;

TEST(HostAccessTest, PointersLeadToTheGuest)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    void* host = memory.Checked(place, 4, 8, Access::Write);
    const Word words[2] = {1, 2};
    std::memcpy(host, words, sizeof words);
    EXPECT_EQ(guest.WordAt(place + 4), 2u);
    EXPECT_EQ(memory.GuestAddress(host), place);
    EXPECT_EQ(memory.GuestAddress(&guest), 0u);
    EXPECT_EQ(memory.GuestAddress(nullptr), 0u);
}

TEST(HostAccessTest, ChecksAsForTheGuest)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    const auto expect = [&memory](FindingKind kind, Address address, Word alignment, Word length,
                                  Access access) {
        ExpectFinding(kind, [&] { memory.Checked(address, alignment, length, access); });
    };
    expect(FindingKind::Unmapped, 0, 4, 4, Access::Read);
    expect(FindingKind::Unmapped, 0, 1, 0, Access::Read);
    expect(FindingKind::Unaligned, place + 2, 4, 4, Access::Read);
    expect(FindingKind::Unmapped, SmallMachine::data + 0xFFC, 4, 8, Access::Look);
    expect(FindingKind::Unmapped, SmallMachine::data, 4, 0xFFFFFFFF, Access::Look);
    expect(FindingKind::Unmapped, 0xFFFFFFFC, 4, 8, Access::Look);
    expect(FindingKind::Protected, SmallMachine::code, 4, 4, Access::Write);
    expect(FindingKind::Protected, SmallMachine::code, 4, 4, Access::Reserve);
    expect(FindingKind::BelowStack, SmallMachine::stackTop - 4, 4, 4, Access::Write);
    const Address block = guest.machine.heap.Allocate(8, 0);
    expect(FindingKind::OutOfBlock, block, 4, 12, Access::Write);
    expect(FindingKind::Undefined, block, 4, 8, Access::Read);
    guest.machine.heap.Free(block, 0);
    expect(FindingKind::Freed, block, 4, 8, Access::Look);
}

TEST(HostAccessTest, WhatIsDefinedAfterwards)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    const Address block = guest.machine.heap.Allocate(16, 0);
    memory.Checked(block, 4, 16, Access::Look);
    memory.Checked(block, 4, 16, Access::Reserve);
    EXPECT_FALSE(memory.IsDefined(block, 1));
    memory.MarkDefined(block, 4);
    EXPECT_TRUE(memory.IsDefined(block, 4));
    const Finding finding = FindingOf([&] { memory.Checked(block, 4, 16, Access::Read); });
    EXPECT_EQ(finding.kind, FindingKind::Undefined);
    EXPECT_EQ(finding.address, block + 4);
    memory.Checked(block, 4, 16, Access::Write);
    EXPECT_TRUE(memory.IsDefined(block, 16));
    memory.Checked(block, 4, 16, Access::Read);
}

// A structure across pages of which the upper ones are there.
TEST(HostAccessTest, TheStackGrowsForTheHostToo)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    guest.machine.processor.SetRegister(StackRegister, SmallMachine::stackTop - 0x1100);
    memory.Checked(SmallMachine::stackTop - 0x1100, 4, 0x200, Access::Write);
    EXPECT_EQ(memory.LowestStackPage(), SmallMachine::stackTop - 0x2000);
}

TEST(HostAccessTest, ValuesOfEachSize)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    memory.Write<std::uint64_t>(place + 4, 0x1122334455667788);
    EXPECT_EQ(guest.WordAt(place + 4), 0x55667788u);
    EXPECT_EQ(memory.Read<std::uint16_t>(place + 10), 0x1122);
    EXPECT_EQ(memory.Read<std::uint64_t>(place + 4), 0x1122334455667788u);
    ExpectFinding(FindingKind::Unaligned, [&] { memory.Read<Word>(place + 2); });
    ExpectFinding(FindingKind::Unaligned, [&] { memory.Write<std::uint16_t>(place + 1, 0); });
}

TEST(HostAccessTest, Texts)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    const std::u16string text = u"grün";
    std::memcpy(memory.Host(place), text.c_str(), 2 * (text.size() + 1));
    EXPECT_EQ(memory.Text(place), text);
    EXPECT_EQ(memory.Text(place + 8), u"");
    std::memcpy(memory.Host(place), "name", 5);
    EXPECT_EQ(memory.NarrowText(place), "name");
    ExpectFinding(FindingKind::Unaligned, [&] { memory.Text(place + 1); });
    // Without its end, in a block.
    const Address block = guest.machine.heap.Allocate(4, 0);
    memory.Write<Word>(block, 0x00410041);
    ExpectFinding(FindingKind::OutOfBlock, [&] { memory.Text(block); });
    // Without its end, in memory that nobody has written.
    memory.MarkUndefined(place + 2, 2);
    ExpectFinding(FindingKind::Undefined, [&] { memory.Text(place); });
}

TEST(HostAccessTest, CopiesKeepWhatIsUndefined)
{
    SmallMachine guest;
    GuestMemory& memory = guest.machine.memory;
    memory.MarkUndefined(place + 1, 1);
    memory.CopyWithMarks(place + 2, place, 4);
    EXPECT_TRUE(memory.IsDefined(place + 2, 1));
    EXPECT_FALSE(memory.IsDefined(place + 3, 1));
    EXPECT_TRUE(memory.IsDefined(place + 4, 2));
}

} // namespace runner
