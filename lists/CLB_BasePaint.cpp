// The list control's window procedure: everything is erased and drawn in a back buffer of the client's size,
// and only the invalid rectangle is copied to the screen.
#include "lists/CLB_Base.h"

#include "framework/CStr.h"
#include "framework/Gdi.h"
#include "framework/Scale.h"
#include "resources/ids.h"

static constexpr int emptyTextInset = 15; // pixels, not scaled
static constexpr UINT emptyTextFlags = DT_CENTER | DT_VCENTER | DT_WORDBREAK | DT_END_ELLIPSIS | DT_NOPREFIX;
static_assert(emptyTextFlags == 0x8815);

LRESULT CLB_Base::Original(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return CallWindowProcW(originalProcedure, window, message, wParam, lParam);
}

// Null when the object has gone, which may be before its window.
CLB_Base* CLB_Base::ListOf(HWND listWindow)
{
    return reinterpret_cast<CLB_Base*>(GetWindowLongPtrW(listWindow, GWLP_USERDATA));
}

LRESULT CALLBACK CLB_Base::ListWindowProc(HWND listWindow, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ListOf(listWindow)->HandleMessage(message, wParam, lParam);
}

// The control's own procedure may end the program, and this object with it: its notifications run commands.
LRESULT CLB_Base::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    HWND self = window;
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        return Paint();
    default:
        break;
    }
    LRESULT result = 0;
    if (BeforeControl(message, wParam, lParam, result)) {
        return result;
    }
    result = Original(message, wParam, lParam);
    if (ListOf(self) == this) {
        if (message == WM_SIZE) {
            buffer.Resize(window, LOWORD(lParam), HIWORD(lParam));
        }
        AfterControl(message, wParam, lParam);
    }
    return result;
}

RECT CLB_Base::RowRect(int row) const
{
    RECT rect = {};
    rect.left = LVIR_BOUNDS;
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

LRESULT CLB_Base::Paint()
{
    PaintDC paint(window);
    if (!paint) {
        return 0;
    }
    if (Count() == 0) {
        PaintEmpty(paint);
        return 1;
    }
    if (buffer.DC() == nullptr) {
        RECT client = {};
        GetClientRect(window, &client);
        buffer.Resize(window, client.right, client.bottom);
    }
    if (buffer.DC() == nullptr) {
        return 0; // no memory for it: nothing is drawn
    }
    PaintRows(paint, paint.Area());
    return 0;
}

void CLB_Base::PaintRows(HDC screen, const RECT& paintRect) const
{
    EraseLikeList(buffer.DC());
    const int top = TopRow();
    const int perPage = RowsPerPage();
    const auto count = static_cast<int>(Count());
    const int mark = SelectionMark();
    if (traits.separators) {
        PaintSeparators(top, perPage + 1);
    }

    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_LISTVIEW;
    draw.CtlID = IDC_LIST;
    draw.hwndItem = window;
    draw.hDC = buffer.DC();
    for (int row = top; row <= top + perPage && row < count; ++row) {
        draw.itemID = static_cast<UINT>(row);
        draw.itemAction = row == mark ? ODA_SELECT : 0;
        draw.itemState = row == mark ? ODS_SELECTED : 0;
        draw.rcItem = RowRect(row);
        if (draw.rcItem.top < paintRect.bottom && draw.rcItem.bottom > paintRect.top &&
            draw.rcItem.left < paintRect.right && draw.rcItem.right > paintRect.left) {
            SendMessageW(owner, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
        }
    }
    BitBlt(screen, paintRect.left, paintRect.top, paintRect.right - paintRect.left,
           paintRect.bottom - paintRect.top, buffer.DC(), paintRect.left, paintRect.top, SRCCOPY);
}

void CLB_Base::PaintSeparators(int topRow, int slots) const
{
    RECT slot = RowRect(topRow);
    const int height = slot.bottom - slot.top;
    const int thickness = ScaleX(1);
    for (int i = 0; i < slots; ++i) {
        const RECT strip = {slot.left, slot.bottom - thickness, slot.right, slot.bottom};
        FillRect(buffer.DC(), &strip, CE_COLOR_BRUSH(COLOR_SCROLLBAR));
        slot.top += height;
        slot.bottom += height;
    }
}

void CLB_Base::PaintEmpty(HDC screen) const
{
    EraseLikeList(screen);
    CStr text;
    EmptyText(text);
    if (text.IsEmpty()) {
        return;
    }
    RECT area = {};
    GetClientRect(window, &area);
    area.left += emptyTextInset;
    area.right -= emptyTextInset;
    SetTextColor(screen, GetSysColor(COLOR_WINDOWTEXT));
    SetBkMode(screen, TRANSPARENT);
    DrawTextW(screen, text, -1, &area, emptyTextFlags);
}
