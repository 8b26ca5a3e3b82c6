// A message box while the screen is turned.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc-vga smartphone
#include "rig/Desktop.h"
#include "rig/Orientation.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"
#include "tests/e2e/ProcsScreen.h"

using namespace rig;

class TurnedBoxTest : public ProcsScreen
{
  protected:
    const Actor actor{ActorNamed(L"a program with a name as long as a question needs it.exe")};

    static SIZE Screen() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

    // Leaves the handheld as it was.
    ~TurnedBoxTest() override { TurnScreen(upright); }

    static void Turn(int orientation, LONG width)
    {
        ASSERT_TRUE(TurnScreen(orientation));
        ASSERT_TRUE(WaitFor([=] { return Screen().cx == width; }));
    }

    // The box is in the middle of the screen below the top bar, with its text and its buttons within it.
    static void ExpectInTheMiddle(HWND box)
    {
        const SIZE screen = Screen();
        const LONG top = ScreenRectOf(FindTopWindow({.className = L"Shell_TrayWnd"})).bottom;
        EXPECT_TRUE(WaitFor([=] {
            const RECT place = ScreenRectOf(box);
            return place.left >= 0 && place.top >= top && abs(place.left + place.right - screen.cx) <= 1 &&
                   abs(place.top - top + place.bottom - screen.cy) <= 1;
        })) << ScreenRectOf(box).left
            << ' ' << ScreenRectOf(box).top << ' ' << ScreenRectOf(box).right << ' '
            << ScreenRectOf(box).bottom;
        const RECT inside = ClientRectOnScreen(box);
        for (HWND part = GetWindow(box, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
            const RECT place = ScreenRectOf(part);
            RECT both = {};
            IntersectRect(&both, &inside, &place);
            EXPECT_TRUE(!IsWindowVisible(part) || EqualRect(&both, &place))
                << place.right << ' ' << place.bottom;
        }
    }
};

TEST_F(TurnedBoxTest, ItGoesToTheMiddleAndCanBeAnswered)
{
    const SIZE before = Screen();
    const HWND box = AskToEnd(actor.Process(), L"a program with a name as long as a question needs it.exe");
    ASSERT_TRUE(box);
    Turn(turnedBy270, before.cy);
    ExpectInTheMiddle(box);
    Turn(upright, before.cx);
    ExpectInTheMiddle(box);
    Turn(turnedBy270, before.cy);
    ExpectInTheMiddle(box);
    Answer(box, noKey);
    ExpectUsable();
}
