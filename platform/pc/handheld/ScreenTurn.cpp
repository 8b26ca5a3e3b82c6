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

namespace {

struct Turned
{
    std::vector<HWND> windows;
    HWND front;
};

} // namespace

static bool IsOwn(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

// Now and then the change of the desktop's size puts the home screen before all others in Wine 8.0's order,
// mostly though not in front of the keyboard.
static void RaiseAgain(HWND front)
{
    const HWND now = GetForegroundWindow();
    if (!IsWindow(front) || (now != front && !IsOwn(now))) {
        return;
    }
    SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    if (now != front) {
        SetForegroundWindow(front);
    }
}

static DWORD WINAPI Tell(void* parameter)
{
    const std::unique_ptr<Turned> turned(static_cast<Turned*>(parameter));
    for (HWND window : turned->windows) {
        DWORD_PTR ignored = 0;
        SendMessageTimeoutW(window, WM_SETTINGCHANGE, screenReset, 0, SMTO_ABORTIFHUNG, longestAnswer,
                            &ignored);
    }
    RaiseAgain(turned->front);
    return 0;
}

// After they have been placed. The message cannot be sent without waiting, so a thread of its own waits: the
// shell must not stand still because a program does.
static void TellAll(const std::vector<HWND>& windows, HWND front)
{
    auto turned = std::make_unique<Turned>(Turned{windows, front});
    if (const HANDLE thread = CreateThread(nullptr, 0, Tell, turned.get(), 0, nullptr)) {
        turned.release();
        CloseHandle(thread);
    }
}

long TurnScreen(int orientation)
{
    const RECT screen = handheld::ScreenRect();
    const RECT area = handheld::ProgramRect();
    const int before = handheld::ScreenOrientation();
    const HWND front = GetForegroundWindow();
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
    TellAll(windows, front);
    return DISP_CHANGE_SUCCESSFUL;
}

void StartTurned(int orientation)
{
    handheld::KeepOrientation(handheld::upright);
    TurnScreen(orientation);
}
