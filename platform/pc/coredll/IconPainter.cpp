// Draws the handheld's own small icons: shapes on a canvas of 16 x 16 units, smoothed by painting eight times
// larger.
#include "platform/pc/coredll/IconPainter.h"

#include <vector>

namespace {

constexpr int Units = 16;
constexpr int Oversampling = 8;
constexpr COLORREF Nothing = RGB(255, 0, 255); // stays transparent

constexpr COLORREF Ink = RGB(40, 60, 100);
constexpr COLORREF Paper = RGB(252, 252, 252);
constexpr COLORREF Blue = RGB(52, 110, 190);
constexpr COLORREF LightBlue = RGB(150, 190, 235);
constexpr COLORREF Yellow = RGB(250, 205, 90);
constexpr COLORREF Amber = RGB(190, 135, 30);
constexpr COLORREF Grey = RGB(170, 176, 186);
constexpr COLORREF Green = RGB(90, 175, 75);
constexpr COLORREF Red = RGB(200, 75, 55);

class Painter
{
  public:
    explicit Painter(int size) : m_size(size), m_side(size * Oversampling)
    {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_side, -m_side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        m_dc = CreateCompatibleDC(nullptr);
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_bits = static_cast<const DWORD*>(bits);
        m_previous = SelectObject(m_dc, m_bitmap);
        const RECT all = {0, 0, m_side, m_side};
        SetBkColor(m_dc, Nothing);
        ExtTextOutW(m_dc, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    }
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;
    ~Painter()
    {
        SelectObject(m_dc, m_previous);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
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
        for (const Point& corner : corners)
            points.push_back({Pixel(corner.x), Pixel(corner.y)});
        const HGDIOBJ brush = SelectObject(m_dc, CreateSolidBrush(colour));
        const HGDIOBJ pen = SelectObject(m_dc, GetStockObject(NULL_PEN));
        Polygon(m_dc, points.data(), static_cast<int>(points.size()));
        SelectObject(m_dc, pen);
        DeleteObject(SelectObject(m_dc, brush));
    }

    void Disc(double x, double y, double radius, COLORREF colour)
    {
        const HGDIOBJ brush = SelectObject(m_dc, CreateSolidBrush(colour));
        const HGDIOBJ pen = SelectObject(m_dc, GetStockObject(NULL_PEN));
        Ellipse(m_dc, Pixel(x - radius), Pixel(y - radius), Pixel(x + radius), Pixel(y + radius));
        SelectObject(m_dc, pen);
        DeleteObject(SelectObject(m_dc, brush));
    }

    HICON Icon() const
    {
        GdiFlush();
        std::vector<DWORD> pixels(static_cast<size_t>(m_size) * m_size);
        for (int y = 0; y < m_size; ++y)
            for (int x = 0; x < m_size; ++x)
                pixels[static_cast<size_t>(y) * m_size + x] = Average(x, y);
        // A mask row is a whole number of 16-bit words; alpha decides, so nothing is masked.
        const std::vector<BYTE> mask(static_cast<size_t>((m_size + 15) / 16) * 2 * m_size);
        return CreateIcon(nullptr, m_size, m_size, 1, 32, mask.data(),
                          reinterpret_cast<const BYTE*>(pixels.data()));
    }

  private:
    LONG Pixel(double units) const { return static_cast<LONG>(units * m_side / Units + 0.5); }

    DWORD Average(int x, int y) const
    {
        DWORD red = 0;
        DWORD green = 0;
        DWORD blue = 0;
        DWORD covered = 0;
        for (int row = y * Oversampling; row < (y + 1) * Oversampling; ++row)
            for (int column = x * Oversampling; column < (x + 1) * Oversampling; ++column) {
                const DWORD pixel = m_bits[static_cast<size_t>(row) * m_side + column] & 0xFFFFFF;
                if (pixel == Nothing)
                    continue;
                red += pixel >> 16 & 255;
                green += pixel >> 8 & 255;
                blue += pixel & 255;
                ++covered;
            }
        if (covered == 0)
            return 0;
        const DWORD alpha = covered * 255 / (Oversampling * Oversampling);
        return alpha << 24 | red / covered << 16 | green / covered << 8 | blue / covered;
    }

    int m_size;
    int m_side; // pixels of the enlarged picture
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_previous;
    const DWORD* m_bits;
};

void Sheet(Painter& painter)
{
    painter.Shape({{3, 1}, {10, 1}, {13, 4}, {13, 15}, {3, 15}}, Ink);
    painter.Shape({{4, 2}, {9.5, 2}, {12, 4.5}, {12, 14}, {4, 14}}, Paper);
}

void Paint(Painter& painter, FixedIcon icon)
{
    switch (icon) {
    case IconDocument:
        Sheet(painter);
        for (int line = 6; line <= 12; line += 2)
            painter.Box(5.5, line, 10.5, line + 0.8, Grey);
        break;
    case IconBlank:
        Sheet(painter);
        break;
    case IconProgram:
        painter.Box(1, 2, 15, 14, Ink);
        painter.Box(2, 5, 14, 13, Paper);
        painter.Box(2, 3, 14, 5, Blue);
        painter.Box(3.5, 6.5, 7, 8.5, LightBlue);
        painter.Box(3.5, 9.5, 12.5, 10.3, Grey);
        painter.Box(3.5, 11.2, 10, 12, Grey);
        break;
    case IconFolder:
        painter.Shape({{1, 3}, {6, 3}, {7.5, 5}, {15, 5}, {15, 14}, {1, 14}}, Amber);
        painter.Box(2, 6, 14, 13, Yellow);
        break;
    case IconDrive:
        painter.Shape({{4, 1}, {13, 1}, {13, 15}, {3, 15}, {3, 4}, {4, 3}}, Ink);
        painter.Box(4, 6, 12, 14, Grey);
        for (int pin = 5; pin <= 11; pin += 2)
            painter.Box(pin, 2, pin + 1, 4.5, Yellow);
        break;
    case IconDevice:
        painter.Box(3, 1, 13, 15, Ink);
        painter.Box(4.5, 2.5, 11.5, 11, LightBlue);
        painter.Disc(8, 13, 1, Grey);
        break;
    case IconShortcut:
        Sheet(painter);
        painter.Shape({{5, 12}, {5, 8}, {8, 8}, {8, 6}, {11.5, 9.3}, {8, 12.5}, {8, 10}, {7, 10}, {7, 12}},
                      Blue);
        break;
    case IconShell:
        painter.Shape({{1, 3}, {7, 2}, {7, 7.5}, {1, 7.5}}, Red);
        painter.Shape({{8, 2}, {15, 1}, {15, 7.5}, {8, 7.5}}, Green);
        painter.Shape({{1, 8.5}, {7, 8.5}, {7, 14}, {1, 13}}, Blue);
        painter.Shape({{8, 8.5}, {15, 8.5}, {15, 15}, {8, 14}}, Yellow);
        break;
    case IconHome:
        painter.Shape({{8, 1}, {15.5, 8.5}, {0.5, 8.5}}, Red);
        painter.Box(3, 8, 13, 15, Ink);
        painter.Box(4, 8, 12, 14, Paper);
        painter.Box(6.5, 9.5, 9.5, 14, Blue);
        break;
    case FixedIconCount:
        break;
    }
}

} // namespace

HICON PaintFixedIcon(FixedIcon icon, int size)
{
    Painter painter(size);
    Paint(painter, icon);
    return painter.Icon();
}
