// The menu of the page of running applications: its items, and that each runs its command.
#include "resources/ids.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

using namespace rig;

namespace {

struct Item
{
    int command; // 0 of a separator, -1 of a submenu
    std::wstring text;
    bool operator==(const Item&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Item& item)
{
    return stream << item.command << " " << testing::PrintToString(item.text);
}

} // namespace

static std::vector<Item> ItemsOf(HMENU menu)
{
    std::vector<Item> items;
    for (int i = 0; i < GetMenuItemCount(menu); i++) {
        wchar_t text[100] = {};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        items.push_back({static_cast<int>(GetMenuItemID(menu, i)), text});
    }
    return items;
}

class TaskMenuTest : public TasksScreen
{
  protected:
    const Actor actor;

    void Choose(int item) const
    {
        PressKey(VK_F2);
        ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
        PressKey(VK_DOWN, item);
        PressKey(VK_RETURN);
    }
};

TEST_F(TaskMenuTest, TheItemsHaveTheirTextsAndOrder)
{
    // A menu's items cannot be asked for from another process, so they are read from the program's file.
    const HMODULE file =
        LoadLibraryExW((ProgramFolder() + L"\\Quorvane.exe").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_TRUE(file);
    const HMENU menu = LoadMenuW(file, MAKEINTRESOURCEW(134));
    const HMENU items = GetSubMenu(menu, 0);
    EXPECT_EQ((std::vector<Item>{{CMD_SWITCH_TO_APPLICATION, L"Switch to appliction"},
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
              ItemsOf(items));
    EXPECT_EQ((std::vector<Item>{{CMD_SHOW_TASKS, L"Runnig apps"},
                                 {CMD_SHOW_START, L"Start"},
                                 {CMD_SHOW_SYSINFO, L"System info"},
                                 {CMD_SHOW_PROCS, L"Processes"}}),
              ItemsOf(GetSubMenu(items, 10)));
    EXPECT_EQ((std::vector<Item>{{CMD_HARDWARE_KEYS, L"Hardware keys"}, {0, L""}, {CMD_ABOUT, L"About"}}),
              ItemsOf(GetSubMenu(items, 12)));
    DestroyMenu(menu);
    FreeLibrary(file);
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
