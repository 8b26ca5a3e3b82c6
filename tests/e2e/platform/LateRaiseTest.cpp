// A program that is busy as soon as it has come to the front: what comes forward after it stays before it.
// profiles: pocketpc smartphone
// device's executable: never
#include "rig/Actor.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

#include <gtest/gtest.h>

using namespace rig;

class LateRaiseTest : public testing::Test
{
  protected:
    static constexpr RECT area = {20, 60, 180, 160};
    static constexpr COLORREF colour = RGB(20, 120, 220);
    const Actor busy;
    const Actor other;
    HWND first = busy.Make({.title = L"First", .place = area});
    HWND shortPause = MakePause(1500);
    HWND longPause = MakePause(3000);
    HWND next = other.Make({.title = L"Next", .place = area, .colour = colour});

    LateRaiseTest() { SetProcessDPIAware(); }

    // Its program answers nothing for so many milliseconds when it is closed.
    HWND MakePause(DWORD delay) const
    {
        return busy.Make({.place = {0, 180, 20, 200}, .closing = actor::Closing::Delay, .delay = delay});
    }

    // The busy program takes the front between two pauses, without a look at its messages after it.
    void BringToFrontAndStayBusy() const
    {
        ASSERT_TRUE(Hang(shortPause));
        PostMessageW(longPause, WM_CLOSE, 0, 0);
        SetForegroundWindow(first); // read before what was posted
        ASSERT_TRUE(WaitFor([this] { return GetForegroundWindow() == first && IsBusy(); }));
    }

    bool IsBusy() const { return !Answers(first, std::chrono::milliseconds(50)); }

    static bool ShowsNext()
    {
        const Picture picture = Picture::OfScreen(area);
        return picture.Count(colour) == picture.Width() * picture.Height();
    }
};

TEST_F(LateRaiseTest, TheNextWindowStaysOnTheScreenAndGetsTheKeys)
{
    ASSERT_TRUE(first && shortPause && longPause && next);
    ASSERT_TRUE(Raise(next));
    ASSERT_NO_FATAL_FAILURE(BringToFrontAndStayBusy());
    ASSERT_TRUE(BringToFront(next));
    ASSERT_TRUE(IsBusy()) << "it was to be busy all the time";
    ASSERT_TRUE(WaitFor([this] { return !IsWindow(longPause) && Answers(first, patience); }));
    EXPECT_EQ(GetForegroundWindow(), next);
    EXPECT_TRUE(WaitFor(ShowsNext));
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitFor([this] { return KeyCount(next) == 1; }));
}
