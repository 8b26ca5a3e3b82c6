// A copy of what a device context shows, to be looked at pixel by pixel.
#pragma once

#include "platform/ce.h"

#include <vector>

class Pixels
{
    int width;
    int height;
    std::vector<COLORREF> colours;

  public:
    // The top left part of that size.
    Pixels(HDC source, int copyWidth, int copyHeight);

    // What a window's client area shows.
    static Pixels Of(HWND window);

    COLORREF At(int x, int y) const;
    // How many pixels of the rectangle have that colour.
    int Count(const RECT& area, COLORREF colour) const;
    RECT All() const { return {0, 0, width, height}; }
};
