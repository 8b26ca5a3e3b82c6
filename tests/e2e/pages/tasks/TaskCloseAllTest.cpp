// Closing all running applications at once.
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

class TaskCloseAllTest : public TasksScreen
{
  protected:
    static constexpr DWORD shown = WS_POPUP | WS_VISIBLE;
    const Actor actor;

    // A window that counts its closings and stays.
    HWND Make(const std::wstring& title, DWORD style = shown, DWORD exStyle = 0, HWND owner = nullptr,
              const std::wstring& className = L"QvActor")
    {
        return actor.Make({.className = className,
                           .title = title,
                           .style = style,
                           .exStyle = exStyle,
                           .owner = owner,
                           .closing = actor::Closing::Ignore});
    }
};

TEST_F(TaskCloseAllTest, TheThirdItemOfTheMenuClosesEveryApplicationButTheProgramAndTheHomeScreen)
{
    const Actor other;
    const HWND today = Today();
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    const HWND c = other.Make(Task(L"C"));
    Front();
    ASSERT_EQ(5, ListCount(list));
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_DOWN, 3);
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 2; }));
    for (HWND window : {a, b, c}) {
        EXPECT_FALSE(IsWindow(window));
    }
    EXPECT_TRUE(IsWindow(today));
    EXPECT_TRUE(program->IsRunning());
    EXPECT_EQ((std::vector<HWND>{Main(), today}), Rows());
}

TEST_F(TaskCloseAllTest, WindowsThatAreNoTasksAreSpared)
{
    const HWND hidden = Make(L"Hidden", WS_POPUP);
    const HWND disabled = Make(L"Disabled", shown | WS_DISABLED);
    const HWND tool = Make(L"Tool", shown, WS_EX_TOOLWINDOW);
    const HWND inactive = Make(L"Inactive", shown, WS_EX_NOACTIVATE);
    const HWND untitled = Make(L"");
    const HWND plain = Make(L"Plain");
    Front();
    Do(commandCloseAll);
    EXPECT_EQ(1, CloseCount(plain));
    for (HWND window : {hidden, disabled, tool, inactive, untitled}) {
        EXPECT_EQ(0, CloseCount(window));
    }
}

TEST_F(TaskCloseAllTest, ProtectedClassesAreSparedWhateverTheirCase)
{
    const std::vector<HWND> spared = {Make(L"Shell", shown, 0, nullptr, L"eXPLORE"),
                                      Make(L"Home", shown, 0, nullptr, L"DesktopExplorerWindow")};
    ASSERT_EQ(L"eXPLORE", ClassOf(spared[0]));
    const HWND explorer = Make(L"Explorer", shown, 0, nullptr, L"Explorer");
    const HWND ownedByShell = Make(L"Owned", shown, 0, spared[0]);
    const HWND inner = Make(L"Inner", shown, 0, explorer, L"eXPLORE");
    Front();
    Do(commandCloseAll);
    for (HWND window : spared) {
        EXPECT_EQ(0, CloseCount(window));
    }
    EXPECT_EQ(0, CloseCount(ownedByShell));
    // Of the owner and of its window, whose own class does not matter.
    EXPECT_EQ(2, CloseCount(explorer));
    EXPECT_EQ(0, CloseCount(inner));
}

TEST_F(TaskCloseAllTest, AnOwnerIsAskedOnceForEachEligibleWindow)
{
    const HWND owner = Make(L"Owner");
    const HWND first = Make(L"First", shown, 0, owner);
    const HWND second = Make(L"", shown, 0, owner); // named after the owner
    const HWND third = Make(L"Third", shown, 0, first);
    Make(L"Hidden", WS_POPUP, 0, owner);
    Make(L"Tool", shown, WS_EX_TOOLWINDOW, owner);
    Make(L"Disabled", shown | WS_DISABLED, 0, owner);
    Front();
    Do(commandCloseAll);
    EXPECT_EQ(4, CloseCount(owner));
    for (HWND window : {first, second, third}) {
        EXPECT_EQ(0, CloseCount(window));
    }
}

TEST_F(TaskCloseAllTest, AHiddenOwnerIsAskedForItsVisibleWindows)
{
    const HWND owner = Make(L"Owner", WS_POPUP);
    const HWND first = Make(L"First", shown, 0, owner);
    Make(L"", shown, 0, owner); // named after the owner, although that is hidden
    const HWND nameless = Make(L"", WS_POPUP);
    Make(L"", shown, 0, nameless);
    Front();
    Do(commandCloseAll);
    EXPECT_EQ(2, CloseCount(owner));
    EXPECT_EQ(0, CloseCount(first));
    EXPECT_EQ(0, CloseCount(nameless));
}

TEST_F(TaskCloseAllTest, AnApplicationThatIgnoresItStaysListed)
{
    const HWND a = Make(L"A");
    Front();
    Do(commandCloseAll);
    EXPECT_TRUE(IsWindow(a));
    EXPECT_TRUE(actor.Running());
    EXPECT_EQ(3, ListCount(list));
}

TEST_F(TaskCloseAllTest, TheProgramWaitsForEachAnswer)
{
    const Actor other;
    const HWND slow = actor.Make({.title = L"Slow", .closing = actor::Closing::Delay, .delay = 1500});
    const HWND next = other.Make(Task(L"Next"));
    FrontBefore({slow, next});
    program->Command(commandCloseAll);
    EXPECT_TRUE(WaitFor([&] {
        const bool nextGone = !IsWindow(next);
        const bool slowGone = !IsWindow(slow);
        EXPECT_TRUE(slowGone || !nextGone) << "the next one was asked before the answer";
        return slowGone;
    }));
    EXPECT_TRUE(WaitFor([=] { return !IsWindow(next); }));
}

TEST_F(TaskCloseAllTest, TheListComesASecondAfterTheLastAnswer)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    program->Command(commandCloseAll);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(a); }));
    const auto gone = steady_clock::now();
    ASSERT_TRUE(WaitFor([&] { return ListCount(list) == 2; }));
    const auto waited = std::chrono::duration_cast<milliseconds>(steady_clock::now() - gone).count();
    EXPECT_GE(waited, 900);
    EXPECT_LT(waited, 4000);
}

TEST_F(TaskCloseAllTest, AnyPageOfTheProgramCanCloseAll)
{
    const HWND a = Make(L"A");
    Front();
    Do(commandNextPage);
    ASSERT_TRUE(program->WaitForPage(3));
    Do(commandCloseAll);
    EXPECT_EQ(1, CloseCount(a));
    EXPECT_EQ(3, program->VisiblePage());
}
