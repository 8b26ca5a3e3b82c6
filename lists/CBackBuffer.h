// The bitmap in which a list is drawn before it is copied to the screen.
#pragma once

#include "platform/ce.h"

class CBackBuffer
{
    int width = 0; // of the last size asked for, in pixels
    int height = 0;
    HDC dc = nullptr; // null until the first size, and where there is no memory for it
    HBITMAP bitmap = nullptr;
    HGDIOBJ previousBitmap = nullptr;

  public:
    CBackBuffer() = default;
    CBackBuffer(const CBackBuffer&) = delete;
    CBackBuffer& operator=(const CBackBuffer&) = delete;
    ~CBackBuffer() { Free(); }

    // Replaces the bitmap when the size is another one; it fits the window's screen.
    void Resize(HWND window, int newWidth, int newHeight);

    HDC DC() const { return dc; }
    HBITMAP Bitmap() const { return bitmap; }
    int Width() const { return width; }
    int Height() const { return height; }

  private:
    void Free();
};
