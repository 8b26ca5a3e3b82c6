// A notice is in front of its own program only.
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

#include <algorithm>

using namespace rig;

class NoticeOrderTest : public ShellSession
{
  protected:
    static bool IsBefore(HWND one, HWND other)
    {
        const std::vector<HWND> windows = TopWindows();
        return std::find(windows.begin(), windows.end(), one) <
               std::find(windows.begin(), windows.end(), other);
    }
};

TEST_F(NoticeOrderTest, HidingTheProgramHidesItBehindTheHomeScreen)
{
    const HWND home = FindTopWindow({.className = L"DesktopExplorerWindow"});
    ASSERT_TRUE(Raise(home));
    ASSERT_TRUE(Raise(main));
    program->Command(SettingsCommand);
    const HWND notice = WaitFor([&] { return program->Notice(); });
    ASSERT_TRUE(notice);
    const RECT place = ScreenRectOf(notice);
    ASSERT_TRUE(WaitFor([&] { return Picture::OfScreen(place).At(1, 1) == GetSysColor(COLOR_HIGHLIGHT); }));
    EXPECT_EQ(GetWindowLongW(notice, GWL_EXSTYLE) & WS_EX_TOPMOST, 0) << "it would be in front of everything";
    program->Command(HideCommand);
    ASSERT_TRUE(InFront(home));
    EXPECT_TRUE(WaitFor([&] { return IsBefore(home, notice); }));
}
