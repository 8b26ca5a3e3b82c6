// Soft keys of the active window.
#include "platform/pc/common/SoftKeys.h"

#include "platform/pc/common/Screen.h"

namespace handheld {

namespace {

struct OpenMenu
{
    MenuKey ownKey;
    int pressedKey = -1;
    HHOOK hook = nullptr;
};

} // namespace

static thread_local OpenMenu* openMenu = nullptr;

// Of a key that is held down.
static bool IsRepeated(const MSG& keyDown)
{
    return (keyDown.lParam & (1 << 30)) != 0;
}

// A menu runs its own message loop, which asks this filter about every message first.
static LRESULT CALLBACK FilterMenuMessage(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_MENU && openMenu) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        const int key = SoftKeyIndex(message.wParam);
        if (key >= 0 && message.message == WM_KEYDOWN && IsRepeated(message)) {
            return TRUE;
        }
        if (key >= 0 && message.message == WM_KEYDOWN) {
            if (key != openMenu->ownKey.index) {
                openMenu->pressedKey = key;
            }
            EndMenu();
            return TRUE;
        }
        if (key >= 0 && message.message == WM_KEYUP) {
            return TRUE;
        }
        const bool tap = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
        if (tap && PtInRect(&openMenu->ownKey.place, message.pt)) {
            EndMenu();
            return TRUE;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

HWND FindMenuBar(HWND owner)
{
    for (HWND bar = nullptr; (bar = FindWindowExW(nullptr, bar, menuBarClass, nullptr)) != nullptr;) {
        if (GetWindow(bar, GW_OWNER) == owner) {
            return bar;
        }
    }
    return nullptr;
}

int SoftKeyIndex(WPARAM virtualKey)
{
    return virtualKey == VK_F1 ? 0 : virtualKey == VK_F2 ? 1 : -1;
}

bool HandleSoftKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN && message.message != WM_KEYUP) {
        return false;
    }
    const int key = SoftKeyIndex(message.wParam);
    if (key < 0) {
        return false;
    }
    const HWND bar = FindMenuBar(GetActiveWindow());
    if (!bar) {
        return false;
    }
    if (message.message == WM_KEYDOWN && !IsRepeated(message)) {
        SendMessageW(bar, WM_PRESS_SOFT_KEY, static_cast<WPARAM>(key), 0);
    }
    return true;
}

// A menu that is too long scrolls between the bars instead of covering them.
static void KeepBetweenBars(HMENU menu)
{
    const RECT area = ProgramRect();
    MENUINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIM_MAXHEIGHT | MIM_APPLYTOSUBMENUS;
    info.cyMax = static_cast<UINT>(area.bottom - BarHeight() - area.top);
    SetMenuInfo(menu, &info);
}

int TrackMenu(HMENU menu, UINT flags, int x, int y, HWND owner, const TPMPARAMS* parameters,
              const MenuKey& ownKey)
{
    OpenMenu open;
    open.ownKey = ownKey;
    open.hook = SetWindowsHookExW(WH_MSGFILTER, FilterMenuMessage, nullptr, GetCurrentThreadId());
    OpenMenu* const outer = openMenu;
    openMenu = &open;
    TPMPARAMS copy = {};
    if (parameters) {
        copy = *parameters;
    }
    KeepBetweenBars(menu);
    const int result = TrackPopupMenuEx(menu, flags, x, y, owner, parameters ? &copy : nullptr);
    openMenu = outer;
    if (open.hook) {
        UnhookWindowsHookEx(open.hook);
    }
    if (open.pressedKey >= 0) {
        PostMessageW(owner, WM_KEYDOWN, open.pressedKey == 0 ? VK_F1 : VK_F2, 1);
    }
    return result;
}

} // namespace handheld
