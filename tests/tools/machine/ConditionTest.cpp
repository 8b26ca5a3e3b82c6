// Each condition in each state of the flags.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

// A bit for each state: n is worth 8, z 4, c 2, v 1.
static constexpr Word expected[] = {
    0xF0F0, // EQ: z
    0x0F0F, // NE
    0xCCCC, // CS: c
    0x3333, // CC
    0xFF00, // MI: n
    0x00FF, // PL
    0xAAAA, // VS: v
    0x5555, // VC
    0x0C0C, // HI: c and not z
    0xF3F3, // LS
    0xAA55, // GE: n as v
    0x55AA, // LT
    0x0A05, // GT: not z, and n as v
    0xF5FA, // LE
    0xFFFF, // AL
};

TEST(ConditionTest, EveryConditionInEveryState)
{
    SmallMachine guest;
    for (Word condition = 0; condition < std::size(expected); condition++) {
        for (Word state = 0; state < 16; state++) {
            guest.before.r[0] = {0, 0};
            guest.before.flags = {(state & 8) != 0, (state & 4) != 0, (state & 2) != 0, (state & 1) != 0, 0};
            constexpr Word moveOne = 0xE3A00001 & 0x0FFFFFFF;
            guest.Run({condition << 28 | moveOne});
            EXPECT_EQ(guest.Bits(0), expected[condition] >> state & 1)
                << "condition " << condition << ", state " << state;
        }
    }
}

TEST(ConditionTest, TheSixteenthIsNone)
{
    SmallMachine guest;
    ExpectFinding(FindingKind::UnknownInstruction, [&guest] { guest.Run({0xF3A00001}); });
}

// What is skipped is counted, and does nothing at all.
TEST(ConditionTest, SkippedInstructionsTouchNothing)
{
    SmallMachine guest;
    guest.before.flags = FlagsOf("nzcv");
    guest.Run({0x05910000, 0x05810000, 0x012FFF11, 0x01A0D001, 0x08B1000C, 0x0F000001});
    EXPECT_EQ(guest.Bits(1), 0u);
    EXPECT_EQ(guest.machine.processor.Count(), 7u);
}

// Only the flags that a condition looks at matter.
TEST(ConditionTest, UndefinedFlagsAreFoundWhereTheyDecide)
{
    struct Row
    {
        Word instruction;
        unsigned flags;
    };
    const Row rows[] = {
        {0x03A00001, ZeroFlag},
        {0x23A00001, CarryFlag},
        {0x43A00001, NegativeFlag},
        {0x63A00001, OverflowFlag},
        {0x83A00001, CarryFlag | ZeroFlag},
        {0xA3A00001, NegativeFlag | OverflowFlag},
        {0xC3A00001, NegativeFlag | OverflowFlag | ZeroFlag},
        {0xE3A00001, 0},
    };
    SmallMachine guest;
    for (const Row& row : rows) {
        for (unsigned flag = 1; flag < 16; flag *= 2) {
            guest.before.flags.undefined = flag;
            if ((row.flags & flag) != 0) {
                ExpectFinding(FindingKind::Undefined, [&] { guest.Run({row.instruction}); });
            } else {
                guest.Run({row.instruction});
            }
        }
    }
}

} // namespace runner
