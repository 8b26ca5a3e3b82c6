// ScreenTurn: turns the screen of the handheld, with all windows on it.
#include "platform/pc/handheld/ScreenTurn.h"

#include "platform/pc/common/MessageBoxes.h"
#include "platform/pc/common/Orientation.h"
#include "platform/pc/common/Screen.h"
#include "platform/pc/common/SoftKeys.h"
#include "platform/pc/common/TurnedPlace.h"

#include <memory>
#include <vector>

static constexpr WPARAM screenReset = 0x3002; // of WM_SETTINGCHANGE, as the device's shell sends it
static constexpr UINT longestAnswer = 1000;   // ms

static SIZE SizeOf(const RECT& rect)
{
    return {rect.right - rect.left, rect.bottom - rect.top};
}

// On a desktop that is larger than the handheld, and so the user's, only the windows are turned.
static LONG ResizeDesktop(const SIZE& before, const SIZE& after)
{
    if (GetSystemMetrics(SM_CXSCREEN) != before.cx || GetSystemMetrics(SM_CYSCREEN) != before.cy) {
        return DISP_CHANGE_SUCCESSFUL;
    }
    DEVMODEW mode = {};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
    mode.dmPelsWidth = static_cast<DWORD>(after.cx);
    mode.dmPelsHeight = static_cast<DWORD>(after.cy);
    return ChangeDisplaySettingsExW(nullptr, &mode, nullptr, 0, nullptr);
}

static std::vector<HWND> AllWindows()
{
    std::vector<HWND> windows;
    EnumWindows(
        [](HWND window, LPARAM all) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(all)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

static bool IsClass(HWND window, const wchar_t* name)
{
    wchar_t own[64] = {};
    GetClassNameW(window, own, 64);
    return lstrcmpiW(own, name) == 0;
}

// Bars, message boxes, and windows with a bar that do not cover the screen, find their place by themselves.
static bool FindsItsPlace(HWND window)
{
    return IsClass(window, handheld::menuBarClass) || IsClass(window, L"Shell_TrayWnd") ||
           handheld::FindMenuBar(window) || GetPropW(window, handheld::boxProperty);
}

// Hidden windows are asked for nothing but to cover the screen when they are shown again.
static void Turn(HWND window, const handheld::ScreenChange& change)
{
    RECT place;
    if (IsIconic(window) || !GetWindowRect(window, &place)) {
        return;
    }
    if (!handheld::CoversScreen(place, change) && (!IsWindowVisible(window) || FindsItsPlace(window))) {
        return;
    }
    const RECT turned = handheld::TurnedPlace(place, change);
    SetWindowPos(window, nullptr, turned.left, turned.top, turned.right - turned.left,
                 turned.bottom - turned.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_ASYNCWINDOWPOS);
}

static DWORD WINAPI Tell(void* parameter)
{
    const std::unique_ptr<std::vector<HWND>> windows(static_cast<std::vector<HWND>*>(parameter));
    for (HWND window : *windows) {
        DWORD_PTR ignored = 0;
        SendMessageTimeoutW(window, WM_SETTINGCHANGE, screenReset, 0, SMTO_ABORTIFHUNG, longestAnswer,
                            &ignored);
    }
    return 0;
}

// After they have been placed. The message cannot be sent without waiting, so a thread of its own waits: the
// shell must not stand still because a program does.
static void TellAll(const std::vector<HWND>& windows)
{
    auto copy = std::make_unique<std::vector<HWND>>(windows);
    if (const HANDLE thread = CreateThread(nullptr, 0, Tell, copy.get(), 0, nullptr)) {
        copy.release();
        CloseHandle(thread);
    }
}

long TurnScreen(int orientation)
{
    const RECT screen = handheld::ScreenRect();
    const RECT area = handheld::ProgramRect();
    const int before = handheld::ScreenOrientation();
    if (orientation == before) {
        return DISP_CHANGE_SUCCESSFUL;
    }
    if (!handheld::KeepOrientation(orientation)) {
        return DISP_CHANGE_FAILED;
    }
    const LONG result = ResizeDesktop(SizeOf(screen), SizeOf(handheld::ScreenRect()));
    if (result != DISP_CHANGE_SUCCESSFUL) {
        handheld::KeepOrientation(before);
        return result;
    }
    const handheld::ScreenChange change = {area, handheld::ProgramRect(), handheld::BarHeight()};
    const std::vector<HWND> windows = AllWindows();
    for (HWND window : windows) {
        Turn(window, change);
    }
    TellAll(windows);
    return DISP_CHANGE_SUCCESSFUL;
}

void StartTurned(int orientation)
{
    handheld::KeepOrientation(handheld::upright);
    TurnScreen(orientation);
}
