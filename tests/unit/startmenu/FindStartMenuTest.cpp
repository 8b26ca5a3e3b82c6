// Asking the shell where the Start menu is: in which order, and what is given back when an answer fails.
#include "startmenu/StartMenuFolder.h"
#include "tests/support/ScriptedStartMenu.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::wstring>;

class FindStartMenuTest : public testing::Test
{
  protected:
    ScriptedStartMenu menu;

    void ExpectNoFolder(const Calls& calls)
    {
        CStr path(L"before");
        EXPECT_FALSE(StartMenuFolder(nullptr, path));
        EXPECT_STREQ(path, L"before");
        EXPECT_EQ(menu.calls, calls);
        EXPECT_EQ(menu.items, 0);
        EXPECT_EQ(menu.allocators, 0);
    }

    std::wstring Told(const std::wstring& place)
    {
        menu.place = place;
        CStr path(L"before");
        EXPECT_TRUE(StartMenuFolder(nullptr, path));
        return path.Buffer();
    }
};

TEST_F(FindStartMenuTest, TheShellIsAskedInOrderAndGetsBackWhatItGave)
{
    const HWND owner = reinterpret_cast<HWND>(0x4321);
    CStr path;
    EXPECT_TRUE(StartMenuFolder(owner, path));
    EXPECT_STREQ(path, L"\\Menu\\");
    EXPECT_EQ(menu.askedOwner, owner);
    EXPECT_EQ(menu.calls, (Calls{L"allocator", L"location 11", L"path", L"free", L"release"}));
    EXPECT_EQ(menu.items, 0);
    EXPECT_EQ(menu.allocators, 0);
}

TEST_F(FindStartMenuTest, WithoutTheAllocatorNothingElseIsAsked)
{
    menu.allocatorAnswer = E_OUTOFMEMORY;
    ExpectNoFolder({L"allocator"});
}

TEST_F(FindStartMenuTest, WithoutALocationTheAllocatorIsReleased)
{
    menu.locationAnswer = E_FAIL;
    ExpectNoFolder({L"allocator", L"location 11", L"release"});
}

TEST_F(FindStartMenuTest, WithoutAPathTheListIsFreedAllTheSame)
{
    menu.givesPath = false;
    ExpectNoFolder({L"allocator", L"location 11", L"path", L"free", L"release"});
}

TEST_F(FindStartMenuTest, NoListIsNotFreed)
{
    menu.givesItem = false;
    menu.givesPath = false;
    ExpectNoFolder({L"allocator", L"location 11", L"path of nothing", L"release"});
    menu.calls.clear();
    menu.givesPath = true; // an empty list may stand for the shell's own root
    EXPECT_EQ(Told(L"\\Menu"), L"\\Menu\\");
    EXPECT_EQ(menu.calls, (Calls{L"allocator", L"location 11", L"path of nothing", L"release"}));
}

TEST_F(FindStartMenuTest, OtherSuccessesAreSuccessesToo)
{
    menu.allocatorAnswer = S_FALSE;
    menu.locationAnswer = S_FALSE;
    EXPECT_EQ(Told(L"\\Menu"), L"\\Menu\\");
}

TEST_F(FindStartMenuTest, OneBackslashStandsAtTheEnd)
{
    EXPECT_EQ(Told(L"\\Menu\\"), L"\\Menu\\");
    EXPECT_EQ(Told(L"\\"), L"\\");
    EXPECT_EQ(Told(L"\\Меню Пуск"), L"\\Меню Пуск\\");
    EXPECT_EQ(Told(L"\\Menu/"), L"\\Menu/\\");
}

TEST_F(FindStartMenuTest, APathOfTheWholeRoomIsTold)
{
    const std::wstring longest = L"\\" + std::wstring(258, L'm');
    EXPECT_EQ(Told(longest), longest + L"\\");
    EXPECT_EQ(Told(longest + L"mmm"), longest + L"\\") << "it has no end";
}
