// GaugeLook: what a row of the system information page looks like.
#include "tests/e2e/pages/sysinfo/GaugeLook.h"

#include "rig/Controls.h"

#include <algorithm>

using rig::Picture;

static constexpr UINT leftText = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
static constexpr UINT rightText = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

static bool IsIn(const RECT& rect, int x, int y)
{
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

static bool AreEqualOutside(const RECT& except, const Picture& one, const Picture& other)
{
    if (one.Width() != other.Width() || one.Height() != other.Height()) {
        return false;
    }
    for (int y = 0; y < one.Height(); y++) {
        for (int x = 0; x < one.Width(); x++) {
            if (!IsIn(except, x, y) && one.At(x, y) != other.At(x, y)) {
                return false;
            }
        }
    }
    return true;
}

static void Write(HDC context, const ScreenFont& font, const std::wstring& text, RECT area, UINT format)
{
    const HGDIOBJ before = SelectObject(context, font.Handle());
    DrawTextW(context, text.c_str(), -1, &area, format);
    SelectObject(context, before);
}

int GaugeLook::Side()
{
    return OnScreen(16) > 16 ? 48 : 32;
}

int GaugeLook::RowHeight() const
{
    const int line = bold.LineHeight() + OnScreen(1);
    return std::max(2 * line + OnScreen(4), Side() + OnScreen(6));
}

RECT GaugeLook::PictureIn(const RECT& row)
{
    const LONG left = row.left + OnScreen(4);
    const LONG top = row.top + (row.bottom - row.top - Side()) / 2;
    return {left, top, left + Side(), top + Side()};
}

void GaugeLook::PaintBar(HDC context, const RECT& bar, const Gauge& gauge) const
{
    FrameRect(context, &bar, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    RECT fill = {bar.left + 1, bar.top + 1, bar.right - 1, bar.bottom - 1};
    fill.right = fill.left + gauge.percent * (fill.right - fill.left) / 100;
    FillRect(context, &fill, GetSysColorBrush(COLOR_SCROLLBAR));
    const RECT amounts = {bar.left + OnScreen(5), bar.top, bar.right, bar.bottom};
    Write(context, normal, gauge.used, amounts, leftText);
    Write(context, bold, gauge.free, amounts, rightText);
}

Picture GaugeLook::Paint(const Gauge& gauge, SIZE size) const
{
    return Picture::Painted(size, [&](HDC context) {
        const RECT all = {0, 0, size.cx, size.cy};
        FillRect(context, &all, GetSysColorBrush(COLOR_WINDOW));
        SetTextColor(context, GetSysColor(COLOR_WINDOWTEXT));
        SetBkMode(context, TRANSPARENT);
        const LONG left = OnScreen(8) + Side();
        const LONG middle = size.cy / 2;
        Write(context, bold, gauge.title, {left, 0, size.cx, middle}, leftText);
        PaintBar(context, {left, middle, size.cx - OnScreen(4), size.cy - OnScreen(2)}, gauge);
        return true;
    });
}

bool GaugeLook::IsAt(HWND list, int row, const Gauge& gauge) const
{
    return rig::WaitFor([&] {
        const auto place = rig::ListRowOnScreen(list, row);
        if (!place) {
            return false;
        }
        const SIZE size = {place->right - place->left, place->bottom - place->top};
        return AreEqualOutside(PictureIn({0, 0, size.cx, size.cy}), Picture::OfScreen(*place),
                               Paint(gauge, size));
    });
}
