// Draws a row of a page into a bitmap of its own, and tells what was written there and how.
#pragma once

#include "platform/ce.h"

#include <functional>
#include <string>
#include <vector>

// Pixels of the handheld for pixels at 96 dpi, across and down.
int ScaledX(int pixels);
int ScaledY(int pixels);
// How wide the text is, in pixels.
int WidthOf(HFONT font, const std::wstring& text);

struct DrawnText
{
    std::wstring text;
    RECT rect;
    UINT flags;
    HGDIOBJ font;
    COLORREF colour;
    int mode;
};

class RowDrawing
{
    HWND page;
    HWND list;
    LRESULT answer;

  public:
    static constexpr RECT row = {2, 40, 202, 40 + 50};     // in the bitmap
    static constexpr COLORREF ground = RGB(128, 128, 128); // of the bitmap, before

    std::vector<DrawnText> texts; // of the last row, in the order of drawing

    // owner: of the list. expectedAnswer: its to the request; a dialog's is 0.
    RowDrawing(HWND owner, HWND drawnList, LRESULT expectedAnswer = TRUE)
        : page(owner), list(drawnList), answer(expectedAnswer)
    {}

    // Asks the owner for a row; the device context must be left as it was. check sees the bitmap.
    void Draw(UINT state, const std::function<void(HDC)>& check = nullptr, UINT item = 0);
};
