// Reading pixels through a bitmap of known layout.
#include "tests/ui/Pixels.h"

Pixels::Pixels(HDC source, int copyWidth, int copyHeight) : width(copyWidth), height(copyHeight)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HDC copy = CreateCompatibleDC(source);
    HBITMAP bitmap = CreateDIBSection(copy, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ previous = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, width, height, source, 0, 0, SRCCOPY);
    const auto* from = static_cast<const DWORD*>(bits);
    for (int i = 0; i < width * height; i++) {
        colours.push_back(RGB(from[i] >> 16 & 255, from[i] >> 8 & 255, from[i] & 255));
    }
    SelectObject(copy, previous);
    DeleteObject(bitmap);
    DeleteDC(copy);
}

Pixels Pixels::Of(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    HDC source = GetDC(window);
    Pixels pixels(source, client.right, client.bottom);
    ReleaseDC(window, source);
    return pixels;
}

COLORREF Pixels::At(int x, int y) const
{
    return colours.at(static_cast<size_t>(y * width + x));
}

int Pixels::Count(const RECT& area, COLORREF colour) const
{
    int count = 0;
    for (int y = area.top; y < area.bottom; y++) {
        for (int x = area.left; x < area.right; x++) {
            count += At(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}
