// The stock system font: on a device a font of 9 points that grows with the screen's resolution. The PC's is
// a bitmap font of one size and of bold weight.
#include "platform/pc/coredll/SystemFont.h"

#include "platform/pc/common/Screen.h"

HFONT SystemFont()
{
    static const HFONT font = handheld::CreateScreenFont(9, FW_NORMAL);
    return font;
}

extern "C" HGDIOBJ WINAPI ce_GetStockObject(int index)
{
    return index == SYSTEM_FONT ? SystemFont() : GetStockObject(index);
}

// What is painted without a font of its own is painted in the system font.
extern "C" HDC WINAPI ce_BeginPaint(HWND window, PAINTSTRUCT* paint)
{
    const HDC context = BeginPaint(window, paint);
    if (context) {
        SelectObject(context, SystemFont());
    }
    return context;
}
