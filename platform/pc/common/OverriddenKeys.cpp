// Overridden keys of the active window's menu bar.
#include "platform/pc/common/OverriddenKeys.h"

#include "platform/ce/Aygshell.h"
#include "platform/pc/common/SoftKeys.h"

namespace handheld {

// Of a pressed key that its owner has been told of: it is told of the release too, but of no other.
static thread_local WPARAM toldKey = 0;

static UINT OverrideOf(HWND bar, WPARAM key)
{
    return static_cast<UINT>(SendMessageW(bar, WM_ASK_KEY_OVERRIDE, key, 0));
}

bool GiveOverriddenKey(MSG& message)
{
    const WPARAM key = message.wParam;
    const bool pressed = message.message == WM_KEYDOWN;
    if ((!pressed && message.message != WM_KEYUP) || (key != VK_ESCAPE && SoftKeyIndex(key) < 0)) {
        return false;
    }
    const bool wasTold = toldKey == key;
    if (!pressed && wasTold) {
        toldKey = 0;
    }
    const HWND bar = FindMenuBar(GetActiveWindow());
    const UINT bits = bar ? OverrideOf(bar, key) : 0;
    const bool tells = (bits & SHMBOF_NOTIFY) != 0 && (pressed || wasTold);
    const LPARAM told = MAKELPARAM(pressed ? 0 : MOD_KEYUP, key);
    if (pressed && tells) {
        toldKey = key;
    }
    if ((bits & SHMBOF_NODEFAULT) == 0) {
        if (tells) {
            PostMessageW(GetWindow(bar, GW_OWNER), WM_HOTKEY, key, told);
        }
        return false;
    }
    if (tells) {
        message.hwnd = GetWindow(bar, GW_OWNER);
        message.wParam = key;
        message.lParam = told;
    }
    message.message = tells ? WM_HOTKEY : WM_NULL;
    return true;
}

} // namespace handheld
