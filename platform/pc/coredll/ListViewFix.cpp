// Corrects the repainting of a virtual list view: Wine 8.0 scrolls and paints before it moves the selection
// mark, and it leaves the two leftmost pixel columns out. A list whose rows are drawn by the mark would show
// several selected rows. And where the focus comes or goes it asks for the focused row as one that is not
// selected, at the wrong place and straight on the screen.
#include "platform/pc/coredll/ListViewFix.h"

#include "platform/pc/coredll/ListViewColumn.h"

#include <commctrl.h>

static WNDPROC original; // the one procedure of all list views

namespace {

struct Position
{
    LRESULT mark;
    LRESULT top;
    bool operator==(const Position& other) const { return mark == other.mark && top == other.top; }
};

} // namespace

static Position PositionOf(HWND list)
{
    return {CallWindowProcW(original, list, LVM_GETSELECTIONMARK, 0, 0),
            CallWindowProcW(original, list, LVM_GETTOPINDEX, 0, 0)};
}

static bool CanMoveList(UINT message)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEWHEEL:
    case WM_VSCROLL:
    case LVM_SETITEMSTATE:
    case LVM_SETSELECTIONMARK:
    case LVM_ENSUREVISIBLE:
    case LVM_SCROLL:
        return true;
    default:
        return false;
    }
}

// What a tap does to the selection brings the focused row on the screen too.
static bool DrawsFocusedRow(UINT message)
{
    switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        return true;
    default:
        return false;
    }
}

static LRESULT CALLBACK InnerProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT remade = 0;
    if (RemakesColumn(list, original, message, wParam, lParam, remade)) {
        return remade;
    }
    const bool drawn = DrawsFocusedRow(message);
    if (!drawn && !CanMoveList(message)) {
        return CallWindowProcW(original, list, message, wParam, lParam);
    }
    const Position before = PositionOf(list);
    const LRESULT result = CallWindowProcW(original, list, message, wParam, lParam);
    // The message may have ended the window (a double click that closes its dialog).
    if (IsWindow(list) && (drawn || !(PositionOf(list) == before))) {
        InvalidateRect(list, nullptr, FALSE);
    }
    return result;
}

void RepaintWhenListMoves(HWND list)
{
    const LONG_PTR replaced =
        SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(InnerProcedure));
    original = reinterpret_cast<WNDPROC>(replaced);
}
