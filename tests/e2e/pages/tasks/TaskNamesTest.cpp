// Which of a task's titles names its row, seen on the screen.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc-vga
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"

using namespace rig;

class TaskNamesTest : public TasksScreen
{
  protected:
    const Actor actor;

    HWND Hidden(const std::wstring& title) { return actor.Make({.title = title, .style = WS_POPUP}); }

    // The task is the only one of the test's: it is below the program's row.
    void ExpectName(const std::wstring& name)
    {
        Front();
        ASSERT_EQ(3, ListCount(list));
        EXPECT_TRUE(RowShowsName(list, 1, name));
    }
};

TEST_F(TaskNamesTest, AVisibleOwnersTitleComesFirst)
{
    const HWND owner = actor.Make(Task(L"Owner"));
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = owner}));
    ExpectName(L"Owner");
    EXPECT_FALSE(RowShowsName(list, 1, L"Window", std::chrono::milliseconds(0)))
        << "any text would have been taken";
}

TEST_F(TaskNamesTest, AnUntitledVisibleOwnerTakesTheTitleOfItsWindow)
{
    const HWND owner = actor.Make(Task(L""));
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = owner}));
    ExpectName(L"Window");
}

TEST_F(TaskNamesTest, BelowAHiddenOwnerTheWindowsTitleComesFirst)
{
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = Hidden(L"Owner")}));
    ExpectName(L"Window");
}

TEST_F(TaskNamesTest, AnUntitledWindowTakesTheTitleOfItsHiddenOwner)
{
    ASSERT_TRUE(actor.Make({.title = L"", .owner = Hidden(L"Owner")}));
    ExpectName(L"Owner");
}

TEST_F(TaskNamesTest, OnlyTheTopOfTheChainCountsAmongTheOwners)
{
    const HWND top = Hidden(L"");
    const HWND middle = actor.Make({.title = L"Middle", .style = WS_POPUP, .owner = top});
    ASSERT_TRUE(actor.Make({.title = L"Window", .owner = middle}));
    ExpectName(L"Window");
}

TEST_F(TaskNamesTest, TheFrontMostOfSeveralWindowsNamesTheTask)
{
    const HWND owner = Hidden(L"Owner");
    const HWND first = actor.Make({.title = L"First", .owner = owner});
    const HWND second = actor.Make({.title = L"Second", .owner = owner});
    FrontBefore({first, second});
    ExpectName(L"First");
    FrontBefore({second, first});
    ExpectName(L"Second");
}

TEST_F(TaskNamesTest, PercentSignsQuotesAndOtherScriptsAreShownAsTheyAre)
{
    for (const wchar_t* title :
         {L"100%s %d %%", L"\"Quoted\" 'text'", L"\x0416\x0443\x043a \x03b1\x03b2\x03b3"}) {
        const HWND window = actor.Make(Task(title));
        ExpectName(title);
        actor.Vanish(window);
    }
}

TEST_F(TaskNamesTest, TheProgramAndTheSelectedRowShowTheirNamesToo)
{
    Front();
    Select(0);
    EXPECT_TRUE(RowShowsName(list, 0, L"Quorvane"));
    Select(1);
    EXPECT_TRUE(RowShowsName(list, 0, L"Quorvane"));
    EXPECT_TRUE(RowShowsName(list, 1, L"Today"));
}
