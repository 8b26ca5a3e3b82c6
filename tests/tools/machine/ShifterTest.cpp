// The shifter's results and the carry it leaves, by the architecture's tables.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

struct ShiftRow
{
    const char* text;
    Word instruction;
    Word value; // r1
    Word distance;
    bool carryBefore;
    Word result;
    bool carryAfter;
};

static void Check(const ShiftRow& row)
{
    SCOPED_TRACE(std::string(row.text) + ", r2 = " + std::to_string(row.distance));
    SmallMachine guest;
    guest.before.r[1] = {row.value, 0};
    guest.before.r[2] = {row.distance, 0};
    guest.before.flags.c = row.carryBefore;
    const Registers& after = guest.Run({row.instruction});
    EXPECT_EQ(after.Bits(0), row.result);
    EXPECT_EQ(after.flags.c, row.carryAfter);
    EXPECT_EQ(after.flags.n, row.result >> 31 != 0);
    EXPECT_EQ(after.flags.z, row.result == 0);
}

TEST(ShifterTest, ConstantDistances)
{
    const ShiftRow rows[] = {
        {"movs r0, r1", 0xE1B00001, 0x80000001, 0, true, 0x80000001, true},
        {"movs r0, r1", 0xE1B00001, 0x80000001, 0, false, 0x80000001, false},
        {"lsl #1", 0xE1B00081, 0x80000001, 0, false, 0x00000002, true},
        {"lsl #1", 0xE1B00081, 0x40000001, 0, true, 0x80000002, false},
        {"lsl #31", 0xE1B00F81, 0x00000003, 0, false, 0x80000000, true},
        {"lsr #1", 0xE1B000A1, 0x80000001, 0, false, 0x40000000, true},
        {"lsr #31", 0xE1B00FA1, 0xC0000000, 0, false, 0x00000001, true},
        {"lsr #32", 0xE1B00021, 0x80000000, 0, false, 0x00000000, true},
        {"lsr #32", 0xE1B00021, 0x7FFFFFFF, 0, true, 0x00000000, false},
        {"asr #1", 0xE1B000C1, 0x80000002, 0, true, 0xC0000001, false},
        {"asr #4", 0xE1B00241, 0x70000008, 0, false, 0x07000000, true},
        {"asr #32", 0xE1B00041, 0x80000000, 0, false, 0xFFFFFFFF, true},
        {"asr #32", 0xE1B00041, 0x7FFFFFFF, 0, true, 0x00000000, false},
        {"ror #4", 0xE1B00261, 0x12345678, 0, false, 0x81234567, true},
        {"ror #31", 0xE1B00FE1, 0x40000001, 0, false, 0x80000002, true},
        {"rrx", 0xE1B00061, 0x00000003, 0, false, 0x00000001, true},
        {"rrx", 0xE1B00061, 0x00000002, 0, true, 0x80000001, false},
    };
    for (const ShiftRow& row : rows) {
        Check(row);
    }
}

TEST(ShifterTest, DistancesOfZeroAndBetween)
{
    const ShiftRow rows[] = {
        {"lsl r2", 0xE1B00211, 0x80000001, 0, true, 0x80000001, true},
        {"lsr r2", 0xE1B00231, 0x80000001, 0, false, 0x80000001, false},
        {"asr r2", 0xE1B00251, 0x80000001, 0, true, 0x80000001, true},
        {"ror r2", 0xE1B00271, 0x80000001, 0, false, 0x80000001, false},
        {"lsl r2", 0xE1B00211, 0x01000001, 8, false, 0x00000100, true},
        {"lsr r2", 0xE1B00231, 0x00000180, 8, false, 0x00000001, true},
        {"asr r2", 0xE1B00251, 0xFFFFFE80, 8, false, 0xFFFFFFFE, true},
        {"ror r2", 0xE1B00271, 0x00000180, 8, false, 0x80000001, true},
    };
    for (const ShiftRow& row : rows) {
        Check(row);
    }
}

TEST(ShifterTest, DistancesOfAWordAndMore)
{
    const ShiftRow rows[] = {
        {"lsl r2", 0xE1B00211, 0x00000001, 32, false, 0, true},
        {"lsl r2", 0xE1B00211, 0xFFFFFFFE, 32, true, 0, false},
        {"lsl r2", 0xE1B00211, 0xFFFFFFFF, 33, true, 0, false},
        {"lsr r2", 0xE1B00231, 0x80000000, 32, false, 0, true},
        {"lsr r2", 0xE1B00231, 0xFFFFFFFF, 33, true, 0, false},
        {"lsr r2", 0xE1B00231, 0xFFFFFFFF, 255, true, 0, false},
        {"asr r2", 0xE1B00251, 0x80000000, 32, false, 0xFFFFFFFF, true},
        {"asr r2", 0xE1B00251, 0x40000000, 33, true, 0, false},
        {"asr r2", 0xE1B00251, 0x80000000, 200, false, 0xFFFFFFFF, true},
        {"ror r2", 0xE1B00271, 0x80000001, 32, false, 0x80000001, true},
        {"ror r2", 0xE1B00271, 0x00000003, 33, false, 0x80000001, true},
        {"ror r2", 0xE1B00271, 0x7FFFFFFF, 64, true, 0x7FFFFFFF, false},
    };
    for (const ShiftRow& row : rows) {
        Check(row);
    }
}

// Only the lowest byte of the register is the distance.
TEST(ShifterTest, UpperBytesOfADistanceDoNotCount)
{
    Check({"lsl r2", 0xE1B00211, 0x00000001, 0x100, true, 1, true});
    Check({"lsr r2", 0xE1B00231, 0x00000010, 0xFFFFFF04, true, 1, false});
}

TEST(ShifterTest, ConstantsAreRotated)
{
    const ShiftRow rows[] = {
        {"movs r0, #255", 0xE3B000FF, 0, 0, true, 0x000000FF, true},
        {"movs r0, #255", 0xE3B000FF, 0, 0, false, 0x000000FF, false},
        {"movs r0, #0xFF000000", 0xE3B004FF, 0, 0, false, 0xFF000000, true},
        {"movs r0, #0x3FC00", 0xE3B00BFF, 0, 0, true, 0x0003FC00, false},
        {"movs r0, #0xF000000F", 0xE3B002FF, 0, 0, false, 0xF000000F, true},
    };
    for (const ShiftRow& row : rows) {
        Check(row);
    }
}

// The shifter sees the program counter two instructions ahead.
TEST(ShifterTest, ProgramCounterIsTwoInstructionsAhead)
{
    SmallMachine guest;
    guest.Run({0xE3A03001, 0xE083008F});
    EXPECT_EQ(guest.Bits(0), 1 + 2 * (SmallMachine::code + 12));
}

} // namespace runner
