// Facts about windows.
#include "framework/WindowFacts.h"

static constexpr int textLength = 260; // characters with the terminator

void WindowTitle(HWND window, CStr& title)
{
    wchar_t text[textLength] = {};
    GetWindowTextW(window, text, textLength);
    title = text;
}

void WindowClass(HWND window, CStr& className)
{
    wchar_t text[textLength] = {};
    GetClassNameW(window, text, textLength);
    className = text;
}

DWORD WindowProcessId(HWND window)
{
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    return processId;
}
