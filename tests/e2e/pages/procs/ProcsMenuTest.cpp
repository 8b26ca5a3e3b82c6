// The menu of the page of processes, its arrows, and the ways to the report on a process.
// profiles: pocketpc smartphone
// device's executable: pocketpc smartphone
#include "tests/e2e/ProcsScreen.h"
#include "tests/e2e/ProgramMenu.h"
#include "tests/e2e/ShellSession.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/MenuTwin.h"
#include "rig/WaitFor.h"

using namespace rig;

class ProcsMenuTest : public ProcsScreen
{
  protected:
    // The report that is shown, which is closed by its soft key.
    static std::wstring ShownReport()
    {
        const HWND dialog = program->WaitForDialog();
        EXPECT_EQ(L"Information", TextOf(dialog));
        const HWND edit = FindDescendant(dialog, L"Edit", IDC_INFORMATION_TEXT);
        WaitFor([=] { return !TextOf(edit).empty() && GetForegroundWindow() == dialog; });
        const std::wstring text = TextOf(edit);
        Answer(dialog, VK_F1);
        return text;
    }

    void ExpectReportOn(DWORD process) const
    {
        wchar_t line[40];
        swprintf(line, 40, L"\r\nProcess ID: 0x%08X\r\n", static_cast<unsigned>(process));
        const std::wstring report = ShownReport();
        EXPECT_NE(std::wstring::npos, report.find(line)) << testing::PrintToString(report.substr(0, 200));
        ExpectUsable();
    }

    POINT StripPoint(int x) const
    {
        const RECT rows = ScreenRectOf(list);
        return {x, (ScreenRectOf(program->Page(ProcsPage)).top + rows.top) / 2};
    }
};

TEST_F(ProcsMenuTest, TheItemsHaveTheirTextsAndOrder)
{
    const ProgramMenu menu(132);
    EXPECT_EQ((std::vector<MenuItem>{{32790, L"Process details"},
                                     {32792, L"Windows list"},
                                     {0, L""},
                                     {32791, L"End process"},
                                     {0, L""},
                                     {32793, L"Refresh"},
                                     {0, L""},
                                     {-1, L"View"},
                                     {0, L""},
                                     {-1, L"More"},
                                     {0, L""},
                                     {32773, L"Exit"}}),
              menu.Items());
}

TEST_F(ProcsMenuTest, TheOpenMenuLooksAsItShould)
{
    const RECT bar = ScreenRectOf(BarOf(Main()));
    const MenuTwin twin({{L"Process details"},
                         {L"Windows list"},
                         {},
                         {L"End process"},
                         {},
                         {L"Refresh"},
                         {},
                         {L"View", false, true},
                         {},
                         {L"More", false, true},
                         {},
                         {L"Exit"}},
                        {bar.right, bar.top}, TPM_RIGHTALIGN | TPM_BOTTOMALIGN);
    ASSERT_GT(twin.Look().Colours(), 1) << "the expected menu does not open";
    Front();
    PressKey(VK_F2);
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    ParkStylus();
    EXPECT_TRUE(WaitFor([&] { return Picture::OfScreen(twin.Area()) == twin.Look(); }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([] { return !OpenMenu(); }));
}

TEST_F(ProcsMenuTest, TheArrowsGoToSystemInformationAndRunningApplications)
{
    const LONG width = ScreenRectOf(list).right;
    const struct
    {
        std::function<void()> go;
        int page;
    } ways[] = {
        {[] { PressKey(VK_LEFT); }, SysInfoPage},
        {[] { PressKey(VK_RIGHT); }, TasksPage},
        {[this] { Tap(StripPoint(5)); }, SysInfoPage},
        {[=, this] { Tap(StripPoint(static_cast<int>(width) - 5)); }, TasksPage},
    };
    for (const auto& way : ways) {
        way.go();
        EXPECT_TRUE(program->WaitForPage(way.page));
        Do(CMD_SHOW_PROCS);
        ASSERT_TRUE(program->WaitForPage(ProcsPage));
    }
}

TEST_F(ProcsMenuTest, TheStripsPopUpRefreshes)
{
    FrontWithoutRefreshes();
    RefreshExactly();
    const int rows = ListCount(list);
    const Actor actor;
    ASSERT_TRUE(actor.Ready());
    ASSERT_EQ(rows, ListCount(list)) << "refreshed too early";
    Tap(StripPoint(Scaled(60)));
    ASSERT_TRUE(WaitFor([] { return OpenMenu(); }));
    ParkStylus();
    PressKey(VK_UP);
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitFor([&] { return ListCount(list) == rows + 1; }, std::chrono::seconds(3)));
    ExpectUsable();
}

TEST_F(ProcsMenuTest, TheReportOpensByTheMenuByEnterAndByADoubleTap)
{
    const Actor actor;
    SelectProcess(actor.Process());
    Choose(1);
    ExpectReportOn(actor.Process());
    PressKey(VK_RETURN);
    ExpectReportOn(actor.Process());

    SelectProcess(program->Process());
    const int place = PlaceOf(actor.Process()).value_or(0);
    Send(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(place));
    const auto row = ListRowOnScreen(list, place);
    ASSERT_TRUE(row);
    DoubleTap({(row->left + row->right) / 2, (row->top + row->bottom) / 2});
    ExpectReportOn(actor.Process());
}
