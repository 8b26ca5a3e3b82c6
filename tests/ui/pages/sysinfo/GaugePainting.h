// The fixture of the tests that draw a row of the system information page and look at how.
#pragma once

#include "tests/ui/pages/RowDrawing.h"
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

struct DrawnCopy
{
    RECT place; // left, top, width, height
    POINT from;
    HDC source;
    HGDIOBJ bitmap; // selected in the source
    DWORD operation;
};

// What drawing one row called.
struct DrawnRow
{
    std::vector<DrawnText> texts;
    std::vector<RECT> outlines;
    std::vector<HGDIOBJ> outlineTools; // the pen, then the brush
    std::vector<RECT> fills;
    std::vector<HBRUSH> fillBrushes;
    std::vector<DrawnCopy> copies;
};

class GaugePainting : public ShownSysInfo
{
  protected:
    static constexpr int canvasWidth = 400;
    static constexpr int canvasHeight = 160;
    static constexpr COLORREF ground = RGB(90, 120, 150);
    const RECT row = {2, 40, 202, 41 + 60};

    // Draws a row into a bitmap of the ground's colour; look sees the bitmap.
    DrawnRow Draw(ProgramApp& app, uint32_t index, UINT state = 0,
                  const std::function<void(HDC)>& look = nullptr);
    // The one row with these amounts; it has the name "Card".
    DrawnRow DrawAmounts(ProgramApp& app, uint32_t kind, uint64_t total, int64_t free, uint32_t charging = 0);

    static int Side(ProgramApp& app) { return Page(app).Look().Icons().LargeSize(); }
    // The bar, and what of it can be filled.
    RECT Bar(ProgramApp& app) const;
    RECT Inner(ProgramApp& app) const;
};
