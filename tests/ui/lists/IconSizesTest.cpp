// The sizes of the system's small icons, and of the pictures that go with them.
#include "lists/SystemIcons.h"
#include "tests/ui/UiTest.h"

class IconSizesTest : public UiTest
{
  protected:
    static SSystemIcons Fetched(int width, int height)
    {
        const SPY(ImageList_GetIconSize) size([=](HIMAGELIST, int* w, int* h) {
            *w = width;
            *h = height;
            return TRUE;
        });
        SSystemIcons icons;
        icons.Fetch();
        EXPECT_EQ(size.calls.size(), 1U);
        EXPECT_EQ(std::get<0>(size.calls.at(0)), icons.list);
        return icons;
    }
};

TEST_F(IconSizesTest, TheWidthAloneDecidesOnTheLargeSize)
{
    const struct
    {
        int width;
        int height;
        int large;
    } cases[] = {{1, 48, 32}, {16, 16, 32}, {16, 17, 32}, {17, 16, 48}, {17, 17, 48}, {32, 32, 48}};
    for (const auto& each : cases) {
        const SSystemIcons icons = Fetched(each.width, each.height);
        EXPECT_EQ(icons.width, each.width);
        EXPECT_EQ(icons.height, each.height);
        EXPECT_EQ(icons.LargeSize(), each.large) << each.width << " x " << each.height;
    }
}

TEST_F(IconSizesTest, AListThatCannotTellHasIconsOfSixteenPixels)
{
    SSystemIcons icons = Fetched(32, 48);
    const SPY(ImageList_GetIconSize) size([](HIMAGELIST, int*, int*) { return FALSE; });
    icons.Fetch();
    EXPECT_EQ(size.calls.size(), 1U);
    EXPECT_EQ(icons.width, 16);
    EXPECT_EQ(icons.height, 16);
    SSystemIcons fresh;
    fresh.Fetch();
    EXPECT_EQ(fresh.width, 16);
    EXPECT_EQ(fresh.height, 16);
    EXPECT_EQ(fresh.LargeSize(), 32);
}
