// Closing all running applications.
#include "pages/tasks/CloseTasks.h"

#include "framework/CVireoApp.h"
#include "pages/tasks/TaskWindows.h"

BOOL CALLBACK CloseAllTasksProc(HWND window, LPARAM sparedWindow)
{
    if (window == nullptr) {
        return FALSE;
    }
    if (!IsEligibleWindow(window)) {
        return TRUE;
    }
    HWND topOwner = TopOwner(window);
    if (topOwner == CVireoApp::Current()->MainWindow() || topOwner == reinterpret_cast<HWND>(sparedWindow)) {
        return TRUE;
    }
    CStr name;
    ChooseTaskName(window, topOwner, name);
    CStr className;
    WindowClass(topOwner, className);
    if (!name.IsEmpty() && !IsProtectedClass(className)) {
        SendMessageW(topOwner, WM_CLOSE, 0, 0);
    }
    return TRUE;
}
