// Loads and stores of many registers: which place belongs to which of them, and where the base is then.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address middle = SmallMachine::data + 0x100;

struct ManyRow
{
    const char* text;
    Word store; // of r2, r5 and r9, base r1
    Word load;
    Address lowest;
    Address baseAfter;
};

static constexpr ManyRow rows[] = {
    {"ia", 0xE8810224, 0xE8910224, middle, middle},
    {"ib", 0xE9810224, 0xE9910224, middle + 4, middle},
    {"da", 0xE8010224, 0xE8110224, middle - 8, middle},
    {"db", 0xE9010224, 0xE9110224, middle - 12, middle},
    {"ia!", 0xE8A10224, 0xE8B10224, middle, middle + 12},
    {"ib!", 0xE9A10224, 0xE9B10224, middle + 4, middle + 12},
    {"da!", 0xE8210224, 0xE8310224, middle - 8, middle - 12},
    {"db!", 0xE9210224, 0xE9310224, middle - 12, middle - 12},
};

TEST(MultipleTransferTest, LowestRegisterIsStoredLowest)
{
    for (const ManyRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        guest.before.r[1] = {middle, 0};
        guest.before.r[2] = {0x22, 0};
        guest.before.r[5] = {0x55, 0};
        guest.before.r[9] = {0x99, 0};
        guest.Run({row.store});
        EXPECT_EQ(guest.Bits(1), row.baseAfter);
        for (Address place = SmallMachine::data; place < SmallMachine::data + 0x200; place += 4) {
            const Word expected = place == row.lowest       ? 0x22
                                  : place == row.lowest + 4 ? 0x55
                                  : place == row.lowest + 8 ? 0x99
                                                            : 0;
            EXPECT_EQ(guest.WordAt(place), expected) << place;
        }
    }
}

TEST(MultipleTransferTest, LowestRegisterIsLoadedFromTheLowest)
{
    for (const ManyRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        guest.before.r[1] = {middle, 0};
        guest.PutWord(row.lowest, 0x22);
        guest.PutWord(row.lowest + 4, 0x55);
        guest.PutWord(row.lowest + 8, 0x99);
        guest.Run({row.load});
        EXPECT_EQ(guest.Bits(2), 0x22u);
        EXPECT_EQ(guest.Bits(5), 0x55u);
        EXPECT_EQ(guest.Bits(9), 0x99u);
        EXPECT_EQ(guest.Bits(1), row.baseAfter);
        EXPECT_EQ(guest.Bits(0), 0u);
        EXPECT_EQ(guest.Bits(3), 0u);
    }
}

TEST(MultipleTransferTest, BaseAmongTheLoaded)
{
    SmallMachine guest;
    guest.before.r[1] = {middle, 0};
    guest.PutWord(middle, 7);
    guest.PutWord(middle + 4, 8);
    guest.Run({0xE8910006});
    EXPECT_EQ(guest.Bits(1), 7u);
    EXPECT_EQ(guest.Bits(2), 8u);
}

// Of a base that moves, what it was is stored, if it is the lowest of the registers.
TEST(MultipleTransferTest, BaseAmongTheStored)
{
    SmallMachine guest;
    guest.before.r[1] = {middle, 0};
    guest.before.r[LinkRegister] = {0xEE, 0};
    guest.Run({0xE8A10006, 0xE92D6000, 0xE59D3000, 0xE59D4004, 0xE28DD008});
    EXPECT_EQ(guest.WordAt(middle), middle);
    EXPECT_EQ(guest.Bits(1), middle + 8);
    EXPECT_EQ(guest.Bits(3), SmallMachine::stackTop);
    EXPECT_EQ(guest.Bits(4), 0xEEu);
}

TEST(MultipleTransferTest, PushAndPop)
{
    SmallMachine guest;
    guest.before.r[4] = {0x44, 0};
    guest.before.r[5] = {0x55, 0};
    guest.before.r[LinkRegister] = {0xEE, 0};
    guest.Run({0xE92D4030, 0xE1A0000D, 0xE3A04001, 0xE3A05002, 0xE59D1008, 0xE8BD0030, 0xE49D2004});
    EXPECT_EQ(guest.Bits(0), SmallMachine::stackTop - 12);
    EXPECT_EQ(guest.Bits(1), 0xEEu);
    EXPECT_EQ(guest.Bits(2), 0xEEu);
    EXPECT_EQ(guest.Bits(4), 0x44u);
    EXPECT_EQ(guest.Bits(5), 0x55u);
    EXPECT_EQ(guest.Bits(StackRegister), SmallMachine::stackTop);
}

TEST(MultipleTransferTest, ProgramCounter)
{
    SmallMachine guest;
    guest.before.r[1] = {middle, 0};
    guest.Run({0xE8818001});
    EXPECT_EQ(guest.WordAt(middle + 4), SmallMachine::code + 12);
    guest.PutWord(middle + 4, SmallMachine::code + 8);
    guest.Run({0xE8918001, 0xE3A05001, 0xE3A06001});
    EXPECT_EQ(guest.Bits(5), 0u);
    EXPECT_EQ(guest.Bits(6), 1u);
}

// The frame's end as some compilers write it: the stack pointer comes from the memory it points to.
TEST(MultipleTransferTest, StackPointerAmongTheLoaded)
{
    SmallMachine guest;
    guest.before.r[4] = {0x44, 0};
    guest.before.r[StackRegister] = {SmallMachine::stackTop - 32, 0};
    guest.Run({0xE1A0C00D, 0xE92D5010, 0xE3A04000, 0xE89D6010});
    EXPECT_EQ(guest.Bits(4), 0x44u);
    EXPECT_EQ(guest.Bits(StackRegister), SmallMachine::stackTop - 32);
}

} // namespace runner
