// Keeps a soft-key bar with its owner.
#include "platform/pc/aygshell/BarOwner.h"

#include "platform/ce.h"
#include "platform/pc/common/SoftKeys.h"

static constexpr UINT_PTR subclassId = 1;
static constexpr UINT inPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

static void RaiseBar(HWND owner)
{
    if (const HWND bar = handheld::FindMenuBar(owner)) {
        SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, inPlace | SWP_SHOWWINDOW);
    }
}

// The window may have laid out what it holds without painting it anew.
static LRESULT TakeTurn(HWND owner, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = DefSubclassProc(owner, message, wParam, lParam);
    RedrawWindow(owner, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return result;
}

static LRESULT CALLBACK OwnerProcedure(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR)
{
    switch (message) {
    case WM_NCDESTROY:
        RemoveWindowSubclass(owner, OwnerProcedure, id);
        break;
    case WM_SETTINGCHANGE:
        if (wParam == WM_SETTINGCHANGE_RESET) {
            return TakeTurn(owner, message, wParam, lParam);
        }
        break;
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE && IsWindowVisible(owner)) {
            RaiseBar(owner);
        }
        break;
    case WM_WINDOWPOSCHANGED: {
        const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
        if (flags & SWP_SHOWWINDOW) {
            RaiseBar(owner);
        } else if (flags & SWP_HIDEWINDOW) {
            if (const HWND bar = handheld::FindMenuBar(owner)) {
                ShowWindow(bar, SW_HIDE);
            }
        }
        break;
    }
    }
    return DefSubclassProc(owner, message, wParam, lParam);
}

void KeepBarWithOwner(HWND owner)
{
    SetWindowSubclass(owner, OwnerProcedure, subclassId, 0);
}
