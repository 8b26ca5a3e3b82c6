// The shell library's functions that it exports without a name, so that only their numbers can be looked up.
#include "platform/device/LateFunction.h"

static constinit LateFunction handleSettingChange(
    L"aygshell.dll", 83,
    L"This device's shell lacks a function (aygshell.dll, 83): the input panel can cover the page.");
static constinit LateFunction handleActivate(
    L"aygshell.dll", 84,
    L"This device's shell lacks a function (aygshell.dll, 84): the input panel can stay open.");
static constinit LateFunction
    sendBack(L"aygshell.dll", 97,
             L"This device's shell lacks a function (aygshell.dll, 97): the Back key does not delete text.");

extern "C" {

BOOL WINAPI SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info)
{
    auto* function = handleSettingChange.As<decltype(SHHandleWMSettingChange)>();
    return function ? function(window, wParam, lParam, info) : FALSE;
}

BOOL WINAPI SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info, DWORD flags)
{
    auto* function = handleActivate.As<decltype(SHHandleWMActivate)>();
    return function ? function(window, wParam, lParam, info, flags) : FALSE;
}

void WINAPI SHSendBackToFocusWindow(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (auto* function = sendBack.As<decltype(SHSendBackToFocusWindow)>()) {
        function(message, wParam, lParam);
    }
}
}
