// The stock system font: on a device a font of 9 points that grows with the screen's resolution. The PC's is
// a bitmap font of one size and of bold weight.
#include "platform/pc/common/Screen.h"

extern "C" HGDIOBJ WINAPI ce_GetStockObject(int index)
{
    if (index != SYSTEM_FONT) {
        return GetStockObject(index);
    }
    static const HFONT font = handheld::CreateScreenFont(9, FW_NORMAL);
    return font;
}
