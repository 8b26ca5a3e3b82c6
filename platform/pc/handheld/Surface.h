// Painting without flicker: a picture in memory that goes to the window in one step.
#pragma once

#include <windows.h>

#include <string>

class Surface
{
  public:
    // Begins the painting of a window; the end of the object's life shows the picture and ends it.
    explicit Surface(HWND window);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    const RECT& Client() const { return m_client; }
    HDC Dc() const { return m_memory; }

    void Fill(const RECT& rect, COLORREF colour);
    void FillGradient(const RECT& rect, COLORREF top, COLORREF bottom);
    // format as DrawTextW takes it.
    void Text(const std::wstring& text, RECT rect, HFONT font, COLORREF colour, UINT format);

  private:
    HWND m_window;
    PAINTSTRUCT m_paint;
    RECT m_client;
    HDC m_memory;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
};
