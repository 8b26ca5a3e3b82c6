// Painting without flicker: a picture in memory that goes to the window in one step.
#pragma once

#include <windows.h>

#include <string>

namespace handheld {

class Surface
{
  public:
    // Begins the painting of a window; the end of the object's life shows the picture and ends it.
    explicit Surface(HWND paintedWindow);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    const RECT& Client() const { return client; }
    HDC Dc() const { return memory; }

    void Fill(const RECT& rect, COLORREF colour);
    void FillGradient(const RECT& rect, COLORREF top, COLORREF bottom);
    // format as DrawTextW takes it.
    void Text(const std::wstring& text, RECT rect, HFONT font, COLORREF colour, UINT format);

  private:
    HWND window;
    PAINTSTRUCT paint;
    RECT client;
    HDC memory;
    HBITMAP bitmap;
    HGDIOBJ previous;
};

} // namespace handheld
