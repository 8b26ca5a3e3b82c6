// The top bar is never covered: a program that knows nothing of it is moved from under it.
// profiles: pocketpc pocketpc-vga
// device's executable: never
#include "rig/Actor.h"
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class TopBarRoomTest : public testing::Test
{
  protected:
    const Actor actor;
    const RECT screen = ScreenRect();
    const LONG barHeight = Scaled(26);

    // Where a window that was made there is once it has come to the front and the bar has seen it.
    RECT PlaceInFront(const RECT& made) const
    {
        const HWND window = actor.Make({.title = L"In front", .place = made});
        EXPECT_TRUE(BringToFront(window));
        EXPECT_TRUE(WaitFor([=, this] { return ScreenRectOf(window).top == barHeight; }));
        return ScreenRectOf(window);
    }
};

TEST_F(TopBarRoomTest, AWindowUnderItMovesDown)
{
    const RECT place = PlaceInFront({10, 5, 90, 65});
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.right, 90);
    EXPECT_EQ(place.bottom, barHeight + 60);
}

TEST_F(TopBarRoomTest, AndOntoTheScreenWhereItFits)
{
    const RECT place = PlaceInFront({screen.right - 30, 0, screen.right + 50, 60});
    EXPECT_EQ(place.left, screen.right - 80);
    EXPECT_EQ(place.right, screen.right);
}

TEST_F(TopBarRoomTest, AWindowAsLargeAsTheScreenBecomesSmaller)
{
    const RECT place = PlaceInFront({0, 0, screen.right + 20, screen.bottom + 20});
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.right, screen.right);
    EXPECT_EQ(place.bottom, screen.bottom);
}
