// The fatal report: a box of its own, in front of a program that stays as it is until the box is closed.
// device's executable: pocketpc smartphone
#include "rig/Picture.h"
#include "tests/e2e/framework/FatalBoxSession.h"

using namespace rig;

class FaultFatalTest : public FatalBoxSession
{
  protected:
    HWND MainWindow() const
    {
        return FindTopWindow({.className = L"QuorvaneApp", .process = program->Process(), .visible = false});
    }
};

TEST_F(FaultFatalTest, ItIsABoxWithoutAnOwnerOneButtonAndASign)
{
    EXPECT_EQ(nullptr, GetWindow(box, GW_OWNER));
    EXPECT_TRUE(InFront(box));
    int buttons = 0;
    for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Button", nullptr)) != nullptr;) {
        buttons += (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0 ? 1 : 0;
    }
    EXPECT_EQ(1, buttons);
    int signs = 0;
    for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Static", nullptr)) != nullptr;) {
        const LONG style = GetWindowLongW(child, GWL_STYLE);
        signs += (style & SS_TYPEMASK) == SS_ICON && (style & WS_VISIBLE) != 0 ? 1 : 0;
    }
    EXPECT_EQ(1, signs);
}

TEST_F(FaultFatalTest, TheProgramsWindowsAreStillThereBehindIt)
{
    EXPECT_TRUE(MainWindow());
    EXPECT_TRUE(FindTopWindow({.className = L"menu_worker", .owner = MainWindow(), .visible = false}));
    EXPECT_TRUE(program->IsRunning());
}

TEST_F(FaultFatalTest, ClosedByAKeyTheProcessEnds)
{
    ASSERT_TRUE(InFront(box));
    PressKey(VK_ESCAPE);
    ExpectEnd(0xFFFFFFFF);
    EXPECT_TRUE(WaitFor([] { return !FindTopWindow({.className = L"QuorvaneApp", .visible = false}); }));
}

TEST_F(FaultFatalTest, ClosedByATapTheProcessEnds)
{
    const RECT button = ScreenRectOf(FindDescendant(box, L"Button", IDOK));
    ASSERT_TRUE(InFront(box));
    Tap({(button.left + button.right) / 2, (button.top + button.bottom) / 2});
    ExpectEnd(0xFFFFFFFF);
}

TEST_F(FaultFatalTest, NothingIsLeftBehindThatHindersTheNextStart)
{
    ASSERT_TRUE(InFront(box));
    PressKey(VK_RETURN);
    ExpectEnd(0xFFFFFFFF);
    Launch();
    ASSERT_TRUE(main);
    EXPECT_TRUE(InFront(main));
    ExpectKeysReachThePage(TasksPage);
}
