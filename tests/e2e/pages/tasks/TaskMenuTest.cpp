// The menu of the page of running applications: its items, and that each runs its command.
// device's executable: pocketpc
#include "resources/ids.h"
#include "tests/e2e/ProgramMenu.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

class TaskMenuTest : public TasksScreen
{
  protected:
    const Actor actor;
};

TEST_F(TaskMenuTest, TheItemsHaveTheirTextsAndOrder)
{
    const ProgramMenu menu(134);
    EXPECT_EQ((std::vector<MenuItem>{{CMD_SWITCH_TO_APPLICATION, L"Switch to appliction"},
                                     {CMD_CLOSE_APPLICATION, L"Close application"},
                                     {0, L""},
                                     {CMD_CLOSE_ALL, L"Close all"},
                                     {0, L""},
                                     {CMD_APPLICATION_INFO, L"Application info"},
                                     {CMD_WINDOWS_LIST, L"Windows list"},
                                     {0, L""},
                                     {CMD_REFRESH, L"Refresh"},
                                     {0, L""},
                                     {-1, L"View"},
                                     {0, L""},
                                     {-1, L"More"},
                                     {0, L""},
                                     {CMD_EXIT, L"Exit"}}),
              menu.Items());
    EXPECT_EQ((std::vector<MenuItem>{{CMD_SHOW_TASKS, L"Runnig apps"},
                                     {CMD_SHOW_START, L"Start"},
                                     {CMD_SHOW_SYSINFO, L"System info"},
                                     {CMD_SHOW_PROCS, L"Processes"}}),
              menu.Items(10));
    EXPECT_EQ((std::vector<MenuItem>{{CMD_HARDWARE_KEYS, L"Hardware keys"}, {0, L""}, {CMD_ABOUT, L"About"}}),
              menu.Items(12));
}

TEST_F(TaskMenuTest, ApplicationInfoShowsTheReportOnTheSelectedTask)
{
    const HWND a = actor.Make(Task(L"A"));
    Front();
    Select(1);
    Choose(4);
    const HWND dialog = program->WaitForDialog();
    const HWND edit = FindDescendant(dialog, L"Edit", IDC_INFORMATION_TEXT);
    EXPECT_TRUE(WaitFor([=] { return ReportedWindow(TextOf(edit)) == a; }));
    EXPECT_EQ(L"Information", TextOf(dialog));
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(TaskMenuTest, WindowsListShowsTheTree)
{
    ASSERT_TRUE(actor.Make(Task(L"A")));
    Front();
    Select(1);
    Choose(5);
    const HWND dialog = program->WaitForDialog();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(L"Windows list", TextOf(dialog));
    EXPECT_TRUE(FindDescendant(dialog, L"SysTreeView32", IDC_WINDOWS_TREE));
    EXPECT_TRUE(CloseDialog(dialog));
}

TEST_F(TaskMenuTest, RefreshListsAgain)
{
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    Choose(6);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 2; }, std::chrono::seconds(3)));
}

TEST_F(TaskMenuTest, ExitEndsTheProgram)
{
    Choose(9);
    EXPECT_EQ(0u, program->ExitCode(patience).value_or(99));
}
