// The pop-up of the title strip: its lines, and what a tap on each of them does.
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/MenuTwin.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

static constexpr size_t refreshLine = 5;

// The pop-up of a page. The lines are in the order of the ring.
static std::vector<MenuLine> LinesOn(int page)
{
    return {{L"Running apps", page == TasksPage},
            {L"Start", page == LauncherPage},
            {L"System info", page == SysInfoPage},
            {L"Processes", page == ProcsPage},
            {},
            {L"Refresh"}};
}

static size_t LineOf(int page)
{
    size_t line = 0;
    while (pageRing[line] != page) {
        line++;
    }
    return line;
}

class ShellHeaderMenuTest : public ShellSession
{
  protected:
    POINT Middle(int page) const { return StripPoint(page, ScreenRectOf(main).right / 2); }
    MenuTwin Twin(int page) const { return MenuTwin(LinesOn(page), Middle(page), 0); }

    void Open(int page) const
    {
        Tap(Middle(page));
        ASSERT_TRUE(WaitFor([] { return OpenMenu(); })) << "no pop-up on page " << page;
    }

    void ExpectNoMenu() const
    {
        EXPECT_TRUE(WaitFor([] { return !OpenMenu(); })) << "a menu is still open";
    }
};

TEST_F(ShellHeaderMenuTest, ItHasItsFourPagesAndRefreshWithTheOwnPageGreyed)
{
    for (int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        const MenuTwin twin = Twin(page);
        ASSERT_GT(twin.Look().Colours(), 1) << "the expected menu does not open";
        Open(page);
        ParkStylus();
        Picture::OfSettledScreen();
        const RECT area = ScreenRectOf(OpenMenu());
        EXPECT_TRUE(EqualRect(&twin.Area(), &area)) << page;
        EXPECT_TRUE(Picture::OfScreen(twin.Area()) == twin.Look()) << "it looks different on page " << page;
        PressKey(VK_ESCAPE);
        ExpectNoMenu();
        PressKey(VK_RIGHT);
    }
}

TEST_F(ShellHeaderMenuTest, ATapOnAPagesLineShowsThatPage)
{
    const std::pair<int, int> ways[] = {{TasksPage, ProcsPage},
                                        {ProcsPage, LauncherPage},
                                        {LauncherPage, SysInfoPage},
                                        {SysInfoPage, TasksPage}};
    for (const auto& [from, to] : ways) {
        ASSERT_TRUE(program->WaitForPage(from));
        const POINT line = Twin(from).Middle(LineOf(to));
        Open(from);
        Tap(line);
        EXPECT_TRUE(program->WaitForPage(to)) << from << " to " << to;
        ExpectNoMenu();
    }
}

TEST_F(ShellHeaderMenuTest, TheOwnPagesLineCannotBeChosen)
{
    const POINT line = Twin(TasksPage).Middle(LineOf(TasksPage));
    Open(TasksPage);
    Tap(line);
    // The key closes the menu that the tap has left open; a page's key would be taken by it.
    PressKey(VK_ESCAPE);
    ExpectNoMenu();
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellHeaderMenuTest, KeysChooseToo)
{
    Open(TasksPage);
    ParkStylus();
    MenuKeys(VK_UP, 2); // the last line but one: the separator is passed over
    MenuKeys(VK_RETURN);
    EXPECT_TRUE(program->WaitForPage(ProcsPage));
    ExpectNoMenu();
}

TEST_F(ShellHeaderMenuTest, EscapeLeavesEverythingAsItIs)
{
    Open(TasksPage);
    MenuKeys(VK_ESCAPE);
    ExpectNoMenu();
    ExpectKeysReachThePage(TasksPage);
    EXPECT_FALSE(program->Notice());
    EXPECT_FALSE(program->Dialog());
}

TEST_F(ShellHeaderMenuTest, ATapBesideItClosesIt)
{
    Open(TasksPage);
    Tap(PointIn(program->List(TasksPage), 2, ScreenRectOf(program->List(TasksPage)).bottom / 2));
    ExpectNoMenu();
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellHeaderMenuTest, RefreshTakesTheNewStateIn)
{
    const Actor actor;
    const HWND window = actor.Make({.title = L"Newcomer", .style = WS_POPUP, .place = {0, 200, 50, 250}});
    ASSERT_TRUE(window);
    const POINT line = Twin(TasksPage).Middle(refreshLine);
    // After the refresh that follows the first showing of the page.
    const int before = SettledCount();
    ShowWindowAsync(window, SW_SHOWNA);
    ASSERT_TRUE(WaitFor([=] { return IsWindowVisible(window); }));
    ASSERT_EQ(before, ListCount(program->List(TasksPage)));
    Open(TasksPage);
    Tap(line);
    EXPECT_TRUE(WaitFor([&] { return ListCount(program->List(TasksPage)) == before + 1; },
                        std::chrono::milliseconds(3000)));
}
