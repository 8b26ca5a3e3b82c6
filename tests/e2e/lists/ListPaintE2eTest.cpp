// What the page of running applications looks like on the screen after it has changed.
// profiles: pocketpc pocketpc-vga
// device's executable: pocketpc pocketpc-vga
#include "tests/e2e/ScreenText.h"
#include "tests/e2e/TasksScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/Picture.h"
#include "rig/WaitFor.h"

using namespace rig;

class ListPaintE2eTest : public TasksScreen
{
  protected:
    const Actor actor;

    // Whether a row is filled with the highlight colour, at its edges where there is no text.
    bool IsHighlighted(int row) const
    {
        const RECT rect = ListRowOnScreen(list, row).value_or(RECT{});
        const RECT edge = {rect.left + 1, rect.top + 1, rect.left + OnScreen(3), rect.bottom - OnScreen(2)};
        const Picture picture = Picture::OfScreen(edge);
        return picture.Count(GetSysColor(COLOR_HIGHLIGHT)) == picture.Width() * picture.Height();
    }

    bool OnlyHighlighted(int row) const
    {
        return WaitFor([&] {
            for (int i = 0; i < ListCount(list); i++) {
                if (IsHighlighted(i) != (i == row)) {
                    return false;
                }
            }
            return true;
        });
    }
};

TEST_F(ListPaintE2eTest, OnlyTheSelectedRowIsHighlighted)
{
    actor.Make(Task(L"A"));
    Front();
    for (int row : {0, 2, 1}) {
        Select(row);
        EXPECT_TRUE(OnlyHighlighted(row)) << row;
    }
}

TEST_F(ListPaintE2eTest, ATapHighlightsItsRow)
{
    actor.Make(Task(L"A"));
    Front();
    const RECT row = ListRowOnScreen(list, 2).value_or(RECT{});
    Tap({(row.left + row.right) / 2, (row.top + row.bottom) / 2});
    EXPECT_TRUE(OnlyHighlighted(2));
}

TEST_F(ListPaintE2eTest, ARefreshPaintsTheNewRowsAndWipesTheOld)
{
    const HWND a = actor.Make(Task(L"First"));
    ASSERT_TRUE(actor.Make(Task(L"Second")));
    FrontBefore({a});
    ASSERT_TRUE(RowShowsName(list, 1, L"First"));
    ASSERT_TRUE(RowShowsName(list, 2, L"Second"));
    const RECT last = ListRowOnScreen(list, 3).value_or(RECT{});
    actor.Vanish(a);
    program->Command(commandRefresh);
    EXPECT_TRUE(RowShowsName(list, 1, L"Second"));
    EXPECT_TRUE(RowShowsName(list, 2, L"Today"));
    EXPECT_TRUE(WaitFor([&] {
        const Picture row = Picture::OfScreen({last.left, last.top, last.right, last.bottom - OnScreen(1)});
        return row.Count(GetSysColor(COLOR_WINDOW)) == row.Width() * row.Height();
    }));
}

TEST_F(ListPaintE2eTest, AClosedTaskLeavesTheScreenToo)
{
    const HWND a = actor.Make(Task(L"First"));
    const HWND b = actor.Make(Task(L"Second"));
    FrontBefore({a, b});
    Select(1);
    program->Command(commandClose);
    EXPECT_TRUE(RowShowsName(list, 1, L"Second"));
    EXPECT_TRUE(OnlyHighlighted(1));
}

TEST_F(ListPaintE2eTest, MoreTasksThanFitAreReachedByKeys)
{
    const int count = ListRowsPerPage(list) + 3;
    HWND lowest = nullptr;
    for (int i = 0; i < count; i++) {
        const HWND window = actor.Make(Task(L"Task " + std::to_wstring(i)));
        lowest = lowest ? lowest : window;
    }
    Front();
    ASSERT_EQ(count + 2, ListCount(list));
    PressKey(VK_END);
    EXPECT_TRUE(WaitFor([&] { return ListMark(list) == count + 1; }));
    EXPECT_TRUE(RowShowsName(list, count, L"Task 0"));
    EXPECT_TRUE(RowShowsName(list, count + 1, L"Today"));
    PressKey(VK_UP);
    ASSERT_TRUE(WaitFor([&] { return ListMark(list) == count; }));
    EXPECT_EQ(lowest, SelectedTask());
    PressKey(VK_HOME);
    EXPECT_TRUE(RowShowsName(list, 0, L"Quorvane"));
    EXPECT_TRUE(RowShowsName(list, 1, L"Task " + std::to_wstring(count - 1)));
}

TEST_F(ListPaintE2eTest, TheTitleStripShowsItsTitle)
{
    const HWND page = program->Page(1);
    const RECT strip = ClientRectOnScreen(page);
    const int height = ScreenRectOf(list).top - strip.top;
    const int inset = OnScreen(6) + height / 2;
    const ScreenFont bold(FW_BOLD, 0);
    // The line at its bottom is as thick as a scaled pixel.
    const SIZE size = {strip.right - strip.left - 2 * inset, height - OnScreen(1)};
    const Picture expected =
        bold.Draw(size, GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT), L"Running applications",
                  {0, 0, size.cx, height}, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    EXPECT_TRUE(WaitFor([&] {
        return Picture::OfScreen({strip.left + inset, strip.top, strip.right - inset, strip.top + size.cy}) ==
               expected;
    }));
}
