// The status register as a program may read and write it.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

TEST(StatusTest, FlagsAreRead)
{
    SmallMachine guest;
    guest.before.flags = FlagsOf("NzCv");
    guest.Run({0xE10F0000});
    // Behind the flags is the mode of programs.
    EXPECT_EQ(guest.Bits(0), 0xA0000010u);
}

TEST(StatusTest, FlagsAreWritten)
{
    SmallMachine guest;
    guest.before.r[0] = {0x50000000, 0};
    guest.Run({0xE128F000});
    EXPECT_EQ(FlagText(guest.State().flags), "nZcV");
    guest.Run({0xE328F20A});
    EXPECT_EQ(FlagText(guest.State().flags), "NzCv");
}

TEST(StatusTest, UndefinedFlagsStaySo)
{
    SmallMachine guest;
    guest.before.flags.undefined = CarryFlag;
    guest.Run({0xE10F0000, 0xE1A01000, 0xE1510001, 0xE128F000});
    EXPECT_EQ(guest.State().flags.undefined, unsigned{CarryFlag});
}

} // namespace runner
