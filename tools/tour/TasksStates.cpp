// The states of the running applications.
#include "tools/tour/Tour.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

static bool HasWindowTree(HWND dialog)
{
    const HWND tree = GetDlgItem(dialog, IDC_WINDOWS_TREE);
    return tree && TreeItems(tree).size() > 1;
}

// Main windows that a user can go to; the home screen is one, with a title or without.
static int CountOpenPrograms()
{
    int count = 0;
    for (HWND window : TopWindows()) {
        const LONG exStyle = GetWindowLongW(window, GWL_EXSTYLE);
        const bool named = GetWindowTextLengthW(window) > 0 || ClassOf(window) == L"DesktopExplorerWindow";
        if (IsWindowVisible(window) && IsWindowEnabled(window) && !GetWindow(window, GW_OWNER) && named &&
            !(exStyle & (WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE))) {
            ++count;
        }
    }
    return count;
}

static bool IsThere(HWND)
{
    return true;
}

void Tour::ShowTasks()
{
    Require(WaitFor([&] { return program.VisiblePage() == tasksPage; }),
            "the first page is not Running apps");
    // The page may have been filled before the program's own window was there.
    const bool complete = WaitFor([&] {
        Send(program.MainWindow(), WM_COMMAND, CMD_REFRESH);
        return ListCount(program.List(tasksPage)) == CountOpenPrograms();
    });
    Require(complete, "Running apps does not list every open program");
    Keep("running");
    ShowMenu("running-menu");

    const RECT page = ClientRectOnScreen(program.Page(tasksPage));
    const RECT list = ScreenRectOf(program.List(tasksPage));
    Require(list.top > page.top, "the page has no band above its list");
    Tap({(page.left + page.right) / 2, (page.top + list.top) / 2});
    Require(WaitFor([] { return OpenMenu() != nullptr; }), "a tap on the page's band opens no menu");
    Keep("header-popup");
    CloseMenus();

    SelectRow(tasksPage, 1);
    ShowDialog(CMD_APPLICATION_INFO, "window-report", HasReport);
    SelectRow(tasksPage, 1);
    ShowDialog(CMD_WINDOWS_LIST, "windows-list", HasWindowTree);
    ShowDialog(CMD_ABOUT, "about", IsThere);
    ShowRefusedClose();
}

void Tour::ShowRefusedClose()
{
    // The home screen lies behind everything else, so it is the last row.
    SelectRow(tasksPage, ListCount(program.List(tasksPage)) - 1);
    program.Command(CMD_CLOSE_APPLICATION);
    Require(WaitFor([&] { return program.Notice() != nullptr; }),
            "closing the home screen is not refused by a notice");
    Keep("refused-close");
    const RECT notice = ScreenRectOf(program.Notice());
    Tap({(notice.left + notice.right) / 2, (notice.top + notice.bottom) / 2});
    Require(WaitFor([&] { return program.Notice() == nullptr; }), "the notice does not go away by a tap");
}
