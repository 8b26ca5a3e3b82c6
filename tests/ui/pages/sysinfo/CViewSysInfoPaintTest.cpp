// The system information page: the title, the bar and the amounts of a row.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/Pixels.h"
#include "tests/ui/pages/sysinfo/GaugePainting.h"

class CViewSysInfoPaintTest : public GaugePainting
{
  protected:
    // How far the bar is filled, from its inner left edge.
    static int Fill(const DrawnRow& drawn)
    {
        EXPECT_EQ(drawn.fills.size(), 1u);
        return drawn.fills.empty() ? -1 : static_cast<int>(drawn.fills[0].right - drawn.fills[0].left);
    }

    static void ExpectTexts(const DrawnRow& drawn, const wchar_t* left, const wchar_t* right)
    {
        ASSERT_EQ(drawn.texts.size(), 3u);
        EXPECT_EQ(drawn.texts[0].text, L"Card");
        EXPECT_EQ(drawn.texts[1].text, left);
        EXPECT_EQ(drawn.texts[2].text, right);
    }
};

TEST_F(CViewSysInfoPaintTest, TheTitleIsBoldInTheUpperHalfBesideThePicture)
{
    device.AddCard(L"100% & \"Notes\" Карта", 4096, 1024);
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = Draw(app, 2);
        ASSERT_EQ(drawn.texts.size(), 3u);
        const DrawnText& title = drawn.texts[0];
        EXPECT_EQ(title.text, L"100% & \"Notes\" Карта");
        EXPECT_EQ(title.flags, 0x8024u);
        EXPECT_EQ(title.rect, (RECT{row.left + X(8) + Side(app), row.top, row.right, row.top + 30}))
            << "half of 61";
        EXPECT_EQ(title.font, Page(app).Look().BoldFont());
        EXPECT_EQ(title.colour, GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(title.mode, TRANSPARENT);
    });
}

TEST_F(CViewSysInfoPaintTest, TheBarIsARectangleOfTheDefaultPenAndBrush)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = Draw(app, 0);
        EXPECT_EQ(drawn.outlines, (std::vector<RECT>{{row.left + X(8) + Side(app), row.top + 30,
                                                      row.right - X(4), row.bottom - Y(2)}}));
        EXPECT_EQ(drawn.outlineTools,
                  (std::vector<HGDIOBJ>{GetStockObject(BLACK_PEN), GetStockObject(WHITE_BRUSH)}));
    });
}

TEST_F(CViewSysInfoPaintTest, TheFillIsAPixelInsideInTheScrollBarsColour)
{
    OnPage([&](ProgramApp& app) {
        const RECT inner = Inner(app);
        for (const int percent : {1, 33, 50, 99}) {
            const DrawnRow drawn = DrawAmounts(app, 3, 100, 100 - percent);
            const LONG width = (inner.right - inner.left) * percent / 100;
            EXPECT_EQ(drawn.fills,
                      (std::vector<RECT>{{inner.left, inner.top, inner.left + width, inner.bottom}}))
                << percent;
            EXPECT_EQ(drawn.fillBrushes, std::vector<HBRUSH>{CE_COLOR_BRUSH(0)});
        }
    });
}

TEST_F(CViewSysInfoPaintTest, TheAmountsStandInTheBar)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = DrawAmounts(app, 2, 67108864, 34340864);
        ExpectTexts(drawn, L"31.25 MB", L"32.75 MB ");
        const RECT bar = Bar(app);
        for (const size_t index : {1u, 2u}) {
            const DrawnText& amount = drawn.texts[index];
            EXPECT_EQ(amount.rect, (RECT{bar.left + X(5), bar.top, bar.right, bar.bottom}));
            EXPECT_EQ(amount.colour, GetSysColor(COLOR_WINDOWTEXT));
            EXPECT_EQ(amount.mode, TRANSPARENT);
        }
        EXPECT_EQ(drawn.texts[1].flags, 0x8024u);
        EXPECT_EQ(drawn.texts[1].font, Page(app).Look().NormalFont());
        EXPECT_EQ(drawn.texts[2].flags, 0x8026u);
        EXPECT_EQ(drawn.texts[2].font, Page(app).Look().BoldFont());
    });
}

TEST_F(CViewSysInfoPaintTest, EveryKindButTheBatteryShowsSizes)
{
    OnPage([&](ProgramApp& app) {
        for (const uint32_t kind : {0u, 1u, 2u, 4u, 9u, 0xFFFFFFFFu}) {
            ExpectTexts(DrawAmounts(app, kind, 2048, 512, 1), L"1.50 KB", L"512 B ");
        }
        ExpectTexts(DrawAmounts(app, 2, 0x10000000000, 0x4000000000), L"768 GB", L"256 GB ");
        ExpectTexts(DrawAmounts(app, 0, 0xFFFFFFFF, 0), L"4 GB", L"0 B ");
    });
}

TEST_F(CViewSysInfoPaintTest, TheBatteryShowsItsChargeAndWhetherItCharges)
{
    OnPage([&](ProgramApp& app) {
        ExpectTexts(DrawAmounts(app, 3, 100, 13), L"87%", L"");
        ExpectTexts(DrawAmounts(app, 3, 100, 13, 1), L"87%", L"Charging ");
        ExpectTexts(DrawAmounts(app, 3, 100, 100, 1), L"0%", L"Charging ");
        const DrawnRow charging = DrawAmounts(app, 3, 100, 13, 1);
        EXPECT_EQ(charging.texts[2].flags, 0x8026u);
        EXPECT_EQ(charging.texts[2].font, Page(app).Look().BoldFont());
    });
}

TEST_F(CViewSysInfoPaintTest, AFullBatteryFillsTheBar)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = DrawAmounts(app, 3, 100, 0, 1);
        EXPECT_EQ(drawn.fills, std::vector<RECT>{Inner(app)});
        ExpectTexts(drawn, L"100%", L"Charging ");
    });
}

TEST_F(CViewSysInfoPaintTest, AnUnknownChargeFillsPastTheBar)
{
    OnPage([&](ProgramApp& app) {
        const RECT inner = Inner(app);
        const DrawnRow drawn = DrawAmounts(app, 3, 100, -155);
        ExpectTexts(drawn, L"255%", L"");
        EXPECT_EQ(Fill(drawn), static_cast<int>((inner.right - inner.left) * 255 / 100));
        EXPECT_GT(drawn.fills[0].right, row.right);
        Draw(app, 0, 0, [&](HDC target) {
            EXPECT_NE(GetPixel(target, row.right + 5, inner.top + 2), ground) << "it is not cut off";
            EXPECT_EQ(GetPixel(target, row.right + 5, inner.bottom + 2), ground);
        });
    });
}

TEST_F(CViewSysInfoPaintTest, NothingOfNothingIsAnEmptyBar)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = DrawAmounts(app, 2, 0, 0);
        EXPECT_EQ(Fill(drawn), 0);
        ExpectTexts(drawn, L"0 B", L"0 B ");
        EXPECT_EQ(drawn.outlines, std::vector<RECT>{Bar(app)});
        Draw(app, 0, 0, [&](HDC target) {
            const RECT inner = Inner(app);
            EXPECT_EQ(GetPixel(target, inner.left, inner.top), RGB(255, 255, 255));
        });
    });
}

TEST_F(CViewSysInfoPaintTest, NothingUsedIsAnEmptyBar)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = DrawAmounts(app, 0, 67108864, 67108864);
        EXPECT_EQ(Fill(drawn), 0);
        ExpectTexts(drawn, L"0 B", L"64 MB ");
    });
}

TEST_F(CViewSysInfoPaintTest, MoreFreeThanThereIsFillsToTheRight)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = DrawAmounts(app, 1, 1024, 2048);
        ExpectTexts(drawn, L"-1024 B", L"2 KB ");
        EXPECT_GT(Fill(drawn), canvasWidth);
        EXPECT_LE(Fill(drawn), 32767);
    });
}

TEST_F(CViewSysInfoPaintTest, ASelectedRowLooksLikeAnyOther)
{
    device.AddCard(L"Card", 4096, 1024);
    OnPage([&](ProgramApp& app) {
        for (uint32_t index = 0; index < 4; index++) {
            std::vector<Pixels> looks;
            for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_SELECTED | ODS_FOCUS}}) {
                const DrawnRow drawn = Draw(app, index, state, [&](HDC target) {
                    looks.emplace_back(target, canvasWidth, canvasHeight);
                });
                EXPECT_EQ(drawn.texts.at(1).colour, GetSysColor(COLOR_WINDOWTEXT));
            }
            int different = 0;
            for (int y = 0; y < canvasHeight; y++) {
                for (int x = 0; x < canvasWidth; x++) {
                    different += looks[0].At(x, y) != looks[1].At(x, y);
                    different += looks[0].At(x, y) != looks[2].At(x, y);
                }
            }
            EXPECT_EQ(different, 0) << index;
            EXPECT_EQ(looks[0].At(row.left, row.top), ground) << "it is not filled";
        }
    });
}

TEST_F(CViewSysInfoPaintTest, ALongNameStaysInTheRow)
{
    device.AddCard(std::wstring(259, L'W'), 4096, 1024);
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = Draw(app, 2, 0, [&](HDC target) {
            const Pixels pixels(target, canvasWidth, canvasHeight);
            const RECT beside = {row.right, 0, canvasWidth, canvasHeight};
            EXPECT_EQ(pixels.Count(beside, ground), (canvasWidth - row.right) * canvasHeight);
        });
        EXPECT_EQ(drawn.texts.at(0).text.size(), 259u);
    });
}

TEST_F(CViewSysInfoPaintTest, ARowWithoutARecordIsNotDrawn)
{
    OnPage([&](ProgramApp& app) {
        const DrawnRow drawn = Draw(app, 3);
        EXPECT_TRUE(drawn.texts.empty());
        EXPECT_TRUE(drawn.outlines.empty());
        EXPECT_TRUE(drawn.copies.empty());
    });
}
