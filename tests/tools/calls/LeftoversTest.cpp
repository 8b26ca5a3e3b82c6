// What the guest leaves behind.
#include "tools/runner/calls/Leftovers.h"

#include "tests/tools/calls/SmallGuest.h"

namespace runner {

static constexpr Address caller = SmallGuest::code + 4;

TEST(LeftoversTest, NothingIsLeftAtFirst)
{
    EXPECT_EQ(Leftovers(SmallGuest().guest), "");
}

TEST(LeftoversTest, BlocksAndObjectsAreNamed)
{
    SmallGuest small;
    small.guest.machine.heap.Allocate(8, caller);
    small.guest.machine.heap.Allocate(4, caller);
    small.guest.cookies.Give(CookieKind::Search, 0x1000, caller);
    EXPECT_EQ(Leftovers(small.guest),
              "2 blocks of 12 bytes from 0x00010004, search for files from 0x00010004");
}

TEST(LeftoversTest, WhatIsGivenBackIsNot)
{
    SmallGuest small;
    const Word cookie = small.guest.cookies.Give(CookieKind::Com, 0x1000, caller);
    small.guest.cookies.Forget(CookieKind::Com, cookie);
    EXPECT_EQ(Leftovers(small.guest), "");
}

TEST(LeftoversTest, HandlesProcessesAndLibrariesMayBeKept)
{
    SmallGuest small;
    small.guest.handles.Give(0x10, caller);
    small.guest.cookies.Give(CookieKind::Process, 0x1000, caller);
    small.guest.cookies.Give(CookieKind::Module, 0x1000, caller);
    small.guest.cookies.Give(CookieKind::ImageList, 0x1000, caller);
    small.guest.cookies.Give(CookieKind::TreeItem, 0x1000, caller);
    EXPECT_EQ(Leftovers(small.guest), "");
}

} // namespace runner
