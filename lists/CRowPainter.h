// Colours, icon and text of a row.
#pragma once

#include "platform/ce.h"

// Draws one row; the device context has its font, colours and background mode back afterwards.
class CRowPainter
{
    HDC target;
    RECT row;
    HGDIOBJ savedFont = nullptr;
    COLORREF savedTextColour;
    COLORREF savedBackColour;
    int savedMode;

  public:
    // A selected row is filled and written in the highlight colours, any other is not filled.
    CRowPainter(HDC deviceContext, const RECT& rowRect, bool selected);
    CRowPainter(const CRowPainter&) = delete;
    CRowPainter& operator=(const CRowPainter&) = delete;
    ~CRowPainter();

    void DrawIcon(HIMAGELIST icons, int index, int iconHeight);
    void DrawIcon(HICON icon, int size);
    // The area from rowLeft + the icon's place to the row's right edge.
    RECT TextArea(int iconWidth) const;
    void DrawLeft(HFONT font, const wchar_t* text, const RECT& area);
    // The width of a text as DrawLeft draws it where there is room, in pixels.
    int Width(HFONT font, const wchar_t* text);
    // Draws at the right edge of area; the result is the text's width in pixels.
    int DrawRight(HFONT font, const wchar_t* text, const RECT& area);

  private:
    void UseFont(HFONT font);
};
