// The Start menu behind the flag in the top bar.
// profiles: pocketpc pocketpc-vga
#include "rig/Actor.h"
#include "rig/MenuTwin.h"
#include "tests/e2e/ShellSession.h"

#include <filesystem>

using namespace rig;

// What the handheld puts into the menu of a session, as Wine 8.0 has it.
static const std::vector<MenuLine> top = {{L"Quorvane"}, {L"Programs", false, true}};
static const std::vector<MenuLine> programs = {
    {L"File Manager"}, {L"Notepad"}, {L"WordPad"}, {L"Games", false, true}, {L"Tools", false, true}};
static constexpr size_t gamesLine = 3;
static constexpr wchar_t menuFolder[] = L"C:\\windows\\Start Menu";

class StartButtonTest : public ShellSession
{
  protected:
    const HWND bar = FindTopWindow({.className = L"Shell_TrayWnd"});
    const POINT flag = {Scaled(12), Scaled(13)};
    const POINT corner = {0, Scaled(26)};
    const RECT belowMenus = {0, Scaled(200), Scaled(100), Scaled(260)};
    const Actor actor;
    HWND front = nullptr;

    void SetUp() override
    {
        front = actor.Make({.title = L"In front", .place = belowMenus});
        ASSERT_TRUE(Raise(front));
    }

    static HWND MenuWindow(size_t count)
    {
        return WaitFor([=] {
            std::vector<HWND> menus;
            for (HWND window : TopWindows()) {
                if (IsWindowVisible(window) && ClassOf(window) == L"#32768") {
                    menus.push_back(window);
                }
            }
            return menus.size() == count ? menus.front() : nullptr;
        });
    }
    static void Open(POINT place, size_t count)
    {
        Tap(place);
        ASSERT_TRUE(MenuWindow(count)) << "menu " << count << " does not open";
    }
    bool IsClosed() const
    {
        return WaitFor([] { return !OpenMenu(); });
    }
    // A menu looks like one with these lines at its place, to which the stylus has not pointed.
    static bool LooksLike(const MenuTwin& twin)
    {
        ParkStylus();
        return WaitFor([&] { return Picture::OfScreen(twin.Area()) == twin.Look(); });
    }
};

TEST_F(StartButtonTest, ATapOpensTheMenuAndAnotherClosesIt)
{
    const MenuTwin twin(top, corner, 0);
    ASSERT_GT(twin.Look().Colours(), 1);
    for (int round = 0; round < 2; round++) {
        Open(flag, 1);
        EXPECT_TRUE(LooksLike(twin)) << round;
        Tap(flag);
        EXPECT_TRUE(IsClosed()) << round;
        EXPECT_TRUE(InFront(front)) << round;
    }
}

TEST_F(StartButtonTest, WhatIsInFrontStaysOnTheScreen)
{
    const HWND today = FindTopWindow({.className = L"DesktopExplorerWindow"});
    const auto shown = [this] { return Picture::OfScreen(belowMenus).Count(RGB(0, 128, 0)); };
    const int all = (belowMenus.right - belowMenus.left) * (belowMenus.bottom - belowMenus.top);
    for (HWND window : {bar, today}) { // windows of one program, the bar behind the home screen
        SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    ASSERT_TRUE(Raise(front));
    ASSERT_TRUE(WaitFor([&] { return shown() == all; }));
    Open(flag, 1);
    EXPECT_TRUE(LooksLike(MenuTwin(top, corner, 0)));
    EXPECT_EQ(shown(), all);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(IsClosed());
}

TEST_F(StartButtonTest, TheRestOfTheBarOpensNothing)
{
    Tap({Scaled(60), Scaled(13)});
    StylusDown(flag);
    StylusUp({Scaled(60), Scaled(13)});
    Send(bar, WM_NULL);
    EXPECT_FALSE(OpenMenu());
    Open(flag, 1);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(IsClosed());
}

TEST_F(StartButtonTest, TheFolderProgramsIsASubmenuAndSorted)
{
    const POINT folder = MenuTwin(top, corner, 0).Middle(1);
    Open(flag, 1);
    Open(folder, 2);
    ParkStylus();
    Picture::OfSettledScreen();
    const RECT area = ScreenRectOf(MenuWindow(2));
    PressKey(VK_ESCAPE, 2);
    ASSERT_TRUE(IsClosed());
    const MenuTwin twin(programs, {area.left, area.top}, 0);
    ASSERT_GT(twin.Look().Colours(), 1);
    Open(flag, 1);
    Open(folder, 2);
    EXPECT_TRUE(LooksLike(twin));
    PressKey(VK_ESCAPE, 2);
    EXPECT_TRUE(IsClosed());
}

TEST_F(StartButtonTest, AnEmptyMenuSaysSo)
{
    const std::wstring away = std::wstring(menuFolder) + L" away";
    const MenuTwin twin({{L"No programs", true}}, corner, 0);
    std::filesystem::rename(menuFolder, away);
    Tap(flag);
    EXPECT_TRUE(MenuWindow(1) && LooksLike(twin));
    std::filesystem::rename(away, menuFolder);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(IsClosed());
    EXPECT_TRUE(InFront(front));
}

TEST_F(StartButtonTest, KeysStartWineMineInItsFolder)
{
    Open(flag, 1);
    ParkStylus();
    PressKey(VK_DOWN, 2);
    PressKey(VK_RIGHT);
    ASSERT_TRUE(MenuWindow(2));
    PressKey(VK_DOWN, gamesLine); // the first line is marked already
    PressKey(VK_RIGHT);
    ASSERT_TRUE(MenuWindow(3));
    PressKey(VK_RETURN);
    const HWND window = WaitForTopWindow({.title = L"WineMine"});
    ASSERT_TRUE(window);
    EXPECT_TRUE(InFront(window));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(window); }));
}

TEST_F(StartButtonTest, QuorvaneThatRunsComesForward)
{
    const POINT line = MenuTwin(top, corner, 0).Middle(0);
    Launch();
    ASSERT_TRUE(main);
    ASSERT_TRUE(InFront(main));
    ASSERT_TRUE(Raise(front));
    Open(flag, 1);
    Tap(line);
    EXPECT_TRUE(InFront(main));
    EXPECT_TRUE(program->IsRunning());
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(StartButtonTest, AProgramInFrontThatHangsHoldsNothingUp)
{
    const Actor hung;
    const HWND window = hung.Make({.place = belowMenus, .closing = actor::Closing::Delay, .delay = 600000});
    ASSERT_TRUE(Raise(window));
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(WaitFor([=] { return SendMessageTimeoutW(window, WM_NULL, 0, 0, 0, 100, nullptr) == 0; }));
    Open(flag, 1);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(IsClosed());
    EXPECT_NE(0, SendMessageTimeoutW(bar, WM_NULL, 0, 0, 0, 5000, nullptr));
    EXPECT_TRUE(BringToFront(front));
}

TEST_F(StartButtonTest, AProgramThatGoesUnderTheMenuLeavesTheNextOneInFront)
{
    const Actor other;
    const HWND window = other.Make({.title = L"Going", .place = belowMenus});
    ASSERT_TRUE(Raise(window));
    Open(flag, 1);
    other.Vanish(window);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(window); }));
    EXPECT_TRUE(OpenMenu());
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(IsClosed());
    EXPECT_TRUE(InFront(front));
}
