// The rules about the windows of running applications.
#include "pages/tasks/TaskWindows.h"

bool IsEligibleWindow(HWND window)
{
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) {
        return false;
    }
    const LONG_PTR extended = GetWindowLongPtrW(window, GWL_EXSTYLE);
    return (extended & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW)) == 0;
}

void ChooseTaskName(HWND window, HWND topOwner, CStr& name)
{
    const bool ownerVisible = IsWindowVisible(topOwner) != FALSE;
    WindowTitle(ownerVisible ? topOwner : window, name);
    if (name.IsEmpty()) {
        WindowTitle(ownerVisible ? window : topOwner, name);
    }
}

bool IsProtectedClass(const CStr& className)
{
    return className.CompareNoCase(L"DesktopExplorerWindow") == 0 || className.CompareNoCase(L"Explore") == 0;
}
