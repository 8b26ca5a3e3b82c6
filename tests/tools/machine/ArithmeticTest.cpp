// Sums and differences, and the four flags they leave.
#include "tests/tools/machine/Operation.h"
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

TEST(ArithmeticTest, Sums)
{
    const OperationRow rows[] = {
        {"adds", 0xE0910002, 1, 2, "NZCV", 3, "nzcv"},
        {"adds to zero", 0xE0910002, 0xFFFFFFFF, 1, "nzcv", 0, "nZCv"},
        {"adds overflows", 0xE0910002, 0x7FFFFFFF, 1, "nzcv", 0x80000000, "NzcV"},
        {"adds of negatives", 0xE0910002, 0x80000000, 0x80000000, "nzcv", 0, "nZCV"},
        {"adds of opposites", 0xE0910002, 0x80000000, 0x7FFFFFFF, "nzcv", 0xFFFFFFFF, "Nzcv"},
        {"adcs without", 0xE0B10002, 1, 2, "nzcv", 3, "nzcv"},
        {"adcs with", 0xE0B10002, 1, 2, "nzCv", 4, "nzcv"},
        {"adcs carries on", 0xE0B10002, 0xFFFFFFFF, 0xFFFFFFFF, "nzCv", 0xFFFFFFFF, "NzCv"},
        {"adcs overflows by the carry", 0xE0B10002, 0x7FFFFFFF, 0, "nzCv", 0x80000000, "NzcV"},
        {"add leaves the flags", 0xE0810002, 0xFFFFFFFF, 1, "NzcV", 0, "NzcV"},
        {"cmn", 0xE1710002, 0xFFFFFFFF, 1, "NzcV", untouched, "nZCv"},
    };
    CheckOperations(rows);
}

// The carry is the contrary of a borrow.
TEST(ArithmeticTest, Differences)
{
    const OperationRow rows[] = {
        {"subs", 0xE0510002, 5, 3, "nzcv", 2, "nzCv"},
        {"subs of equals", 0xE0510002, 5, 5, "nzcv", 0, "nZCv"},
        {"subs borrows", 0xE0510002, 3, 5, "nzCv", 0xFFFFFFFE, "Nzcv"},
        {"subs overflows", 0xE0510002, 0x80000000, 1, "nzcv", 0x7FFFFFFF, "nzCV"},
        {"subs overflows upwards", 0xE0510002, 0x7FFFFFFF, 0xFFFFFFFF, "nzcv", 0x80000000, "NzcV"},
        {"rsbs", 0xE0710002, 3, 5, "nzcv", 2, "nzCv"},
        {"rsbs borrows", 0xE0710002, 5, 3, "nzCv", 0xFFFFFFFE, "Nzcv"},
        {"sbcs with the carry", 0xE0D10002, 5, 3, "nzCv", 2, "nzCv"},
        {"sbcs without", 0xE0D10002, 5, 3, "nzcv", 1, "nzCv"},
        {"sbcs of equals without", 0xE0D10002, 5, 5, "nzcv", 0xFFFFFFFF, "Nzcv"},
        {"rscs with the carry", 0xE0F10002, 3, 5, "nzCv", 2, "nzCv"},
        {"rscs without", 0xE0F10002, 3, 3, "nzcv", 0xFFFFFFFF, "Nzcv"},
        {"sub leaves the flags", 0xE0410002, 3, 5, "nZCv", 0xFFFFFFFE, "nZCv"},
        {"cmp", 0xE1510002, 3, 3, "NzcV", untouched, "nZCv"},
        {"cmp below", 0xE1510002, 0, 0x80000000, "nzcv", untouched, "NzcV"},
    };
    CheckOperations(rows);
}

TEST(ArithmeticTest, ShiftedAndConstantOperands)
{
    const OperationRow rows[] = {
        {"add lsl #2", 0xE0810102, 100, 5, "nzcv", 120, "nzcv"},
        {"rsb asr #1", 0xE06100C2, 1, 0xFFFFFFF0, "nzcv", 0xFFFFFFF7, "nzcv"},
        {"sub #", 0xE2410A01, 0x1001, 0, "nzcv", 1, "nzcv"},
        {"adds takes no carry from the shifter", 0xE0910082, 0, 0x80000001, "nzCv", 2, "nzcv"},
        {"adc takes the flag, not the shifter's carry", 0xE0A10082, 0, 0x80000000, "nzcv", 0, "nzcv"},
    };
    CheckOperations(rows);
}

// Two words at a time, as the compiler does numbers of 64 bits.
TEST(ArithmeticTest, CarryLinksWords)
{
    SmallMachine guest;
    guest.before.r[0] = {0xFFFFFFFF, 0};
    guest.before.r[1] = {0x00000001, 0};
    guest.before.r[2] = {0x00000002, 0};
    guest.before.r[3] = {0x00000003, 0};
    guest.Run({0xE0904002, 0xE0A15003, 0xE0546000, 0xE0C57001});
    EXPECT_EQ(guest.Bits(4), 1u);
    EXPECT_EQ(guest.Bits(5), 5u);
    EXPECT_EQ(guest.Bits(6), 2u);
    EXPECT_EQ(guest.Bits(7), 3u);
}

} // namespace runner
