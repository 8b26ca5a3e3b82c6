// Accesses that the guest must not make.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static Finding Touch(Word instruction, Address address)
{
    SmallMachine guest;
    guest.before.r[1] = {address, 0};
    return FindingOf([&] { guest.Run({instruction}); });
}

static void ExpectTouch(Word instruction, Address address, FindingKind kind, Access access, Word size)
{
    const Finding finding = Touch(instruction, address);
    EXPECT_EQ(finding.kind, kind) << finding.Line(nullptr);
    EXPECT_EQ(finding.access, access);
    EXPECT_EQ(finding.address, address);
    EXPECT_EQ(finding.size, size);
    EXPECT_EQ(finding.place, SmallMachine::code);
}

static constexpr Word loadWord = 0xE5910000;
static constexpr Word loadHalf = 0xE1D100B0;
static constexpr Word loadByte = 0xE5D10000;
static constexpr Word storeWord = 0xE5810000;
static constexpr Word storeHalf = 0xE1C100B0;
static constexpr Word storeByte = 0xE5C10000;

// The device's processor would rotate the word, or raise a fault: neither is what the program wants.
TEST(MemoryCheckTest, Unaligned)
{
    for (const Word odd : {1u, 2u, 3u}) {
        ExpectTouch(loadWord, SmallMachine::data + odd, FindingKind::Unaligned, Access::Read, 4);
        ExpectTouch(storeWord, SmallMachine::data + odd, FindingKind::Unaligned, Access::Write, 4);
        ExpectTouch(0xE891000C, SmallMachine::data + odd, FindingKind::Unaligned, Access::Read, 4);
        ExpectTouch(0xE1010092, SmallMachine::data + odd, FindingKind::Unaligned, Access::Read, 4);
    }
    ExpectTouch(loadHalf, SmallMachine::data + 1, FindingKind::Unaligned, Access::Read, 2);
    ExpectTouch(storeHalf, SmallMachine::data + 3, FindingKind::Unaligned, Access::Write, 2);
}

TEST(MemoryCheckTest, NothingThere)
{
    for (const Address address :
         {0x0u, 0x8000u, 0x000F0000u, 0x00100000u, 0x10000000u, 0xF0000000u, 0xFFFFFFFCu}) {
        ExpectTouch(loadWord, address, FindingKind::Unmapped, Access::Read, 4);
        ExpectTouch(storeByte, address, FindingKind::Unmapped, Access::Write, 1);
    }
    ExpectTouch(loadByte, SmallMachine::data + GuestMemory::pageSize, FindingKind::Unmapped, Access::Read, 1);
    ExpectTouch(loadByte, SmallMachine::data - 1, FindingKind::Unmapped, Access::Read, 1);
}

TEST(MemoryCheckTest, NotToBeWritten)
{
    ExpectTouch(storeWord, SmallMachine::code, FindingKind::Protected, Access::Write, 4);
    ExpectTouch(storeByte, SmallMachine::code + 1, FindingKind::Protected, Access::Write, 1);
    SmallMachine guest;
    guest.before.r[1] = {SmallMachine::code, 0};
    guest.Run({loadWord});
    EXPECT_EQ(guest.Bits(0), loadWord);
}

TEST(MemoryCheckTest, AlignmentIsToldFirst)
{
    ExpectTouch(loadWord, 0x1, FindingKind::Unaligned, Access::Read, 4);
    ExpectTouch(storeHalf, SmallMachine::code + 1, FindingKind::Unaligned, Access::Write, 2);
}

TEST(MemoryCheckTest, UnmappedAgain)
{
    SmallMachine guest;
    guest.before.r[1] = {SmallMachine::data, 0};
    guest.Run({loadWord});
    guest.machine.memory.Unmap(SmallMachine::data, GuestMemory::pageSize);
    ExpectFinding(FindingKind::Unmapped, [&] { guest.Run({loadWord}); });
}

} // namespace runner
