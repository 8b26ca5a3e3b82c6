// Which windows the page of running applications lists, and in which order.
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/WaitFor.h"

using namespace rig;
using Windows = std::vector<HWND>;
using TasksListTest = TasksScreen;

static constexpr DWORD shown = WS_POPUP | WS_VISIBLE;

TEST_F(TasksListTest, EveryApplicationIsListedFrontMostFirstTheProgramIncluded)
{
    const Actor one;
    const Actor other;
    // Not in the order of their names, nor of their creation.
    const HWND b = one.Make(Task(L"B"));
    const HWND c = other.Make(Task(L"C"));
    const HWND a = one.Make(Task(L"A"));
    FrontBefore({b, a, c});
    EXPECT_EQ((Windows{Main(), b, a, c, Today()}), Rows());
    FrontBefore({c, Today(), b});
    EXPECT_EQ((Windows{Main(), c, Today(), b, a}), Rows());
}

TEST_F(TasksListTest, HiddenDisabledToolAndUnactivatableWindowsAreNotListed)
{
    const Actor actor;
    const HWND plain = actor.Make(Task(L"Plain"));
    ASSERT_TRUE(actor.Make({.title = L"Hidden", .style = WS_POPUP}));
    ASSERT_TRUE(actor.Make({.title = L"Disabled", .style = shown | WS_DISABLED}));
    ASSERT_TRUE(actor.Make({.title = L"Tool", .exStyle = WS_EX_TOOLWINDOW}));
    ASSERT_TRUE(actor.Make({.title = L"No activation", .exStyle = WS_EX_NOACTIVATE}));
    Front();
    EXPECT_EQ((Windows{Main(), plain, Today()}), Rows());
}

TEST_F(TasksListTest, AWindowIsJudgedByItselfAndNotByItsOwner)
{
    const Actor actor;
    const HWND hidden = actor.Make({.title = L"Hidden", .style = WS_POPUP});
    const HWND disabled = actor.Make({.title = L"Disabled", .style = shown | WS_DISABLED});
    const HWND tool = actor.Make({.title = L"Tool", .exStyle = WS_EX_TOOLWINDOW});
    const HWND inactive = actor.Make({.title = L"Inactive", .exStyle = WS_EX_NOACTIVATE});
    Windows owned;
    for (HWND owner : {hidden, disabled, tool, inactive}) {
        owned.push_back(actor.Make({.title = L"Owned", .owner = owner}));
    }
    FrontBefore(owned);
    // The rows are those of the owners, whatever these are like.
    EXPECT_EQ((Windows{Main(), hidden, disabled, tool, inactive, Today()}), Rows());
}

TEST_F(TasksListTest, UnlistedWindowsOfAListableOwnerMakeNoRow)
{
    const Actor actor;
    const HWND hidden = actor.Make({.title = L"Hidden", .style = WS_POPUP});
    ASSERT_TRUE(actor.Make({.title = L"Tool", .exStyle = WS_EX_TOOLWINDOW, .owner = hidden}));
    ASSERT_TRUE(actor.Make({.title = L"Inactive", .exStyle = WS_EX_NOACTIVATE, .owner = hidden}));
    ASSERT_TRUE(actor.Make({.title = L"Disabled", .style = shown | WS_DISABLED, .owner = hidden}));
    Front();
    EXPECT_EQ((Windows{Main(), Today()}), Rows());
}

TEST_F(TasksListTest, TheTaskIsTheTopOfTheOwnerChain)
{
    const Actor actor;
    const HWND top = actor.Make({.title = L"Top", .style = WS_POPUP});
    const HWND second = actor.Make({.title = L"Second", .style = WS_POPUP, .owner = top});
    const HWND third = actor.Make({.title = L"Third", .style = WS_POPUP, .owner = second});
    ASSERT_TRUE(actor.Make({.title = L"Fourth", .owner = third}));
    Front();
    EXPECT_EQ((Windows{Main(), top, Today()}), Rows());
}

TEST_F(TasksListTest, TheWindowsOfOneOwnerMakeOneRow)
{
    const Actor actor;
    const HWND owner = actor.Make(Task(L"Owner"));
    const HWND first = actor.Make({.title = L"First", .owner = owner});
    ASSERT_TRUE(actor.Make({.title = L"Second", .owner = owner}));
    ASSERT_TRUE(actor.Make({.title = L"Below the first", .owner = first}));
    const HWND other = actor.Make(Task(L"Other"));
    FrontBefore({other, first});
    EXPECT_EQ((Windows{Main(), other, owner, Today()}), Rows());
}

TEST_F(TasksListTest, AnOwnerInAnotherProcessMakesOneRowToo)
{
    const Actor one;
    const Actor other;
    const HWND owner = one.Make(Task(L"Owner"));
    ASSERT_TRUE(other.Make({.title = L"Owned", .owner = owner}));
    Front();
    EXPECT_EQ((Windows{Main(), owner, Today()}), Rows());
}

TEST_F(TasksListTest, ATaskNeedsATitleOfItsOwnOrOfItsOwner)
{
    const Actor actor;
    ASSERT_TRUE(actor.Make(Task(L"")));
    const HWND untitled = actor.Make(Task(L""));
    const HWND owned = actor.Make({.title = L"Owned", .owner = untitled});
    const HWND hidden = actor.Make({.title = L"Hidden", .style = WS_POPUP});
    const HWND bare = actor.Make({.title = L"", .owner = hidden});
    const HWND nameless = actor.Make({.title = L"", .style = WS_POPUP});
    ASSERT_TRUE(actor.Make({.title = L"", .owner = nameless}));
    const HWND blank = actor.Make(Task(L" "));
    FrontBefore({owned, bare, blank});
    EXPECT_EQ((Windows{Main(), untitled, hidden, blank, Today()}), Rows());
}

TEST_F(TasksListTest, AnUntitledHomeScreenIsNotListedOnAPocketPc)
{
    const Actor actor;
    const HWND home = actor.Make({.className = L"DesktopExplorerWindow", .title = L""});
    ASSERT_TRUE(home);
    const HWND titled = actor.Make({.className = L"DesktopExplorerWindow", .title = L"Second home"});
    Front();
    EXPECT_EQ(3, ListCount(list));
    Select(1);
    EXPECT_EQ(titled, SelectedTask());
    Select(2);
    EXPECT_NE(home, SelectedTask());
}

TEST_F(TasksListTest, ARefreshFollowsTheSelectedTaskToItsNewRow)
{
    const Actor actor;
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Select(1);
    FrontBefore({b, a});
    EXPECT_EQ(2, ListMark(list));
    EXPECT_EQ(2, ListSelected(list));
    EXPECT_EQ(a, SelectedTask());
    actor.Vanish(b);
    Do(commandRefresh);
    EXPECT_EQ(1, ListMark(list));
    EXPECT_EQ(a, SelectedTask());
}

TEST_F(TasksListTest, ARefreshListsWhatHasComeAndDropsWhatHasGone)
{
    const Actor actor;
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    ASSERT_EQ(3, ListCount(list));
    actor.Vanish(a);
    // Made behind the program, which so keeps the activation and refreshes nothing by itself.
    const HWND b = actor.Make({.title = L"B", .style = WS_POPUP});
    const HWND c = actor.Make({.title = L"C", .style = WS_POPUP});
    for (HWND window : {b, c}) {
        SetWindowPos(window, Main(), 0, 0, 0, 0,
                     SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
    }
    EXPECT_EQ(3, ListCount(list));
    program->Command(commandRefresh);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 4; }));
    FrontBefore({b, c});
    EXPECT_EQ((Windows{Main(), b, c, Today()}), Rows());
}

TEST_F(TasksListTest, WithoutItsTaskTheSelectionStaysOnTheRowOrGoesToTheFirst)
{
    const Actor one;
    const Actor other;
    const HWND a = one.Make(Task(L"A"));
    const HWND b = other.Make(Task(L"B"));
    FrontBefore({a, Today(), b});
    Select(1);
    one.Vanish(a);
    Do(commandRefresh);
    EXPECT_EQ(1, ListMark(list));
    // The last row's task: no such row is left.
    Select(2);
    other.Vanish(b);
    Do(commandRefresh);
    EXPECT_EQ(0, ListMark(list));
    EXPECT_EQ(0, ListSelected(list));
}

TEST_F(TasksListTest, ShowingThePageSelectsTheFirstRow)
{
    Select(1);
    Do(commandNextPage);
    ASSERT_TRUE(program->WaitForPage(3));
    Do(commandShowTasks);
    ASSERT_TRUE(program->WaitForPage(1));
    EXPECT_EQ(0, ListMark(list));
    EXPECT_EQ(0, ListSelected(list));
}
