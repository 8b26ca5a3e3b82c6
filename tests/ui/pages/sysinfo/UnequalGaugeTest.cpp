// A row of the system information page on a screen of unequal resolutions.
#include "tests/ui/UnequalScreen.h"
#include "tests/ui/pages/sysinfo/GaugePainting.h"

class UnequalGaugeTest : public GaugePainting, protected UnequalScreen
{};

TEST_F(UnequalGaugeTest, ItsPlacesAcrossGoByTheHorizontalOneAndDownByTheVertical)
{
    InOwnProcess([&] {
        OnPage([&](ProgramApp& app) {
            const int side = Side(app);
            const DrawnRow drawn = Draw(app, 0);
            ASSERT_EQ(drawn.copies.size(), 3u);
            EXPECT_EQ(drawn.copies[0].place, (RECT{row.left + 12, row.top + (61 - side) / 2, side, side}));
            const RECT bar = {row.left + 24 + side, row.top + 30, row.right - 12, row.bottom - 2};
            EXPECT_EQ(drawn.outlines, std::vector<RECT>{bar});
            ASSERT_EQ(drawn.texts.size(), 3u);
            EXPECT_EQ(drawn.texts[0].rect, (RECT{bar.left, row.top, row.right, bar.top}));
            EXPECT_EQ(drawn.texts[1].rect, (RECT{bar.left + 15, bar.top, bar.right, bar.bottom}));
        });
    });
}

TEST_F(UnequalGaugeTest, ItsHeightGoesByTheVerticalOne)
{
    InOwnProcess([&] {
        LONG textHeight = 0;
        const SPY(GetTextMetricsW) metrics([&](HDC target, TEXTMETRICW* out) {
            const BOOL known = metrics.Real(target, out);
            out->tmHeight = textHeight;
            out->tmExternalLeading = 0;
            return known;
        });
        InProgram([&](ProgramApp& app) {
            textHeight = 1;
            EXPECT_EQ(MeasuredHeight(app), Side(app) + 6);
            textHeight = 100;
            EXPECT_EQ(MeasuredHeight(app), 2 * (100 + 1) + 4);
        });
    });
}
