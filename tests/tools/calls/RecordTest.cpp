// Structures of the guest's, member by member.
#include "tools/runner/calls/Record.h"

#include "tests/tools/calls/SmallGuest.h"

namespace runner {

struct Example
{
    Word first;
    std::uint16_t half;
    std::uint16_t other;
    Word last;
};

TEST(RecordTest, OnlyTheMemberInUseHasToBeDefined)
{
    SmallGuest small;
    const Record<Example> record(small.Memory(), SmallGuest::data);
    record.Set(&Example::last, 7);
    EXPECT_EQ(record.Get(&Example::last), 7u);
    EXPECT_EQ(record.At(&Example::last), SmallGuest::data + 8);
    EXPECT_EQ(FindingOf([&] { record.Get(&Example::first); }).kind, FindingKind::Undefined);
    EXPECT_EQ(FindingOf([&] { record.GetAll(); }).kind, FindingKind::Undefined);
    record.SetAll({1, 2, 3, 4});
    EXPECT_EQ(record.Get(&Example::half), 2u);
    EXPECT_EQ(record.GetAll().last, 4u);
}

TEST(RecordTest, AMemberMayBeLookedAtUndefined)
{
    SmallGuest small;
    const Record<Example> record(small.Memory(), SmallGuest::data);
    record.Look(&Example::other);
    EXPECT_FALSE(small.Memory().IsDefined(SmallGuest::data, sizeof(Example)));
}

TEST(RecordTest, ItsPlaceIsChecked)
{
    SmallGuest small;
    const Record<Example> outside(small.Memory(), 0x00020000);
    EXPECT_EQ(FindingOf([&] { outside.Set(&Example::first, 1); }).kind, FindingKind::Unmapped);
    const Record<Example> crooked(small.Memory(), SmallGuest::data + 2);
    EXPECT_EQ(FindingOf([&] { crooked.Set(&Example::first, 1); }).kind, FindingKind::Unaligned);
    EXPECT_FALSE(Record<Example>(small.Memory(), 0));
}

} // namespace runner
