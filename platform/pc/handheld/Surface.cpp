// Painting without flicker.
#include "platform/pc/handheld/Surface.h"

namespace {

BYTE Between(BYTE from, BYTE to, LONG part, LONG whole)
{
    return static_cast<BYTE>(from + (to - from) * part / whole);
}

} // namespace

Surface::Surface(HWND window) : m_window(window)
{
    const HDC dc = BeginPaint(window, &m_paint);
    GetClientRect(window, &m_client);
    m_memory = CreateCompatibleDC(dc);
    m_bitmap = CreateCompatibleBitmap(dc, m_client.right, m_client.bottom);
    m_previous = SelectObject(m_memory, m_bitmap);
}

Surface::~Surface()
{
    BitBlt(m_paint.hdc, 0, 0, m_client.right, m_client.bottom, m_memory, 0, 0, SRCCOPY);
    SelectObject(m_memory, m_previous);
    DeleteObject(m_bitmap);
    DeleteDC(m_memory);
    EndPaint(m_window, &m_paint);
}

void Surface::Fill(const RECT& rect, COLORREF colour)
{
    SetBkColor(m_memory, colour);
    ExtTextOutW(m_memory, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void Surface::FillGradient(const RECT& rect, COLORREF top, COLORREF bottom)
{
    const LONG height = rect.bottom - rect.top;
    for (LONG y = 0; y < height; ++y)
        Fill({rect.left, rect.top + y, rect.right, rect.top + y + 1},
             RGB(Between(GetRValue(top), GetRValue(bottom), y, height),
                 Between(GetGValue(top), GetGValue(bottom), y, height),
                 Between(GetBValue(top), GetBValue(bottom), y, height)));
}

void Surface::Text(const std::wstring& text, RECT rect, HFONT font, COLORREF colour, UINT format)
{
    const HGDIOBJ previous = SelectObject(m_memory, font);
    SetBkMode(m_memory, TRANSPARENT);
    SetTextColor(m_memory, colour);
    DrawTextW(m_memory, text.c_str(), static_cast<int>(text.size()), &rect, format | DT_NOPREFIX);
    SelectObject(m_memory, previous);
}
