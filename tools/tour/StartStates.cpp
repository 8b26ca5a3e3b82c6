// The states of the launcher, and the handheld's own Start menu.
#include "tools/tour/Tour.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

void Tour::Search(const wchar_t* text)
{
    const HWND box = GetDlgItem(program.Page(launcherPage), IDC_SEARCH);
    Require(WaitFor([&] { return FocusOf(program.MainWindow()) == box; }),
            "the search box has not got the focus");
    PressKey(VK_END);
    for (size_t left = TextOf(box).size(); left > 0; left--) {
        PressKey(VK_ESCAPE); // the Back key of the handheld
    }
    Require(WaitFor([&] { return TextOf(box).empty(); }), "the Back key does not erase the search");
    TypeText(text);
    Require(WaitFor([&] { return TextOf(box) == text; }), "what is typed does not reach the search box");
}

void Tour::ShowStart()
{
    const HWND list = program.List(launcherPage);
    GoToPage(launcherPage, CMD_SHOW_START);
    Require(ListCount(list) > 2, "the launcher lists no programs");
    Keep("start");
    ShowMenu("start-menu");
    Search(L"no");
    Require(WaitFor([=] { return ListCount(list) > 0; }), "the search finds nothing");
    Keep("start-search");
    ShowDialog(CMD_APPLICATION_INFO, "shortcut-report", HasReport);
    ShowSearchMenu();
    Search(L"zzz");
    Require(WaitFor([=] { return ListCount(list) == 0; }), "the search finds what is not there");
    Keep("start-no-matches");
    Search(L"");
}

void Tour::ShowSearchMenu()
{
    if (!FindWindowW(L"DesktopExplorerWindow", L"Today")) {
        return; // a Smartphone, whose home screen has no title, has no stylus either
    }
    const RECT box = ScreenRectOf(GetDlgItem(program.Page(launcherPage), IDC_SEARCH));
    const LONG middle = (box.top + box.bottom) / 2;
    StylusDown({box.left + (box.right - box.left) / 4, middle});
    Require(WaitFor([] { return OpenMenu() != nullptr; }),
            "holding the stylus on the search box opens no menu");
    StylusUp({box.right - 1, middle});
    Keep("search-menu");
    CloseMenus();
}

void Tour::ShowStartButton()
{
    const RECT bar = ScreenRectOf(FindWindowW(L"Shell_TrayWnd", nullptr));
    const LONG middle = (bar.bottom - bar.top) / 2;
    Tap({middle, middle});
    HWND menu = nullptr;
    Require(WaitFor([&] { return (menu = OpenMenu()) != nullptr; }), "a tap on the flag opens no menu");
    PressKey(VK_UP); // the last line, a folder
    PressKey(VK_RIGHT);
    Require(WaitFor([=] { return OpenMenu() != menu; }), "the folder's menu does not open");
    Keep("start-button");
    CloseMenus();
    Require(WaitFor([&] { return GetForegroundWindow() == program.MainWindow(); }),
            "Quorvane does not come back to the front");
}
