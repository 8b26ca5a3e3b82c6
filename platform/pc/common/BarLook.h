// The look that the shell's bars share: the top bar, the soft-key bars of programs and the home screen's.
#pragma once

#include "platform/pc/common/Surface.h"

namespace handheld {

inline constexpr COLORREF barText = RGB(255, 255, 255);

void PaintBar(Surface& surface, const RECT& bar);
// The ground of a soft key while it is held down.
void PaintPressedKey(Surface& surface, const RECT& key);
void PaintKeyText(Surface& surface, const RECT& key, const std::wstring& text, HFONT font, bool usable);
// Between the two soft keys of a bar.
void PaintKeyDivider(Surface& surface, const RECT& bar);

} // namespace handheld
