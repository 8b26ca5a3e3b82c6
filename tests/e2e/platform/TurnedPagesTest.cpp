// Every page while the screen is turned and turned back.
// profiles: pocketpc pocketpc-vga smartphone
#include "rig/Controls.h"
#include "rig/Orientation.h"
#include "tests/e2e/TurnedSession.h"

#include <commctrl.h>

using namespace rig;

class TurnedPagesTest : public TurnedSession
{
  protected:
    // The refresh that follows the first showing is over.
    void SetUp() override
    {
        ShellSession::SetUp();
        SettledCount();
    }
};

TEST_F(TurnedPagesTest, EveryPageFillsTheTurnedScreenAndTheUprightOneAgain)
{
    for (int page : pageRing) {
        Show(page);
        TurnSideways();
        ExpectLaidOut(page);
        ExpectNothingStale(page);
        TurnUpright();
        ExpectLaidOut(page);
        ExpectNothingStale(page);
    }
}

// The other way round of the same; and upside down the screen keeps its size.
TEST_F(TurnedPagesTest, AllFourOrientationsHaveTheirSize)
{
    for (const auto& [orientation, sideways] : {std::pair(1, true), {2, false}, {4, true}, {0, false}}) {
        Turn(orientation);
        const LONG width = sideways ? uprightScreen.bottom : uprightScreen.right;
        EXPECT_TRUE(WaitFor([=] { return ScreenRect().right == width; })) << orientation;
        ExpectLaidOut(TasksPage);
    }
}

TEST_F(TurnedPagesTest, ThePagesThatWereNotShownFillTheScreenWhenTheyAre)
{
    TurnSideways();
    for (int page : pageRing) {
        Show(page);
        ExpectLaidOut(page);
        ExpectNothingStale(page);
    }
}

TEST_F(TurnedPagesTest, TheSelectedRowStaysOnTheScreen)
{
    Show(ProcsPage);
    const HWND list = program->List(ProcsPage);
    const int last = ListCount(list) - 1;
    ASSERT_GT(last, 0);
    PressKey(VK_END);
    ASSERT_TRUE(WaitFor([=] { return ListMark(list) == last; }));
    TurnSideways();
    ExpectLaidOut(ProcsPage);
    EXPECT_TRUE(WaitFor([=] {
        const LRESULT top = Send(list, LVM_GETTOPINDEX);
        return top > 0 && last < top + Send(list, LVM_GETCOUNTPERPAGE);
    }));
    EXPECT_EQ(ListMark(list), last);
}

// The keys and the stylus reach what is shown.
TEST_F(TurnedPagesTest, TheTurnedScreenIsUsable)
{
    TurnSideways();
    ExpectLaidOut(TasksPage);
    const POINT key = SoftKeyPoint(BarOf(main), 1);
    ASSERT_TRUE(WaitFor([&] { return WindowFromPoint(key) == BarOf(main); }))
        << "something covers the soft key";
    Tap(key);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    const RECT menu = ScreenRectOf(OpenMenu());
    EXPECT_EQ(menu.right, ScreenRect().right);
    EXPECT_EQ(menu.bottom, ScreenRectOf(BarOf(main)).top);
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitFor([] { return !OpenMenu(); }));
    Tap(StripPoint(TasksPage, ScreenRect().right - 1));
    EXPECT_TRUE(program->WaitForPage(PageAfter(TasksPage, 1)));
    ExpectKeysReachThePage(PageAfter(TasksPage, 1));
}
