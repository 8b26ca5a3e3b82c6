// Logic, and the flags it leaves: the carry is the shifter's, the overflow stays.
#include "tests/tools/machine/Operation.h"
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

TEST(LogicTest, ResultsAndFlags)
{
    const OperationRow rows[] = {
        {"ands", 0xE0110002, 0xC, 0xA, "NZCV", 0x8, "nzCV"},
        {"ands to zero", 0xE0110002, 0xC, 0x3, "nzcV", 0, "nZcV"},
        {"eors", 0xE0310002, 0xC, 0xA, "nzcv", 0x6, "nzcv"},
        {"eors negative", 0xE0310002, 0x80000000, 1, "nzcv", 0x80000001, "Nzcv"},
        {"orrs", 0xE1910002, 0xC, 0xA, "nzcv", 0xE, "nzcv"},
        {"bics", 0xE1D10002, 0xC, 0xA, "nzcv", 0x4, "nzcv"},
        {"bics to zero", 0xE1D10002, 0xC, 0xC, "nzCv", 0, "nZCv"},
        {"mvns", 0xE1F00002, 0, 0xFFFFFFFF, "nzcv", 0, "nZcv"},
        {"mvn of a constant", 0xE3E00000, 0, 0, "nZcv", 0xFFFFFFFF, "nZcv"},
        {"orrs takes the shifter's carry", 0xE1910082, 0, 0x80000001, "nzcv", 2, "nzCv"},
        {"ands takes the constant's carry", 0xE2110102, 0xFFFFFFFF, 0, "nzcv", 0x80000000, "NzCv"},
        {"and leaves the flags", 0xE0010002, 0, 0, "NzCv", 0, "NzCv"},
        {"tst", 0xE1110002, 0xC, 0x3, "NzCV", untouched, "nZCV"},
        {"tst of a constant", 0xE3110102, 0x80000000, 0, "nzcv", untouched, "NzCv"},
        {"teq of equals", 0xE1310002, 7, 7, "nzcV", untouched, "nZcV"},
        {"teq of others", 0xE1310002, 7, 0x80000007, "nzcv", untouched, "Nzcv"},
    };
    CheckOperations(rows);
}

TEST(LogicTest, NothingElseChanges)
{
    SmallMachine guest;
    for (unsigned index = 0; index < StackRegister; index++) {
        guest.before.r[index] = {0x100 + index, 0};
    }
    guest.before.r[LinkRegister] = {0x777, 0};
    const Registers& after = guest.Run({0xE1865007});
    for (unsigned index = 0; index < StackRegister; index++) {
        EXPECT_EQ(after.Bits(index), index == 5 ? (0x106u | 0x107u) : 0x100u + index) << index;
    }
    EXPECT_EQ(after.Bits(StackRegister), SmallMachine::stackTop);
    EXPECT_EQ(after.Bits(LinkRegister), 0x777u);
}

} // namespace runner
