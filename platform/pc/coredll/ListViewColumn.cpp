// Wine 8.0 sets the scroll bars of a list anew, and draws them, when a column goes and when one comes: for
// the same column again that is a third of the time between a letter of a search and its rows. A column as
// wide as the list therefore only goes when anything but its like follows.
#include "platform/pc/coredll/ListViewColumn.h"

#include <commctrl.h>

static HWND listInDebt; // the list whose column is to go and has not gone yet

static LRESULT Ask(HWND list, WNDPROC control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return CallWindowProcW(control, list, message, wParam, lParam);
}

// The count as it is: that is what makes the control look whether it still needs its scroll bars, which
// otherwise go only when the next column is made. That one would be too narrow.
static void UpdateScrollBars(HWND list, WNDPROC control)
{
    const LRESULT count = Ask(list, control, LVM_GETITEMCOUNT);
    Ask(list, control, LVM_SETITEMCOUNT, static_cast<WPARAM>(count),
        LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
}

static LRESULT DeleteColumn(HWND list, WNDPROC control, WPARAM column)
{
    const LRESULT deleted = Ask(list, control, LVM_DELETECOLUMN, column);
    UpdateScrollBars(list, control);
    return deleted;
}

// It has none below, and one beside it only when not all rows fit.
static bool HasItsScrollBars(HWND list, WNDPROC control)
{
    const LONG_PTR style = GetWindowLongPtrW(list, GWL_STYLE);
    const bool needsOne = Ask(list, control, LVM_GETITEMCOUNT) > Ask(list, control, LVM_GETCOUNTPERPAGE);
    return (style & WS_HSCROLL) == 0 && ((style & WS_VSCROLL) != 0) == needsOne;
}

static bool FillsList(HWND list, WNDPROC control)
{
    HWND header = reinterpret_cast<HWND>(Ask(list, control, LVM_GETHEADER));
    RECT client = {};
    return GetClientRect(list, &client) && SendMessageW(header, HDM_GETITEMCOUNT, 0, 0) == 1 &&
           Ask(list, control, LVM_GETCOLUMNWIDTH) == client.right;
}

static bool IsLike(HWND list, WNDPROC control, const LVCOLUMNW& column)
{
    LVCOLUMNW present = {};
    present.mask = LVCF_FMT | LVCF_WIDTH;
    return column.mask == (LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM) && column.iSubItem == 0 &&
           Ask(list, control, LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&present)) != FALSE &&
           column.fmt == present.fmt && column.cx == present.cx;
}

bool RemakesColumn(HWND list, WNDPROC control, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (list == listInDebt) {
        listInDebt = nullptr;
        if (message == LVM_INSERTCOLUMNW && wParam == 0 &&
            IsLike(list, control, *reinterpret_cast<const LVCOLUMNW*>(lParam))) {
            InvalidateRect(list, nullptr, TRUE);
            result = 0;
            return true;
        }
        DeleteColumn(list, control, 0);
    }
    if (message != LVM_DELETECOLUMN) {
        return false;
    }
    if (wParam == 0 && listInDebt == nullptr && HasItsScrollBars(list, control) && FillsList(list, control)) {
        listInDebt = list;
        result = TRUE;
    } else {
        result = DeleteColumn(list, control, wParam);
    }
    return true;
}
