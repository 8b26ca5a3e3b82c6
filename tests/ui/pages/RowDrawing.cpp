// Draws a row of a page into a bitmap of its own.
#include "tests/ui/pages/RowDrawing.h"

#include "resources/ids.h"
#include "tests/support/Spy.h"

#include <gtest/gtest.h>

static int AtScreenDpi(int pixels, int index)
{
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, index);
    ReleaseDC(nullptr, screen);
    return (pixels * dpi + 48) / 96;
}

int ScaledX(int pixels)
{
    return AtScreenDpi(pixels, LOGPIXELSX);
}

int ScaledY(int pixels)
{
    return AtScreenDpi(pixels, LOGPIXELSY);
}

int WidthOf(HFONT font, const std::wstring& text)
{
    HDC screen = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(screen, font);
    SIZE size = {};
    GetTextExtentExPointW(screen, text.c_str(), static_cast<int>(text.size()), 0, nullptr, nullptr, &size);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return size.cx;
}

void RowDrawing::Draw(UINT state, const std::function<void(HDC)>& check, UINT item)
{
    const SPY(DrawTextW) draw([&](HDC dc, const wchar_t* text, int length, RECT* rect, UINT flags) {
        EXPECT_EQ(length, -1);
        texts.push_back(
            {text, *rect, flags, GetCurrentObject(dc, OBJ_FONT), GetTextColor(dc), GetBkMode(dc)});
        return draw.Real(dc, text, length, rect, flags);
    });
    texts.clear();
    HDC screen = GetDC(nullptr);
    HDC target = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 300, 100);
    HGDIOBJ previous = SelectObject(target, bitmap);
    const RECT all = {0, 0, 300, 100};
    FillRect(target, &all, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    SetTextColor(target, RGB(1, 2, 3));
    SetBkColor(target, RGB(4, 5, 6));
    SetBkMode(target, OPAQUE);
    HGDIOBJ font = GetCurrentObject(target, OBJ_FONT);

    DRAWITEMSTRUCT request = {};
    request.CtlType = 102;
    request.CtlID = IDC_LIST;
    request.itemID = item;
    request.itemState = state;
    request.hwndItem = list;
    request.hDC = target;
    request.rcItem = row;
    EXPECT_EQ(SendMessageW(page, WM_DRAWITEM, IDC_LIST, reinterpret_cast<LPARAM>(&request)), answer);

    EXPECT_EQ(GetTextColor(target), RGB(1, 2, 3));
    EXPECT_EQ(GetBkColor(target), RGB(4, 5, 6));
    EXPECT_EQ(GetBkMode(target), OPAQUE);
    EXPECT_EQ(GetCurrentObject(target, OBJ_FONT), font);
    if (check) {
        check(target);
    }
    SelectObject(target, previous);
    DeleteObject(bitmap);
    DeleteDC(target);
    ReleaseDC(nullptr, screen);
}
