// The title strip: its erasing, its line, its arrowheads and its title, pixel by pixel.
// profiles: pocketpc pocketpc-vga
#include "pages/TitleStrip.h"
#include "framework/Gdi.h"
#include "lists/RowMeasures.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

// A strip of 160 pixels' width, drawn into a bitmap. The system's text colour is red, the default pen black.
class TitleStripTest : public UiTest
{
  protected:
    static constexpr COLORREF textColour = RGB(200, 0, 0);
    static constexpr COLORREF penColour = RGB(0, 0, 0);
    static constexpr COLORREF untouched = RGB(0, 0, 200);
    static constexpr int width = ListOwner::width;
    static constexpr int canvas = 100;

    TestApp app;
    TestList list;
    ListOwner owner{list};

    TitleStripTest()
    {
        app.instance = GetModuleHandleW(nullptr);
        list.Construct(owner.window);
        SendMessageW(list.Window(), LVM_SETBKCOLOR, 0, TestList::background);
    }

    static int Dpi()
    {
        const ScreenDC screen;
        return GetDeviceCaps(screen, LOGPIXELSX);
    }

    static int Pixel(int n) { return (n * Dpi() + 48) / 96; }

    Pixels Draw(int height, const wchar_t* title, int left = 0)
    {
        const SPY(GetSysColor)
            colour([&](int index) { return index == COLOR_WINDOWTEXT ? textColour : colour.Real(index); });
        const ScreenDC screen;
        const MemoryDC memory(screen);
        const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(screen, width, canvas));
        const Selection selected(memory, bitmap);
        const GdiObject<HBRUSH> fill(CreateSolidBrush(untouched));
        const RECT all = {0, 0, width, canvas};
        FillRect(memory, &all, fill);
        DrawTitleStrip(memory, {left, 0, width, canvas}, height, title, font, list);
        return Pixels(memory, width, canvas);
    }

    // The pixels that the vertical lines of both heads cover: a line ends before its last point.
    static bool InArrowhead(int x, int y, int height, int left)
    {
        const int a = height / 2;
        const int y0 = (height - a) / 2;
        for (int i = 0; i <= a / 2; i++) {
            const bool inLine = y >= y0 + i && y < y0 + a - i;
            if (inLine && (x == left + Pixel(3) + (a / 2 - i) || x == width - Pixel(3) - (a / 2 - i))) {
                return true;
            }
        }
        return false;
    }

    GdiObject<HFONT> font{CreateSystemFont(FW_BOLD, 0)};
};

TEST_F(TitleStripTest, ArrowheadsAndLineAreExact)
{
    // An even and an odd size of the heads, and strips of even and odd height.
    for (const int height : {24, 26, 27, 30, 45}) {
        const Pixels pixels = Draw(height, L"");
        for (int y = 0; y < height - 2; y++) {
            for (int x = 0; x < width; x++) {
                const COLORREF expected = InArrowhead(x, y, height, 0) ? penColour : TestList::background;
                ASSERT_EQ(pixels.At(x, y), expected) << x << ',' << y << " of a strip of " << height;
            }
        }
        EXPECT_EQ(pixels.Count({0, height - 1, width, height}, textColour), width);
        const COLORREF above = Pixel(1) > 1 ? textColour : TestList::background;
        EXPECT_EQ(pixels.Count({0, height - 2, width, height - 1}, above), width) << height;
    }
}

TEST_F(TitleStripTest, TheHeadsPointOutwards)
{
    const int height = 28; // heads of 14 pixels from y 7
    const Pixels pixels = Draw(height, L"");
    // The base, 14 pixels high, is on the inner side; the tip lies at the edge.
    const int base = Pixel(3) + 7;
    EXPECT_EQ(pixels.Count({base, 0, base + 1, height - 2}, penColour), 14);
    EXPECT_EQ(pixels.Count({width - base, 0, width - base + 1, height - 2}, penColour), 14);
    EXPECT_EQ(pixels.Count({base - 6, 0, base - 5, height - 2}, penColour), 2);
    EXPECT_EQ(pixels.Count({width - base + 6, 0, width - base + 7, height - 2}, penColour), 2);
    EXPECT_EQ(pixels.Count({base + 1, 0, width - base, height - 2}, penColour), 0);
}

TEST_F(TitleStripTest, OnlyTheStripIsErasedAndItHasTheListsBackground)
{
    const int height = 30;
    const Pixels pixels = Draw(height, L"");
    EXPECT_EQ(pixels.Count({0, height, width, canvas}, untouched), width * (canvas - height));
    EXPECT_EQ(pixels.Count({0, 0, width, height}, untouched), 0);
}

TEST_F(TitleStripTest, TheTitleIsBoldTransparentTextBetweenTheHeads)
{
    const int height = 40;
    const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
        EXPECT_STREQ(text, L"System information");
        EXPECT_EQ(length, -1);
        EXPECT_EQ(format, 0x8024U);
        EXPECT_EQ(*rect, (RECT{Pixel(6) + 20, 0, width - Pixel(6) - 20, height}));
        EXPECT_EQ(GetCurrentObject(target, OBJ_FONT), static_cast<HGDIOBJ>(static_cast<HFONT>(font)));
        EXPECT_EQ(GetTextColor(target), textColour);
        EXPECT_EQ(GetBkMode(target), TRANSPARENT);
        return draw.Real(target, text, length, rect, format);
    });
    const Pixels pixels = Draw(height, L"System information");
    EXPECT_EQ(draw.calls.size(), 1U);
    const RECT between = {Pixel(6) + 20, 0, width - Pixel(6) - 20, height - 2};
    EXPECT_GT(pixels.Count(between, textColour), 0);
    EXPECT_EQ(pixels.Count({0, 0, between.left, height - 2}, textColour), 0);
    EXPECT_EQ(pixels.Count({between.right, 0, width, height - 2}, textColour), 0);
}

TEST_F(TitleStripTest, TheLinesPenIsScaledDeselectedAndDeleted)
{
    HPEN pen = nullptr;
    const SPY(CreatePen) create([&](int style, int penWidth, COLORREF colour) {
        EXPECT_EQ(style, PS_SOLID);
        EXPECT_EQ(penWidth, Pixel(1));
        EXPECT_EQ(colour, textColour);
        pen = create.Real(style, penWidth, colour);
        return pen;
    });
    std::vector<HGDIOBJ> pens; // that the lines are drawn with
    const SPY(LineTo) line([&](HDC target, int x, int y) {
        pens.push_back(GetCurrentObject(target, OBJ_PEN));
        return line.Real(target, x, y);
    });
    int deleted = 0;
    const SPY(DeleteObject) deleteObject([&](HGDIOBJ object) {
        if (object == pen && pen != nullptr) {
            deleted++;
            EXPECT_EQ(line.calls.size(), 1U) << "right after its line";
        }
        return deleteObject.Real(object);
    });
    Draw(30, L"");
    EXPECT_EQ(create.calls.size(), 1U);
    EXPECT_EQ(deleted, 1);
    ASSERT_GT(pens.size(), 1U);
    EXPECT_EQ(pens[0], pen);
    for (size_t i = 1; i < pens.size(); i++) {
        EXPECT_EQ(pens[i], GetStockObject(BLACK_PEN));
    }
}

TEST_F(TitleStripTest, TheHeightIsTheBoldTextsWithNinePixels)
{
    const ScreenDC screen;
    const Selection selected(screen, font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    EXPECT_EQ(TitleStripHeight(font),
              metrics.tmHeight + metrics.tmExternalLeading + (Dpi() + 48) / 96 + (8 * Dpi() + 48) / 96);
}
