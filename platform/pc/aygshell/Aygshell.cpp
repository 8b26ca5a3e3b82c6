// The exports of the aygshell substitute.
#include "platform/ce.h"
#include "platform/pc/aygshell/BarOwner.h"
#include "platform/pc/aygshell/MenuBar.h"
#include "platform/pc/common/ActiveProfile.h"
#include "platform/pc/common/Screen.h"

#include <vector>

static constexpr WPARAM inputPanelSetting = SPI_SETSIPINFO;

// Frames that a window covering the whole screen has no use for; its title stands in the top bar.
static constexpr LONG_PTR frameStyles = WS_CAPTION | WS_THICKFRAME | WS_SYSMENU | DS_MODALFRAME;
static constexpr LONG_PTR frameExStyles = WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE;

static void CoverProgramRect(HWND dialog)
{
    SetWindowLongPtrW(dialog, GWL_STYLE, GetWindowLongPtrW(dialog, GWL_STYLE) & ~frameStyles);
    SetWindowLongPtrW(dialog, GWL_EXSTYLE, GetWindowLongPtrW(dialog, GWL_EXSTYLE) & ~frameExStyles);
    const RECT area = handheld::ProgramRect();
    SetWindowPos(dialog, nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top - handheld::BarHeight(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// With the bar's colour or, older, without.
static bool IsMenuBarInfoSize(DWORD size)
{
    return size == sizeof(SHMENUBARINFO) || size == offsetof(SHMENUBARINFO, clrBk);
}

static bool CanTakeFocus(HWND window, HWND root)
{
    return window && (window == root || IsChild(root, window)) && IsWindowVisible(window) &&
           IsWindowEnabled(window);
}

extern "C" BOOL WINAPI ce_SHInitExtraControls()
{
    return TRUE;
}

extern "C" BOOL WINAPI ce_SHCreateMenuBar(SHMENUBARINFO* info)
{
    if (!info || !IsMenuBarInfoSize(info->cbSize) || !IsWindow(info->hwndParent)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const bool empty = (info->dwFlags & SHCMBF_EMPTYBAR) != 0;
    if (!empty && info->nToolBarId == 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    info->hwndMB = MenuBar::Create(info->hwndParent, info->hInstRes, empty ? 0 : info->nToolBarId);
    if (!info->hwndMB) {
        return FALSE;
    }
    KeepBarWithOwner(info->hwndParent);
    return TRUE;
}

// Keeps the focus over the time the window is inactive. The bar comes forward by itself.
extern "C" BOOL WINAPI ce_SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM, SHACTIVATEINFO* info, DWORD)
{
    const bool active = LOWORD(wParam) != WA_INACTIVE;
    if (info) {
        info->fActive = active;
    }
    const HWND focus = GetFocus();
    if (!active) {
        if (info && CanTakeFocus(focus, window)) {
            info->hwndLastFocus = focus;
        }
    } else if (IsWindowEnabled(window)) {
        const HWND last = info ? info->hwndLastFocus : nullptr;
        if (CanTakeFocus(last, window)) {
            SetFocus(last);
        } else if (!CanTakeFocus(focus, window)) {
            SetFocus(window);
        }
    }
    return TRUE;
}

// The handheld has no input panel that could cover a window.
extern "C" BOOL WINAPI ce_SHHandleWMSettingChange(HWND, WPARAM wParam, LPARAM, SHACTIVATEINFO* info)
{
    return wParam == inputPanelSetting && info != nullptr;
}

extern "C" BOOL WINAPI ce_SHInitDialog(SHINITDLGINFO* info)
{
    if (!info || (info->dwMask & SHIDIM_FLAGS) == 0 || !IsWindow(info->hDlg)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (info->dwFlags & SHIDIF_SIZEDLGFULLSCREEN) {
        CoverProgramRect(info->hDlg);
    }
    return TRUE;
}

// The Back key: a character less in the focused control. The program's loop makes the character of the key.
extern "C" void WINAPI ce_SHSendBackToFocusWindow(UINT message, WPARAM, LPARAM lParam)
{
    const HWND focus = GetFocus();
    if (!focus || message != WM_HOTKEY || HIWORD(lParam) != VK_ESCAPE) {
        return;
    }
    const bool released = (LOWORD(lParam) & MOD_KEYUP) != 0;
    PostMessageW(focus, released ? WM_KEYUP : WM_KEYDOWN, VK_BACK, released ? 0xC0000001 : 1);
}

// Without a word of the profile on it, the tiers are told by the failure that the question is about: the
// program asks right after OpenProcess failed, so its error is still the last one. It is taken before
// anything else is called.
extern "C" HRESULT WINAPI ce_QueryPolicy(DWORD policyId, DWORD* value)
{
    const bool denied = GetLastError() == ERROR_ACCESS_DENIED;
    if (!value) {
        return E_POINTER;
    }
    if (policyId != SECPOLICY_PRIVELEGEDAPPS) {
        return E_INVALIDARG;
    }
    const int tier = handheld::ActiveProfile().securityTier;
    const bool twoTiers = tier == 0 ? denied : tier == 2;
    *value = twoTiers ? 0 : 1;
    return S_OK;
}
