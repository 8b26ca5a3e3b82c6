// Lengths of 96 dpi in pixels of the screen.
#include "framework/Scale.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <windows.h>

TEST(ScaleTest, RoundsToTheNearestPixel)
{
    const struct
    {
        int n;
        int dpi;
        int pixels;
    } cases[] = {{1, 96, 1},    {1, 131, 1}, {1, 144, 2},  {3, 120, 4}, {8, 192, 16},
                 {28, 131, 38}, {0, 192, 0}, {26, 96, 26}, {5, 131, 7}};
    for (const auto& each : cases) {
        EXPECT_EQ(Scaled(each.n, each.dpi), each.pixels) << each.n << " at " << each.dpi;
    }
}

static int queries;
static int horizontal;
static int vertical;

static int WINAPI GiveDpi(HDC, int index)
{
    queries++;
    return index == LOGPIXELSX ? horizontal : index == LOGPIXELSY ? vertical : 0;
}

// In a process of its own, because the resolution is read once in a process.
TEST(ScaleTest, AScreenThatDoesNotTellItsResolutionHas96Dpi)
{
    EXPECT_EXIT(
        {
            const ImportHook hook("GetDeviceCaps", GiveDpi);
            horizontal = vertical = 0;
            exit(ScaleX(5) * 10 + ScaleY(7));
        },
        testing::ExitedWithCode(57), "");
}

// One test, because the resolution is read once in a process.
TEST(ScaleTest, EachAxisHasItsResolutionReadOnce)
{
    const ImportHook hook("GetDeviceCaps", GiveDpi);
    horizontal = 192;
    vertical = 144;
    EXPECT_EQ(ScaleX(10), 20);
    EXPECT_EQ(ScaleY(10), 15);
    horizontal = vertical = 96;
    EXPECT_EQ(ScaleX(10), 20);
    EXPECT_EQ(ScaleY(10), 15);
    EXPECT_EQ(queries, 2);
}
