// Painting without flicker.
#include "platform/pc/common/Surface.h"

namespace handheld {

static BYTE Between(BYTE from, BYTE to, LONG part, LONG whole)
{
    return static_cast<BYTE>(from + (to - from) * part / whole);
}

Surface::Surface(HWND paintedWindow) : window(paintedWindow)
{
    const HDC dc = BeginPaint(window, &paint);
    GetClientRect(window, &client);
    memory = CreateCompatibleDC(dc);
    bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    previous = SelectObject(memory, bitmap);
}

Surface::~Surface()
{
    BitBlt(paint.hdc, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    EndPaint(window, &paint);
}

void Surface::Fill(const RECT& rect, COLORREF colour)
{
    SetBkColor(memory, colour);
    ExtTextOutW(memory, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void Surface::FillGradient(const RECT& rect, COLORREF top, COLORREF bottom)
{
    const LONG height = rect.bottom - rect.top;
    for (LONG y = 0; y < height; ++y) {
        Fill({rect.left, rect.top + y, rect.right, rect.top + y + 1},
             RGB(Between(GetRValue(top), GetRValue(bottom), y, height),
                 Between(GetGValue(top), GetGValue(bottom), y, height),
                 Between(GetBValue(top), GetBValue(bottom), y, height)));
    }
}

void Surface::Text(const std::wstring& text, RECT rect, HFONT font, COLORREF colour, UINT format)
{
    const HGDIOBJ before = SelectObject(memory, font);
    SetBkMode(memory, TRANSPARENT);
    SetTextColor(memory, colour);
    DrawTextW(memory, text.c_str(), static_cast<int>(text.size()), &rect, format | DT_NOPREFIX);
    SelectObject(memory, before);
}

} // namespace handheld
