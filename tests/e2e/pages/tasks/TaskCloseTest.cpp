// Closing one running application.
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

class TaskCloseTest : public TasksScreen
{
  protected:
    const Actor actor;

    HWND Ignoring(const std::wstring& title, const std::wstring& className = L"QvActor")
    {
        return actor.Make({.className = className, .title = title, .closing = actor::Closing::Ignore});
    }
};

TEST_F(TaskCloseTest, TheSecondItemOfTheMenuClosesTheSelectedTaskAndListsAgain)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Select(1);
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    PressKey(VK_DOWN, 2);
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 3; }));
    EXPECT_FALSE(IsWindow(a));
    EXPECT_TRUE(IsWindow(b));
}

TEST_F(TaskCloseTest, TheNextRowsTaskIsSelectedAfterwards)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    const HWND c = actor.Make(Task(L"C"));
    FrontBefore({a, b, c});
    Select(2);
    Do(commandClose);
    EXPECT_FALSE(IsWindow(b));
    EXPECT_EQ(4, ListCount(list));
    EXPECT_EQ(2, ListMark(list));
    EXPECT_EQ(c, SelectedTask());
}

TEST_F(TaskCloseTest, AfterTheLastRowTheTaskAboveIsSelected)
{
    const HWND a = actor.Make(Task(L"A"));
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({Today(), a, b});
    Select(3);
    Do(commandClose);
    EXPECT_FALSE(IsWindow(b));
    EXPECT_EQ(3, ListCount(list));
    EXPECT_EQ(2, ListMark(list));
    EXPECT_EQ(a, SelectedTask());
}

TEST_F(TaskCloseTest, ATaskThatStaysLosesTheSelectionToTheNextAllTheSame)
{
    const HWND a = Ignoring(L"A");
    const HWND b = actor.Make(Task(L"B"));
    FrontBefore({a, b});
    Select(1);
    Do(commandClose);
    EXPECT_EQ(1, CloseCount(a));
    EXPECT_TRUE(IsWindow(a));
    EXPECT_EQ(4, ListCount(list));
    EXPECT_EQ(2, ListMark(list));
    EXPECT_EQ(b, SelectedTask());
}

TEST_F(TaskCloseTest, TheTopOwnerIsAskedAndNotItsVisibleWindow)
{
    const HWND owner = actor.Make({.title = L"Owner", .style = WS_POPUP, .closing = actor::Closing::Ignore});
    const HWND window = actor.Make({.title = L"Window", .owner = owner, .closing = actor::Closing::Ignore});
    FrontBefore({window});
    Select(1);
    Do(commandClose);
    EXPECT_EQ(1, CloseCount(owner));
    EXPECT_EQ(0, CloseCount(window));
}

TEST_F(TaskCloseTest, TheListComesHalfASecondAfterTheAnswer)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    program->Command(commandClose);
    ASSERT_TRUE(WaitFor([=] { return !IsWindow(a); }));
    const auto gone = steady_clock::now();
    ASSERT_TRUE(WaitFor([&] { return ListCount(list) == 2; }));
    const auto waited = std::chrono::duration_cast<milliseconds>(steady_clock::now() - gone).count();
    EXPECT_GE(waited, 400);
    EXPECT_LT(waited, 3000);
}

TEST_F(TaskCloseTest, TheProgramWaitsForAnApplicationThatDoesNotAnswer)
{
    const HWND slow = actor.Make({.title = L"Slow", .closing = actor::Closing::Delay, .delay = 2000});
    FrontBefore({slow});
    Select(1);
    program->Command(commandClose);
    program->Command(commandNextPage); // carried out only after the closing
    EXPECT_TRUE(WaitFor([&] {
        const int page = program->VisiblePage();
        const bool gone = !IsWindow(slow);
        EXPECT_TRUE(gone || page == 1) << "it went on without the answer";
        return gone || page != 1;
    }));
    EXPECT_TRUE(program->WaitForPage(3));
    EXPECT_FALSE(IsWindow(slow));
}

TEST_F(TaskCloseTest, AnApplicationThatAsksItsUserHoldsTheProgramUpAndMayStay)
{
    const HWND asking = actor.Make({.title = L"Asking", .closing = actor::Closing::Ask});
    FrontBefore({asking});
    Select(1);
    program->Command(commandClose);
    const HWND box = WaitForTopWindow({.className = L"#32770", .process = actor.Process()});
    ASSERT_TRUE(box);
    program->Command(commandNextPage);
    EXPECT_FALSE(WaitFor([&] { return program->VisiblePage() != 1; }, milliseconds(800)));
    PostMessageW(box, WM_COMMAND, IDNO, 0);
    EXPECT_TRUE(program->WaitForPage(3));
    EXPECT_TRUE(IsWindow(asking));
    Do(commandShowTasks);
    EXPECT_EQ(3, ListCount(list));
}

TEST_F(TaskCloseTest, ProtectedClassesAreRefusedWhateverTheirCase)
{
    for (const wchar_t* name : {L"Explore", L"EXPLORE", L"explore", L"DesktopExplorerWindow"}) {
        // While a class lives, the system gives its spelling to all that differ from it in case only: so each
        // has a program of its own, and the home screen's, which the handheld has too, is as it is.
        const Actor shellProgram;
        const HWND shell =
            shellProgram.Make({.className = name, .title = L"Shell", .closing = actor::Closing::Ignore});
        ASSERT_EQ(name, ClassOf(shell));
        FrontBefore({shell});
        Select(1);
        program->Command(commandClose);
        const HWND notice = WaitForNotice();
        ASSERT_TRUE(notice) << testing::PrintToString(std::wstring(name));
        EXPECT_TRUE(NoticeSays(Main(), notice, L"It's forbidden to end this application!"));
        HideNotice();
        Do(commandRefresh); // past the command
        EXPECT_EQ(0, CloseCount(shell)) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(TaskCloseTest, ARefusalListsNothingAgain)
{
    const HWND shell = Ignoring(L"Shell", L"Explore");
    const HWND other = actor.Make(Task(L"Other"));
    FrontBefore({shell, other});
    FrontWithoutRefreshes();
    SelectTask(shell);
    const int row = ListMark(list);
    FrontWithoutRefreshes();
    actor.Vanish(other);
    program->Command(commandClose);
    ASSERT_TRUE(WaitForNotice());
    EXPECT_EQ(4, ListCount(list));
    EXPECT_EQ(row, ListMark(list));
}

TEST_F(TaskCloseTest, OtherClassesAreNotProtected)
{
    for (const wchar_t* name : {L"Explorer", L"Explor", L"XExplore", L"DesktopExplorerWindow1"}) {
        const HWND window = Ignoring(L"Plain", name);
        FrontBefore({window});
        Select(1);
        Do(commandClose);
        EXPECT_EQ(1, CloseCount(window)) << testing::PrintToString(std::wstring(name));
        EXPECT_FALSE(program->Notice());
        actor.Vanish(window);
    }
}

TEST_F(TaskCloseTest, TheClassOfTheTopOwnerProtectsAndNotThatOfItsWindow)
{
    const HWND owner = actor.Make(
        {.className = L"Explore", .title = L"Owner", .style = WS_POPUP, .closing = actor::Closing::Ignore});
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = owner}));
    Front();
    Select(1);
    program->Command(commandClose);
    EXPECT_TRUE(WaitForNotice());
    EXPECT_EQ(0, CloseCount(owner));
}

TEST_F(TaskCloseTest, ATaskThatHasGoneLeavesTheListWithoutAWord)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    Select(1);
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    Do(commandClose);
    EXPECT_EQ(2, ListCount(list));
    EXPECT_EQ(1, ListMark(list));
    EXPECT_FALSE(program->Notice());
}

TEST_F(TaskCloseTest, ClosingItsOwnRowEndsTheProgram)
{
    Select(0);
    program->Command(commandClose);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
}
