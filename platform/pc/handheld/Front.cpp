// Which window is in front of the handheld's programs.
#include "platform/pc/handheld/Front.h"

static bool CanBeInFront(HWND window)
{
    return IsWindowVisible(window) && IsWindowEnabled(window) &&
           (GetWindowLongPtrW(window, GWL_EXSTYLE) & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW)) == 0;
}

// The window that was in front may have gone meanwhile: the next one below it then. The home screen is always
// there. With a window that goes the front may go, too.
void GiveFrontBack(HWND owner, HWND previous)
{
    const HWND front = GetForegroundWindow();
    if (front && front != owner && CanBeInFront(front)) {
        return;
    }
    if (!previous || !CanBeInFront(previous)) {
        previous = GetTopWindow(nullptr);
        while (previous && !CanBeInFront(previous)) {
            previous = GetWindow(previous, GW_HWNDNEXT);
        }
    }
    SetForegroundWindow(previous);
}

// Wine's menus outlive that another program comes to the front. Asynchronous: the menu's program may hang.
bool EndMenuInFront()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (!GetGUIThreadInfo(0, &info) || (info.flags & GUI_INMENUMODE) == 0) {
        return false;
    }
    PostMessageW(info.hwndMenuOwner, WM_CANCELMODE, 0, 0);
    return GetWindowThreadProcessId(info.hwndMenuOwner, nullptr) == GetCurrentThreadId();
}
