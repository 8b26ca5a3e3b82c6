// A window that goes behind all others, while nothing else moves: the screen follows.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Desktop.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

using namespace rig;

class LoweredWindowTest : public testing::Test
{
  protected:
    static constexpr UINT place = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    static constexpr COLORREF colour = RGB(200, 30, 120);
    HWND home = nullptr;

    void SetUp() override
    {
        SetProcessDPIAware();
        home = FindTopWindow({.className = L"DesktopExplorerWindow"});
        ASSERT_TRUE(home);
        ASSERT_TRUE(Raise(home));
    }

    static bool Shows(const RECT& area)
    {
        const Picture picture = Picture::OfScreen(area);
        return picture.Count(colour) == picture.Width() * picture.Height();
    }
};

TEST_F(LoweredWindowTest, ItIsNotSeenAnyMore)
{
    const RECT area = {20, 60, 120, 160};
    const Picture before = (Picture::OfSettledScreen(), Picture::OfScreen(area));
    const Actor actor;
    const HWND window = actor.Make({.style = WS_POPUP, .place = area, .colour = colour});
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, place | SWP_SHOWWINDOW);
    ASSERT_TRUE(WaitFor([&] { return Shows(area); }));
    ASSERT_EQ(home, GetForegroundWindow()) << "raising the home screen would cover it, too";
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, place);
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(area) == before; }));
    EXPECT_TRUE(IsWindowVisible(window));
}
