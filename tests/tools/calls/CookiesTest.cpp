// Words in the place of 64-bit objects.
#include "tools/runner/calls/Cookies.h"

#include <gtest/gtest.h>

namespace runner {

static constexpr Cookies::Host object = 0x0000123456789AB0;

TEST(CookiesTest, AnObjectHasOneCookieThatLeadsBackToIt)
{
    Cookies cookies;
    const Word cookie = cookies.Give(CookieKind::TreeItem, object);
    EXPECT_EQ(cookies.Give(CookieKind::TreeItem, object), cookie);
    EXPECT_NE(cookies.Give(CookieKind::TreeItem, object + 8), cookie);
    EXPECT_EQ(cookies.Take(CookieKind::TreeItem, cookie).state, Cookies::State::Known);
    EXPECT_EQ(cookies.Take(CookieKind::TreeItem, cookie).host, object);
}

TEST(CookiesTest, ConstantsStandForThemselves)
{
    Cookies cookies;
    EXPECT_EQ(cookies.Give(CookieKind::Search, ~std::uint64_t{0}), 0xFFFFFFFF);
    EXPECT_EQ(cookies.Give(CookieKind::Com, 0), 0u);
    EXPECT_EQ(cookies.Give(CookieKind::TreeItem, 0xFFFFFFFFFFFF0000), 0xFFFF0000);
    EXPECT_EQ(cookies.Take(CookieKind::TreeItem, 0xFFFF0000).host, 0xFFFFFFFFFFFF0000);
    EXPECT_EQ(cookies.Take(CookieKind::Key, 0x80000001).host, 0xFFFFFFFF80000001);
    EXPECT_EQ(cookies.Take(CookieKind::Key, 0x80000001).state, Cookies::State::Known);
    EXPECT_EQ(cookies.Live(), 0u);
}

// Its low word looks like a constant, but it is none.
TEST(CookiesTest, ALargeObjectIsNoConstant)
{
    Cookies cookies;
    const Word cookie = cookies.Give(CookieKind::Com, 0x1FFFFFFFF);
    EXPECT_NE(cookie, 0xFFFFFFFF);
    EXPECT_EQ(cookies.Take(CookieKind::Com, cookie).host, 0x1FFFFFFFFu);
}

TEST(CookiesTest, OtherKindsAndStrangersAreTold)
{
    Cookies cookies;
    const Word cookie = cookies.Give(CookieKind::Key, object);
    EXPECT_EQ(cookies.Take(CookieKind::Search, cookie).state, Cookies::State::OtherKind);
    EXPECT_EQ(cookies.Take(CookieKind::Key, cookie + 4).state, Cookies::State::Unknown);
    EXPECT_EQ(cookies.Take(CookieKind::Key, 0x12345678).state, Cookies::State::Unknown);
}

TEST(CookiesTest, AForgottenOneIsToldAndNeverGivenAgain)
{
    Cookies cookies;
    const Word cookie = cookies.Give(CookieKind::Key, object);
    cookies.Forget(CookieKind::Search, cookie);
    EXPECT_EQ(cookies.Take(CookieKind::Key, cookie).state, Cookies::State::Known);
    cookies.Forget(CookieKind::Key, cookie);
    EXPECT_EQ(cookies.Take(CookieKind::Key, cookie).state, Cookies::State::Forgotten);
    EXPECT_EQ(cookies.Live(), 0u);
    const Word next = cookies.Give(CookieKind::Key, object);
    EXPECT_NE(next, cookie);
    EXPECT_EQ(cookies.Take(CookieKind::Key, next).state, Cookies::State::Known);
    EXPECT_EQ(cookies.Take(CookieKind::Key, cookie).state, Cookies::State::Forgotten);
    // The object's end is not the end of the one that has its place.
    cookies.Forget(CookieKind::Key, cookie);
    EXPECT_EQ(cookies.Give(CookieKind::Key, object), next);
    ASSERT_EQ(cookies.LiveEntries().size(), 1u);
    EXPECT_EQ(cookies.LiveEntries().front().host, object);
}

TEST(CookiesTest, TheLiveOnesAreCountedByTheirKinds)
{
    Cookies cookies;
    const Word file = cookies.Give(CookieKind::File, object);
    cookies.Give(CookieKind::File, object + 8);
    cookies.Give(CookieKind::Process, object);
    cookies.Forget(CookieKind::File, file);
    const std::map<CookieKind, std::size_t> expected = {{CookieKind::File, 1}, {CookieKind::Process, 1}};
    EXPECT_EQ(cookies.LiveByKind(), expected);
}

} // namespace runner
