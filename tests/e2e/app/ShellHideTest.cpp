// Hide, and how the program comes back.
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

static constexpr COLORREF orange = RGB(250, 120, 10);

class ShellHideTest : public ShellSession
{
  protected:
    void Hide() const
    {
        program->Command(HideCommand);
        ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() != main && !BarOf(main); }));
    }

    // A second start without a button's command line.
    void StartAgain() const
    {
        const ChildProcess second(ProgramFolder() + L"\\Quorvane.exe", L"");
        EXPECT_EQ(0u, second.ExitCode(patience));
    }
};

TEST_F(ShellHideTest, TheNextProgramComesToTheFront)
{
    const Actor actor;
    const RECT screen = ScreenRect();
    const HWND window = actor.Make({.place = {0, Scaled(26), screen.right, screen.bottom}, .colour = orange});
    ASSERT_TRUE(InFront(window));
    ASSERT_TRUE(ComeToFront());
    Hide();
    EXPECT_TRUE(InFront(window));
    // Nothing of the program is left on the screen, its soft keys included.
    const int whole = screen.right * (screen.bottom - Scaled(26));
    EXPECT_TRUE(WaitFor([=] { return Picture::OfScreen().Count(orange) == whole; }));
    EXPECT_TRUE(program->IsRunning());
}

TEST_F(ShellHideTest, HiddenItKeepsItsWindowAndItsPage)
{
    program->Command(ShowProcsCommand);
    ASSERT_TRUE(program->WaitForPage(ProcsPage));
    const RECT before = ScreenRectOf(main);
    Hide();
    EXPECT_TRUE(IsWindow(main));
    const RECT after = ScreenRectOf(main);
    EXPECT_TRUE(EqualRect(&before, &after));
    StartAgain();
    EXPECT_TRUE(InFront(main));
    EXPECT_EQ(ProcsPage, program->VisiblePage());
}

TEST_F(ShellHideTest, ASecondStartBringsItBackWithItsKeysAndItsBar)
{
    Hide();
    StartAgain();
    ASSERT_TRUE(InFront(main));
    EXPECT_TRUE(WaitFor([&] { return BarOf(main); })) << "the soft keys do not come back";
    ExpectKeysReachThePage(TasksPage);
    ASSERT_TRUE(PressMenuKey());
    PressKey(VK_ESCAPE);
}

TEST_F(ShellHideTest, ComingBackThePageIsRefreshed)
{
    const Actor actor;
    const HWND list = program->List(TasksPage);
    const int before = SettledCount();
    Hide();
    ASSERT_TRUE(actor.Make({.title = L"Newcomer"}));
    EXPECT_EQ(before, ListCount(list));
    StartAgain();
    ASSERT_TRUE(InFront(main));
    EXPECT_TRUE(WaitFor([=] { return ListCount(list) == before + 1; }, std::chrono::milliseconds(3000)));
}

TEST_F(ShellHideTest, ItComesBackAsItWasPainted)
{
    ASSERT_TRUE(ComeToFront());
    SettledCount();
    program->Command(ShowSysInfoCommand); // a page whose rows do not move
    ASSERT_TRUE(program->WaitForPage(SysInfoPage));
    const RECT strip = {0, ScreenRectOf(main).top, ScreenRectOf(main).right,
                        ScreenRectOf(program->List(SysInfoPage)).top};
    const RECT bar = ScreenRectOf(BarOf(main));
    Picture::OfSettledScreen();
    const Picture stripBefore = Picture::OfScreen(strip);
    const Picture barBefore = Picture::OfScreen(bar);
    Hide();
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(strip) != stripBefore; }));
    StartAgain();
    ASSERT_TRUE(InFront(main));
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(strip) == stripBefore; }));
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(bar) == barBefore; }));
}

TEST_F(ShellHideTest, HiddenAgainAndAgainItComesBack)
{
    for (int round = 0; round < 4; round++) {
        PressKey(VK_F1);
        ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() != main; })) << round;
        StartAgain();
        ASSERT_TRUE(InFront(main)) << round;
    }
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellHideTest, HiddenItCanBeClosed)
{
    Hide();
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();
}
