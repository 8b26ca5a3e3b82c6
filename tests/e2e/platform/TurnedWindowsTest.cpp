// Dialogs, notices, menus and other programs while the screen is turned.
// profiles: pocketpc pocketpc-vga smartphone
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Orientation.h"
#include "tests/e2e/TurnedSession.h"

using namespace rig;

class TurnedWindowsTest : public TurnedSession
{
  protected:
    void ExpectDialogTurns(HWND dialog, int control) const
    {
        ASSERT_TRUE(dialog);
        TurnSideways();
        ExpectDialogFills(dialog, control);
        ExpectNothingStale(TasksPage);
        TurnUpright();
        ExpectDialogFills(dialog, control);
        ExpectNothingStale(TasksPage);
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        ASSERT_TRUE(WaitFor([&] { return !program->Dialog(); }));
        ExpectLaidOut(TasksPage);
    }

    static bool IsWithin(const RECT& inner, const RECT& outer)
    {
        return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
               inner.bottom <= outer.bottom;
    }
};

TEST_F(TurnedWindowsTest, AReportFillsTheScreenAgain)
{
    SettledCount();
    ExpectDialogTurns(OpenReport(), IDC_INFORMATION_TEXT);
}

TEST_F(TurnedWindowsTest, TheWindowsListFillsTheScreenAgain)
{
    SettledCount();
    ExpectDialogTurns(OpenWindowsList(), IDC_WINDOWS_TREE);
}

TEST_F(TurnedWindowsTest, ADialogClosedOnTheTurnedScreenUncoversATurnedPage)
{
    SettledCount();
    const HWND dialog = OpenReport();
    ASSERT_TRUE(dialog);
    TurnSideways();
    ExpectDialogFills(dialog, IDC_INFORMATION_TEXT);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(WaitFor([&] { return !program->Dialog(); }));
    ExpectLaidOut(TasksPage);
    ExpectNothingStale(TasksPage);
}

TEST_F(TurnedWindowsTest, ANoticeStaysAtTheRightEdge)
{
    program->Command(SettingsCommand);
    const HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    const RECT before = ScreenRectOf(notice);
    const LONG gap = uprightScreen.right - before.right;
    TurnSideways();
    const RECT area = {0, Scaled(26), ScreenRect().right, ScreenRect().bottom};
    // While it is shown: it goes after three seconds.
    ASSERT_TRUE(WaitFor([&] { return ScreenRectOf(notice).right == area.right - gap; }));
    const RECT after = ScreenRectOf(notice);
    EXPECT_TRUE(IsWithin(after, area));
    EXPECT_EQ(after.right - after.left, before.right - before.left);
    EXPECT_EQ(after.bottom - after.top, before.bottom - before.top);
}

TEST_F(TurnedWindowsTest, AnotherProgramStaysOnTheScreen)
{
    const Actor actor;
    const HWND low = actor.Make({.place = {uprightScreen.right - 70, uprightScreen.bottom - 90,
                                           uprightScreen.right - 10, uprightScreen.bottom - 10}});
    ASSERT_TRUE(low);
    TurnSideways();
    const RECT screen = ScreenRect();
    ExpectPlace("the window", {screen.right - 70, screen.bottom - 90, screen.right - 10, screen.bottom - 10},
                low);
    TurnUpright();
    ExpectPlace("the window",
                {uprightScreen.right - 70, uprightScreen.bottom - 90, uprightScreen.right - 10,
                 uprightScreen.bottom - 10},
                low);
}

// Minimised, it is behind the home screen.
TEST_F(TurnedWindowsTest, AHiddenProgramComesBackLaidOut)
{
    SettledCount();
    program->Command(HideCommand);
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() != main; }));
    TurnSideways();
    program->Command(ShowTasksCommand);
    ASSERT_TRUE(InFront(main));
    ExpectLaidOut(TasksPage);
    ExpectNothingStale(TasksPage);
}

// A program that does not answer keeps nobody waiting for good.
TEST_F(TurnedWindowsTest, AHungProgramDoesNotKeepTheOthersUpright)
{
    const Actor actor;
    const HWND hung = actor.Make({.title = L"Hung", .closing = actor::Closing::Delay, .delay = 20000});
    ASSERT_TRUE(hung);
    ASSERT_TRUE(Hang(hung));
    ComeToFront();
    TurnSideways();
    ExpectLaidOut(TasksPage);
}
