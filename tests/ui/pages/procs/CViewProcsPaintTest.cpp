// The processes page: how a row is drawn.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/pages/RowDrawing.h"
#include "tests/ui/pages/procs/ProcsTest.h"

class CViewProcsPaintTest : public ProcsTest
{
  protected:
    static constexpr RECT row = RowDrawing::row;

    // On the page of one process, with these facts.
    void OnRow(const std::function<void(ProgramApp&, RowDrawing&)>& test, int icon = 2, uint64_t bytes = 1536)
    {
        OnPage([&](ProgramApp& app) {
            ASSERT_EQ(Page(app).ProcessCount(), 1u);
            auto& process = const_cast<SProcInfo&>(Page(app).Process(0));
            process.iconIndex = icon;
            process.heapBytes = bytes;
            RowDrawing drawing(Page(app).Window(), List(app));
            test(app, drawing);
        });
    }

    static const std::wstring name;

    CViewProcsPaintTest() { system.Add(firstId, name); }
};

const std::wstring CViewProcsPaintTest::name = L"100% & \"a\" Ключ.exe";

TEST_F(CViewProcsPaintTest, WithAnIconTheTextStandsBehindIt)
{
    OnRow([&](ProgramApp& app, RowDrawing& drawing) {
        SPY(ImageList_Draw) image;
        drawing.Draw(0);
        const CRowLook& look = Page(app).Look();
        ASSERT_EQ(image.calls.size(), 1u);
        const auto& [list, index, dc, x, y, style] = image.calls[0];
        EXPECT_EQ(list, look.Icons().list);
        EXPECT_EQ(index, 2);
        EXPECT_EQ(x, row.left + ScaledX(4));
        EXPECT_EQ(y, row.top + (50 - look.Icons().height) / 2);
        EXPECT_EQ(style, static_cast<UINT>(ILD_NORMAL));
        EXPECT_NE(dc, nullptr);

        ASSERT_EQ(drawing.texts.size(), 2u) << "no count of threads";
        const LONG left = row.left + ScaledX(8) + look.Icons().width;
        const LONG right = row.right - ScaledX(2);
        const DrawnText& size = drawing.texts[0];
        EXPECT_EQ(size.text, L"1.50 KB");
        EXPECT_EQ(size.flags, 0x8026u);
        EXPECT_EQ(size.font, look.NormalFont());
        EXPECT_EQ(size.rect, (RECT{left, row.top, right, row.bottom}));
        const DrawnText& title = drawing.texts[1];
        EXPECT_EQ(title.text, name);
        EXPECT_EQ(title.flags, 0x8024u);
        EXPECT_EQ(title.font, look.BoldFont());
        const LONG end = right - WidthOf(look.NormalFont(), L"1.50 KB") - ScaledX(2);
        EXPECT_EQ(title.rect, (RECT{left, row.top, end, row.bottom}));
        for (const DrawnText& each : drawing.texts) {
            EXPECT_EQ(each.colour, GetSysColor(COLOR_WINDOWTEXT));
            EXPECT_EQ(each.mode, TRANSPARENT);
        }
    });
}

TEST_F(CViewProcsPaintTest, WithoutAnIconTheTextBeginsAtTheEdge)
{
    for (const int icon : {-1, -2, static_cast<int>(0x80000000)}) {
        OnRow(
            [&](ProgramApp& app, RowDrawing& drawing) {
                SPY(ImageList_Draw) image;
                SPY(DrawIconEx) drawIcon;
                drawing.Draw(0);
                EXPECT_TRUE(image.calls.empty());
                EXPECT_TRUE(drawIcon.calls.empty());
                ASSERT_EQ(drawing.texts.size(), 2u);
                const LONG right = row.right - ScaledX(2);
                EXPECT_EQ(drawing.texts[0].rect, (RECT{row.left, row.top, right, row.bottom}));
                const LONG end = right - WidthOf(Page(app).Look().NormalFont(), L"1.50 KB") - ScaledX(2);
                EXPECT_EQ(drawing.texts[1].rect, (RECT{row.left, row.top, end, row.bottom}));
            },
            icon);
    }
}

TEST_F(CViewProcsPaintTest, TheFirstIconOfTheListIsOne)
{
    OnRow(
        [&](ProgramApp&, RowDrawing& drawing) {
            SPY(ImageList_Draw) image;
            drawing.Draw(0);
            ASSERT_EQ(image.calls.size(), 1u);
            EXPECT_EQ(std::get<1>(image.calls[0]), 0);
        },
        0);
}

TEST_F(CViewProcsPaintTest, SizesHaveTheirUnits)
{
    const std::pair<uint64_t, const wchar_t*> sizes[] = {
        {0, L"0 B"}, {1023, L"1023 B"}, {1048576, L"1 MB"}, {0x80000000, L"2 GB"}, {0xC0000000, L"3 GB"}};
    for (const auto& [bytes, text] : sizes) {
        OnRow(
            [expected = text](ProgramApp&, RowDrawing& drawing) {
                drawing.Draw(0);
                EXPECT_EQ(drawing.texts.at(0).text, expected);
            },
            2, bytes);
    }
}

TEST_F(CViewProcsPaintTest, ASelectedRowIsFilledAndOthersAreNot)
{
    OnRow([&](ProgramApp&, RowDrawing& drawing) {
        const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
        drawing.Draw(ODS_SELECTED, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.left, row.top), highlight);
            EXPECT_EQ(GetPixel(target, row.right - 1, row.bottom - 1), highlight);
            EXPECT_EQ(GetPixel(target, row.left - 1, row.top), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.right, row.top), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.left, row.top - 1), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.left, row.bottom), RowDrawing::ground);
        });
        for (const DrawnText& each : drawing.texts) {
            EXPECT_EQ(each.colour, GetSysColor(COLOR_HIGHLIGHTTEXT));
        }
        drawing.Draw(ODS_FOCUS, [&](HDC target) {
            EXPECT_EQ(GetPixel(target, row.left, row.top), RowDrawing::ground);
            EXPECT_EQ(GetPixel(target, row.right - 1, row.bottom - 1), RowDrawing::ground);
        });
    });
}

TEST_F(CViewProcsPaintTest, ANameOfAnyLengthEndsBeforeTheSize)
{
    system.processes[0].name = std::wstring(259, L'W');
    OnRow([&](ProgramApp& app, RowDrawing& drawing) {
        const LONG end = row.right - ScaledX(2) - WidthOf(Page(app).Look().NormalFont(), L"1.50 KB");
        const auto paintedBetween = [&](HDC target, LONG from, LONG to) {
            int painted = 0;
            for (LONG x = from; x < to; x++) {
                for (LONG y = row.top; y < row.bottom; y++) {
                    painted += GetPixel(target, x, y) != RowDrawing::ground;
                }
            }
            return painted;
        };
        drawing.Draw(0, [&](HDC target) {
            EXPECT_EQ(paintedBetween(target, end - ScaledX(2), end), 0) << "the gap between name and size";
            EXPECT_EQ(paintedBetween(target, row.right - ScaledX(2), 300), 0) << "behind the size";
            EXPECT_GT(paintedBetween(target, end, row.right - ScaledX(2)), 0);
            EXPECT_GT(paintedBetween(target, row.left + ScaledX(8), end - ScaledX(2)), 0);
        });
        EXPECT_EQ(drawing.texts.at(1).text.size(), 259u);
    });
}

TEST_F(CViewProcsPaintTest, ARowWithoutARecordIsNotDrawn)
{
    OnRow([&](ProgramApp&, RowDrawing& drawing) {
        for (const UINT item : {1u, 2u, 0xFFFFFFFFu}) {
            drawing.Draw(ODS_SELECTED, nullptr, item);
            EXPECT_TRUE(drawing.texts.empty()) << item;
        }
    });
}
