// GaugeLook: what a row of the system information page looks like, to compare the screen with.
#pragma once

#include "tests/e2e/ScreenText.h"

struct Gauge
{
    std::wstring title;
    int percent; // of the bar's inside that are filled; may be more than there are
    std::wstring used;
    std::wstring free;
};

class GaugeLook
{
    ScreenFont bold{FW_BOLD, 2};
    ScreenFont normal{FW_NORMAL, 2};

    void PaintBar(HDC context, const RECT& bar, const Gauge& gauge) const;

  public:
    int RowHeight() const;
    // The width and height of the pictures.
    static int Side();
    // The place of the picture in a row.
    static RECT PictureIn(const RECT& row);
    // A row of this size without its picture.
    rig::Picture Paint(const Gauge& gauge, SIZE size) const;
    // Waits until a row of the list looks like this, whatever its picture is.
    bool IsAt(HWND list, int row, const Gauge& gauge) const;
};
