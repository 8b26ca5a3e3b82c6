// The start of the program: its window, where everything lies on the screen, and its end.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc pocketpc-vga smartphone
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

static constexpr COLORREF white = RGB(255, 255, 255);
static constexpr COLORREF black = RGB(0, 0, 0);

static bool operator==(const RECT& one, const RECT& other)
{
    return EqualRect(&one, &other) != FALSE;
}

static std::string RectText(const RECT& rect)
{
    return testing::PrintToString(std::vector<LONG>{rect.left, rect.top, rect.right, rect.bottom});
}

static void ExpectRect(const RECT& expected, const RECT& actual)
{
    EXPECT_TRUE(expected == actual) << RectText(expected) << " expected, it is " << RectText(actual);
}

class StartTest : public ShellSession
{};

TEST_F(StartTest, TheMainWindowHasItsClassTitleAndProcess)
{
    EXPECT_EQ(L"QuorvaneApp", ClassOf(main));
    EXPECT_EQ(L"Quorvane", TextOf(main));
    EXPECT_EQ(L"Quorvane.exe", ExecutableOf(ProcessOf(main)));
    EXPECT_EQ(nullptr, GetWindow(main, GW_OWNER));
    EXPECT_EQ(static_cast<ULONG_PTR>(CS_HREDRAW | CS_VREDRAW), GetClassLongPtrW(main, GCL_STYLE));
    EXPECT_TRUE(IsWindowEnabled(main));
}

TEST_F(StartTest, ThereAreFourPagesAndTheFirstIsShown)
{
    for (int page = TasksPage; page <= ProcsPage; page++) {
        ASSERT_TRUE(program->Page(page)) << page;
        EXPECT_EQ(main, GetParent(program->Page(page))) << page;
        EXPECT_EQ(page == TasksPage, IsWindowVisible(program->Page(page)) != FALSE) << page;
        EXPECT_TRUE(program->List(page)) << page;
    }
    EXPECT_FALSE(FindDescendant(main, L"QuorvaneV5"));
    EXPECT_FALSE(FindDescendant(main, L"QuorvaneV0"));
}

TEST_F(StartTest, TheWindowReachesFromTheTopBarToTheSoftKeys)
{
    const RECT screen = ScreenRect();
    const HWND bar = BarOf(main);
    ASSERT_TRUE(bar);
    const int height = Scaled(26);
    ExpectRect({0, height, screen.right, screen.bottom - height}, ScreenRectOf(main));
    ExpectRect({0, screen.bottom - height, screen.right, screen.bottom}, ScreenRectOf(bar));
    ExpectRect(ScreenRectOf(main), ClientRectOnScreen(main));
}

TEST_F(StartTest, EveryPageFillsTheWindowWithItsStripAndTheListBelow)
{
    for (int page : pageRing) {
        ASSERT_TRUE(program->WaitForPage(page));
        const RECT area = ScreenRectOf(main);
        ExpectRect(area, ScreenRectOf(program->Page(page)));
        const int strip = StripHeight(page);
        EXPECT_GT(strip, Scaled(1) + Scaled(8)) << page;
        // The launcher has a search box above its list, the others nothing.
        const LONG box = page == LauncherPage ? Scaled(28) : 0;
        const RECT list = ScreenRectOf(program->List(page));
        EXPECT_EQ(area.left, list.left) << page;
        EXPECT_EQ(area.top + strip + box, list.top) << page;
        EXPECT_EQ(area.right, list.right) << page;
        EXPECT_EQ(area.bottom, list.bottom) << page;
        PressKey(VK_RIGHT);
    }
    EXPECT_TRUE(program->WaitForPage(TasksPage));
}

TEST_F(StartTest, TheStripHasItsLineItsArrowsAndItsTitle)
{
    ASSERT_TRUE(ComeToFront());
    const RECT area = ScreenRectOf(main);
    const LONG height = StripHeight(TasksPage);
    const int arrow = height / 2;
    const int tip = Scaled(3);
    const LONG middle = area.top + (height - arrow) / 2 + arrow / 2;
    const auto asPainted = [&] {
        const Picture now = Picture::OfScreen();
        return now.At(tip + 1, middle) == black && now.At(0, area.top + height - 1) == black;
    };
    EXPECT_TRUE(WaitFor(asPainted));
    const Picture screen = Picture::OfSettledScreen();
    const auto at = [&](LONG x, LONG y) { return screen.At(x, y); };

    // The line at the strip's lower edge, over the whole width.
    const RECT line = {area.left, area.top + height - 1, area.right, area.top + height};
    EXPECT_EQ(area.right - area.left, screen.Count(black, line));

    // The strip's ground, at the outer ends and between line and arrow.
    EXPECT_EQ(white, at(0, area.top));
    EXPECT_EQ(white, at(area.right - 1, area.top));
    EXPECT_EQ(white, at(tip - 1, middle));
    EXPECT_EQ(white, at(area.right - tip + 1, middle));
    // The heads point outwards: long at the inner end, a dot or nothing at the tip.
    EXPECT_EQ(black, at(tip + 1, middle));
    EXPECT_EQ(black, at(area.right - tip - 1, middle));
    const LONG inner = tip + arrow / 2;
    const RECT leftInner = {inner, area.top, inner + 1, area.top + height - Scaled(1)};
    EXPECT_EQ(arrow, screen.Count(black, leftInner));
    EXPECT_EQ(white, at(inner + 1, middle));
    const LONG rightInner = area.right - tip - arrow / 2;
    const RECT rightColumn = {rightInner, area.top, rightInner + 1, area.top + height - Scaled(1)};
    EXPECT_EQ(arrow, screen.Count(black, rightColumn));
    EXPECT_EQ(white, at(rightInner - 1, middle));

    // The title begins behind the left head and leaves the right one alone.
    const LONG from = Scaled(6) + arrow;
    const RECT title = {from, area.top, area.right - from, area.top + height - Scaled(1)};
    EXPECT_LT(screen.Count(white, title), (title.right - title.left) * (title.bottom - title.top));
    const RECT firstLetter = {from, area.top, from + Scaled(12), area.top + height - Scaled(1)};
    EXPECT_LT(screen.Count(white, firstLetter), Scaled(12) * (height - Scaled(1)));
}

TEST_F(StartTest, TheSoftKeysAreWrittenInLightLettersOnADarkBar)
{
    ASSERT_TRUE(ComeToFront());
    const RECT bar = ScreenRectOf(BarOf(main));
    const LONG middle = bar.right / 2;
    const auto lettersOf = [&](const Picture& screen, int key) {
        const RECT half = {key == 0 ? bar.left : middle, bar.top, key == 0 ? middle : bar.right, bar.bottom};
        return screen.Count(white, half);
    };
    EXPECT_TRUE(WaitFor([&] {
        const Picture now = Picture::OfScreen();
        return lettersOf(now, 0) > 0 && lettersOf(now, 1) > 0;
    }));
    const Picture screen = Picture::OfSettledScreen();
    for (int key = 0; key < 2; key++) {
        const RECT half = {key == 0 ? bar.left : middle, bar.top, key == 0 ? middle : bar.right, bar.bottom};
        EXPECT_LT(lettersOf(screen, key), (half.right - half.left) * (half.bottom - half.top) / 4) << key;
        // The words stand in the middle of their halves.
        const LONG quarter = (half.right - half.left) / 8;
        EXPECT_EQ(0, screen.Count(white, {half.left, half.top, half.left + quarter, half.bottom})) << key;
        EXPECT_EQ(0, screen.Count(white, {half.right - quarter, half.top, half.right, half.bottom})) << key;
    }
}

TEST_F(StartTest, TheCursorKeysStepThroughThePages)
{
    for (int step = 1; step <= 4; step++) {
        PressKey(VK_RIGHT);
        ASSERT_TRUE(program->WaitForPage(PageAfter(TasksPage, step))) << step;
    }
}

TEST_F(StartTest, ClosedItEndsWithTheExitCodeZero)
{
    PostMessageW(main, WM_CLOSE, 0, 0);
    ExpectEnd();
    EXPECT_TRUE(WaitFor([] { return !FindTopWindow({.className = L"QuorvaneApp", .visible = false}); }));
    EXPECT_TRUE(WaitFor([] { return !FindTopWindow({.className = L"menu_worker", .visible = false}); }));
}

TEST_F(StartTest, TheExitCommandEndsItWithTheExitCodeZero)
{
    program->Command(ExitCommand);
    ExpectEnd();
}
