// What single-line rows have in common: their height, colours, icon and texts.
// profiles: pocketpc pocketpc-vga
#include "framework/Gdi.h"
#include "lists/CRowPainter.h"
#include "lists/RowMeasures.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/UiTest.h"

#include <memory>

class RowLookTest : public UiTest
{
  protected:
    static constexpr COLORREF background = RGB(250, 240, 230);
    static constexpr RECT row = {0, 10, 120, 40};

    GdiObject<HFONT> bold{CreateSystemFont(FW_BOLD, 0)};
    ScreenDC screen;
    MemoryDC memory{screen};
    GdiObject<HBITMAP> bitmap{CreateCompatibleBitmap(screen, 120, 60)};
    Selection selectedBitmap{memory, bitmap};

    RowLookTest()
    {
        const GdiObject<HBRUSH> fill(CreateSolidBrush(background));
        const RECT all = {0, 0, 120, 60};
        FillRect(memory, &all, fill);
    }

    int Pixel(int n) const { return (n * GetDeviceCaps(screen, LOGPIXELSY) + 48) / 96; }

    int TextHeight() const
    {
        const Selection selected(screen, bold);
        TEXTMETRICW metrics = {};
        GetTextMetricsW(screen, &metrics);
        return metrics.tmHeight + metrics.tmExternalLeading;
    }

    Pixels Picture() const { return Pixels(memory, 120, 60); }
};

TEST_F(RowLookTest, ARowIsAsHighAsItsTextAndThreePixels)
{
    EXPECT_EQ(SingleLineRowHeight(bold, 1), TextHeight() + Pixel(1) + Pixel(2));
}

TEST_F(RowLookTest, ARowIsNeverLowerThanItsIconAndFourPixels)
{
    EXPECT_EQ(SingleLineRowHeight(bold, 100), 100 + Pixel(4));
    const int limit = TextHeight() + Pixel(1) + Pixel(2) - Pixel(4);
    EXPECT_EQ(SingleLineRowHeight(bold, limit), limit + Pixel(4));
    EXPECT_EQ(SingleLineRowHeight(bold, limit + 1), limit + 1 + Pixel(4));
}

TEST_F(RowLookTest, ASelectedRowIsFilledAndWrittenInHighlightColours)
{
    const CRowPainter painter(memory, row, true);
    const Pixels pixels = Picture();
    EXPECT_EQ(pixels.Count(row, GetSysColor(COLOR_HIGHLIGHT)), 120 * 30);
    EXPECT_EQ(pixels.Count({0, 0, 120, 10}, background), 120 * 10);
    EXPECT_EQ(pixels.Count({0, 40, 120, 60}, background), 120 * 20);
    EXPECT_EQ(GetTextColor(memory), GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(GetBkMode(memory), TRANSPARENT);
}

TEST_F(RowLookTest, AnyOtherRowIsWrittenInWindowTextOnTheErasedBackground)
{
    const CRowPainter painter(memory, row, false);
    const Pixels pixels = Picture();
    EXPECT_EQ(pixels.Count(pixels.All(), background), 120 * 60);
    EXPECT_EQ(GetTextColor(memory), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(GetBkMode(memory), TRANSPARENT);
}

TEST_F(RowLookTest, TheContextIsAsBeforeAfterARow)
{
    SetTextColor(memory, RGB(1, 2, 3));
    SetBkColor(memory, RGB(4, 5, 6));
    SetBkMode(memory, OPAQUE);
    HGDIOBJ font = GetCurrentObject(memory, OBJ_FONT);
    {
        CRowPainter painter(memory, row, true);
        painter.DrawLeft(bold, L"Name", row);
        EXPECT_EQ(GetCurrentObject(memory, OBJ_FONT), static_cast<HGDIOBJ>(static_cast<HFONT>(bold)));
    }
    EXPECT_EQ(GetTextColor(memory), RGB(1, 2, 3));
    EXPECT_EQ(GetBkColor(memory), RGB(4, 5, 6));
    EXPECT_EQ(GetBkMode(memory), OPAQUE);
    EXPECT_EQ(GetCurrentObject(memory, OBJ_FONT), font);
}

TEST_F(RowLookTest, TextsAreCentredOnOneLineWithAnEllipsis)
{
    std::vector<std::pair<std::wstring, UINT>> drawn;
    const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
        drawn.emplace_back(text, format);
        return draw.Real(target, text, length, rect, format);
    });
    CRowPainter painter(memory, row, false);
    painter.DrawLeft(bold, L"Name", row);
    const int width = painter.DrawRight(bold, L"12 KB", row);
    EXPECT_EQ(drawn, (std::vector<std::pair<std::wstring, UINT>>{{L"Name", 0x8024}, {L"12 KB", 0x8026}}));
    SIZE size = {};
    GetTextExtentExPointW(memory, L"12 KB", 5, 0, nullptr, nullptr, &size);
    EXPECT_EQ(width, size.cx);
}

TEST_F(RowLookTest, TheIconIsCentredAndTheTextBeginsBehindIt)
{
    CRowPainter painter(memory, row, false);
    const SPY(DrawIconEx) draw([](HDC, int, int, HICON, int, int, UINT, HBRUSH, UINT) { return TRUE; });
    auto* const icon = reinterpret_cast<HICON>(static_cast<INT_PTR>(9));
    painter.DrawIcon(icon, 16);
    ASSERT_EQ(draw.calls.size(), 1U);
    EXPECT_EQ(std::get<1>(draw.calls[0]), Pixel(4));
    EXPECT_EQ(std::get<2>(draw.calls[0]), 10 + (30 - 16) / 2);
    EXPECT_EQ(painter.TextArea(16), (RECT{Pixel(8) + 16, 10, 120, 40}));
}
