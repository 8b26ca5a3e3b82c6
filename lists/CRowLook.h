// What the rows of a list are drawn with: the shell's small icons and the system font in two weights.
#pragma once

#include "framework/Gdi.h"
#include "lists/SystemIcons.h"

class CRowLook
{
    SSystemIcons icons;
    GdiObject<HFONT> boldFont;
    GdiObject<HFONT> normalFont;

  public:
    // Before the list is made, which asks for its rows' height at once. The extra heights are added to the
    // system font's (negative) height.
    void Create(LONG boldExtraHeight, LONG normalExtraHeight);

    const SSystemIcons& Icons() const { return icons; }
    HFONT BoldFont() const { return boldFont; }
    HFONT NormalFont() const { return normalFont; }
};
