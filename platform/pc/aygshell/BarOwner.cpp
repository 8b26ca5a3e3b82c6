// Keeps a soft-key bar with its owner.
#include "platform/pc/aygshell/BarOwner.h"

#include "platform/pc/common/SoftKeys.h"

#include <commctrl.h>

namespace {

constexpr UINT_PTR SubclassId = 1;
constexpr UINT InPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

void RaiseBar(HWND owner)
{
    if (const HWND bar = handheld::FindMenuBar(owner))
        SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, InPlace | SWP_SHOWWINDOW);
}

LRESULT CALLBACK OwnerProcedure(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                DWORD_PTR)
{
    switch (message) {
    case WM_NCDESTROY:
        RemoveWindowSubclass(owner, OwnerProcedure, id);
        break;
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE && IsWindowVisible(owner))
            RaiseBar(owner);
        break;
    case WM_WINDOWPOSCHANGED: {
        const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
        if (flags & SWP_SHOWWINDOW)
            RaiseBar(owner);
        else if (flags & SWP_HIDEWINDOW)
            if (const HWND bar = handheld::FindMenuBar(owner))
                ShowWindow(bar, SW_HIDE);
        break;
    }
    }
    return DefSubclassProc(owner, message, wParam, lParam);
}

} // namespace

void KeepBarWithOwner(HWND owner)
{
    SetWindowSubclass(owner, OwnerProcedure, SubclassId, 0);
}
