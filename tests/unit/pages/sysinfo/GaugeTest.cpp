// How far a gauge is filled.
#include "pages/sysinfo/Gauge.h"

#include <gtest/gtest.h>

#include <climits>

TEST(GaugeTest, ThePercentIsCut)
{
    EXPECT_EQ(GaugePercent(3, 2), 33u);
    EXPECT_EQ(GaugePercent(3, 1), 66u);
    EXPECT_EQ(GaugePercent(3, 0), 100u);
    EXPECT_EQ(GaugePercent(3, 3), 0u);
    EXPECT_EQ(GaugePercent(1000, 991), 0u);
    EXPECT_EQ(GaugePercent(1000, 990), 1u);
    EXPECT_EQ(GaugePercent(1000, 1), 99u);
    EXPECT_EQ(GaugePercent(1, 0), 100u);
}

TEST(GaugeTest, NothingOfNothingIsUsed)
{
    EXPECT_EQ(GaugePercent(0, 0), 0u);
    EXPECT_EQ(GaugePercent(0, 5), 0u);
    EXPECT_EQ(GaugePercent(0, -5), 0u);
}

TEST(GaugeTest, EveryChargeIsItsOwnPercent)
{
    for (int percent = 0; percent <= 255; percent++) {
        EXPECT_EQ(GaugePercent(100, 100 - percent), static_cast<uint64_t>(percent));
    }
    EXPECT_EQ(GaugePercent(100, -155), 255u);
}

TEST(GaugeTest, SizesMayHaveMoreThanThirtyTwoBits)
{
    EXPECT_EQ(GaugePercent(0x1000000000, 0xC00000000), 25u);
    EXPECT_EQ(GaugePercent(0x1000000000000, 0x800000000000), 50u);
}

TEST(GaugeTest, AHundredfoldThatDoesNotFitGoesRound)
{
    // 184467440737095516 * 100 is 16 short of 2^64.
    EXPECT_EQ(GaugePercent(368934881474191032, 184467440737095516), 50u);
    EXPECT_EQ(GaugePercent(368934881474191034, 184467440737095517), 0u);
    EXPECT_EQ(GaugePercent(84, -184467440737095433), 1u);
}

TEST(GaugeTest, MoreFreeThanThereIsGoesRoundToo)
{
    EXPECT_EQ(GaugePercent(1000, 1001), 18446744073709551u);
    EXPECT_EQ(GaugePercent(1, 2), 18446744073709551516u);
    EXPECT_EQ(GaugePercent(100, INT64_MIN), 100u);
}

TEST(GaugeTest, TheFillIsThePercentOfTheWidthCut)
{
    for (uint64_t percent = 0; percent <= 100; percent++) {
        for (int width = 0; width <= 700; width++) {
            ASSERT_EQ(GaugeFill(percent, width), static_cast<int>(percent) * width / 100)
                << percent << " % of " << width;
        }
    }
}

TEST(GaugeTest, AFullBarIsFilledToItsLastPixel)
{
    for (const int width : {1, 57, 58, 113, 114, 116, 226, 228, 232, 452, 464, 1000, 2000}) {
        EXPECT_EQ(GaugeFill(100, width), width);
    }
}

TEST(GaugeTest, MoreThanAllIsWiderThanTheBar)
{
    EXPECT_EQ(GaugeFill(255, 200), 510);
    EXPECT_EQ(GaugeFill(255, 1), 2);
    EXPECT_EQ(GaugeFill(1000, 300), 3000);
}

TEST(GaugeTest, AnEnormousPercentIsPastEveryScreenAndWithinWhatIsDrawn)
{
    for (const uint64_t percent : {uint64_t{100000000}, uint64_t{0x80000000}, uint64_t{18446744073709551},
                                   uint64_t{0x8000000000000000}, UINT64_MAX}) {
        for (const int width : {1, 100, 700, 32000}) {
            const int fill = GaugeFill(percent, width);
            EXPECT_GE(fill, 16384) << percent << " % of " << width;
            EXPECT_LE(fill, 32767) << percent << " % of " << width;
        }
    }
}

TEST(GaugeTest, ABarWithoutWidthIsNotFilled)
{
    for (const uint64_t percent : {uint64_t{0}, uint64_t{50}, uint64_t{255}, UINT64_MAX}) {
        for (const int width : {0, -1, -2, -100, INT_MIN}) {
            EXPECT_EQ(GaugeFill(percent, width), 0) << percent << " % of " << width;
        }
    }
}
