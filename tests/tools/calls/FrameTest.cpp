// Data on the guest's stack for the length of a call.
#include "tools/runner/calls/Frame.h"

#include "tests/tools/calls/SmallGuest.h"

namespace runner {

struct Pair
{
    Word first;
    Word second;
};

TEST(FrameTest, DataLieBelowTheStackPointerUntilTheFrameEnds)
{
    SmallGuest small;
    const Word before = small.guest.machine.processor.Register(StackRegister);
    Address place = 0;
    {
        Frame frame(small.guest);
        place = frame.Push(Pair{1, 2});
        EXPECT_LE(place + sizeof(Pair), before);
        EXPECT_EQ(small.guest.machine.processor.Register(StackRegister), place);
        const Address text = frame.PushText(u"ab");
        EXPECT_LT(text, place);
        EXPECT_EQ(small.Memory().Text(text), u"ab");
        EXPECT_EQ(small.Memory().Read<Word>(place + 4), 2u);
        EXPECT_EQ(frame.PushText(nullptr), 0u);
    }
    EXPECT_EQ(small.guest.machine.processor.Register(StackRegister), before);
    EXPECT_EQ(FindingOf([&] { small.Memory().Read<Word>(place); }).kind, FindingKind::BelowStack);
    EXPECT_FALSE(small.Memory().IsDefined(place, sizeof(Pair)));
}

TEST(FrameTest, ReservedRoomIsUndefined)
{
    SmallGuest small;
    Frame frame(small.guest);
    const Address room = frame.Reserve(64);
    EXPECT_EQ(FindingOf([&] { small.Memory().Read<Word>(room + 8); }).kind, FindingKind::Undefined);
}

} // namespace runner
