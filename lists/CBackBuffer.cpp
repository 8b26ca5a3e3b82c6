// The bitmap in which a list is drawn.
#include "lists/CBackBuffer.h"

#include "framework/Gdi.h"

void CBackBuffer::Resize(HWND window, int newWidth, int newHeight)
{
    if (newWidth == width && newHeight == height && dc != nullptr) {
        return;
    }
    Free();
    width = newWidth;
    height = newHeight;
    const WindowDC screen(window);
    dc = CreateCompatibleDC(screen);
    if (dc == nullptr) {
        return;
    }
    bitmap = CreateCompatibleBitmap(screen, width, height);
    previousBitmap = SelectObject(dc, bitmap);
    if (bitmap == nullptr) {
        Free(); // a context of one pixel is nothing to draw in
    }
}

void CBackBuffer::Free()
{
    if (dc == nullptr) {
        return;
    }
    SelectObject(dc, previousBitmap);
    DeleteObject(bitmap);
    DeleteDC(dc);
    dc = nullptr;
    bitmap = nullptr;
}
