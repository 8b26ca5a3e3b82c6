// Loads and stores of words and bytes, in each way to address them.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address middle = SmallMachine::data + 0x100;

struct LoadRow
{
    const char* text;
    Word instruction; // loads r0, base r1, offset r2
    Word offset;
    Address from;
    Address baseAfter;
};

TEST(TransferTest, LoadedFromWhere)
{
    const LoadRow rows[] = {
        {"ldr [r1]", 0xE5910000, 0, middle, middle},
        {"ldr [r1, #8]", 0xE5910008, 0, middle + 8, middle},
        {"ldr [r1, #-8]", 0xE5110008, 0, middle - 8, middle},
        {"ldr [r1, #8]!", 0xE5B10008, 0, middle + 8, middle + 8},
        {"ldr [r1, #-8]!", 0xE5310008, 0, middle - 8, middle - 8},
        {"ldr [r1], #8", 0xE4910008, 0, middle, middle + 8},
        {"ldr [r1], #-8", 0xE4110008, 0, middle, middle - 8},
        {"ldr [r1, r2]", 0xE7910002, 12, middle + 12, middle},
        {"ldr [r1, -r2]", 0xE7110002, 12, middle - 12, middle},
        {"ldr [r1, r2, lsl #2]", 0xE7910102, 3, middle + 12, middle},
        {"ldr [r1, r2, asr #1]!", 0xE7B100C2, 0xFFFFFFF8, middle - 4, middle - 4},
        {"ldr [r1], r2", 0xE6910002, 20, middle, middle + 20},
        {"ldrt [r1], #4", 0xE4B10004, 0, middle, middle + 4},
    };
    for (const LoadRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        for (Address place = SmallMachine::data; place < SmallMachine::data + 0x200; place += 4) {
            guest.PutWord(place, place ^ 0xA5000000);
        }
        guest.before.r[1] = {middle, 0};
        guest.before.r[2] = {row.offset, 0};
        guest.Run({row.instruction});
        EXPECT_EQ(guest.Bits(0), row.from ^ 0xA5000000);
        EXPECT_EQ(guest.Bits(1), row.baseAfter);
    }
}

TEST(TransferTest, StoredWhere)
{
    const LoadRow rows[] = {
        {"str [r1]", 0xE5810000, 0, middle, middle},
        {"str [r1, #4]!", 0xE5A10004, 0, middle + 4, middle + 4},
        {"str [r1], #4", 0xE4810004, 0, middle, middle + 4},
        {"str [r1, #-4]!", 0xE5210004, 0, middle - 4, middle - 4},
        {"str [r1, -r2, lsl #2]", 0xE7010102, 2, middle - 8, middle},
    };
    for (const LoadRow& row : rows) {
        SCOPED_TRACE(row.text);
        SmallMachine guest;
        guest.before.r[0] = {0x12345678, 0};
        guest.before.r[1] = {middle, 0};
        guest.before.r[2] = {row.offset, 0};
        guest.Run({row.instruction});
        EXPECT_EQ(guest.Bits(1), row.baseAfter);
        for (Address place = SmallMachine::data; place < SmallMachine::data + 0x200; place += 4) {
            EXPECT_EQ(guest.WordAt(place), place == row.from ? 0x12345678 : 0) << place;
        }
    }
}

TEST(TransferTest, Bytes)
{
    SmallMachine guest;
    guest.PutWord(middle, 0x81828384);
    guest.before.r[0] = {0xAABBCCDD, 0};
    guest.before.r[1] = {middle, 0};
    guest.Run({0xE5D12000, 0xE5D13003, 0xE5C10002, 0xE5914000});
    EXPECT_EQ(guest.Bits(2), 0x84u);
    EXPECT_EQ(guest.Bits(3), 0x81u);
    EXPECT_EQ(guest.Bits(4), 0x81DD8384u);
}

TEST(TransferTest, HalfWordsAndSigns)
{
    SmallMachine guest;
    guest.PutWord(middle, 0x8182F384);
    guest.PutWord(middle + 4, 0x00007F01);
    guest.before.r[0] = {0xAABBCCDD, 0};
    guest.before.r[1] = {middle, 0};
    guest.before.r[9] = {4, 0};
    guest.Run({0xE1D120B0, 0xE1D130F0, 0xE1D140D3, 0xE19150D9, 0xE19160F9, 0xE1C100B6, 0xE5917004, 0xE1F180B2,
               0xE051A0B2});
    EXPECT_EQ(guest.Bits(2), 0x0000F384u);
    EXPECT_EQ(guest.Bits(3), 0xFFFFF384u);
    EXPECT_EQ(guest.Bits(4), 0xFFFFFF81u);
    EXPECT_EQ(guest.Bits(5), 0x00000001u);
    EXPECT_EQ(guest.Bits(6), 0x00007F01u);
    EXPECT_EQ(guest.Bits(7), 0xCCDD7F01u);
    EXPECT_EQ(guest.Bits(8), 0x00008182u);
    EXPECT_EQ(guest.Bits(10), 0x00008182u);
    EXPECT_EQ(guest.Bits(1), middle);
}

TEST(TransferTest, FarHalfWords)
{
    SmallMachine guest;
    guest.PutWord(middle + 0xC4, 0x5678);
    guest.before.r[1] = {middle, 0};
    guest.Run({0xE1D10CB4, 0xE1410FB2});
    EXPECT_EQ(guest.Bits(0), 0x5678u);
    EXPECT_EQ(guest.machine.memory.Read<std::uint16_t>(middle - 0xF2), 0x5678);
}

TEST(TransferTest, FlagsAndShifterDoNotMix)
{
    SmallMachine guest;
    guest.before.flags = FlagsOf("nzCv");
    guest.before.r[1] = {middle, 0};
    guest.before.r[2] = {0x80000004, 0};
    guest.Run({0xE7910082});
    EXPECT_EQ(FlagText(guest.State().flags), "nzCv");
}

// The program counter as a base, as what is stored, and as what is loaded.
TEST(TransferTest, ProgramCounter)
{
    SmallMachine guest;
    guest.before.r[1] = {middle, 0};
    guest.Run({0xE51F0008, 0xE581F000});
    EXPECT_EQ(guest.Bits(0), 0xE51F0008u);
    EXPECT_EQ(guest.WordAt(middle), SmallMachine::code + 4 + 12);
    guest.PutWord(middle, SmallMachine::code + 12);
    guest.Run({0xE591F000, 0xE3A05001, 0xE3A06001, 0xE3A07001});
    EXPECT_EQ(guest.Bits(5), 0u);
    EXPECT_EQ(guest.Bits(6), 0u);
    EXPECT_EQ(guest.Bits(7), 1u);
}

TEST(TransferTest, Swaps)
{
    SmallMachine guest;
    guest.PutWord(middle, 0x11223344);
    guest.before.r[0] = {0xAABBCCDD, 0};
    guest.before.r[1] = {middle, 0};
    guest.Run({0xE1012090, 0xE1413092, 0xE1010090});
    EXPECT_EQ(guest.Bits(2), 0x11223344u);
    EXPECT_EQ(guest.Bits(3), 0xDDu);
    EXPECT_EQ(guest.Bits(0), 0xAABBCC44u);
    EXPECT_EQ(guest.WordAt(middle), 0xAABBCCDDu);
}

} // namespace runner
