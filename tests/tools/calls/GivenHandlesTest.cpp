// Handles that the guest has to give back.
#include "tests/tools/calls/SmallGuest.h"

namespace runner {

static std::uint64_t HostFunction(std::uint64_t a, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                  std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                  std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t)
{
    return a;
}

class GivenHandlesTest : public testing::Test
{
  protected:
    SmallGuest small;

    // A function that returns its first parameter.
    Word Call(const char* form, Word a)
    {
        const Address trap = small.guest.AddTrap("Function", {"Function", form}, HostFunction);
        return small.guest.CallBack(small.PutCallOf(trap), a);
    }
};

TEST_F(GivenHandlesTest, OneIsGivenBackOnce)
{
    EXPECT_EQ(Call("g u", 0xFFFF0010), 0xFFFF0010u);
    EXPECT_EQ(small.guest.handles.Left().size(), 1u);
    EXPECT_EQ(Call("u g", 0xFFFF0010), 0xFFFF0010u);
    EXPECT_TRUE(small.guest.handles.Left().empty());
    EXPECT_EQ(FindingOf([&] { Call("u g", 0xFFFF0010); }).kind, FindingKind::Misuse);
}

TEST_F(GivenHandlesTest, AnotherIsFound)
{
    Call("g u", 0x10);
    EXPECT_EQ(FindingOf([&] { Call("u g", 0x20); }).address, 0x20u);
}

// A failure gives null, which may be given back.
TEST_F(GivenHandlesTest, NullIsNone)
{
    Call("g u", 0);
    EXPECT_TRUE(small.guest.handles.Left().empty());
    EXPECT_EQ(Call("u g", 0), 0u);
}

TEST_F(GivenHandlesTest, OneThatIsGivenTwiceIsGivenBackTwice)
{
    Call("g u", 0x10);
    Call("g u", 0x10);
    Call("u g", 0x10);
    EXPECT_EQ(small.guest.handles.Left().at(0x10).times, 1u);
    Call("u g", 0x10);
    EXPECT_TRUE(small.guest.handles.Left().empty());
}

} // namespace runner
