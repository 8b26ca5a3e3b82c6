// The rows of the page of processes.
// profiles: pocketpc pocketpc-vga
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ScreenText.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <deque>

using namespace rig;

class ProcsListTest : public ProcsScreen
{
  protected:
    const ScreenFont bold{FW_BOLD, 2};

    void ExpectName(DWORD process, const std::wstring& name) const
    {
        const int row = PlaceOf(process).value_or(-1);
        Send(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row));
        EXPECT_TRUE(RowShowsName(list, row, name, bold)) << testing::PrintToString(name);
    }
};

TEST_F(ProcsListTest, EachProcessHasARowInTheSystemsOrder)
{
    const Actor first;
    const Actor second;
    Front();
    RefreshExactly();
    const auto processes = Processes();
    ASSERT_EQ(static_cast<int>(processes.size()), ListCount(list));
    for (int row = 0; row < ListCount(list); row++) {
        Select(row);
        const SessionProcess& process = processes[static_cast<size_t>(row)];
        wchar_t line[40];
        swprintf(line, 40, L"\r\nProcess ID: 0x%08X\r\n", static_cast<unsigned>(process.id));
        const std::wstring report = ReportBy(CMD_PROCESS_DETAILS);
        EXPECT_NE(std::wstring::npos, report.find(line))
            << row << ": " << testing::PrintToString(report.substr(0, 120));
    }
}

TEST_F(ProcsListTest, RowsShowTheNamesWithoutAFolder)
{
    for (const wchar_t* name : {L"100%s %d.exe", L"UPPER and lower.EXE", L"\x0416\x0443\x043a.exe"}) {
        const Actor actor(ActorNamed(name));
        ASSERT_TRUE(actor.Ready());
        Front();
        RefreshExactly();
        ExpectName(actor.Process(), name);
        Select(PlaceOf(actor.Process()).value_or(-1));
        ExpectName(actor.Process(), name);
    }
    EXPECT_FALSE(RowShowsName(list, 0, L"Any other name", bold, std::chrono::milliseconds(0)))
        << "any text would have been taken";
}

TEST_F(ProcsListTest, ProcessesThatComeAndGoChangeTheRowsOnlyByARefresh)
{
    FrontWithoutRefreshes();
    RefreshExactly();
    const int rows = ListCount(list);
    std::optional<Actor> actor(std::in_place);
    ASSERT_TRUE(actor->Ready());
    EXPECT_EQ(rows, ListCount(list)) << "refreshed too early";
    RefreshExactly();
    EXPECT_EQ(rows + 1, ListCount(list));
    actor.reset();
    EXPECT_EQ(rows + 1, ListCount(list)) << "refreshed too early";
    RefreshExactly();
    EXPECT_EQ(rows, ListCount(list));
}

TEST_F(ProcsListTest, SixtyProcessesScrollAndTheIndexStaysSelected)
{
    static constexpr size_t many = 60;
    std::deque<Actor> actors;
    while (Processes().size() < many) {
        actors.emplace_back();
        ASSERT_TRUE(actors.back().Ready());
    }
    Front();
    RefreshExactly();
    ASSERT_EQ(static_cast<int>(many), ListCount(list));
    const int page = ListRowsPerPage(list);
    ASSERT_LT(page, static_cast<int>(many));
    PressKey(VK_END);
    EXPECT_TRUE(WaitFor([&] { return ListMark(list) == static_cast<int>(many) - 1; }));
    EXPECT_EQ(static_cast<int>(many) - page, ListTopRow(list));
    ExpectName(Processes().back().id, Processes().back().name);

    // Another process is in the marked row afterwards.
    const int mark = static_cast<int>(many) - 5;
    Select(mark);
    actors.pop_front();
    RefreshExactly();
    EXPECT_EQ(static_cast<int>(many) - 1, ListCount(list));
    EXPECT_EQ(mark, ListMark(list));
    EXPECT_EQ(mark, ListSelected(list));
    const SessionProcess shown = Processes()[static_cast<size_t>(mark)];
    ExpectName(shown.id, shown.name);

    // There is no such row any more.
    for (int i = 0; i < 10; i++) {
        actors.pop_front();
    }
    RefreshExactly();
    EXPECT_EQ(static_cast<int>(Processes().size()) - 1, ListMark(list));
    EXPECT_EQ(ListMark(list), ListSelected(list));
}

TEST_F(ProcsListTest, ShowingThePageSelectsTheFirstRow)
{
    Select(2);
    Do(CMD_NEXT_PAGE);
    ASSERT_TRUE(program->WaitForPage(1));
    Do(CMD_SHOW_PROCS);
    ASSERT_TRUE(program->WaitForPage(4));
    EXPECT_EQ(0, ListMark(list));
    EXPECT_EQ(0, ListSelected(list));
    ExpectUsable();
}
