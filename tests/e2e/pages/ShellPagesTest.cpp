// The pages: the ring of the cursor keys, the arrows of the strip, and the commands that show a page.
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ShellPagesTest : public ShellSession
{
  protected:
    // The number of pages that are visible at this moment.
    int VisiblePages() const
    {
        int count = 0;
        for (int page = TasksPage; page <= ProcsPage; page++) {
            count += IsWindowVisible(program->Page(page)) ? 1 : 0;
        }
        return count;
    }

    void ExpectShown(int page) const
    {
        EXPECT_TRUE(WaitFor([&] { return program->VisiblePage() == page && VisiblePages() == 1; }))
            << "page " << page << " is not shown alone; shown: " << VisiblePages() << ", the first "
            << program->VisiblePage();
    }

    void Show(int page) const
    {
        const int commands[] = {0, ShowTasksCommand, ShowSysInfoCommand, ShowStartCommand, ShowProcsCommand};
        program->Command(commands[page]);
        ExpectShown(page);
    }

    // The strip's outer zones are so wide.
    int Zone(int page) const { return Scaled(8) + StripHeight(page) / 2; }
    int Width() const { return ScreenRectOf(main).right; }
};

TEST_F(ShellPagesTest, TheRightKeyGoesRoundTheRing)
{
    for (int page : {LauncherPage, SysInfoPage, ProcsPage, TasksPage, LauncherPage}) {
        PressKey(VK_RIGHT);
        ExpectShown(page);
    }
}

TEST_F(ShellPagesTest, TheLeftKeyGoesRoundTheRingTheOtherWay)
{
    for (int page : {ProcsPage, SysInfoPage, LauncherPage, TasksPage, ProcsPage}) {
        PressKey(VK_LEFT);
        ExpectShown(page);
    }
}

TEST_F(ShellPagesTest, EachCommandShowsItsPage)
{
    const std::pair<int, int> commands[] = {{ShowSysInfoCommand, SysInfoPage},
                                            {ShowProcsCommand, ProcsPage},
                                            {ShowStartCommand, LauncherPage},
                                            {ShowTasksCommand, TasksPage}};
    for (const auto& [command, page] : commands) {
        program->Command(command);
        ExpectShown(page);
    }
}

TEST_F(ShellPagesTest, ACommandBringsTheProgramForward)
{
    program->Command(HideCommand);
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() != main; }));
    program->Command(ShowSysInfoCommand);
    EXPECT_TRUE(InFront(main));
    ExpectShown(SysInfoPage);
    ExpectKeysReachThePage(SysInfoPage);
}

TEST_F(ShellPagesTest, TheLeftArrowReachesToItsBoundaryPixel)
{
    for (int page : pageRing) {
        Show(page);
        Tap(StripPoint(page, Zone(page)));
        ExpectShown(PageAfter(page, -1));
        Show(page);
        Tap(StripPoint(page, 0));
        ExpectShown(PageAfter(page, -1));
    }
}

TEST_F(ShellPagesTest, TheRightArrowReachesToItsBoundaryPixel)
{
    for (int page : pageRing) {
        Show(page);
        Tap(StripPoint(page, Width() - Zone(page)));
        ExpectShown(PageAfter(page, 1));
        Show(page);
        Tap(StripPoint(page, Width() - 1));
        ExpectShown(PageAfter(page, 1));
    }
}

TEST_F(ShellPagesTest, OnePixelFurtherInThePopUpOpens)
{
    for (int x : {Zone(TasksPage) + 1, Width() - Zone(TasksPage) - 1}) {
        Tap(StripPoint(TasksPage, x));
        EXPECT_TRUE(WaitFor([] { return OpenMenu(); })) << x;
        PressKey(VK_ESCAPE);
        EXPECT_TRUE(WaitFor([] { return !OpenMenu(); })) << x;
        ExpectShown(TasksPage);
    }
}

TEST_F(ShellPagesTest, TheWholeHeightOfTheStripIsTheArrow)
{
    Tap(PointIn(program->Page(TasksPage), 0, 0));
    ExpectShown(ProcsPage);
    Show(TasksPage);
    Tap(PointIn(program->Page(TasksPage), 0, StripHeight(TasksPage) - 1));
    ExpectShown(ProcsPage);
    Show(TasksPage);
    // The first line of the list is not.
    Tap(PointIn(program->Page(TasksPage), 0, StripHeight(TasksPage)));
    ExpectKeysReachThePage(TasksPage);
}

TEST_F(ShellPagesTest, ManyKeysAtOnceEndOnTheRightPage)
{
    PressKey(VK_RIGHT, 4 * 5 + 2);
    ExpectShown(SysInfoPage);
    PressKey(VK_LEFT, 4 * 5 + 3);
    ExpectShown(ProcsPage);
}

TEST_F(ShellPagesTest, TheOtherCursorKeysKeepThePage)
{
    PressKey(VK_DOWN);
    PressKey(VK_UP);
    PressKey(VK_HOME);
    PressKey(VK_END);
    // Handled before the next key, which proves that they were.
    ExpectKeysReachThePage(TasksPage);
}
