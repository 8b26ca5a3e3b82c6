// Draws the handheld's own small icons: shapes on a canvas of 16 x 16 units, smoothed by painting eight times
// larger.
#include "platform/pc/coredll/IconPainter.h"

#include <vector>

static constexpr int units = 16;
static constexpr int oversampling = 8;
static constexpr COLORREF nothing = RGB(255, 0, 255); // stays transparent

static constexpr COLORREF ink = RGB(40, 60, 100);
static constexpr COLORREF paper = RGB(252, 252, 252);
static constexpr COLORREF blue = RGB(52, 110, 190);
static constexpr COLORREF lightBlue = RGB(150, 190, 235);
static constexpr COLORREF yellow = RGB(250, 205, 90);
static constexpr COLORREF amber = RGB(190, 135, 30);
static constexpr COLORREF grey = RGB(170, 176, 186);
static constexpr COLORREF green = RGB(90, 175, 75);
static constexpr COLORREF red = RGB(200, 75, 55);

static HBITMAP CreatePixels(int width, int height, DWORD** pixels)
{
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    *pixels = static_cast<DWORD*>(bits);
    return bitmap;
}

// Paints one icon after the other onto the same enlarged canvas.
class Painter
{
    int size;
    int side; // pixels of the enlarged picture
    DWORD* enlarged = nullptr;
    HDC canvas;
    HBITMAP bitmap;
    HGDIOBJ previous;

  public:
    explicit Painter(int iconSize) : size(iconSize), side(iconSize * oversampling)
    {
        canvas = CreateCompatibleDC(nullptr);
        bitmap = CreatePixels(side, side, &enlarged);
        previous = SelectObject(canvas, bitmap);
        SelectObject(canvas, GetStockObject(NULL_PEN));
        SelectObject(canvas, GetStockObject(DC_BRUSH));
        SetBkColor(canvas, nothing);
    }
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;
    ~Painter()
    {
        SelectObject(canvas, previous);
        DeleteObject(bitmap);
        DeleteDC(canvas);
    }

    bool CanPaint() const { return enlarged != nullptr; }

    void Clear()
    {
        const RECT all = {0, 0, side, side};
        ExtTextOutW(canvas, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    }

    void Box(double left, double top, double right, double bottom, COLORREF colour)
    {
        Shape({{left, top}, {right, top}, {right, bottom}, {left, bottom}}, colour);
    }

    struct Point
    {
        double x;
        double y;
    };

    void Shape(const std::vector<Point>& corners, COLORREF colour)
    {
        std::vector<POINT> points;
        for (const Point& corner : corners) {
            points.push_back({Pixel(corner.x), Pixel(corner.y)});
        }
        SetDCBrushColor(canvas, colour);
        Polygon(canvas, points.data(), static_cast<int>(points.size()));
    }

    void Disc(double x, double y, double radius, COLORREF colour)
    {
        SetDCBrushColor(canvas, colour);
        Ellipse(canvas, Pixel(x - radius), Pixel(y - radius), Pixel(x + radius), Pixel(y + radius));
    }

    // Writes the icon at its real size to a picture whose rows are that far apart.
    void Reduce(DWORD* target, int rowLength) const
    {
        GdiFlush();
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                target[static_cast<size_t>(y) * rowLength + x] = Average(x, y);
            }
        }
    }

  private:
    LONG Pixel(double position) const { return static_cast<LONG>(position * side / units + 0.5); }

    DWORD Average(int x, int y) const
    {
        DWORD redSum = 0;
        DWORD greenSum = 0;
        DWORD blueSum = 0;
        DWORD covered = 0;
        for (int row = y * oversampling; row < (y + 1) * oversampling; ++row) {
            for (int column = x * oversampling; column < (x + 1) * oversampling; ++column) {
                const DWORD pixel = enlarged[static_cast<size_t>(row) * side + column] & 0xFFFFFF;
                if (pixel == nothing) {
                    continue;
                }
                redSum += pixel >> 16 & 255;
                greenSum += pixel >> 8 & 255;
                blueSum += pixel & 255;
                ++covered;
            }
        }
        if (covered == 0) {
            return 0;
        }
        const DWORD alpha = covered * 255 / (oversampling * oversampling);
        return alpha << 24 | redSum / covered << 16 | greenSum / covered << 8 | blueSum / covered;
    }
};

static void Sheet(Painter& painter)
{
    painter.Shape({{3, 1}, {10, 1}, {13, 4}, {13, 15}, {3, 15}}, ink);
    painter.Shape({{4, 2}, {9.5, 2}, {12, 4.5}, {12, 14}, {4, 14}}, paper);
}

static void Paint(Painter& painter, FixedIcon icon)
{
    switch (icon) {
    case IconDocument:
        Sheet(painter);
        for (int line = 6; line <= 12; line += 2) {
            painter.Box(5.5, line, 10.5, line + 0.8, grey);
        }
        break;
    case IconBlank:
        Sheet(painter);
        break;
    case IconProgram:
        painter.Box(1, 2, 15, 14, ink);
        painter.Box(2, 5, 14, 13, paper);
        painter.Box(2, 3, 14, 5, blue);
        painter.Box(3.5, 6.5, 7, 8.5, lightBlue);
        painter.Box(3.5, 9.5, 12.5, 10.3, grey);
        painter.Box(3.5, 11.2, 10, 12, grey);
        break;
    case IconFolder:
        painter.Shape({{1, 3}, {6, 3}, {7.5, 5}, {15, 5}, {15, 14}, {1, 14}}, amber);
        painter.Box(2, 6, 14, 13, yellow);
        break;
    case IconDrive:
        painter.Shape({{4, 1}, {13, 1}, {13, 15}, {3, 15}, {3, 4}, {4, 3}}, ink);
        painter.Box(4, 6, 12, 14, grey);
        for (int pin = 5; pin <= 11; pin += 2) {
            painter.Box(pin, 2, pin + 1, 4.5, yellow);
        }
        break;
    case IconDevice:
        painter.Box(3, 1, 13, 15, ink);
        painter.Box(4.5, 2.5, 11.5, 11, lightBlue);
        painter.Disc(8, 13, 1, grey);
        break;
    case IconShortcut:
        Sheet(painter);
        painter.Shape({{5, 12}, {5, 8}, {8, 8}, {8, 6}, {11.5, 9.3}, {8, 12.5}, {8, 10}, {7, 10}, {7, 12}},
                      blue);
        break;
    case IconShell:
        painter.Shape({{1, 3}, {7, 2}, {7, 7.5}, {1, 7.5}}, red);
        painter.Shape({{8, 2}, {15, 1}, {15, 7.5}, {8, 7.5}}, green);
        painter.Shape({{1, 8.5}, {7, 8.5}, {7, 14}, {1, 13}}, blue);
        painter.Shape({{8, 8.5}, {15, 8.5}, {15, 15}, {8, 14}}, yellow);
        break;
    case IconHome:
        painter.Shape({{8, 1}, {15.5, 8.5}, {0.5, 8.5}}, red);
        painter.Box(3, 8, 13, 15, ink);
        painter.Box(4, 8, 12, 14, paper);
        painter.Box(6.5, 9.5, 9.5, 14, blue);
        break;
    case FixedIconCount:
        break;
    }
}

HBITMAP PaintFixedIcons(int size)
{
    const int width = FixedIconCount * size;
    DWORD* pixels = nullptr;
    const HBITMAP strip = CreatePixels(width, size, &pixels);
    Painter painter(size);
    for (int icon = 0; pixels && painter.CanPaint() && icon < FixedIconCount; ++icon) {
        painter.Clear();
        Paint(painter, static_cast<FixedIcon>(icon));
        painter.Reduce(pixels + icon * size, width);
    }
    return strip;
}
