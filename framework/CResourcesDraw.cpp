// The picture container: images as bitmaps, and bitmaps drawn through a mask.
#include "framework/CResources.h"
#include "framework/Gdi.h"

// Bottom-up, uncompressed, of the screen's depth; null when there is no such bitmap.
static HBITMAP CreateSection(HDC screen, uint32_t width, uint32_t height)
{
    if (width > INT32_MAX || height > INT32_MAX) {
        return nullptr;
    }
    struct
    {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256]; // read by the platform on a screen of 8 bits or fewer
    } info = {};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = static_cast<LONG>(width);
    info.header.biHeight = static_cast<LONG>(height);
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(GetDeviceCaps(screen, BITSPIXEL));
    info.header.biCompression = BI_RGB;
    void* bits = nullptr;
    return CreateDIBSection(screen, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
}

HBITMAP CResources::RenderImage(const SImage* image)
{
    ImageInfo info = {};
    if (FAILED(image->image->GetImageInfo(&info))) {
        return nullptr;
    }

    const ScreenDC screen;
    const MemoryDC memory(screen);
    GdiObject<HBITMAP> bitmap(CreateSection(screen, info.Width, info.Height));
    if (!memory || !bitmap) {
        return nullptr;
    }

    bool drawn = false;
    {
        const Selection selection(memory, bitmap);
        const RECT whole = {0, 0, static_cast<LONG>(info.Width), static_cast<LONG>(info.Height)};
        SetBkColor(memory, GetSysColor(COLOR_WINDOW));
        ExtTextOutW(memory, 0, 0, ETO_OPAQUE, &whole, L"", 0, nullptr);
        drawn = SUCCEEDED(image->image->Draw(memory, &whole, nullptr));
    }
    return drawn ? bitmap.Release() : nullptr;
}

void CResources::DrawMasked(HDC target, int x, int y, int width, int height, HDC memory, HBITMAP image,
                            HBITMAP mask)
{
    // A missing one cannot be selected. Both are, before anything is drawn: half a drawing would leave the
    // target in wrong colours.
    const Selection selection(memory, mask);
    if (!selection.Done() || !SelectObject(memory, image)) {
        return;
    }
    // The picture twice by exclusive-or leaves the target as it was; in between the mask blackens what it
    // covers, and there the second time shows the picture.
    BitBlt(target, x, y, width, height, memory, 0, 0, SRCINVERT);
    SelectObject(memory, mask);
    BitBlt(target, x, y, width, height, memory, 0, 0, SRCAND);
    SelectObject(memory, image);
    BitBlt(target, x, y, width, height, memory, 0, 0, SRCINVERT);
}
