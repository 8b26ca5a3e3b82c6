// Plain functions: what their parameters are on the host, and what counts as written afterwards.
#include "tests/tools/calls/SmallGuest.h"

namespace runner {

// What the host's function was called with, and what it returns and writes.
static std::uint64_t seen[4];
static std::uint64_t answer;
static std::u16string written;

static std::uint64_t HostFunction(std::uint64_t a, std::uint64_t b, std::uint64_t c, std::uint64_t d,
                                  std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                                  std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t)
{
    seen[0] = a;
    seen[1] = b;
    seen[2] = c;
    seen[3] = d;
    if (!written.empty()) {
        std::memcpy(reinterpret_cast<void*>(a), written.c_str(), (written.size() + 1) * sizeof(char16_t));
    }
    return answer;
}

class PlainCallTest : public testing::Test
{
  protected:
    SmallGuest small;

    PlainCallTest()
    {
        answer = 1;
        written.clear();
    }
    Word Call(const char* form, Word a = 0, Word b = 0, Word c = 0, Word d = 0)
    {
        const Address trap = small.guest.AddTrap("Function", {"Function", form}, HostFunction);
        return small.guest.CallBack(small.PutCallOf(trap), a, b, c, d);
    }
};

TEST_F(PlainCallTest, WordsStayAndHandlesKeepTheirSign)
{
    Call("u uhi", 0xFFFFFFF0, 0xFFFFFFF0, 0xFFFFFFFF);
    EXPECT_EQ(seen[0], 0xFFFFFFF0u);
    EXPECT_EQ(seen[1], 0xFFFFFFFFFFFFFFF0u);
    EXPECT_EQ(seen[2], ~std::uint64_t{0});
}

TEST_F(PlainCallTest, TextsAreCheckedUpToTheirEnd)
{
    const Address text = small.PutText(u"ab");
    Call("u tt", text, 0);
    EXPECT_EQ(seen[0], reinterpret_cast<std::uintptr_t>(small.Memory().Host(text)));
    EXPECT_EQ(seen[1], 0u);
    small.Memory().MarkUndefined(text + 4, 2);
    EXPECT_EQ(FindingOf([&] { Call("u t", text); }).kind, FindingKind::Undefined);
    EXPECT_EQ(FindingOf([&] { Call("u t", 0x00020000); }).kind, FindingKind::Unmapped);
    EXPECT_EQ(FindingOf([&] { Call("u t", text + 1); }).kind, FindingKind::Unaligned);
}

TEST_F(PlainCallTest, ATextMayBeTheNumberOfAResource)
{
    Call("u s", 0x1234);
    EXPECT_EQ(seen[0], 0x1234u);
    EXPECT_EQ(FindingOf([&] { Call("u s", SmallGuest::data); }).kind, FindingKind::Undefined);
}

TEST_F(PlainCallTest, OfARoomForTextOnlyTheTextIsWritten)
{
    written = u"abc";
    Call("u Tu", SmallGuest::data, 100);
    EXPECT_EQ(small.Memory().Text(SmallGuest::data), u"abc");
    EXPECT_FALSE(small.Memory().IsDefined(SmallGuest::data + 8, 2));
    EXPECT_EQ(FindingOf([&] { Call("u Tu", SmallGuest::data, 0x801); }).kind, FindingKind::Unmapped);
}

TEST_F(PlainCallTest, AnUntouchedRoomStaysUndefined)
{
    Call("u Tu", SmallGuest::data, 4);
    EXPECT_FALSE(small.Memory().IsDefined(SmallGuest::data, 2));
}

TEST_F(PlainCallTest, AStructureIsWrittenOnlyBySuccess)
{
    answer = 0;
    Call("u q8", SmallGuest::data);
    EXPECT_FALSE(small.Memory().IsDefined(SmallGuest::data, 8));
    Call("e q8", SmallGuest::data);
    EXPECT_TRUE(small.Memory().IsDefined(SmallGuest::data, 8));
    answer = 5;
    Call("e q8", SmallGuest::data + 0x10);
    EXPECT_FALSE(small.Memory().IsDefined(SmallGuest::data + 0x10, 8));
    Call("u q8", SmallGuest::data + 0x10);
    EXPECT_TRUE(small.Memory().IsDefined(SmallGuest::data + 0x10, 8));
    answer = 0;
    Call("d q8", SmallGuest::data + 0x20);
    EXPECT_TRUE(small.Memory().IsDefined(SmallGuest::data + 0x20, 8));
}

TEST_F(PlainCallTest, AStructureThatIsReadHasToBeDefined)
{
    EXPECT_EQ(FindingOf([&] { Call("u p8", SmallGuest::data); }).kind, FindingKind::Undefined);
    EXPECT_EQ(FindingOf([&] { Call("u x8", SmallGuest::data); }).kind, FindingKind::Undefined);
    small.Memory().MarkDefined(SmallGuest::data, 8);
    Call("u p8", SmallGuest::data);
    EXPECT_EQ(seen[0], reinterpret_cast<std::uintptr_t>(small.Memory().Host(SmallGuest::data)));
}

TEST_F(PlainCallTest, AllOfTheBytesHaveToBeDefined)
{
    small.Memory().MarkDefined(SmallGuest::data + 1, 7);
    Call("u bu", SmallGuest::data + 1, 7);
    EXPECT_EQ(seen[0], reinterpret_cast<std::uintptr_t>(small.Memory().Host(SmallGuest::data + 1)));
    EXPECT_EQ(FindingOf([&] { Call("u bu", SmallGuest::data + 1, 8); }).kind, FindingKind::Undefined);
}

TEST_F(PlainCallTest, CookiesStandForObjects)
{
    answer = 0x0000123400005678;
    const Word cookie = Call("oS u");
    Call("u oS", cookie);
    EXPECT_EQ(seen[0], 0x0000123400005678u);
    EXPECT_EQ(FindingOf([&] { Call("u oK", cookie); }).kind, FindingKind::Misuse);
    small.guest.cookies.Forget(CookieKind::Snapshot, cookie);
    EXPECT_EQ(FindingOf([&] { Call("u oS", cookie); }).kind, FindingKind::Misuse);
}

TEST_F(PlainCallTest, SystemColoursNeedTheDevicesMark)
{
    Call("u cr", 0x40000005, 0x40000006);
    EXPECT_EQ(seen[0], 5u);
    EXPECT_EQ(seen[1], 6u);
    Call("u r", 0xFFFF1234);
    EXPECT_EQ(seen[0], 0xFFFFFFFFFFFF1234u);
    EXPECT_EQ(FindingOf([&] { Call("u c", 5); }).kind, FindingKind::Misuse);
    EXPECT_EQ(FindingOf([&] { Call("u r", 6); }).kind, FindingKind::Misuse);
    EXPECT_EQ(FindingOf([&] { Call("u r", 0x100); }).kind, FindingKind::Misuse);
}

TEST_F(PlainCallTest, AParameterThatNobodyWroteIsFound)
{
    const Address trap = small.guest.AddTrap("Function", {"Function", "u uu"}, HostFunction);
    // The second parameter comes from the page that nobody has written: push {lr}; ldr r1, [r0]; ldr ip, ...
    const Address function =
        small.Put({0xE52DE004, 0xE5901000, 0xE59FC008, 0xE1A0E00F, 0xE12FFF1C, 0xE49DF004, trap});
    EXPECT_EQ(FindingOf([&] { small.guest.CallBack(function, SmallGuest::data); }).kind,
              FindingKind::Undefined);
}

TEST_F(PlainCallTest, AResultCanPointIntoWhatWasHandedOver)
{
    answer = reinterpret_cast<std::uintptr_t>(small.Memory().Host(SmallGuest::data + 6));
    EXPECT_EQ(Call("t u", 0), SmallGuest::data + 6);
    answer = 0;
    EXPECT_EQ(Call("t u", 0), 0u);
}

} // namespace runner
