// Instructions and imports by part of the program.
#include "tools/runner/machine/Counts.h"

#include "tests/tools/machine/SmallMachine.h"
#include "tools/runner/machine/Symbols.h"

namespace runner {

TEST(CountsTest, PartsCountWhatTheyCost)
{
    SmallMachine guest;
    Counts counts(guest.machine.processor);
    {
        const Counts::Section outer(counts, "list 0x000f");
        guest.Run({0xE3A00001, 0xE3A00002});
        {
            const Counts::Section inner(counts, "draw");
            guest.Run({0xE3A00001});
            counts.AddImport("FillRect");
        }
        counts.AddImport("EndPaint");
    }
    {
        const Counts::Section again(counts, "list 0x000f");
        guest.Run({});
    }
    ASSERT_EQ(counts.Sections().size(), 2u);
    const Counts::Sum& outer = counts.Sections().at("list 0x000f");
    EXPECT_EQ(outer.times, 2u);
    EXPECT_EQ(outer.instructions, 6u);
    EXPECT_EQ(outer.most, 5u);
    EXPECT_EQ(outer.last, 1u);
    EXPECT_EQ(outer.imports, 2u);
    const Counts::Sum& inner = counts.Sections().at("draw");
    EXPECT_EQ(inner.times, 1u);
    EXPECT_EQ(inner.instructions, 2u);
    EXPECT_EQ(inner.imports, 1u);
    EXPECT_EQ(counts.ImportCalls(), 2u);
    EXPECT_EQ(counts.Imports().at("EndPaint"), 1u);
}

TEST(CountsTest, ProfileTellsEachInstruction)
{
    SmallMachine guest;
    guest.machine.processor.Profile(SmallMachine::code + 4, 12);
    guest.Run({0xE3A00003, 0xE2500001, 0x1AFFFFFD, 0xE3A01001, 0xE3A02001});
    const std::vector<std::uint64_t> expected = {3, 3, 1};
    EXPECT_EQ(guest.machine.processor.ProfileCounts(), expected);
    EXPECT_EQ(guest.machine.processor.Count(), 10u);
    const Counts counts(guest.machine.processor);
    const auto functions = counts.Functions(Symbols());
    ASSERT_EQ(functions.size(), 1u);
    EXPECT_EQ(functions[0].second, 7u);

    const std::vector<std::uint64_t> before = guest.machine.processor.ProfileCounts();
    EXPECT_TRUE(counts.Functions(Symbols(), before).empty());
    guest.Run({0xE3A00001, 0xE2500001, 0x1AFFFFFD, 0xE3A01001, 0xE3A02001});
    EXPECT_EQ(counts.Functions(Symbols(), before)[0].second, 3u) << "without what was before";
}

} // namespace runner
