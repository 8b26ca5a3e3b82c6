// Message boxes as a handheld shows them.
#include "platform/pc/common/MessageBoxes.h"

#include "platform/pc/common/BoxLayout.h"
#include "platform/pc/common/BoxParts.h"
#include "platform/pc/common/SoftKeys.h"

namespace handheld {

// A box runs its own message loop, which asks this filter about every message first.
static LRESULT CALLBACK FilterBoxMessage(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_DIALOGBOX) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        const int key = SoftKeyIndex(message.wParam);
        if (key >= 0 && message.message == WM_KEYDOWN) {
            const BoxParts box(GetActiveWindow());
            if (key == 0 && !box.buttons.empty()) {
                PostMessageW(box.buttons.front(), BM_CLICK, 0, 0);
            } else if (key == 1 && box.buttons.size() > 1) {
                PostMessageW(box.buttons.back(), BM_CLICK, 0, 0);
            }
            return TRUE;
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

static LRESULT CALLBACK MendBox(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION) {
        const auto& returned = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        // The box is complete when it has initialised itself, and not yet shown.
        if (returned.message == WM_INITDIALOG) {
            FitIntoScreen(returned.hwnd);
            SetPropW(returned.hwnd, boxProperty, reinterpret_cast<HANDLE>(1));
        } else if (returned.message == WM_SETTINGCHANGE && GetPropW(returned.hwnd, boxProperty)) {
            FollowScreen(returned.hwnd);
        } else if (returned.message == WM_DESTROY) {
            RemovePropW(returned.hwnd, boxProperty);
            // The first window that a process shows gets the caption of an inactive one from Wine 8.0.
        } else if (returned.message == WM_ACTIVATE && LOWORD(returned.wParam) != WA_INACTIVE) {
            SendMessageW(returned.hwnd, WM_NCACTIVATE, TRUE, 0);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

int ShowMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type)
{
    const HHOOK filter = SetWindowsHookExW(WH_MSGFILTER, FilterBoxMessage, nullptr, GetCurrentThreadId());
    const HHOOK mender = SetWindowsHookExW(WH_CALLWNDPROCRET, MendBox, nullptr, GetCurrentThreadId());
    const int answer = MessageBoxW(owner, text, caption, type);
    if (mender) {
        UnhookWindowsHookEx(mender);
    }
    if (filter) {
        UnhookWindowsHookEx(filter);
    }
    return answer;
}

} // namespace handheld
