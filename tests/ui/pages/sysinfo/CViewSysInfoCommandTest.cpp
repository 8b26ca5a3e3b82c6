// The system information page: its reports, its paging, and the commands that are not its own.
// profiles: pocketpc pocketpc-vga smartphone
#include "tests/ui/pages/sysinfo/ShownSysInfo.h"

class CViewSysInfoCommandTest : public ShownSysInfo
{
  protected:
    static constexpr UINT reports[] = {32785, 32786};

    // What a report's dialog shows; under it runs the step, after which the dialog is closed.
    static std::wstring Shown(ProgramApp& app, UINT command, const std::function<void()>& step = nullptr)
    {
        std::wstring text = L"no dialog";
        app.Later([&] {
            ASSERT_EQ(app.dialogs->Count(), 1u);
            HWND dialog = app.dialogs->At(0)->Window();
            EXPECT_EQ(Text(dialog), L"Information");
            if (step) {
                step();
            }
            text = Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT));
            app.EndAllDialogs();
        });
        Run(app, command);
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        return text;
    }

    // A key that the list has, as the program's loop handles it.
    static void Press(ProgramApp& app, WPARAM key)
    {
        bool read = false;
        PostMessageW(List(app), WM_KEYDOWN, key, 1);
        app.Later([&] { read = true; });
        MSG message = {};
        while (!read && GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (!TranslateAcceleratorW(app.MainWindow(), PageKeys(), &message)) {
                DispatchMessageW(&message);
            }
        }
    }

    // The command leaves the list's selection alone.
    static void ExpectNoSelecting(ProgramApp& app, UINT command)
    {
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            EXPECT_NE(message, UINT{LVM_SETITEMSTATE});
            EXPECT_NE(message, UINT{LVM_SETSELECTIONMARK});
            return send.Real(window, message, wParam, lParam);
        });
        SendMessageW(Page(app).Window(), WM_COMMAND, command, 0);
        EXPECT_FALSE(send.calls.empty());
    }

    static HACCEL PageKeys()
    {
        static HACCEL const keys =
            LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDA_SYSINFO));
        return keys;
    }
};

TEST_F(CViewSysInfoCommandTest, MemoryInformationIsTheMemoryReport)
{
    device.AddCard(L"Storage Card", 536870912, 402653184);
    OnPage([&](ProgramApp& app) {
        EXPECT_EQ(Shown(app, 32785),
                  L"PHYSICAL MEMORY:\r\nTotal: 64 MB\r\nAvailable: 32 MB\r\nUsed: 32 MB\r\n\r\n"
                  L"VIRTUAL MEMORY:\r\nTotal: 32 MB\r\nAvailable: 16 MB\r\nUsed: 16 MB\r\n\r\n"
                  L"PAGE FILE:\r\nTotal: 0 B\r\nAvailable: 0 B\r\nUsed: 0 B\r\n\r\n"
                  L"STORAGE MEMORY:\r\nTotal: 128 MB\r\nAvailable: 80 MB\r\nUsed: 48 MB\r\n\r\n"
                  L"Storage Card\r\nTotal: 512 MB\r\nAvailable: 384 MB\r\nUsed: 128 MB");
    });
}

TEST_F(CViewSysInfoCommandTest, BatteryInformationIsTheBatteryReport)
{
    OnPage([&](ProgramApp& app) {
        EXPECT_EQ(Shown(app, 32786),
                  L"AC POWER STATUS:\r\n Offline (Battery used)\r\n\r\n"
                  L"Percentage of full battery charge remaining: 76%\r\n\r\n"
                  L"Number of seconds of battery life when at full charge: 21600 sec\r\n\r\n"
                  L"Number of seconds of battery life remaining: 16200 sec\r\n\r\n"
                  L"Percentage of full backup battery charge remaining: 100%");
        device.hasBattery = false;
        EXPECT_EQ(Shown(app, 32786), L"Battery info is not available");
    });
}

TEST_F(CViewSysInfoCommandTest, ReportsAskAfreshAndLeaveTheRowsAsTheyWere)
{
    OnPage([&](ProgramApp& app) {
        device.memory.dwTotalPhys = 1024;
        device.memory.dwAvailPhys = 0;
        // Behind the box the program is activated again, and refreshed.
        const auto memory = [&] { EXPECT_EQ(Page(app).Row(0).total, 67108864u); };
        EXPECT_EQ(Shown(app, 32785, memory).find(L"PHYSICAL MEMORY:\r\nTotal: 1 KB\r\nAvailable: 0 B\r\n"),
                  0u);
        device.battery.BatteryLifePercent = 12;
        const auto battery = [&] { EXPECT_EQ(Page(app).Row(2).Used(), 76); };
        EXPECT_NE(Shown(app, 32786, battery).find(L"remaining: 12%"), std::wstring::npos);
    });
}

TEST_F(CViewSysInfoCommandTest, ARefreshUnderAReportLeavesItsTextAlone)
{
    device.AddCards(9);
    OnPage([&](ProgramApp& app) {
        for (const UINT report : reports) {
            Select(app, 8);
            const std::wstring before = Shown(app, report);
            const std::wstring under = Shown(app, report, [&] {
                device.cards.clear();
                device.hasBattery = false;
                SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
                EXPECT_EQ(Page(app).RowCount(), 2u);
                SendMessageW(app.MainWindow(), WM_ACTIVATE, WA_ACTIVE, 0);
                UpdateWindow(List(app));
            });
            EXPECT_EQ(under, before);
            ExpectSelected(app, 1);
            device.hasBattery = true;
            device.AddCards(9);
            Run(app, CMD_REFRESH);
        }
    });
}

TEST_F(CViewSysInfoCommandTest, TheProgramMayEndUnderAReport)
{
    for (const UINT report : reports) {
        for (const UINT message : {WM_CLOSE, WM_COMMAND}) {
            ProgramApp app;
            bool returned = false;
            app.endsAfterBody = false;
            app.body = [&] {
                app.ActivateView(2);
                app.Later([&] {
                    ASSERT_EQ(app.dialogs->Count(), 1u);
                    SendMessageW(app.MainWindow(), message, message == WM_CLOSE ? 0 : CMD_EXIT, 0);
                });
                Run(app, report);
                returned = true;
                EXPECT_FALSE(app.HasMainWindow());
            };
            EXPECT_EQ(Start(app), 0);
            EXPECT_TRUE(returned);
        }
    }
}

TEST_F(CViewSysInfoCommandTest, AnotherPageMayBeShownUnderAReport)
{
    OnPage([&](ProgramApp& app) {
        for (const UINT report : reports) {
            app.ActivateView(2);
            app.Later([&] { app.ShowPage(3); });
            Run(app, report);
            EXPECT_EQ(app.dialogs->Count(), 0u);
            EXPECT_EQ(app.ActiveView()->Id(), 3);
        }
    });
}

TEST_F(CViewSysInfoCommandTest, RowAboveIsTheOneBeforeTheTopRow)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        Select(app, 42);
        const int top = TopRow(app);
        ASSERT_GT(top, 2);
        Run(app, 32787);
        ExpectSelected(app, top - 1);
        EXPECT_EQ(TopRow(app), top - 1);
        Run(app, 32787);
        ExpectSelected(app, top - 2);
        EXPECT_EQ(TopRow(app), top - 2);
    });
}

TEST_F(CViewSysInfoCommandTest, AboveTheFirstRowThereIsNone)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        ASSERT_EQ(TopRow(app), 0);
        ExpectNoSelecting(app, 32787);
        ExpectSelected(app, 1);
        Select(app, 42);
        for (int i = TopRow(app); i > 0; i--) {
            Run(app, 32787);
        }
        ExpectSelected(app, 0);
        EXPECT_EQ(TopRow(app), 0);
    });
}

TEST_F(CViewSysInfoCommandTest, RowBelowIsTheFirstBehindThePage)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        const int page = RowsPerPage(app);
        ASSERT_GT(page, 1);
        Run(app, 32788);
        ExpectSelected(app, page);
        EXPECT_TRUE(IsVisibleRow(app, page));
        EXPECT_EQ(TopRow(app), 1);
        Run(app, 32788);
        ExpectSelected(app, page + 1);
    });
}

TEST_F(CViewSysInfoCommandTest, BelowTheLastRowThereIsNone)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        const int page = RowsPerPage(app);
        const auto setRows = [&](int rows) {
            device.cards.resize(static_cast<size_t>(rows - 3));
            Run(app, CMD_REFRESH);
            Select(app, 0);
        };
        setRows(page + 1);
        Run(app, 32788);
        ExpectSelected(app, page); // the very last row
        ExpectNoSelecting(app, 32788);
        setRows(page);
        ASSERT_EQ(TopRow(app) + RowsPerPage(app), page);
        ExpectNoSelecting(app, 32788);
        ExpectSelected(app, 0);
    });
}

TEST_F(CViewSysInfoCommandTest, UpAndDownAreThePagesOwnKeys)
{
    device.AddCards(40);
    OnPage([&](ProgramApp& app) {
        Select(app, 20);
        const int top = TopRow(app);
        Press(app, VK_UP);
        ExpectSelected(app, top - 1);
        Press(app, VK_DOWN);
        ExpectSelected(app, top - 1 + RowsPerPage(app));
    });
}

TEST_F(CViewSysInfoCommandTest, ActivatingARowDoesNothing)
{
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        device.calls.clear();
        NMHDR notification = {List(app), IDC_LIST, static_cast<UINT>(LVN_ITEMACTIVATE)};
        EXPECT_EQ(
            SendMessageW(Page(app).Window(), WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&notification)),
            0);
        Run(app, CMD_ACTIVATE_ITEM);
        EXPECT_TRUE(device.calls.empty());
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.ActiveView()->Id(), 2);
        ExpectSelected(app, 1);
    });
}

TEST_F(CViewSysInfoCommandTest, TheArrowsLeadToTheNeighbours)
{
    OnPage([&](ProgramApp& app) {
        Run(app, 32774);
        EXPECT_EQ(app.ActiveView()->Id(), 3);
        app.ActivateView(2);
        Run(app, 32775);
        EXPECT_EQ(app.ActiveView()->Id(), 4);
    });
}

TEST_F(CViewSysInfoCommandTest, OtherCommandsAreTheApplications)
{
    OnPage([&](ProgramApp& app) {
        const std::pair<UINT, int> pages[] = {
            {CMD_SHOW_TASKS, 1}, {CMD_SHOW_START, 3}, {CMD_SHOW_PROCS, 4}, {CMD_SHOW_SYSINFO, 2}};
        for (const auto& [command, page] : pages) {
            Page(app).OnCommand(command, 0, 0);
            EXPECT_EQ(app.ActiveView()->Id(), page);
        }
        // The commands of the other pages are nobody's here.
        for (const UINT command :
             {CMD_PROCESS_DETAILS, CMD_END_PROCESS, CMD_CLOSE_APPLICATION, 32789, 32784}) {
            Page(app).OnCommand(command, 0, 0);
            EXPECT_EQ(app.dialogs->Count(), 0u) << command;
            EXPECT_EQ(Notice(app), L"") << command;
            ExpectSelected(app, 0);
        }
        EXPECT_TRUE(app.HasMainWindow());
        Page(app).OnCommand(CMD_EXIT, 0, 0);
        EXPECT_FALSE(app.HasMainWindow());
    });
}
