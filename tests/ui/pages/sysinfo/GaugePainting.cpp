// Draws a row of the system information page into a bitmap, and writes down how.
#include "tests/ui/pages/sysinfo/GaugePainting.h"

#include "framework/Gdi.h"

DrawnRow GaugePainting::Draw(ProgramApp& app, uint32_t index, UINT state,
                             const std::function<void(HDC)>& look)
{
    DrawnRow drawn;
    const ScreenDC screen;
    const MemoryDC target(screen);
    const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(screen, canvasWidth, canvasHeight));
    const Selection selected(target, bitmap);
    const GdiObject<HBRUSH> brush(CreateSolidBrush(ground));
    const RECT all = {0, 0, canvasWidth, canvasHeight};
    FillRect(target, &all, brush);
    SetTextColor(target, RGB(1, 2, 3));
    SetBkColor(target, RGB(4, 5, 6));
    SetBkMode(target, OPAQUE);
    HGDIOBJ font = GetCurrentObject(target, OBJ_FONT);
    {
        const SPY(DrawTextW) text([&](HDC dc, const wchar_t* shown, int length, RECT* rect, UINT flags) {
            EXPECT_EQ(length, -1);
            drawn.texts.push_back(
                {shown, *rect, flags, GetCurrentObject(dc, OBJ_FONT), GetTextColor(dc), GetBkMode(dc)});
            return text.Real(dc, shown, length, rect, flags);
        });
        const SPY(Rectangle) outline([&](HDC dc, int left, int top, int right, int bottom) {
            drawn.outlines.push_back({left, top, right, bottom});
            drawn.outlineTools = {GetCurrentObject(dc, OBJ_PEN), GetCurrentObject(dc, OBJ_BRUSH)};
            return outline.Real(dc, left, top, right, bottom);
        });
        const SPY(FillRect) fill([&](HDC dc, const RECT* rect, HBRUSH with) {
            drawn.fills.push_back(*rect);
            drawn.fillBrushes.push_back(with);
            return fill.Real(dc, rect, with);
        });
        const SPY(BitBlt) copy([&](HDC dc, int x, int y, int width, int height, HDC source, int fromX,
                                   int fromY, DWORD operation) {
            EXPECT_EQ(dc, static_cast<HDC>(target));
            drawn.copies.push_back({{x, y, width, height},
                                    {fromX, fromY},
                                    source,
                                    GetCurrentObject(source, OBJ_BITMAP),
                                    operation});
            return copy.Real(dc, x, y, width, height, source, fromX, fromY, operation);
        });
        DRAWITEMSTRUCT item = {};
        item.CtlType = 102;
        item.CtlID = IDC_LIST;
        item.itemID = index;
        item.itemState = state;
        item.hwndItem = List(app);
        item.hDC = target;
        item.rcItem = row;
        EXPECT_EQ(SendMessageW(Page(app).Window(), WM_DRAWITEM, IDC_LIST, reinterpret_cast<LPARAM>(&item)),
                  TRUE);
    }
    EXPECT_EQ(GetTextColor(target), RGB(1, 2, 3));
    EXPECT_EQ(GetBkColor(target), RGB(4, 5, 6));
    EXPECT_EQ(GetBkMode(target), OPAQUE);
    EXPECT_EQ(GetCurrentObject(target, OBJ_FONT), font);
    if (look) {
        look(target);
    }
    return drawn;
}

DrawnRow GaugePainting::DrawAmounts(ProgramApp& app, uint32_t kind, uint64_t total, int64_t free,
                                    uint32_t charging)
{
    auto& first = const_cast<SSysInfo&>(Page(app).Row(0));
    first.name = L"Card";
    first.kind = kind;
    first.total = total;
    first.free = free;
    first.charging = charging;
    return Draw(app, 0);
}

RECT GaugePainting::Bar(ProgramApp& app) const
{
    return {row.left + X(8) + Side(app), row.top + (row.bottom - row.top) / 2, row.right - X(4),
            row.bottom - Y(2)};
}

RECT GaugePainting::Inner(ProgramApp& app) const
{
    const RECT bar = Bar(app);
    return {bar.left + 1, bar.top + 1, bar.right - 1, bar.bottom - 1};
}
