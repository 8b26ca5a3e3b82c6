// When a task manager shows its first page.
#include "bench/start/FirstPage.h"

#include "rig/Desktop.h"
#include "rig/Picture.h"

static BOOL CALLBACK FindVisibleList(HWND window, LPARAM found)
{
    if (!IsWindowVisible(window) || rig::ClassOf(window) != L"SysListView32") {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

static HWND VisibleListOf(DWORD process)
{
    HWND list = nullptr;
    for (HWND window : rig::TopWindows()) {
        if (!list && rig::ProcessOf(window) == process && IsWindowVisible(window)) {
            EnumChildWindows(window, FindVisibleList, reinterpret_cast<LPARAM>(&list));
        }
    }
    return list;
}

// Where the rows are.
static RECT RowArea(HWND list)
{
    RECT area = rig::ClientRectOnScreen(list);
    const HWND header = FindWindowExW(list, nullptr, L"SysHeader32", nullptr);
    if (header && IsWindowVisible(header)) {
        area.top = rig::ScreenRectOf(header).bottom;
    }
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    RECT visible = {};
    IntersectRect(&visible, &area, &screen);
    return visible;
}

bool ShowsFirstPage(DWORD process)
{
    const HWND list = VisibleListOf(process);
    if (!list) {
        return false;
    }
    const rig::Picture rows = rig::Picture::OfScreen(RowArea(list));
    const int pixels = rows.Width() * rows.Height();
    const int blank = rows.Count(GetSysColor(COLOR_WINDOW));
    // What is behind the list before it is painted is not of the window colour.
    constexpr int leastWritten = 50;
    return blank > pixels / 3 && pixels - blank >= leastWritten;
}
