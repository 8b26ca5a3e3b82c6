// Values that nobody has written may be copied about. They are found where they decide something.
#include "tests/tools/machine/SmallMachine.h"

namespace runner {

static constexpr Address place = SmallMachine::data + 0x100;

static SmallMachine& WithUndefined(SmallMachine& guest)
{
    guest.machine.memory.MarkUndefined(place, 8);
    guest.before.r[1] = {place, 0};
    guest.before.r[8] = {place + 0x40, 0};
    return guest;
}

// The program begins with r0 holding a word that nobody has written, r1 its address, r8 another address.
static void ExpectFound(const std::vector<Word>& program, const std::string& use)
{
    SmallMachine guest;
    std::vector<Word> whole = {0xE5910000};
    whole.insert(whole.end(), program.begin(), program.end());
    const Finding finding = FindingOf([&] { WithUndefined(guest).Run(whole); });
    EXPECT_EQ(finding.kind, FindingKind::Undefined) << finding.Line(nullptr);
    EXPECT_EQ(finding.text, use);
    EXPECT_EQ(finding.place, SmallMachine::code + 4 * static_cast<Word>(program.size()));
}

static Word UndefinedAfter(const std::vector<Word>& program, unsigned index)
{
    SmallMachine guest;
    std::vector<Word> whole = {0xE5910000};
    whole.insert(whole.end(), program.begin(), program.end());
    return WithUndefined(guest).Run(whole).r[index].undefined;
}

TEST(UndefinedValueTest, CopiesAreAllowed)
{
    SmallMachine guest;
    WithUndefined(guest).Run({0xE891000C, 0xE888000C, 0xE1A04002, 0xE5884008, 0xE5C8300C, 0xE5D8500D});
    const GuestMemory& memory = guest.machine.memory;
    EXPECT_FALSE(memory.IsDefined(place + 0x40, 4));
    EXPECT_FALSE(memory.IsDefined(place + 0x44, 4));
    EXPECT_FALSE(memory.IsDefined(place + 0x48, 4));
    EXPECT_FALSE(memory.IsDefined(place + 0x4C, 1));
    EXPECT_TRUE(memory.IsDefined(place + 0x4D, 3));
    EXPECT_TRUE(guest.State().r[5].IsDefined());
}

TEST(UndefinedValueTest, DecidesAsAnAddress)
{
    ExpectFound({0xE5902000}, "it is used as an address");
    ExpectFound({0xE5802004}, "it is used as an address");
    ExpectFound({0xE7982000}, "it is used as an address");
    ExpectFound({0xE1C020B0}, "it is used as an address");
    ExpectFound({0xE890000C}, "it is used as an address");
    ExpectFound({0xE1002093}, "it is used as an address");
}

TEST(UndefinedValueTest, DecidesTheWay)
{
    ExpectFound({0xE3500000, 0x03A02001}, "a condition depends on it");
    ExpectFound({0xE3100001, 0x1A000000}, "a condition depends on it");
    ExpectFound({0xE2502001, 0x43A02001}, "a condition depends on it");
    ExpectFound({0xE1B020A0, 0x23A02001}, "a condition depends on it");
    ExpectFound({0xE12FFF10}, "it is jumped to");
    ExpectFound({0xE1A0F000}, "it is jumped to");
    ExpectFound({0xE1A0D000}, "it becomes the stack pointer");
}

TEST(UndefinedValueTest, FlagsAreDefinedOneByOne)
{
    ExpectFound({0xE1B02000, 0x43A03001}, "a condition depends on it");
    SmallMachine guest;
    guest.before.flags.undefined = AllFlags;
    // Logic leaves the overflow as it is, and the carry where nothing is shifted.
    WithUndefined(guest).Run({0xE5910000, 0xE210207F, 0x43833001, 0xE3110000, 0x03A04001});
    EXPECT_EQ(guest.State().flags.undefined, CarryFlag | OverflowFlag);
    EXPECT_EQ(guest.Bits(4), 1u);
    guest.Run({0xE1510001});
    EXPECT_EQ(guest.State().flags.undefined, 0u);
}

TEST(UndefinedValueTest, CarryPassesItOn)
{
    EXPECT_EQ(UndefinedAfter({0xE0902000, 0xE0A83008}, 3), allBits);
    EXPECT_EQ(UndefinedAfter({0xE0982008, 0xE0A83008}, 3), 0u);
    EXPECT_EQ(UndefinedAfter({0xE1B020A0, 0xE1A03068}, 3), 0x80000000u);
}

TEST(UndefinedValueTest, LogicIsExactToTheBit)
{
    EXPECT_EQ(UndefinedAfter({0xE3A020FF, 0xE0022000}, 2), 0xFFu);
    EXPECT_EQ(UndefinedAfter({0xE20020FF}, 2), 0xFFu);
    EXPECT_EQ(UndefinedAfter({0xE3C020FF}, 2), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE38020F0}, 2), 0xFFFFFF0Fu);
    EXPECT_EQ(UndefinedAfter({0xE22020FF}, 2), allBits);
    EXPECT_EQ(UndefinedAfter({0xE1E02000}, 2), allBits);
    EXPECT_EQ(UndefinedAfter({0xE1A02400}, 2), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE1A02420}, 2), 0x00FFFFFFu);
    EXPECT_EQ(UndefinedAfter({0xE20024FF, 0xE1A02442}, 2), 0xFFFF0000u);
    EXPECT_EQ(UndefinedAfter({0xE20020FF, 0xE1A02262}, 2), 0xF000000Fu);
    EXPECT_EQ(UndefinedAfter({0xE3A02001, 0xE1A02012}, 2), allBits);
    // Only the lowest byte of a distance counts.
    EXPECT_EQ(UndefinedAfter({0xE20030FF, 0xE3A02001, 0xE1A02312}, 2), allBits);
    EXPECT_EQ(UndefinedAfter({0xE3C030FF, 0xE3A02001, 0xE1A02312}, 2), 0u);
}

// A sum is known below its lowest unknown bit.
TEST(UndefinedValueTest, SumsAndProductsFromTheLowestBitOn)
{
    EXPECT_EQ(UndefinedAfter({0xE2002C01, 0xE2822001}, 2), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE2002C01, 0xE0482002}, 2), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE2002C01, 0xE0030892}, 3), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE0832890}, 3), allBits);
    EXPECT_EQ(UndefinedAfter({0xE3A02000, 0xE3A03000, 0xE0A32898}, 3), 0u);
    EXPECT_EQ(UndefinedAfter({0xE2002C01, 0xE0843892}, 3), 0xFFFFFF00u);
    EXPECT_EQ(UndefinedAfter({0xE2002C01, 0xE0843892}, 4), allBits);
}

TEST(UndefinedValueTest, BytesOfAWord)
{
    SmallMachine guest;
    guest.machine.memory.MarkUndefined(place + 2, 1);
    guest.before.r[1] = {place, 0};
    const Registers& after = guest.Run({0xE5910000, 0xE5D12002, 0xE1D130D2, 0xE5D14003});
    EXPECT_EQ(after.r[0].undefined, 0x00FF0000u);
    EXPECT_EQ(after.r[2].undefined, 0x000000FFu);
    EXPECT_EQ(after.r[3].undefined, allBits);
    EXPECT_EQ(after.r[4].undefined, 0u);
}

// A field of bits is put into a word that nobody has written, and is read again.
TEST(UndefinedValueTest, FieldsOfBits)
{
    SmallMachine guest;
    WithUndefined(guest).Run(
        {0xE5D10000, 0xE3C0000F, 0xE3800005, 0xE5C10000, 0xE5D12000, 0xE3120004, 0x13A03001});
    EXPECT_EQ(guest.Bits(3), 1u);
    ExpectFinding(FindingKind::Undefined, [&] { guest.Run({0xE5D12000, 0xE3120010, 0x13A03001}); });
}

// One bit that is known to be set tells that the whole is not zero.
TEST(UndefinedValueTest, ZeroIsDecidedByAnyKnownBit)
{
    SmallMachine guest;
    WithUndefined(guest).Run({0xE5910000, 0xE3902001, 0x13A03001});
    EXPECT_EQ(guest.Bits(3), 1u);
}

TEST(UndefinedValueTest, WritingDefines)
{
    SmallMachine guest;
    WithUndefined(guest).Run({0xE3A00005, 0xE5810000, 0xE5912000, 0xE3520005, 0x03A03001});
    EXPECT_EQ(guest.Bits(3), 1u);
}

} // namespace runner
