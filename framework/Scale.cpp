// Lengths given at 96 dpi in pixels of the screen.
#include "framework/Scale.h"

#include "framework/Gdi.h"

int Scaled(int n, int dpi)
{
    return (n * dpi + 48) / 96;
}

static int ScreenDpi(int index)
{
    const ScreenDC screen;
    const int dpi = GetDeviceCaps(screen, index);
    return dpi > 0 ? dpi : 96;
}

int ScaleX(int n)
{
    static int dpi = 0;
    if (!dpi) {
        dpi = ScreenDpi(LOGPIXELSX);
    }
    return Scaled(n, dpi);
}

int ScaleY(int n)
{
    static int dpi = 0;
    if (!dpi) {
        dpi = ScreenDpi(LOGPIXELSY);
    }
    return Scaled(n, dpi);
}
