// The stack grows by its guard page, not beyond its reserve; and what lies below its pointer is gone.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address low = SmallMachine::stackTop - SmallMachine::stackReserve;

TEST(StackTest, GrowsPageByPage)
{
    SmallMachine guest;
    EXPECT_EQ(guest.machine.memory.LowestStackPage(), SmallMachine::stackTop - 0x1000);
    guest.Run({0xE24DDA01, 0xE52D4004, 0xE28DD004, 0xE28DDA01});
    EXPECT_EQ(guest.machine.memory.LowestStackPage(), SmallMachine::stackTop - 0x2000);
    guest.Run({0xE24DDA02, 0xE58D4000, 0xE28DDA02});
    EXPECT_EQ(guest.machine.memory.LowestStackPage(), SmallMachine::stackTop - 0x2000);
}

TEST(StackTest, DeepestPlaceIsKept)
{
    SmallMachine guest;
    guest.Run({0xE24DDD06, 0xE28DDD06, 0xE92D0030, 0xE8BD0030});
    EXPECT_EQ(guest.machine.memory.LowestStackPointer(), SmallMachine::stackTop - 0x180);
}

TEST(StackTest, EndsWithItsReserve)
{
    SmallMachine guest;
    // Pages are pushed to until there is no more.
    const Finding finding = FindingOf([&guest] { guest.Run({0xE52D4004, 0xEAFFFFFD}); });
    EXPECT_EQ(finding.kind, FindingKind::StackOverflow);
    EXPECT_EQ(guest.machine.memory.LowestStackPage(), low);
    EXPECT_EQ(guest.machine.processor.Register(StackRegister), low);
    // Nor is there another guard page below.
    guest.before.r[1] = {low - 4, 0};
    ExpectFinding(FindingKind::StackOverflow, [&guest] { guest.Run({0xE5810000}); });
}

// The device commits the next page alone: a frame that reaches over it faults.
TEST(StackTest, GuardPageIsNotSteppedOver)
{
    SmallMachine guest;
    guest.before.r[StackRegister] = {low, 0};
    ExpectFinding(FindingKind::StackOverflow, [&guest] { guest.Run({0xE58D4000}); });
}

TEST(StackTest, PointerStaysInTheStack)
{
    SmallMachine guest;
    ExpectFinding(FindingKind::StackOverflow, [&guest] { guest.Run({0xE24DD902}); });
    ExpectFinding(FindingKind::StackOverflow, [&guest] { guest.Run({0xE28DD004}); });
    ExpectFinding(FindingKind::StackOverflow, [&guest] { guest.Run({0xE3A0D000}); });
    ExpectFinding(FindingKind::Unaligned, [&guest] { guest.Run({0xE24DD006}); });
}

TEST(StackTest, NothingIsBelowThePointer)
{
    SmallMachine guest;
    guest.before.r[StackRegister] = {SmallMachine::stackTop - 16, 0};
    ExpectFinding(FindingKind::BelowStack, [&guest] { guest.Run({0xE51D0004}); });
    ExpectFinding(FindingKind::BelowStack, [&guest] { guest.Run({0xE50D0004}); });
    ExpectFinding(FindingKind::BelowStack, [&guest] { guest.Run({0xE54D0001}); });
    guest.Run({0xE58D0000, 0xE59D0000, 0xE52D0004, 0xE49D0004});
}

// A pointer to a variable of a function that has returned.
TEST(StackTest, VariablesDoNotOutliveTheirFunction)
{
    SmallMachine guest;
    const Finding finding = FindingOf([&guest] {
        guest.Run({0xE92D4010, 0xE3A04007, 0xE58D4000, 0xE1A0000D, 0xE8BD4010, 0xE5901000});
    });
    EXPECT_EQ(finding.kind, FindingKind::BelowStack);
    EXPECT_EQ(finding.address, SmallMachine::stackTop - 8);
}

// What an earlier function left there is not the next one's.
TEST(StackTest, VariablesBeginUndefined)
{
    SmallMachine guest;
    ExpectFinding(FindingKind::Undefined, [&guest] {
        guest.Run({0xE3A04007, 0xE92D0030, 0xE8BD0030, 0xE24DD008, 0xE59D0000, 0xE3500007, 0x03A01001});
    });
    ExpectFinding(FindingKind::Undefined, [&guest] {
        guest.Run(
            {0xE24DD008, 0xE3A04007, 0xE58D4000, 0xE28DD008, 0xE24DD008, 0xE59D0000, 0xE3500007, 0x03A01001});
    });
}

} // namespace runner
