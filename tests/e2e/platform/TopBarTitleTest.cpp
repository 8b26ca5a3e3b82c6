// The title in the top bar.
// device's executable: never
#include "rig/Actor.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class TopBarTitleTest : public testing::Test
{
  protected:
    const Actor actor;
    const HWND bar = FindTopWindow({.className = L"Shell_TrayWnd"});

    bool Shows(const std::wstring& title) const
    {
        return WaitFor([&] { return TextOf(bar) == title; });
    }
};

TEST_F(TopBarTitleTest, ItIsTheFrontWindows)
{
    const HWND window = actor.Make({.title = L"A program"});
    ASSERT_TRUE(BringToFront(window));
    EXPECT_TRUE(Shows(L"A program"));
    const HWND other = actor.Make({.title = L"Another one"});
    ASSERT_TRUE(BringToFront(other));
    EXPECT_TRUE(Shows(L"Another one"));
}

TEST_F(TopBarTitleTest, ADialogWithoutATitleShowsItsOwners)
{
    const HWND owner = actor.Make({.title = L"Its owner"});
    const HWND dialog = actor.Make({.title = L"", .owner = owner});
    const HWND inner = actor.Make({.title = L"", .owner = dialog});
    const HWND other = actor.Make({.title = L"Other"});
    for (HWND untitled : {dialog, inner}) {
        ASSERT_TRUE(BringToFront(other));
        ASSERT_TRUE(Shows(L"Other"));
        ASSERT_TRUE(BringToFront(untitled));
        EXPECT_TRUE(Shows(L"Its owner")) << testing::PrintToString(TextOf(bar));
    }
}

TEST_F(TopBarTitleTest, WithoutAnyTitleItSaysStart)
{
    const HWND window = actor.Make({.title = L"A program"});
    const HWND untitled = actor.Make({.title = L""});
    ASSERT_TRUE(BringToFront(window));
    ASSERT_TRUE(Shows(L"A program"));
    ASSERT_TRUE(BringToFront(untitled));
    EXPECT_TRUE(Shows(L"Start"));
}
