// Products of 32 and 64 bits.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

struct ProductRow
{
    const char* text;
    Word instruction; // r0, or r0 and r3 as the lower and upper half, from r1 and r2
    Word a;
    Word b;
    Word low; // r0 and r3 before
    Word high;
    Word lowAfter;
    Word highAfter;
};

TEST(MultiplyTest, Products)
{
    const ProductRow rows[] = {
        {"mul", 0xE0000291, 7, 6, 0, 9, 42, 9},
        {"mul of negatives", 0xE0000291, 0xFFFFFFFF, 0xFFFFFFFE, 0, 9, 2, 9},
        {"mul keeps the lower half", 0xE0000291, 0x10001, 0x10001, 0, 9, 0x20001, 9},
        {"mla", 0xE0203291, 7, 6, 0, 100, 142, 100},
        {"umull", 0xE0830291, 0xFFFFFFFF, 0xFFFFFFFF, 5, 5, 1, 0xFFFFFFFE},
        {"umlal", 0xE0A30291, 0xFFFFFFFF, 2, 3, 4, 1, 6},
        {"smull", 0xE0C30291, 0xFFFFFFFF, 2, 5, 5, 0xFFFFFFFE, 0xFFFFFFFF},
        {"smull of negatives", 0xE0C30291, 0x80000000, 0x80000000, 5, 5, 0, 0x40000000},
        {"smlal", 0xE0E30291, 0xFFFFFFFF, 3, 2, 0, 0xFFFFFFFF, 0xFFFFFFFF},
    };
    for (const ProductRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        guest.before.r[0] = {row.low, 0};
        guest.before.r[1] = {row.a, 0};
        guest.before.r[2] = {row.b, 0};
        guest.before.r[3] = {row.high, 0};
        guest.before.flags = FlagsOf("NzCv");
        const Registers& after = guest.Run({row.instruction});
        EXPECT_EQ(after.Bits(0), row.lowAfter);
        EXPECT_EQ(after.Bits(3), row.highAfter);
        EXPECT_EQ(FlagText(after.flags), "NzCv");
        EXPECT_EQ(after.flags.undefined, 0u);
    }
}

TEST(MultiplyTest, FlagsOfWords)
{
    SmallMachine guest;
    guest.before.r[1] = {0x10000, 0};
    guest.before.r[2] = {0x10000, 0};
    guest.Run({0xE0100291});
    EXPECT_TRUE(guest.State().flags.z);
    guest.before.r[1] = {0xFFFFFFFF, 0};
    guest.Run({0xE0100291});
    EXPECT_TRUE(guest.State().flags.n);
    EXPECT_FALSE(guest.State().flags.z);
    // The oldest processors leave anything in the carry.
    EXPECT_EQ(guest.State().flags.undefined, unsigned{CarryFlag});
}

TEST(MultiplyTest, FlagsOfDoubleWords)
{
    SmallMachine guest;
    guest.before.r[1] = {0x10000, 0};
    guest.before.r[2] = {0x10000, 0};
    guest.Run({0xE0930291});
    EXPECT_EQ(guest.Bits(0), 0u);
    EXPECT_EQ(guest.Bits(3), 1u);
    EXPECT_FALSE(guest.State().flags.z);
    EXPECT_FALSE(guest.State().flags.n);
    guest.before.r[1] = {0xFFFFFFFF, 0};
    guest.Run({0xE0D30291});
    EXPECT_TRUE(guest.State().flags.n);
    guest.before.r[1] = {0, 0};
    guest.Run({0xE0D30291});
    EXPECT_TRUE(guest.State().flags.z);
}

} // namespace runner
