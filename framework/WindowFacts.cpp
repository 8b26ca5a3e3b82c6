// Facts about windows.
#include "framework/WindowFacts.h"

#include "framework/PathText.h"

void WindowTitle(HWND window, CStr& title)
{
    CPathText text;
    GetWindowTextW(window, text.Room(), pathSize);
    title = text;
}

void WindowClass(HWND window, CStr& className)
{
    CPathText text;
    GetClassNameW(window, text.Room(), pathSize);
    className = text;
}

DWORD WindowProcessId(HWND window)
{
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    return processId;
}

HWND TopOwner(HWND window)
{
    HWND top = window;
    while (HWND owner = GetWindow(top, GW_OWNER)) {
        top = owner;
    }
    return top;
}
