// Taps on the title strip of the page of running applications, its pop-up, and the arrow keys.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc-vga
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

#include <algorithm>

using namespace rig;

class HeaderTapTest : public TasksScreen
{
  protected:
    HWND page = nullptr;
    int height = 0; // of the strip
    int width = 0;
    int zone = 0; // of an arrow

    void SetUp() override
    {
        TasksScreen::SetUp();
        page = program->Page(1);
        RECT client = {};
        GetClientRect(page, &client);
        width = client.right;
        height = ScreenRectOf(list).top - ScreenRectOf(page).top;
        zone = OnScreen(8) + height / 2;
    }

    void TapAt(int x) const { Tap(PointIn(page, x, height / 2)); }

    // By a message where the list lies under the stylus.
    void PressAt(int x, int y) const { PostMessageW(page, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }

    // At its place; the stylus is away from it then, lest it select an item.
    HWND OpenPopup(int x) const
    {
        TapAt(x);
        const LONG top = PointIn(page, x, height / 2).y;
        const HWND menu = WaitFor([=] {
            const HWND open = OpenMenu();
            return ScreenRectOf(open).top == top ? open : nullptr;
        });
        MoveTo(PointIn(page, width / 2, OnScreen(200)));
        return menu;
    }

    // Counted from 1, without the separator.
    static void Choose(int item)
    {
        PressKey(VK_HOME);
        PressKey(VK_DOWN, item - 1);
        PressKey(VK_RETURN);
    }

    static bool MenuCloses()
    {
        return WaitFor([] { return !OpenMenu(); });
    }
};

TEST_F(HeaderTapTest, TheStripIsAsHighAsItsBoldFontAndNinePixels)
{
    EXPECT_EQ(ScreenFont(FW_BOLD, 0).LineHeight() + OnScreen(1) + OnScreen(8), height);
}

TEST_F(HeaderTapTest, TheLeftArrowGoesToTheProcesses)
{
    for (int x : {0, zone / 2, zone}) {
        TapAt(x);
        EXPECT_TRUE(program->WaitForPage(4)) << x;
        Do(commandShowTasks);
        ASSERT_TRUE(program->WaitForPage(1));
    }
}

TEST_F(HeaderTapTest, TheRightArrowGoesToTheStartPage)
{
    for (int x : {width - zone, width - zone / 2, width - 1}) {
        TapAt(x);
        EXPECT_TRUE(program->WaitForPage(3)) << x;
        Do(commandShowTasks);
        ASSERT_TRUE(program->WaitForPage(1));
    }
}

TEST_F(HeaderTapTest, BetweenTheArrowsAPopUpOpensAtTheTap)
{
    for (int x : {zone + 1, OnScreen(60), width - zone - 1}) {
        const HWND menu = OpenPopup(x);
        ASSERT_TRUE(menu) << x;
        const POINT tap = PointIn(page, x, height / 2);
        const RECT place = ScreenRectOf(menu);
        EXPECT_EQ(tap.y, place.top) << x;
        // As far to the left as the screen's edge demands.
        EXPECT_EQ(std::min<LONG>(tap.x, GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left)),
                  place.left);
        EXPECT_EQ(1, program->VisiblePage());
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(MenuCloses());
    }
}

TEST_F(HeaderTapTest, TheLastPixelRowBelongsToTheStripAndOneMore)
{
    PressAt(0, height);
    EXPECT_TRUE(program->WaitForPage(4));
    Do(commandShowTasks);
    PressAt(0, height + 1);
    PressAt(width / 2, height + 1);
    Do(commandRefresh);
    EXPECT_EQ(1, program->VisiblePage());
    EXPECT_FALSE(OpenMenu());
}

TEST_F(HeaderTapTest, TheItemsOfThePopUpGoToTheirPages)
{
    const struct
    {
        int item;
        int page;
    } items[] = {{2, 3}, {3, 2}, {4, 4}};
    for (const auto& expected : items) {
        ASSERT_TRUE(OpenPopup(OnScreen(60)));
        Choose(expected.item);
        EXPECT_TRUE(program->WaitForPage(expected.page)) << expected.item;
        Do(commandShowTasks);
        ASSERT_TRUE(program->WaitForPage(1));
    }
}

TEST_F(HeaderTapTest, TheLastItemOfThePopUpRefreshes)
{
    const Actor actor;
    const HWND a = actor.Make(Task(L"A"));
    FrontWithoutRefreshes();
    actor.Vanish(a);
    ASSERT_EQ(3, ListCount(list)) << "refreshed too early";
    ASSERT_TRUE(OpenPopup(OnScreen(60)));
    Choose(5);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == 2; }, std::chrono::seconds(3)));
    EXPECT_EQ(1, program->VisiblePage());
}

TEST_F(HeaderTapTest, TheCurrentPagesItemIsGreyedAndCannotBeChosen)
{
    const HWND menu = OpenPopup(OnScreen(60));
    ASSERT_TRUE(menu);
    const RECT place = ScreenRectOf(menu);
    Picture::OfSettledScreen();
    const Picture picture = Picture::OfScreen(place);
    // Five items and a separator: the first two thirds of a quarter are the first item's for certain.
    const int item = picture.Height() / 6;
    const RECT first = {0, 0, picture.Width(), item};
    const RECT rest = {0, item * 3 / 2, picture.Width(), picture.Height()};
    EXPECT_GT(picture.Count(GetSysColor(COLOR_GRAYTEXT), first), 0);
    EXPECT_EQ(0, picture.Count(GetSysColor(COLOR_MENUTEXT), first));
    EXPECT_GT(picture.Count(GetSysColor(COLOR_MENUTEXT), rest), 0);
    Choose(1);
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(MenuCloses());
    EXPECT_EQ(1, program->VisiblePage());
}

TEST_F(HeaderTapTest, ADismissedPopUpDoesNothing)
{
    Select(1);
    ASSERT_TRUE(OpenPopup(OnScreen(60)));
    Tap(PointIn(page, OnScreen(20), OnScreen(200)));
    EXPECT_TRUE(MenuCloses());
    Do(commandRefresh);
    EXPECT_EQ(1, program->VisiblePage());
    EXPECT_EQ(1, ListMark(list));
    // And opens again.
    ASSERT_TRUE(OpenPopup(OnScreen(60)));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(MenuCloses());
}

TEST_F(HeaderTapTest, TheLeftAndRightKeysGoThroughThePages)
{
    PressKey(VK_LEFT);
    EXPECT_TRUE(program->WaitForPage(4));
    Do(commandShowTasks);
    ASSERT_TRUE(program->WaitForPage(1));
    PressKey(VK_RIGHT);
    EXPECT_TRUE(program->WaitForPage(3));
}

TEST_F(HeaderTapTest, TheCommandsOfTheArrowsGoThroughThePagesToo)
{
    program->Command(commandPreviousPage);
    EXPECT_TRUE(program->WaitForPage(4));
    Do(commandShowTasks);
    ASSERT_TRUE(program->WaitForPage(1));
    program->Command(commandNextPage);
    EXPECT_TRUE(program->WaitForPage(3));
}
