// The shell library's functions that it exports without a name, so that only their numbers can be looked up.
#include "platform/device/Aygshell.h"

#include "platform/device/LateFunction.h"

#include "LateExports.h"

// A Smartphone has none, and need not have the functions for it.
static bool HasInputPanel()
{
    wchar_t platform[260];
    return SystemParametersInfoW(SPI_GETPLATFORMTYPE, 260, platform, 0) &&
           _wcsicmp(platform, L"PocketPC") == 0;
}

enum ShellFunction : size_t
{
    HandleSettingChange,
    HandleActivate,
    SendBack
};

static constinit LateFunction shellFunctions[] = {
    {late::SHHandleWMSettingChange,
     L"This device's shell lacks a function (aygshell.dll, 83): the input panel can cover the page.",
     HasInputPanel},
    {late::SHHandleWMActivate,
     L"This device's shell lacks a function (aygshell.dll, 84): the input panel can stay open.",
     HasInputPanel},
    {late::SHSendBackToFocusWindow,
     L"This device's shell lacks a function (aygshell.dll, 97): the Back key does not delete text."},
};

void LookUpShellFunctions()
{
    for (LateFunction& function : shellFunctions) {
        function.LookUp();
    }
}

extern "C" {

BOOL WINAPI SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info)
{
    auto* function = shellFunctions[HandleSettingChange].As<decltype(SHHandleWMSettingChange)>();
    return function ? function(window, wParam, lParam, info) : FALSE;
}

BOOL WINAPI SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* info, DWORD flags)
{
    auto* function = shellFunctions[HandleActivate].As<decltype(SHHandleWMActivate)>();
    return function ? function(window, wParam, lParam, info, flags) : FALSE;
}

void WINAPI SHSendBackToFocusWindow(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (auto* function = shellFunctions[SendBack].As<decltype(SHSendBackToFocusWindow)>()) {
        function(message, wParam, lParam);
    }
}
}
