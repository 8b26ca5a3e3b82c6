// The shell library's functions that it exports without a name, so that only their numbers can be looked up.
#include "platform/device/LateFunction.h"

#include "LateExports.h"

// A Smartphone has none, and need not have the functions for it.
static bool HasInputPanel()
{
    wchar_t platform[260];
    return SystemParametersInfoW(SPI_GETPLATFORMTYPE, 260, platform, 0) &&
           _wcsicmp(platform, L"PocketPC") == 0;
}

static constinit LateFunction handleSettingChange(
    late::SHHandleWMSettingChange,
    L"This device's shell lacks a function (aygshell.dll, 83): the input panel can cover the page.",
    HasInputPanel);
static constinit LateFunction
    handleActivate(late::SHHandleWMActivate,
                   L"This device's shell lacks a function (aygshell.dll, 84): the input panel can stay open.",
                   HasInputPanel);
static constinit LateFunction
    sendBack(late::SHSendBackToFocusWindow,
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
