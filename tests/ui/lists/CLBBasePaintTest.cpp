// CLB_Base: what it paints, and where.
// profiles: pocketpc pocketpc-vga
#include "framework/CStr.h"
#include "framework/Gdi.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

#include <memory>

// Rows of 20 pixels in a list of 160 x 120. The control may leave a margin above the first.
class CLBBasePaintTest : public UiTest
{
  protected:
    static constexpr int rowHeight = 20;
    static constexpr COLORREF separatorColour = RGB(11, 22, 33);
    static constexpr COLORREF textColour = RGB(44, 55, 66);

    TestApp app;
    std::unique_ptr<TestList> list;
    std::unique_ptr<ListOwner> owner;
    std::vector<std::tuple<HDC, int, int, int, int, HDC, int, int, DWORD>> copies;
    std::vector<RECT> strips;
    int firstTop = 0; // of the first row

    CLBBasePaintTest() { app.instance = GetModuleHandleW(nullptr); }

    ~CLBBasePaintTest() override
    {
        // The list's object goes before its window, as a page's does.
        list.reset();
        owner.reset();
    }

    void Construct(uint32_t rows, bool separators = true)
    {
        list = std::make_unique<TestList>(separators);
        owner = std::make_unique<ListOwner>(*list);
        list->Construct(owner->window);
        SendMessageW(list->Window(), LVM_SETBKCOLOR, 0, TestList::background);
        list->SetCount(rows);
        list->RecreateColumns(true);
        ValidateRect(list->Window(), nullptr);
        owner->TakeRows();
        if (rows > 0) {
            firstTop = RowRect(0).top;
        }
    }

    RECT RowRect(WPARAM row) const
    {
        RECT rect = {LVIR_BOUNDS, 0, 0, 0};
        SendMessageW(list->Window(), LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }

    // The upper edge of a row of a list that is not scrolled.
    int Top(int row) const { return firstTop + row * rowHeight; }

    // Paints only that part of the list; what it drew into the back buffer and copied is recorded.
    void Paint(RECT area)
    {
        const SPY(BitBlt) blit([&](HDC target, int x, int y, int width, int height, HDC source, int fromX,
                                   int fromY, DWORD operation) {
            copies.emplace_back(target, x, y, width, height, source, fromX, fromY, operation);
            return blit.Real(target, x, y, width, height, source, fromX, fromY, operation);
        });
        const SPY(FillRect) fill([&](HDC target, const RECT* rect, HBRUSH brush) {
            if (brush == CE_COLOR_BRUSH(COLOR_SCROLLBAR)) {
                EXPECT_EQ(target, list->buffer.DC());
                strips.push_back(*rect);
                HBRUSH own = CreateSolidBrush(separatorColour);
                const int result = fill.Real(target, rect, own);
                DeleteObject(own);
                return result;
            }
            return fill.Real(target, rect, brush);
        });
        const SPY(GetSysColor)
            colour([&](int index) { return index == COLOR_WINDOWTEXT ? textColour : colour.Real(index); });
        InvalidateRect(list->Window(), &area, FALSE);
        UpdateWindow(list->Window());
    }

    void PaintAll() { Paint({0, 0, ListOwner::width, ListOwner::height}); }

    static int Thickness()
    {
        const ScreenDC screen;
        return (GetDeviceCaps(screen, LOGPIXELSX) + 48) / 96;
    }

    static std::vector<uint32_t> Rows(uint32_t first, uint32_t last)
    {
        std::vector<uint32_t> rows;
        for (uint32_t row = first; row <= last; row++) {
            rows.push_back(row);
        }
        return rows;
    }
};

TEST_F(CLBBasePaintTest, ARowRequestNamesTheListAndItsBackBuffer)
{
    Construct(2);
    PaintAll();
    ASSERT_EQ(owner->requests.size(), 2U);
    for (const WPARAM control : owner->requestControls) {
        EXPECT_EQ(control, 0U);
    }
    const DRAWITEMSTRUCT& draw = owner->requests[1];
    EXPECT_EQ(draw.CtlType, 102U);
    EXPECT_EQ(draw.CtlID, 110U);
    EXPECT_EQ(draw.itemID, 1U);
    EXPECT_EQ(draw.hwndItem, list->Window());
    EXPECT_NE(draw.hDC, nullptr);
    EXPECT_EQ(draw.hDC, list->buffer.DC());
    EXPECT_EQ(draw.rcItem, (RECT{0, Top(1), ListOwner::width, Top(2)}));
}

TEST_F(CLBBasePaintTest, OneRowMoreThanAPageIsAskedForButNoneBehindTheLast)
{
    Construct(40);
    // Part of a row is visible below the page.
    MoveWindow(list->Window(), 0, 0, ListOwner::width, 5 * rowHeight + 7, TRUE);
    list->RecreateColumns(true);
    ValidateRect(list->Window(), nullptr);
    owner->TakeRows();
    PaintAll();
    EXPECT_EQ(owner->TakeRows(), Rows(0, 5));

    SendMessageW(list->Window(), LVM_ENSUREVISIBLE, 39, FALSE);
    const auto top = static_cast<uint32_t>(SendMessageW(list->Window(), LVM_GETTOPINDEX, 0, 0));
    ASSERT_GT(top, 0U);
    owner->TakeRows();
    PaintAll();
    EXPECT_EQ(owner->TakeRows(), Rows(top, 39));
}

TEST_F(CLBBasePaintTest, ThePageAsksUpToItsCountInclusive)
{
    Construct(40);
    // The control says how many rows are a page; the paint rectangle says which of them are needed.
    const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        return message == LVM_GETCOUNTPERPAGE ? 3 : send.Real(window, message, wParam, lParam);
    });
    PaintAll();
    EXPECT_EQ(owner->TakeRows(), Rows(0, 3));
}

TEST_F(CLBBasePaintTest, OnlyRowsInThePaintRectangleAreDrawn)
{
    Construct(6);
    Paint({10, Top(2) + 5, 50, Top(2) + 15});
    EXPECT_EQ(owner->TakeRows(), Rows(2, 2));
    Paint({10, Top(2) - 1, 50, Top(4) + 1});
    EXPECT_EQ(owner->TakeRows(), Rows(1, 4));
    // Touching edges are no overlap.
    Paint({10, Top(2), 50, Top(3)});
    EXPECT_EQ(owner->TakeRows(), Rows(2, 2));
}

TEST_F(CLBBasePaintTest, OnlyThePaintRectangleIsCopied)
{
    Construct(6);
    PaintAll();
    copies.clear();
    list->drawRow = [](HDC target, const RECT& rect, uint32_t, bool) {
        FillRect(target, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    };
    const RECT area = {30, 25, 70, 35};
    Paint(area);
    ASSERT_EQ(copies.size(), 1U);
    const HDC screen = std::get<0>(copies[0]);
    EXPECT_EQ(copies[0], std::make_tuple(screen, 30, 25, 40, 10, list->buffer.DC(), 30, 25, DWORD{SRCCOPY}));
    EXPECT_NE(screen, list->buffer.DC());
    const Pixels pixels = Pixels::Of(list->Window());
    EXPECT_EQ(pixels.Count(pixels.All(), RGB(0, 0, 0)), 40 * 10);
    EXPECT_EQ(pixels.Count(area, RGB(0, 0, 0)), 40 * 10);
}

TEST_F(CLBBasePaintTest, PaintingRowsAnswersZeroAndNoRowsOne)
{
    Construct(1);
    EXPECT_EQ(SendMessageW(list->Window(), WM_PAINT, 0, 0), 0);
    list->SetCount(0);
    EXPECT_EQ(SendMessageW(list->Window(), WM_PAINT, 0, 0), 1);
}

TEST_F(CLBBasePaintTest, RowsAppearOnTheErasedBackground)
{
    Construct(2);
    PaintAll();
    const Pixels pixels = Pixels::Of(list->Window());
    const int half = ListOwner::width / 2;
    EXPECT_EQ(pixels.Count({0, Top(0), half, Top(1)}, TestList::RowColour(0)), half * rowHeight);
    EXPECT_EQ(pixels.Count({0, Top(1), half, Top(2)}, TestList::RowColour(1)), half * rowHeight);
    const int gap = rowHeight - Thickness();
    EXPECT_EQ(pixels.Count({half, Top(0), ListOwner::width, Top(0) + gap}, TestList::background), half * gap);
    EXPECT_EQ(pixels.Count({0, Top(2), ListOwner::width, Top(2) + gap}, TestList::background),
              ListOwner::width * gap);
}

TEST_F(CLBBasePaintTest, TheRowAtTheMarkIsTheSelectedOne)
{
    Construct(4);
    // The mark counts, not the control's own state.
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list->Window(), LVM_SETITEMSTATE, 3, reinterpret_cast<LPARAM>(&item));
    SendMessageW(list->Window(), LVM_SETSELECTIONMARK, 0, 2);
    owner->TakeRows();
    PaintAll();
    ASSERT_EQ(owner->requests.size(), 4U);
    for (const DRAWITEMSTRUCT& draw : owner->requests) {
        EXPECT_EQ(draw.itemAction, draw.itemID == 2 ? 2U : 0U) << draw.itemID;
        EXPECT_EQ(draw.itemState, draw.itemID == 2 ? 1U : 0U) << draw.itemID;
    }
}

TEST_F(CLBBasePaintTest, WithoutAMarkOrBehindTheLastRowNoneIsSelected)
{
    Construct(4);
    for (const int mark : {-1, 4, 100}) {
        SendMessageW(list->Window(), LVM_SETSELECTIONMARK, 0, mark);
        owner->TakeRows();
        PaintAll();
        EXPECT_EQ(owner->requests.size(), 4U);
        for (const DRAWITEMSTRUCT& draw : owner->requests) {
            EXPECT_EQ(draw.itemAction, 0U) << mark;
            EXPECT_EQ(draw.itemState, 0U) << mark;
        }
    }
}

TEST_F(CLBBasePaintTest, SeparatorsLieAtTheBottomOfEverySlotOfThePage)
{
    Construct(2);
    const auto page = static_cast<int>(SendMessageW(list->Window(), LVM_GETCOUNTPERPAGE, 0, 0));
    EXPECT_EQ(page, (ListOwner::height - firstTop) / rowHeight);
    PaintAll();
    ASSERT_EQ(static_cast<int>(strips.size()), page + 1);
    for (int slot = 0; slot <= page; slot++) {
        const int bottom = Top(slot + 1);
        EXPECT_EQ(strips[static_cast<size_t>(slot)],
                  (RECT{0, bottom - Thickness(), ListOwner::width, bottom}));
    }
    const Pixels pixels = Pixels::Of(list->Window());
    for (int slot = 0; slot < page; slot++) {
        // Rows are drawn over them, so they are looked for in the free half.
        const int bottom = Top(slot + 1);
        const RECT strip = {ListOwner::width / 2, bottom - Thickness(), ListOwner::width, bottom};
        EXPECT_EQ(pixels.Count(strip, separatorColour), ListOwner::width / 2 * Thickness()) << slot;
    }
    EXPECT_EQ(pixels.Count({ListOwner::width / 2, 0, ListOwner::width, ListOwner::height}, separatorColour),
              ListOwner::width / 2 * Thickness() * page);
}

TEST_F(CLBBasePaintTest, AScrolledListsSeparatorsFollowItsRows)
{
    Construct(40);
    SendMessageW(list->Window(), LVM_ENSUREVISIBLE, 20, FALSE);
    const auto top = static_cast<WPARAM>(SendMessageW(list->Window(), LVM_GETTOPINDEX, 0, 0));
    const RECT row = RowRect(top);
    PaintAll();
    ASSERT_FALSE(strips.empty());
    EXPECT_EQ(strips[0], (RECT{row.left, row.bottom - Thickness(), row.right, row.bottom}));
}

TEST_F(CLBBasePaintTest, AListWithoutSeparatorsHasNone)
{
    Construct(2, false);
    PaintAll();
    EXPECT_TRUE(strips.empty());
    EXPECT_EQ(owner->TakeRows(), Rows(0, 1));
}

TEST_F(CLBBasePaintTest, SeparatorsAreDrawnBeforeTheRows)
{
    Construct(2);
    list->drawRow = [](HDC target, const RECT& rect, uint32_t, bool) {
        FillRect(target, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    };
    PaintAll();
    const Pixels pixels = Pixels::Of(list->Window());
    EXPECT_EQ(pixels.Count({0, Top(0), ListOwner::width, Top(2)}, RGB(0, 0, 0)),
              ListOwner::width * (Top(2) - Top(0)));
}

TEST_F(CLBBasePaintTest, AnEmptyListIsErasedAndAsksForNothing)
{
    Construct(0);
    const SPY(DrawTextW) draw;
    PaintAll();
    EXPECT_TRUE(owner->TakeRows().empty());
    EXPECT_TRUE(copies.empty());
    EXPECT_TRUE(draw.calls.empty());
    const Pixels pixels = Pixels::Of(list->Window());
    EXPECT_EQ(pixels.Count(pixels.All(), TestList::background), ListOwner::width * ListOwner::height);
}

TEST_F(CLBBasePaintTest, AnEmptyListsTextIsCentredWithinFifteenPixels)
{
    Construct(0);
    list->emptyText = L"Nothing here";
    const SPY(DrawTextW) draw([&](HDC target, const wchar_t* text, int length, RECT* rect, UINT format) {
        EXPECT_STREQ(text, L"Nothing here");
        EXPECT_EQ(format, 0x8815U);
        EXPECT_EQ(*rect, (RECT{15, 0, ListOwner::width - 15, ListOwner::height}));
        EXPECT_EQ(GetTextColor(target), textColour);
        EXPECT_EQ(GetBkMode(target), TRANSPARENT);
        return draw.Real(target, text, length, rect, format);
    });
    PaintAll();
    EXPECT_EQ(draw.calls.size(), 1U);
    const Pixels pixels = Pixels::Of(list->Window());
    EXPECT_GT(pixels.Count(pixels.All(), textColour), 0);
}

TEST_F(CLBBasePaintTest, AListWithoutABackBufferMakesOneToPaint)
{
    Construct(2);
    EXPECT_EQ(list->buffer.DC(), nullptr);
    PaintAll();
    ASSERT_NE(list->buffer.DC(), nullptr);
    EXPECT_EQ(list->buffer.Width(), ListOwner::width);
    EXPECT_EQ(list->buffer.Height(), ListOwner::height);
}

TEST_F(CLBBasePaintTest, ARowPaintedOffTheScreenShowsNothingBeforeItIsWhole)
{
    Construct(3);
    PaintAll();
    list->drawRow = [this](HDC target, const RECT& rect, uint32_t, bool) {
        FillRect(target, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        const Pixels pixels = Pixels::Of(list->Window());
        EXPECT_EQ(pixels.Count(pixels.All(), RGB(0, 0, 0)), 0);
    };
    PaintAll();
    EXPECT_EQ(Pixels::Of(list->Window()).Count({0, Top(0), ListOwner::width, Top(3)}, RGB(0, 0, 0)),
              ListOwner::width * (Top(3) - Top(0)));
}

TEST_F(CLBBasePaintTest, WithoutMemoryForABackBufferNothingIsDrawn)
{
    Construct(3);
    PaintAll();
    owner->TakeRows();
    copies.clear();
    list->drawRow = [](HDC target, const RECT& rect, uint32_t, bool) {
        FillRect(target, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    };
    {
        const SPY(CreateCompatibleDC) create([](HDC) { return HDC{nullptr}; });
        // Another size than its window's: the buffer goes, and the next paint asks for one anew.
        SendMessageW(list->Window(), WM_SIZE, 0, MAKELPARAM(50, 50));
        PaintAll();
        EXPECT_EQ(create.calls.size(), 2U);
    }
    EXPECT_EQ(list->buffer.DC(), nullptr);
    EXPECT_TRUE(owner->TakeRows().empty());
    EXPECT_TRUE(copies.empty());
    EXPECT_EQ(Pixels::Of(list->Window()).Count({0, 0, ListOwner::width, ListOwner::height}, RGB(0, 0, 0)), 0);

    PaintAll();
    EXPECT_EQ(owner->TakeRows(), Rows(0, 2));
    EXPECT_EQ(Pixels::Of(list->Window()).Count({0, Top(0), ListOwner::width, Top(3)}, RGB(0, 0, 0)),
              ListOwner::width * (Top(3) - Top(0)));
}
