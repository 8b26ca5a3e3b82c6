// Keeps a soft-key bar with its owner.
#include "platform/pc/aygshell/BarOwner.h"

#include "platform/pc/common/SoftKeys.h"

#include <commctrl.h>

static constexpr UINT_PTR subclassId = 1;
static constexpr UINT inPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

static void RaiseBar(HWND owner)
{
    if (const HWND bar = handheld::FindMenuBar(owner)) {
        SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, inPlace | SWP_SHOWWINDOW);
    }
}

static LRESULT CALLBACK OwnerProcedure(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR)
{
    switch (message) {
    case WM_NCDESTROY:
        RemoveWindowSubclass(owner, OwnerProcedure, id);
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
