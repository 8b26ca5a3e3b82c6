// The two soft keys, by the stylus and by their keys F1 and F2.
#include "rig/MenuTwin.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ShellSoftKeysTest : public ShellSession
{
  protected:
    void ExpectHidden() const
    {
        EXPECT_TRUE(WaitFor([&] { return GetForegroundWindow() != main && !BarOf(main); }))
            << "the program is still in front";
        EXPECT_TRUE(program->IsRunning());
    }

    void ExpectMenu(bool open) const
    {
        EXPECT_TRUE(WaitFor([=] { return (OpenMenu() != nullptr) == open; }))
            << (open ? "no menu opens" : "the menu stays open");
    }
};

TEST_F(ShellSoftKeysTest, EveryPageHasABarOfItsOwnAtTheSamePlace)
{
    const RECT first = ScreenRectOf(BarOf(main));
    for (int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        const HWND bar = WaitFor([&] { return BarOf(main); });
        ASSERT_TRUE(bar) << page;
        const RECT rect = ScreenRectOf(bar);
        EXPECT_TRUE(EqualRect(&first, &rect)) << page;
        int bars = 0;
        for (HWND window : TopWindows()) {
            bars += ClassOf(window) == L"menu_worker" && ProcessOf(window) == program->Process() ? 1 : 0;
        }
        EXPECT_EQ(1, bars) << "the bar of the page before is left over on page " << page;
        ASSERT_TRUE(PressMenuKey()) << page;
        MenuKeys(VK_ESCAPE);
        ExpectMenu(false);
        PressKey(VK_RIGHT);
    }
}

TEST_F(ShellSoftKeysTest, ATapOnHideHides)
{
    Tap(SoftKeyPoint(BarOf(main), 0));
    ExpectHidden();
}

TEST_F(ShellSoftKeysTest, ATapOnMenuOpensTheMenuAndATapOnThePageClosesIt)
{
    Tap(SoftKeyPoint(BarOf(main), 1));
    ExpectMenu(true);
    Tap(PointIn(program->Page(TasksPage), 10, StripHeight(TasksPage) + 10));
    ExpectMenu(false);
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellSoftKeysTest, AnotherTapOnMenuClosesTheMenu)
{
    Tap(SoftKeyPoint(BarOf(main), 1));
    ExpectMenu(true);
    Tap(SoftKeyPoint(BarOf(main), 1));
    ExpectMenu(false);
    // A menu that had opened again would take the keys.
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellSoftKeysTest, ATapOnTheBarKeepsTheFocusOfThePage)
{
    Tap(SoftKeyPoint(BarOf(main), 1));
    ExpectMenu(true);
    EXPECT_EQ(main, GetForegroundWindow());
    PressKey(VK_ESCAPE);
    ExpectMenu(false);
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellSoftKeysTest, AStylusThatLeavesTheKeyDoesNotPressIt)
{
    const HWND bar = BarOf(main);
    StylusDown(SoftKeyPoint(bar, 0));
    MoveTo(SoftKeyPoint(bar, 1));
    StylusUp(SoftKeyPoint(bar, 1));
    StylusDown(SoftKeyPoint(bar, 1));
    MoveTo(PointIn(program->Page(TasksPage), 10, 100));
    StylusUp(PointIn(program->Page(TasksPage), 10, 100));
    ExpectKeysReachThePage(TasksPage);
    EXPECT_FALSE(OpenMenu());
    EXPECT_TRUE(InFront(main)) << testing::PrintToString(ClassOf(GetForegroundWindow())) << " is in front";
}

TEST_F(ShellSoftKeysTest, F1Hides)
{
    PressKey(VK_F1);
    ExpectHidden();
}

TEST_F(ShellSoftKeysTest, F2OpensTheMenuAndF2ClosesIt)
{
    PressKey(VK_F2);
    ExpectMenu(true);
    PressKey(VK_F2);
    ExpectMenu(false);
    ExpectKeysReachThePage(TasksPage);
    EXPECT_FALSE(OpenMenu());
}

TEST_F(ShellSoftKeysTest, F1WhileTheMenuIsOpenClosesItAndHides)
{
    PressKey(VK_F2);
    ExpectMenu(true);
    PressKey(VK_F1);
    ExpectMenu(false);
    ExpectHidden();
}

TEST_F(ShellSoftKeysTest, TheKeysWorkInTheSubmenuToo)
{
    ASSERT_TRUE(PressMenuKey());
    ParkStylus();
    MenuKeys(VK_UP, 2);
    MenuKeys(VK_RIGHT);
    PressKey(VK_F2);
    ExpectMenu(false);
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellSoftKeysTest, TheKeysWorkWhileThePopUpOfTheStripIsOpen)
{
    Tap(StripPoint(TasksPage, ScreenRectOf(main).right / 2));
    ExpectMenu(true);
    PressKey(VK_F1);
    ExpectMenu(false);
    ExpectHidden();
}

TEST_F(ShellSoftKeysTest, TheBarTakesNothingWhileABoxIsOpen)
{
    program->Command(AboutCommand);
    const HWND box = program->WaitForDialog();
    ASSERT_TRUE(box);
    const HWND bar = BarOf(main);
    ASSERT_TRUE(bar);
    Tap(SoftKeyPoint(bar, 1));
    Tap(SoftKeyPoint(bar, 0));
    ASSERT_TRUE(InFront(box));
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(box); }));
    EXPECT_FALSE(OpenMenu());
    ExpectKeysReachThePage(TasksPage);
}
