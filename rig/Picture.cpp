// Picture: pixels of the screen, to look at in a test and to keep as a PNG file.
#include "rig/Picture.h"

#include "rig/WaitFor.h"

#include <algorithm>
#include <unordered_set>

namespace rig {

Picture Picture::Painted(SIZE size, const std::function<bool(HDC)>& paint)
{
    Picture picture;
    const int width = size.cx;
    const int height = size.cy;
    if (width <= 0 || height <= 0) {
        return picture;
    }

    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = -height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateDIBSection(screen, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap) {
        const HGDIOBJ before = SelectObject(memory, bitmap);
        if (paint(memory)) {
            GdiFlush();
            const auto* first = static_cast<const uint32_t*>(bits);
            picture.width = width;
            picture.height = height;
            picture.pixels.assign(first, first + static_cast<size_t>(width) * static_cast<size_t>(height));
            // The fourth byte is not part of the colour, and not always zero.
            for (uint32_t& pixel : picture.pixels) {
                pixel &= 0xFFFFFF;
            }
        }
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return picture;
}

Picture Picture::OfScreen(const RECT& area)
{
    return Painted({area.right - area.left, area.bottom - area.top}, [&](HDC memory) {
        const HDC screen = GetDC(nullptr);
        const BOOL copied = BitBlt(memory, 0, 0, area.right - area.left, area.bottom - area.top, screen,
                                   area.left, area.top, SRCCOPY | CAPTUREBLT);
        ReleaseDC(nullptr, screen);
        return copied != FALSE;
    });
}

Picture Picture::OfScreen()
{
    return OfScreen({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
}

Picture Picture::OfSettledScreen()
{
    // Wine hands what a program has painted to the X server up to 50 ms later.
    constexpr DWORD pause = 150;
    Picture last = OfScreen();
    WaitFor([&] {
        Sleep(pause);
        Picture next = OfScreen();
        const bool same = next == last;
        last = std::move(next);
        return same;
    });
    return last;
}

COLORREF Picture::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width || y >= height) {
        return CLR_INVALID;
    }
    const uint32_t pixel =
        pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

int Picture::Count(COLORREF colour, const RECT& area) const
{
    int count = 0;
    for (int y = area.top; y < area.bottom; y++) {
        for (int x = area.left; x < area.right; x++) {
            count += At(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

int Picture::Count(COLORREF colour) const
{
    return Count(colour, {0, 0, width, height});
}

void Picture::Blank(const RECT& area)
{
    const LONG left = std::clamp<LONG>(area.left, 0, width);
    const LONG right = std::clamp<LONG>(area.right, left, width);
    for (LONG y = std::max<LONG>(area.top, 0); y < std::min<LONG>(area.bottom, height); y++) {
        const auto row = pixels.begin() + y * width;
        std::fill(row + left, row + right, 0);
    }
}

int Picture::Colours() const
{
    return static_cast<int>(std::unordered_set<uint32_t>(pixels.begin(), pixels.end()).size());
}

RECT ScreenRectOf(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

RECT ClientRectOnScreen(HWND window)
{
    RECT rect = {};
    GetClientRect(window, &rect);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace rig
