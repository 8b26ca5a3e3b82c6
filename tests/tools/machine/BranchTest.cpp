// Branches, calls, returns, and where they must not lead.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

TEST(BranchTest, ForwardsAndBackwards)
{
    SmallMachine guest;
    // A loop of three rounds.
    guest.Run({0xE3A00000, 0xE3A01003, 0xE2800005, 0xE2511001, 0x1AFFFFFC, 0xEA000001, 0xE3A00000, 0xE3A00001,
               0xE2800064});
    EXPECT_EQ(guest.Bits(0), 115u);
}

TEST(BranchTest, CallAndReturn)
{
    SmallMachine guest;
    guest.Run(
        {0xEB000002, 0xE1A0100E, 0xEA000003, 0xE3A09009, 0xE3A00005, 0xE12FFF1E, 0xE3A09009, 0xE3A02002});
    EXPECT_EQ(guest.Bits(0), 5u);
    EXPECT_EQ(guest.Bits(1), SmallMachine::code + 4);
    EXPECT_EQ(guest.Bits(2), 2u);
    EXPECT_EQ(guest.Bits(9), 0u);
}

TEST(BranchTest, TableOfASwitch)
{
    SmallMachine guest;
    guest.before.r[0] = {1, 0};
    guest.Run({0xE3500002, 0x979FF100, 0xE3A09009, SmallMachine::code + 24, SmallMachine::code + 28,
               SmallMachine::code + 32, 0xE3A01001, 0xE3A02001, 0xE3A03001});
    EXPECT_EQ(guest.Bits(1), 0u);
    EXPECT_EQ(guest.Bits(2), 1u);
    EXPECT_EQ(guest.Bits(3), 1u);
    EXPECT_EQ(guest.Bits(9), 0u);
}

TEST(BranchTest, SumsLeadThereToo)
{
    SmallMachine guest;
    guest.Run({0xE28FF004, 0xE3A01001, 0xE3A02001, 0xE3A03001, 0xE1A0E00F, 0xE24EF000});
    EXPECT_EQ(guest.Bits(1), 0u);
    EXPECT_EQ(guest.Bits(2), 0u);
    EXPECT_EQ(guest.Bits(3), 1u);
    EXPECT_EQ(guest.Bits(LinkRegister), SmallMachine::code + 24);
}

TEST(BranchTest, TrapsAreTold)
{
    SmallMachine guest;
    guest.Run({0xE1A08008});
    guest.machine.processor.SetRegister(0, TrapAddress(123));
    std::memcpy(guest.machine.memory.Host(SmallMachine::code), "\x10\xFF\x2F\xE1", 4); // bx r0
    EXPECT_EQ(guest.machine.processor.Run(SmallMachine::code), 123u);
    // What already is a trap needs no instruction.
    EXPECT_EQ(guest.machine.processor.Run(TrapAddress(5)), 5u);
}

static Finding JumpTo(Address target)
{
    SmallMachine guest;
    guest.before.r[0] = {target, 0};
    const Finding finding = FindingOf([&guest] { guest.Run({0xE1A08008, 0xE12FFF10}); });
    EXPECT_EQ(finding.access, Access::Execute);
    EXPECT_EQ(finding.address, target);
    // The jump is to blame.
    EXPECT_EQ(finding.place, SmallMachine::code + 4);
    return finding;
}

TEST(BranchTest, WildJumpsAreFound)
{
    EXPECT_EQ(JumpTo(0).kind, FindingKind::Unmapped);
    EXPECT_EQ(JumpTo(0x00100000).kind, FindingKind::Unmapped);
    EXPECT_EQ(JumpTo(SmallMachine::data).kind, FindingKind::Protected);
    EXPECT_EQ(JumpTo(SmallMachine::stackTop - 4).kind, FindingKind::Protected);
    EXPECT_EQ(JumpTo(SmallMachine::code + 1).kind, FindingKind::Thumb);
    EXPECT_EQ(JumpTo(SmallMachine::code + 2).kind, FindingKind::Unaligned);
}

TEST(BranchTest, CallsThatLeadNowhereAreNoCallers)
{
    SmallMachine guest;
    const Finding finding = FindingOf([&guest] { guest.Run({0xE1A0E00F, 0xE12FFF15}); });
    EXPECT_EQ(finding.kind, FindingKind::Unmapped);
    EXPECT_EQ(finding.place, SmallMachine::code + 4);
    EXPECT_TRUE(finding.callers.empty());
}

TEST(BranchTest, CallersAreKnown)
{
    SmallMachine guest;
    // The outer function calls one that pushes and calls a third through a pointer, which faults.
    const Finding finding = FindingOf([&guest] {
        guest.Run({0xE1A08008, 0xE92D4010, 0xEB000002, 0xE1A08008, 0xE1A08008, 0xE1A08008, 0xE92D4010,
                   0xEB000004, 0xE28F3010, 0xE1A0E00F, 0xE12FFF13, 0xE1A08008, 0xE1A08008, 0xE12FFF1E,
                   0xE5950000});
    });
    EXPECT_EQ(finding.kind, FindingKind::Unmapped);
    EXPECT_EQ(finding.place, SmallMachine::code + 4 * 14);
    const std::vector<Address> expected = {SmallMachine::code + 4 * 10, SmallMachine::code + 4 * 2};
    EXPECT_EQ(finding.callers, expected);
}

TEST(BranchTest, CallsThatReturnedAreForgotten)
{
    SmallMachine guest;
    const Finding finding = FindingOf([&guest] {
        guest.Run({0xEB000002, 0xE5950000, 0xE1A08008, 0xE1A08008, 0xE12FFF1E});
    });
    EXPECT_EQ(finding.place, SmallMachine::code + 4);
    EXPECT_TRUE(finding.callers.empty());
}

// While a call is served, its place is known, and is none of its own callers.
TEST(BranchTest, ACallOutIsNoCaller)
{
    SmallMachine guest;
    // A function that pushes and calls out through a pointer.
    guest.Run({0xE92D4010, 0xE59F300C, 0xE1A0E00F, 0xE12FFF13, 0xE1A08008, 0xE1A08008,
               TrapAddress(SmallMachine::endTrap)});
    EXPECT_EQ(guest.machine.processor.Place(), SmallMachine::code + 4 * 3);
    EXPECT_TRUE(guest.machine.processor.Callers().empty());
}

} // namespace runner
