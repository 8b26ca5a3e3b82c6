// Switching to a running application.
// device's executable: pocketpc
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;
using std::chrono::milliseconds;

class TaskSwitchTest : public TasksScreen
{
  protected:
    const Actor actor;

    static bool InFront(HWND window)
    {
        return WaitFor([=] { return GetForegroundWindow() == window; });
    }

    static POINT MiddleOf(const RECT& rect)
    {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }

    // Whether all that the program has been given is carried out, and still nothing has happened.
    void ExpectNothingHappened() const
    {
        program->Command(commandNextPage);
        ASSERT_TRUE(program->WaitForPage(3));
        EXPECT_EQ(Main(), GetForegroundWindow());
        EXPECT_FALSE(program->Notice());
        EXPECT_FALSE(program->Dialog());
    }
};

TEST_F(TaskSwitchTest, TheFirstItemOfTheMenuBringsTheSelectedTaskToTheFront)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Select(2);
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_TRUE(InFront(b));
    EXPECT_EQ(0, CloseCount(b));
}

TEST_F(TaskSwitchTest, EnterOnARowSwitches)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Select(1);
    PressKey(VK_RETURN);
    EXPECT_TRUE(InFront(a));
    FrontBefore({b, a});
    Select(1);
    PressKey(VK_RETURN);
    EXPECT_TRUE(InFront(b));
}

TEST_F(TaskSwitchTest, ADoubleTapOnARowSwitchesASingleOneSelects)
{
    const HWND a = actor.Make(Task(L"A"));
    ASSERT_TRUE(actor.Make(Task(L"B")));
    FrontBefore({a});
    const auto other = ListRowOnScreen(list, 2);
    const auto row = ListRowOnScreen(list, 1);
    ASSERT_TRUE(other && row);
    Tap(MiddleOf(*other));
    EXPECT_TRUE(WaitFor([&] { return ListMark(list) == 2; }));
    EXPECT_EQ(Main(), GetForegroundWindow());
    DoubleTap(MiddleOf(*row));
    EXPECT_TRUE(InFront(a));
}

TEST_F(TaskSwitchTest, TheWindowsOfTheTaskComeForwardWithIt)
{
    const COLORREF red = RGB(200, 30, 30);
    const COLORREF blue = RGB(30, 30, 200);
    const HWND owner = actor.Make({.title = L"Owner", .place = {0, 26, 240, 200}, .colour = blue});
    const HWND owned =
        actor.Make({.title = L"Owned", .owner = owner, .place = {20, 60, 80, 100}, .colour = red});
    FrontBefore({owned});
    Select(1);
    ASSERT_EQ(0, Picture::OfScreen().Count(red));
    program->Command(commandSwitch);
    EXPECT_TRUE(InFront(owner));
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen().Count(red) == 60 * 40; }));
}

TEST_F(TaskSwitchTest, TheWindowsOfAHiddenOwnerComeForward)
{
    const COLORREF red = RGB(200, 30, 30);
    const HWND owner = actor.Make({.title = L"Owner", .style = WS_POPUP});
    const HWND owned =
        actor.Make({.title = L"Owned", .owner = owner, .place = {20, 60, 80, 100}, .colour = red});
    FrontBefore({owned});
    Select(1);
    ASSERT_EQ(0, Picture::OfScreen().Count(red));
    program->Command(commandSwitch);
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen().Count(red) == 60 * 40; }));
}

TEST_F(TaskSwitchTest, TheTasksOwnDialogGetsTheInput)
{
    const HWND owner = actor.Make({.title = L"Owner", .style = WS_POPUP | WS_VISIBLE | WS_DISABLED});
    const HWND dialog = actor.Make({.title = L"Dialog", .owner = owner});
    FrontBefore({dialog});
    Select(1);
    program->Command(commandSwitch);
    EXPECT_TRUE(InFront(dialog));
}

TEST_F(TaskSwitchTest, SwitchingToTheProgramItselfKeepsItInFront)
{
    ASSERT_TRUE(actor.Make(Task(L"A")));
    Front();
    Select(0);
    program->Command(commandSwitch);
    ExpectNothingHappened();
}

TEST_F(TaskSwitchTest, NothingHappensWhenTheTaskHasGone)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    program->Command(commandSwitch);
    ExpectNothingHappened();
}

TEST_F(TaskSwitchTest, EnterOnATaskThatHasGoneDoesNothing)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    PressKey(VK_RETURN);
    // The next page's key comes after it, by the same way.
    PressKey(VK_RIGHT);
    ASSERT_TRUE(program->WaitForPage(3));
    EXPECT_EQ(Main(), GetForegroundWindow());
    EXPECT_FALSE(program->Notice());
}
