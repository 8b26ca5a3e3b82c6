// The menu behind the right soft key: its lines, its submenus by keys and by taps.
#include "resources/ids.h"
#include "rig/MenuTwin.h"
#include "tests/e2e/ProgramMenu.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

// Of the first page. The misspelt words are meant so.
static const std::vector<MenuLine> tasksMenu = {{L"Switch to appliction"},
                                                {L"Close application"},
                                                {},
                                                {L"Close all"},
                                                {},
                                                {L"Application info"},
                                                {L"Windows list"},
                                                {},
                                                {L"Refresh"},
                                                {},
                                                {L"View", false, true},
                                                {},
                                                {L"More", false, true},
                                                {},
                                                {L"Exit"}};
static constexpr size_t viewLine = 10;

static const std::vector<MenuLine> viewMenu = {
    {L"Runnig apps"}, {L"Start"}, {L"System info"}, {L"Processes"}};

class ShellMenuTest : public ShellSession
{
  protected:
    size_t OpenMenus() const
    {
        size_t count = 0;
        for (HWND window : TopWindows()) {
            count += IsWindowVisible(window) && ClassOf(window) == L"#32768" ? 1 : 0;
        }
        return count;
    }

    void ExpectMenus(size_t count) const
    {
        EXPECT_TRUE(WaitFor([&] { return OpenMenus() == count; })) << OpenMenus() << " menus are open";
    }

    // By keys, from the end of the menu, which all pages have in common: Exit, More, View.
    void OpenViewMenu() const
    {
        ASSERT_TRUE(PressMenuKey());
        ParkStylus();
        MenuKeys(VK_UP, 3);
        MenuKeys(VK_RIGHT);
        ExpectMenus(2);
    }

    MenuTwin Twin() const
    {
        const RECT bar = ScreenRectOf(BarOf(main));
        return MenuTwin(tasksMenu, {bar.right, bar.top}, TPM_RIGHTALIGN | TPM_BOTTOMALIGN);
    }
};

TEST_F(ShellMenuTest, TheFirstPagesMenuLooksAsItShould)
{
    const MenuTwin twin = Twin();
    ASSERT_GT(twin.Look().Colours(), 1) << "the expected menu does not open";
    ASSERT_TRUE(PressMenuKey());
    ParkStylus();
    Picture::OfSettledScreen();
    const RECT area = ScreenRectOf(OpenMenu());
    EXPECT_TRUE(EqualRect(&twin.Area(), &area));
    EXPECT_EQ(ScreenRectOf(BarOf(main)).top, area.bottom);
    EXPECT_EQ(ScreenRectOf(main).right, area.right);
    EXPECT_TRUE(Picture::OfScreen(twin.Area()) == twin.Look());
}

TEST_F(ShellMenuTest, EveryPagesMenuEndsTheSame)
{
    const std::vector<MenuItem> tail = {{0, L""},      {-1, L"View"}, {0, L""},
                                        {-1, L"More"}, {0, L""},      {CMD_EXIT, L"Exit"}};
    const std::vector<MenuItem> view = {{CMD_SHOW_TASKS, L"Runnig apps"},
                                        {CMD_SHOW_START, L"Start"},
                                        {CMD_SHOW_SYSINFO, L"System info"},
                                        {CMD_SHOW_PROCS, L"Processes"}};
    const std::vector<MenuItem> more = {
        {CMD_HARDWARE_KEYS, L"Hardware keys"}, {0, L""}, {CMD_ABOUT, L"About"}};
    for (int id : {134, 102, 136, 132}) {
        const ProgramMenu menu(id);
        const auto items = menu.Items();
        ASSERT_GT(items.size(), tail.size()) << id;
        EXPECT_TRUE(std::equal(tail.begin(), tail.end(), items.end() - static_cast<int>(tail.size()))) << id;
        const int count = static_cast<int>(items.size());
        EXPECT_EQ(view, menu.Items(count - 5)) << id;
        EXPECT_EQ(more, menu.Items(count - 3)) << id;
    }
}

TEST_F(ShellMenuTest, TheViewMenuShowsThePagesFromEveryPage)
{
    for (int from : pageRing) {
        for (int downs = 0; downs < 4; downs++) {
            const int to = pageRing[downs];
            if (to == from) {
                continue;
            }
            const int commands[] = {0, ShowTasksCommand, ShowSysInfoCommand, ShowStartCommand,
                                    ShowProcsCommand};
            program->Command(commands[from]);
            ASSERT_TRUE(program->WaitForPage(from));
            OpenViewMenu();
            MenuKeys(VK_DOWN, downs);
            MenuKeys(VK_RETURN);
            EXPECT_TRUE(program->WaitForPage(to)) << from << " to " << to;
            ExpectMenus(0);
        }
    }
}

TEST_F(ShellMenuTest, TheViewMenuOfTheOwnPageKeepsIt)
{
    OpenViewMenu();
    MenuKeys(VK_RETURN);
    ExpectMenus(0);
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellMenuTest, TheViewMenuLooksAsItShould)
{
    OpenViewMenu();
    MenuKeys(VK_DOWN, 3);
    ParkStylus();
    Picture::OfSettledScreen();
    const RECT area = ScreenRectOf(OpenMenu());
    const Picture shown = Picture::OfScreen(area);
    PressKey(VK_ESCAPE, 2);
    ExpectMenus(0);
    const MenuTwin twin(viewMenu, {area.left, area.top}, 0);
    EXPECT_EQ(twin.Look().Width(), shown.Width());
    EXPECT_EQ(twin.Look().Height(), shown.Height());
    // The last line is marked, the others are as they are.
    const POINT last = twin.Middle(3);
    const POINT third = twin.Middle(2);
    const LONG end = (third.y + last.y) / 2 - area.top;
    for (LONG y = 0; y < end; y++) {
        for (LONG x = 0; x < shown.Width(); x++) {
            ASSERT_EQ(twin.Look().At(x, y), shown.At(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(ShellMenuTest, TapsChooseInTheViewMenu)
{
    // Near the line's beginning: the submenu, which has no room beside its menu, covers the rest.
    const MenuTwin twin = Twin();
    const POINT view = {twin.Area().left + Scaled(20), twin.Middle(viewLine).y};
    const HWND first = PressMenuKey();
    ASSERT_TRUE(first);
    Picture::OfSettledScreen();
    StylusDown(view);
    ExpectMenus(2);
    StylusUp(view);
    Picture::OfSettledScreen();
    ASSERT_EQ(2u, OpenMenus());
    HWND second = nullptr;
    for (HWND window : TopWindows()) {
        if (IsWindowVisible(window) && ClassOf(window) == L"#32768" && window != first) {
            second = window;
        }
    }
    // The submenu has four lines of the same height within its frame.
    const RECT area = ScreenRectOf(second);
    const POINT line = {(area.left + area.right) / 2, area.top + (area.bottom - area.top) * 5 / 8};
    MoveTo(line);
    Picture::OfSettledScreen();
    Tap(line);
    EXPECT_TRUE(program->WaitForPage(SysInfoPage));
    ExpectMenus(0);
}

TEST_F(ShellMenuTest, EscapeClosesTheSubmenuFirst)
{
    OpenViewMenu();
    MenuKeys(VK_ESCAPE);
    ExpectMenus(1);
    MenuKeys(VK_ESCAPE);
    ExpectMenus(0);
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellMenuTest, ExitByKeysEndsTheProgram)
{
    ASSERT_TRUE(PressMenuKey());
    ParkStylus();
    MenuKeys(VK_UP);
    MenuKeys(VK_RETURN);
    ExpectEnd();
}

TEST_F(ShellMenuTest, ExitByATapEndsTheProgramFromAnyPage)
{
    PressKey(VK_LEFT);
    ASSERT_TRUE(program->WaitForPage(ProcsPage));
    ASSERT_TRUE(PressMenuKey());
    Picture::OfSettledScreen();
    // The last line, whatever the page's own lines are: as high as on the first page above the frame.
    const RECT area = ScreenRectOf(OpenMenu());
    Tap({(area.left + area.right) / 2, area.bottom - Scaled(10)});
    ExpectEnd();
}

TEST_F(ShellMenuTest, AboutIsTheLastLineOfMore)
{
    ASSERT_TRUE(PressMenuKey());
    ParkStylus();
    MenuKeys(VK_UP, 2);
    MenuKeys(VK_RIGHT);
    ExpectMenus(2);
    MenuKeys(VK_UP);
    MenuKeys(VK_RETURN);
    const HWND box = program->WaitForDialog();
    ASSERT_TRUE(box);
    EXPECT_EQ(L"About", TextOf(box));
}
