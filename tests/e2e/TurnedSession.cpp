// TurnedSession: Quorvane on a handheld that the tests turn.
#include "tests/e2e/TurnedSession.h"

#include "rig/Orientation.h"
#include "rig/Picture.h"

#include <commctrl.h>

using namespace rig;

static bool Is(const RECT& wanted, HWND window)
{
    const RECT place = ScreenRectOf(window);
    return EqualRect(&wanted, &place);
}

static std::string Text(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " to " + std::to_string(rect.right) +
           "," + std::to_string(rect.bottom);
}

void TurnedSession::ExpectPlace(const char* name, const RECT& wanted, HWND window)
{
    EXPECT_TRUE(WaitFor([&] { return Is(wanted, window); }))
        << name << " is at " << Text(ScreenRectOf(window)) << " instead of " << Text(wanted);
}

TurnedSession::~TurnedSession()
{
    TurnScreen(upright);
}

void TurnedSession::Turn(int orientation)
{
    ASSERT_TRUE(TurnScreen(orientation)) << "the handheld refuses to be turned";
}

bool TurnedSession::BecomesSideways() const
{
    return WaitFor([&] {
        const RECT screen = ScreenRect();
        return screen.right == uprightScreen.bottom && screen.bottom == uprightScreen.right;
    });
}

bool TurnedSession::BecomesUpright() const
{
    return WaitFor([&] {
        const RECT screen = ScreenRect();
        return EqualRect(&screen, &uprightScreen);
    });
}

void TurnedSession::TurnSideways() const
{
    Turn(turnedBy270);
    ASSERT_TRUE(BecomesSideways()) << "the screen is " << Text(ScreenRect());
}

void TurnedSession::TurnUpright() const
{
    Turn(upright);
    ASSERT_TRUE(BecomesUpright()) << "the screen is " << Text(ScreenRect());
}

void TurnedSession::ExpectLaidOut(int page) const
{
    const RECT screen = ScreenRect();
    const LONG barHeight = Scaled(26);
    const LONG barTop = screen.bottom - barHeight;
    ExpectPlace("the top bar", {0, 0, screen.right, barHeight},
                FindTopWindow({.className = L"Shell_TrayWnd"}));
    ExpectPlace("the home screen", {0, barHeight, screen.right, screen.bottom},
                FindTopWindow({.className = L"DesktopExplorerWindow"}));
    ExpectPlace("the program", {0, barHeight, screen.right, barTop}, main);
    ExpectPlace("the soft-key bar", {0, barTop, screen.right, screen.bottom}, BarOf(main));
    ExpectPlace("the page", {0, barHeight, screen.right, barTop}, program->Page(page));
    if (const HWND list = program->List(page)) {
        ExpectPlace("the list", {0, ScreenRectOf(list).top, screen.right, barTop}, list);
        const RECT rows = ClientRectOnScreen(list);
        EXPECT_TRUE(WaitFor([&] { return Send(list, LVM_GETCOLUMNWIDTH) == rows.right - rows.left; }))
            << "the rows of page " << page << " are " << Send(list, LVM_GETCOLUMNWIDTH) << " wide in "
            << rows.right - rows.left;
    }
    if (const HWND box = SearchBox(page)) {
        EXPECT_EQ(ScreenRectOf(box).left, screen.right - ScreenRectOf(box).right);
    }
}

void TurnedSession::ExpectDialogFills(HWND dialog, int control)
{
    const RECT screen = ScreenRect();
    const LONG barTop = screen.bottom - Scaled(26);
    ExpectPlace("the dialog", {0, Scaled(26), screen.right, barTop}, dialog);
    ExpectPlace("its control", {0, Scaled(26), screen.right, barTop}, GetDlgItem(dialog, control));
    ExpectPlace("its soft-key bar", {0, barTop, screen.right, screen.bottom}, BarOf(dialog));
}

void TurnedSession::Show(int page) const
{
    const int commands[] = {0, ShowTasksCommand, ShowSysInfoCommand, ShowStartCommand, ShowProcsCommand};
    program->Command(commands[page]);
    ASSERT_TRUE(program->WaitForPage(page)) << page;
    Send(main, WM_COMMAND, RefreshCommand); // no other refresh comes in the next seconds
}

// All below the top bar, without a search box, whose caret blinks.
std::vector<Picture> TurnedSession::Parts(int page) const
{
    const RECT screen = ScreenRect();
    const RECT area = {0, Scaled(26), screen.right, screen.bottom};
    Picture::OfSettledScreen();
    const HWND box = SearchBox(page);
    if (!box) {
        return {Picture::OfScreen(area)};
    }
    const RECT place = ScreenRectOf(box);
    return {Picture::OfScreen({0, area.top, area.right, place.top}),
            Picture::OfScreen({0, place.bottom, area.right, area.bottom})};
}

void TurnedSession::ExpectNothingStale(int page) const
{
    const std::vector<Picture> shown = Parts(page);
    for (HWND window : TopWindows()) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    Send(main, WM_NULL);
    EXPECT_TRUE(shown == Parts(page)) << "what was shown on page " << page << " was not what belongs there";
}
