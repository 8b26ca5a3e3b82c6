// The look that the shell's bars share.
#include "platform/pc/common/BarLook.h"

#include "platform/pc/common/Screen.h"

namespace handheld {

static constexpr COLORREF barTop = RGB(66, 104, 166);
static constexpr COLORREF barBottom = RGB(22, 48, 102);
static constexpr COLORREF pressed = RGB(110, 150, 205);
static constexpr COLORREF divider = RGB(14, 30, 66);
static constexpr COLORREF disabledText = RGB(140, 160, 195);

void PaintBar(Surface& surface, const RECT& bar)
{
    surface.FillGradient(bar, barTop, barBottom);
}

void PaintPressedKey(Surface& surface, const RECT& key)
{
    surface.FillGradient(key, pressed, barTop);
}

void PaintKeyText(Surface& surface, const RECT& key, const std::wstring& text, HFONT font, bool usable)
{
    surface.Text(text, key, font, usable ? barText : disabledText,
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

void PaintKeyDivider(Surface& surface, const RECT& bar)
{
    const LONG x = (bar.left + bar.right) / 2;
    surface.Fill({x, bar.top + Scaled(4), x + Scaled(1), bar.bottom - Scaled(4)}, divider);
}

} // namespace handheld
