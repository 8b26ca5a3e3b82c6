// Bringing a window to the foreground and sending it away, as the device's shell does.
#include "platform/pc/coredll/Foreground.h"

#include "platform/pc/common/SoftKeys.h"

namespace {

constexpr UINT KeepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

// The visible top-level windows, front-most first. A fixed number is enough: what lies deeper is covered.
struct WindowStack
{
    static constexpr int Capacity = 128;
    HWND windows[Capacity];
    int count = 0;

    WindowStack() { EnumWindows(Add, reinterpret_cast<LPARAM>(this)); }

    static BOOL CALLBACK Add(HWND window, LPARAM parameter)
    {
        auto& stack = *reinterpret_cast<WindowStack*>(parameter);
        if (IsWindowVisible(window))
            stack.windows[stack.count++] = window;
        return stack.count < Capacity;
    }
};

bool IsOwnedBy(HWND window, HWND owner)
{
    while ((window = GetWindow(window, GW_OWNER)) != nullptr)
        if (window == owner)
            return true;
    return false;
}

bool CanBeForeground(HWND window)
{
    const LONG_PTR exStyle = GetWindowLongPtrW(window, GWL_EXSTYLE);
    return IsWindowEnabled(window) && (exStyle & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW)) == 0;
}

bool IsMenuBar(HWND window)
{
    wchar_t name[32];
    return GetClassNameW(window, name, 32) > 0 && lstrcmpW(name, handheld::MenuBarClass) == 0;
}

// A disabled window waits for one that it owns, a dialog or a message box: that one is what the user wants to
// see.
HWND WindowToActivate(const WindowStack& stack, HWND window)
{
    if (IsWindowEnabled(window))
        return window;
    for (int i = 0; i < stack.count; ++i)
        if (IsOwnedBy(stack.windows[i], window) && CanBeForeground(stack.windows[i]))
            return stack.windows[i];
    return window;
}

} // namespace

BOOL BringToForeground(HWND window)
{
    if (!IsWindow(window))
        return FALSE;
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    AllowSetForegroundWindow(process);
    // Asynchronous throughout: the other program may hang.
    if (IsIconic(window))
        ShowWindowAsync(window, SW_RESTORE);
    const WindowStack stack;
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, KeepPlace | SWP_ASYNCWINDOWPOS);
    // The stack is front-most first, so raising from its end keeps the pop-ups' order among themselves.
    for (int i = stack.count - 1; i >= 0; --i)
        if (IsOwnedBy(stack.windows[i], window))
            SetWindowPos(stack.windows[i], HWND_TOP, 0, 0, 0, 0, KeepPlace | SWP_ASYNCWINDOWPOS);
    return SetForegroundWindow(WindowToActivate(stack, window));
}

// The PC's own minimising would shrink the window to a stub, tell it the size 0 x 0 and leave it active. On
// the device the next window comes to the front and the minimised one stays as it is behind the others.
BOOL SendToBackground(HWND window)
{
    const BOOL wasVisible = IsWindowVisible(window);
    if (!wasVisible)
        ShowWindow(window, SW_SHOWNOACTIVATE);
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, KeepPlace);
    const WindowStack stack;
    HWND next = nullptr;
    // Wine's screen driver never lowers a window: raise all others, the front-most last.
    for (int i = stack.count - 1; i >= 0; --i) {
        const HWND other = stack.windows[i];
        if (other == window || IsOwnedBy(other, window)) {
            if (IsMenuBar(other))
                ShowWindow(other, SW_HIDE);
            continue;
        }
        // One after the other, or a slow program would raise its window above one that was to be in front of
        // it.
        const UINT waiting = IsHungAppWindow(other) ? SWP_ASYNCWINDOWPOS : 0;
        SetWindowPos(other, HWND_TOP, 0, 0, 0, 0, KeepPlace | waiting);
        if (waiting == 0 && CanBeForeground(other))
            next = other;
    }
    if (next)
        SetForegroundWindow(next);
    else
        SetActiveWindow(nullptr);
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
    if (!topLevel)
        return ShowWindow(window, command);
    if (command == SW_MINIMIZE)
        return SendToBackground(window);
    const BOOL wasVisible = ShowWindow(window, command);
    const bool activates = command == SW_SHOWNORMAL || command == SW_SHOW || command == SW_RESTORE;
    // A minimised window is still visible here, so showing it again would do nothing.
    if (wasVisible && activates && GetForegroundWindow() != window)
        BringToForeground(window);
    return wasVisible;
}
