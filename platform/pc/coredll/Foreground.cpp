// Bringing a window to the foreground and sending it away, as the device's shell does.
#include "platform/pc/coredll/Foreground.h"

#include "platform/pc/common/SoftKeys.h"

static constexpr UINT keepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

namespace {

// The visible top-level windows, front-most first. A fixed number is enough: what lies deeper is covered.
struct WindowStack
{
    static constexpr int capacity = 128;
    HWND windows[capacity];
    int count = 0;

    WindowStack() { EnumWindows(Add, reinterpret_cast<LPARAM>(this)); }

    static BOOL CALLBACK Add(HWND window, LPARAM parameter)
    {
        auto& stack = *reinterpret_cast<WindowStack*>(parameter);
        if (IsWindowVisible(window)) {
            stack.windows[stack.count++] = window;
        }
        return stack.count < capacity;
    }
};

} // namespace

static bool IsOwnedBy(HWND window, HWND owner)
{
    while ((window = GetWindow(window, GW_OWNER)) != nullptr) {
        if (window == owner) {
            return true;
        }
    }
    return false;
}

static bool CanBeForeground(HWND window)
{
    const LONG_PTR exStyle = GetWindowLongPtrW(window, GWL_EXSTYLE);
    return IsWindowEnabled(window) && (exStyle & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW)) == 0;
}

static bool IsMenuBar(HWND window)
{
    wchar_t name[32];
    return GetClassNameW(window, name, 32) > 0 && lstrcmpW(name, handheld::menuBarClass) == 0;
}

// Another thread's window may belong to a program that hangs: nothing waits for it.
static BOOL Show(HWND window, int command)
{
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) {
        return ShowWindow(window, command);
    }
    const BOOL wasVisible = IsWindowVisible(window);
    ShowWindowAsync(window, command);
    return wasVisible;
}

// A program that is minimised as it starts may not have been told yet that it is in front; told later, it
// would come to the front again.
static void DeliverPending()
{
    MSG unused;
    PeekMessageW(&unused, nullptr, 0, 0, PM_NOREMOVE);
}

// On a busy machine the screen's driver tells of the activation that showing the window brought only after it
// was lowered, and Wine then puts it before the others again, for good. So its place is looked at for a
// second.
static constexpr UINT_PTR lowerTimer = 0x7101; // beyond the ids of the program's own timers
static constexpr UINT lowerMs = 100;
static int lowersLeft; // of the program's one main window

static void CALLBACK LowerAgain(HWND window, UINT, UINT_PTR timer, DWORD)
{
    if (--lowersLeft <= 0) {
        KillTimer(window, timer);
    }
    // The user may have brought it, or a dialog of its, forward again meanwhile.
    if (GetWindowThreadProcessId(GetForegroundWindow(), nullptr) != GetCurrentThreadId()) {
        SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, keepPlace);
    }
}

static void KeepLowered(HWND window)
{
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) {
        lowersLeft = 10;
        SetTimer(window, lowerTimer, lowerMs, LowerAgain);
    }
}

// The window's own program takes the front, a moment later on a busy machine; until then nothing is in front.
// A program that a button starts asks at once which one is, to close or to spare it.
static void AwaitFront(HWND window)
{
    static constexpr int mostWaits = 200;
    for (int i = 0; i < mostWaits && GetForegroundWindow() != window && IsWindow(window); ++i) {
        Sleep(10);
        DeliverPending();
    }
}

// A disabled window waits for one that it owns, a dialog or a message box: that one is what the user wants to
// see.
static HWND WindowToActivate(const WindowStack& stack, HWND window)
{
    if (IsWindowEnabled(window)) {
        return window;
    }
    for (int i = 0; i < stack.count; ++i) {
        if (IsOwnedBy(stack.windows[i], window) && CanBeForeground(stack.windows[i])) {
            return stack.windows[i];
        }
    }
    return window;
}

static constexpr wchar_t keptAbove[] = L"QuorvaneKeptAbove"; // a window's property

void KeepAbove(HWND window)
{
    SetPropW(window, keptAbove, reinterpret_cast<HANDLE>(UINT_PTR{1}));
}

// Those of this program, in the order that they have among themselves.
static void RaiseKeptWindows()
{
    const WindowStack stack;
    for (int i = stack.count - 1; i >= 0; --i) {
        const HWND window = stack.windows[i];
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() &&
            GetPropW(window, keptAbove) != nullptr) {
            SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, keepPlace);
        }
    }
}

BOOL BringToForeground(HWND window)
{
    if (!IsWindow(window)) {
        return FALSE;
    }
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    AllowSetForegroundWindow(process);
    // Asynchronous throughout: the other program may hang.
    if (IsIconic(window)) {
        ShowWindowAsync(window, SW_RESTORE);
    }
    const WindowStack stack;
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, keepPlace | SWP_ASYNCWINDOWPOS);
    // The stack is front-most first, so raising from its end keeps the pop-ups' order among themselves.
    for (int i = stack.count - 1; i >= 0; --i) {
        if (IsOwnedBy(stack.windows[i], window)) {
            SetWindowPos(stack.windows[i], HWND_TOP, 0, 0, 0, 0, keepPlace | SWP_ASYNCWINDOWPOS);
        }
    }
    return SetForegroundWindow(WindowToActivate(stack, window));
}

// The PC's own minimising would shrink the window to a stub, tell it the size 0 x 0 and leave it active. On
// the device the next window comes to the front and the minimised one stays as it is behind the others.
BOOL SendToBackground(HWND window)
{
    DeliverPending();
    const BOOL wasVisible = IsWindowVisible(window);
    if (!wasVisible) {
        Show(window, SW_SHOWNOACTIVATE);
    }
    const WindowStack stack;
    HWND next = nullptr;
    for (int i = 0; i < stack.count; ++i) {
        const HWND other = stack.windows[i];
        if (IsMenuBar(other) && IsOwnedBy(other, window)) {
            Show(other, SW_HIDE);
        } else if (IsOwnedBy(other, window)) {
            SetWindowPos(other, HWND_BOTTOM, 0, 0, 0, 0, keepPlace | SWP_ASYNCWINDOWPOS);
        } else if (!next && other != window && CanBeForeground(other) && !IsHungAppWindow(other)) {
            next = other;
        }
    }
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, keepPlace | SWP_ASYNCWINDOWPOS);
    KeepLowered(window);
    if (next) {
        SetForegroundWindow(next);
        AwaitFront(next);
    } else {
        SetActiveWindow(nullptr);
    }
    return wasVisible;
}

// The device takes a handle with its lowest bit set for "and its pop-ups too", which happens here always.
extern "C" BOOL WINAPI ce_SetForegroundWindow(HWND window)
{
    return BringToForeground(reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) & ~ULONG_PTR{1}));
}

extern "C" BOOL WINAPI ce_ShowWindow(HWND window, int command)
{
    const bool topLevel = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) == 0;
    if (!topLevel) {
        return Show(window, command);
    }
    if (command == SW_MINIMIZE) {
        return SendToBackground(window);
    }
    const BOOL wasVisible = Show(window, command);
    const bool activates = command == SW_SHOWNORMAL || command == SW_SHOW || command == SW_RESTORE;
    // A minimised window is still visible here, so showing it again would do nothing.
    if (wasVisible && activates && GetForegroundWindow() != window) {
        BringToForeground(window);
    }
    if (activates) {
        RaiseKeptWindows();
    }
    return wasVisible;
}
