// The home screen among the running applications of a Smartphone.
// profiles: smartphone
// device's executable: smartphone
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"

using namespace rig;
using Windows = std::vector<HWND>;
using TaskHomeTest = TasksScreen;

TEST_F(TaskHomeTest, TheUntitledHomeScreenIsListedAsHome)
{
    ASSERT_EQ(L"", TextOf(Today()));
    EXPECT_EQ((Windows{Main(), Today()}), Rows());
    EXPECT_TRUE(RowShowsName(list, 1, L"Home"));
}

TEST_F(TaskHomeTest, AnyProgramsUntitledWindowOfThatClassIsHome)
{
    const Actor actor;
    const HWND home = actor.Make({.className = L"DesktopExplorerWindow", .title = L""});
    Front();
    EXPECT_EQ((Windows{Main(), home, Today()}), Rows());
    EXPECT_TRUE(RowShowsName(list, 1, L"Home"));
}

TEST_F(TaskHomeTest, AnUntitledWindowOfTheHomeScreenIsHomeToo)
{
    const Actor actor;
    const HWND owner = actor.Make({.className = L"DesktopExplorerWindow", .title = L"", .style = WS_POPUP});
    ASSERT_TRUE(actor.Make({.title = L"", .owner = owner}));
    Front();
    EXPECT_EQ((Windows{Main(), owner, Today()}), Rows());
    EXPECT_TRUE(RowShowsName(list, 1, L"Home"));
}

TEST_F(TaskHomeTest, ATitleIsPreferred)
{
    const Actor actor;
    ASSERT_TRUE(actor.Make({.className = L"DesktopExplorerWindow", .title = L"Titled"}));
    Front();
    EXPECT_TRUE(RowShowsName(list, 1, L"Titled"));
}

TEST_F(TaskHomeTest, OtherUntitledWindowsAreNotListed)
{
    const Actor actor;
    const HWND home = actor.Make({.className = L"DesktopExplorerWindow", .title = L"", .style = WS_POPUP});
    ASSERT_TRUE(actor.Make({.className = L"DesktopExplorerWindow2", .title = L""}));
    const HWND plain = actor.Make({.title = L"", .style = WS_POPUP});
    // Only the class of the top owner counts.
    ASSERT_TRUE(actor.Make({.className = L"DesktopExplorerWindow", .title = L"", .owner = plain}));
    Front();
    EXPECT_EQ((Windows{Main(), Today()}), Rows());
    EXPECT_TRUE(IsWindow(home));
}

TEST_F(TaskHomeTest, ClosingTheHomeScreenIsForbidden)
{
    Select(1);
    program->Command(commandClose);
    const HWND notice = WaitForNotice();
    ASSERT_TRUE(notice);
    EXPECT_TRUE(NoticeSays(Main(), notice, L"It's forbidden to end this application!"));
    EXPECT_TRUE(IsWindow(Today()));
}
