// Picture: pixels of the screen, to look at in a test and to keep as a PNG file.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace rig {

class Picture
{
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels; // 0x00RRGGBB, top row first

  public:
    // What is on the screen now, in a rectangle of it or all of it.
    static Picture OfScreen(const RECT& area);
    static Picture OfScreen();
    // The whole screen once it has stopped changing; a blinking caret stops the waiting after the usual
    // patience.
    static Picture OfSettledScreen();
    // What a test paints itself, to compare the screen with. Empty when the painting says false.
    static Picture Painted(SIZE size, const std::function<bool(HDC)>& paint);

    int Width() const { return width; }
    int Height() const { return height; }
    // Outside the picture: CLR_INVALID.
    COLORREF At(int x, int y) const;
    // How many pixels of a rectangle have this colour.
    int Count(COLORREF colour, const RECT& area) const;
    int Count(COLORREF colour) const;
    // How many different colours there are; one of an empty screen.
    int Colours() const;
    // Makes what of a rectangle is inside black.
    void Blank(const RECT& area);
    bool operator==(const Picture& other) const = default;

    // False when the file cannot be written.
    bool SavePng(const std::wstring& path) const;
};

// A window's rectangle on the screen, and its client area's.
RECT ScreenRectOf(HWND window);
RECT ClientRectOnScreen(HWND window);

} // namespace rig
