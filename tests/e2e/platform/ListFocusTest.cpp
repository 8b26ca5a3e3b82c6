// The selected row while the list gains and loses the focus.
#include "rig/Actor.h"
#include "rig/Controls.h"
#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"

using namespace rig;

class ListFocusTest : public ShellSession
{
  protected:
    HWND list = nullptr;
    RECT row = {}; // icon and name of the selected row; the figure behind them changes with time
    std::optional<Picture> before;

    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(ShellSession::SetUp());
        SettledCount();
        list = program->List(TasksPage);
        PressKey(VK_HOME);
        ASSERT_TRUE(WaitFor([&] { return ListMark(list) == 0; }));
        row = ListRowOnScreen(list, 0).value_or(RECT{});
        row.right = (row.left + row.right) / 2;
        ASSERT_TRUE(WaitFor([&] {
            before.emplace(Picture::OfScreen(row));
            return before->Count(GetSysColor(COLOR_HIGHLIGHT)) > before->Width() * before->Height() / 4;
        }));
    }

    // Below the last row. It takes the selection away and leaves the mark, by which the rows are drawn.
    void TapEmptyArea() const
    {
        const RECT last = ListRowOnScreen(list, ListCount(list) - 1).value_or(RECT{});
        const RECT area = ClientRectOnScreen(list);
        ASSERT_LT(last.bottom + 10, area.bottom);
        Tap({(area.left + area.right) / 2, (last.bottom + area.bottom) / 2});
        ASSERT_TRUE(WaitFor([&] { return ListSelected(list) == -1; })) << "the tap did not arrive";
    }

    void ExpectSameRow(const char* when) const
    {
        Send(list, WM_NULL); // it has drawn what it draws by itself
        EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(row) == *before; })) << when;
    }
};

TEST_F(ListFocusTest, ATapOnTheEmptyAreaAndABoxLeaveTheSelectedRowAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(TapEmptyArea());
    ExpectSameRow("after the tap");
    program->Command(AboutCommand);
    const HWND box = program->WaitForDialog();
    ASSERT_TRUE(InFront(box));
    ASSERT_GE(ScreenRectOf(box).top, row.bottom) << "the box covers the row";
    ExpectSameRow("below the box");
    PressKey(VK_RETURN);
    ASSERT_TRUE(InFront(main));
    ExpectSameRow("after the box");
}

TEST_F(ListFocusTest, AnotherProgramsTurnLeavesTheSelectedRowAsItWas)
{
    ASSERT_NO_FATAL_FAILURE(TapEmptyArea());
    const Actor actor;
    const RECT area = ClientRectOnScreen(list);
    const HWND window = actor.Make({.place = {0, area.bottom - 40, 100, area.bottom}});
    ASSERT_TRUE(InFront(window));
    ExpectSameRow("without the front");
}
