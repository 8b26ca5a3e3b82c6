// Where windows go when the screen is turned.
#include "platform/pc/common/TurnedPlace.h"

#include <gtest/gtest.h>

using handheld::CoversScreen;
using handheld::TurnedPlace;

static constexpr handheld::ScreenChange sideways = {{0, 26, 240, 320}, {0, 26, 320, 240}, 26};
static constexpr handheld::ScreenChange back = {{0, 26, 320, 240}, {0, 26, 240, 320}, 26};

static void ExpectRect(const RECT& wanted, const RECT& is)
{
    EXPECT_EQ(wanted.left, is.left);
    EXPECT_EQ(wanted.top, is.top);
    EXPECT_EQ(wanted.right, is.right);
    EXPECT_EQ(wanted.bottom, is.bottom);
}

TEST(TurnedPlaceTest, WhatCoversTheScreenCoversItAgain)
{
    ExpectRect({0, 26, 320, 240}, TurnedPlace({0, 26, 240, 320}, sideways));
    ExpectRect({0, 26, 320, 214}, TurnedPlace({0, 26, 240, 294}, sideways));
    ExpectRect({0, 26, 240, 294}, TurnedPlace({0, 26, 320, 214}, back));
}

TEST(TurnedPlaceTest, OnlyTheWholeScreenOrAllButASoftKeyBarIsCovered)
{
    EXPECT_TRUE(CoversScreen({0, 26, 240, 320}, sideways));
    EXPECT_TRUE(CoversScreen({0, 26, 240, 294}, sideways));
    for (const RECT& place : {RECT{0, 26, 240, 300}, RECT{0, 27, 240, 320}, RECT{1, 26, 240, 320},
                              RECT{0, 26, 239, 320}, RECT{0, 0, 240, 320}}) {
        EXPECT_FALSE(CoversScreen(place, sideways)) << place.left << ' ' << place.top << ' ' << place.bottom;
    }
}

TEST(TurnedPlaceTest, ASmallWindowKeepsTheNearerEdges)
{
    ExpectRect({5, 30, 55, 60}, TurnedPlace({5, 30, 55, 60}, sideways));
    ExpectRect({265, 206, 315, 236}, TurnedPlace({185, 286, 235, 316}, sideways));
    ExpectRect({185, 286, 235, 316}, TurnedPlace({265, 206, 315, 236}, back));
}

TEST(TurnedPlaceTest, OrTheMiddle)
{
    ExpectRect({110, 108, 210, 158}, TurnedPlace({70, 148, 170, 198}, sideways));
}

TEST(TurnedPlaceTest, WhatIsTooLargeFillsTheScreenAndNoMore)
{
    ExpectRect({10, 26, 210, 240}, TurnedPlace({10, 30, 210, 318}, sideways));
    ExpectRect({0, 26, 240, 226}, TurnedPlace({0, 26, 310, 226}, back));
}

TEST(TurnedPlaceTest, WhatLayOutsideComesOntoTheScreen)
{
    ExpectRect({220, 26, 320, 126}, TurnedPlace({200, 0, 300, 100}, sideways));
}
