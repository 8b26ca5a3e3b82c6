// The hardware keys dialog of a Pocket PC on a screen of unequal resolutions.
#include "tests/ui/UnequalScreen.h"
#include "tests/ui/keys/ButtonsTest.h"

class UnequalKeysTest : public ButtonsTest, protected UnequalScreen
{};

TEST_F(UnequalKeysTest, ItsMarginsGoByBoth)
{
    InOwnProcess([&] {
        OpenKeys([](Opened& opened) {
            const SIZE client = ClientSize(opened.dialog);
            const RECT press = Place(opened, pressList);
            const RECT hold = Place(opened, holdList);
            const LONG height = press.bottom - press.top;
            EXPECT_EQ(Place(opened, keyList), (RECT{12, 4, client.cx - 12, press.top - 4}));
            EXPECT_EQ(Place(opened, 1008).left, 12);
            EXPECT_EQ(Place(opened, 1009).left, 12);
            const LONG left = Place(opened, 1008).right + 12;
            EXPECT_EQ(press, (RECT{left, hold.top - 4 - height, client.cx - 12, hold.top - 4}));
            EXPECT_EQ(hold, (RECT{left, client.cy - 4 - height, client.cx - 12, client.cy - 4}));
        });
    });
}
