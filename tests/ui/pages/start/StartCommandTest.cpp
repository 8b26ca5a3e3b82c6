// The launcher page: starting a program, the report on it, and the refresh.
// profiles: pocketpc smartphone
#include "tests/support/TempFolder.h"
#include "tests/ui/pages/start/StartPageTest.h"

#include <algorithm>

class StartCommandTest : public StartPageTest
{
  protected:
    Names started;
    BOOL starts = TRUE;
    SPY(ShellExecuteEx) execute;
    SPY(MessageBoxW) box;

    StartCommandTest()
    {
        execute.instead = [this](SHELLEXECUTEINFOW* info) {
            started.emplace_back(info->lpFile);
            return starts;
        };
    }

    static void Notify(ProgramApp& app, UINT code)
    {
        NMHDR notification = {List(app), IDC_LIST, code};
        SendMessageW(Page(app).Window(), WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&notification));
    }

    // Runs the report command; see sees the dialog, which is closed then.
    static bool SeeReport(ProgramApp& app, const std::function<void(HWND)>& see)
    {
        bool seen = false;
        app.Later([&] {
            if (app.dialogs->Count() == 0) {
                return;
            }
            seen = true;
            HWND dialog = app.dialogs->At(0)->Window();
            see(dialog);
            SendMessageW(dialog, WM_COMMAND, IDOK, 0);
        });
        Run(app, 0x801F);
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_TRUE(PumpUntil([] { return true; }));
        return seen;
    }
};

TEST_F(StartCommandTest, TheMarkedProgramsShortcutIsStarted)
{
    AddPrograms({L"a", L"b & 100%", L"c"});
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        Run(app, 0x8021);
        Run(app, 114);
        Notify(app, static_cast<UINT>(LVN_ITEMACTIVATE));
        EXPECT_EQ(started, Names(3, L"\\Menu\\b & 100%.lnk"));
        EXPECT_EQ(app.ActiveView()->Id(), 3);
        ExpectSelected(app, 1);
    });
}

TEST_F(StartCommandTest, AfterASearchTheRowCountsNotThePlaceInTheStartMenu)
{
    AddPrograms({L"a", L"b", L"xa", L"xb"});
    OnPage([&](ProgramApp& app) {
        Search(app, L"x");
        Run(app, 114);
        Run(app, 0x8014);
        Run(app, 114);
        EXPECT_EQ(started, (Names{L"\\Menu\\xa.lnk", L"\\Menu\\xb.lnk"}));
    });
}

TEST_F(StartCommandTest, AFailureIsNotTold)
{
    AddPrograms({L"a"});
    starts = FALSE;
    OnPage([&](ProgramApp& app) {
        Run(app, 0x8021);
        EXPECT_EQ(started.size(), 1u);
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_TRUE(box.calls.empty());
    });
}

TEST_F(StartCommandTest, WithNothingSelectedNothingHappens)
{
    AddPrograms({L"a", L"b"});
    OnPage([&](ProgramApp& app) {
        const auto expectNothing = [&] {
            Run(app, 0x8021);
            Run(app, 114);
            Notify(app, static_cast<UINT>(LVN_ITEMACTIVATE));
            EXPECT_FALSE(SeeReport(app, [](HWND) {}));
            EXPECT_TRUE(started.empty());
            EXPECT_EQ(Notice(app), L"");
        };
        SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, -1);
        expectNothing();
        Search(app, L"nothing");
        expectNothing();
        // A control that still believes in a row.
        SendMessageW(List(app), LVM_SETITEMCOUNT, 2, 0);
        SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, 1);
        expectNothing();
    });
}

TEST_F(StartCommandTest, OtherNotificationsStartNothing)
{
    AddPrograms({L"a"});
    OnPage([&](ProgramApp& app) {
        for (const UINT code : {static_cast<UINT>(NM_CLICK), static_cast<UINT>(NM_DBLCLK),
                                static_cast<UINT>(NM_RETURN), static_cast<UINT>(GN_CONTEXTMENU)}) {
            Notify(app, code);
        }
        EXPECT_TRUE(started.empty());
    });
}

TEST_F(StartCommandTest, AStartMayRefreshThePage)
{
    AddPrograms({L"a", L"b"});
    OnPage([&](ProgramApp& app) {
        execute.instead = [&](SHELLEXECUTEINFOW* info) {
            menu.Remove(L"a.lnk");
            Run(app, CMD_REFRESH);
            started.emplace_back(info->lpFile); // in a guarded heap it would be gone with its record
            return TRUE;
        };
        Run(app, 114);
        EXPECT_EQ(started, Names{L"\\Menu\\a.lnk"});
        EXPECT_EQ(Listed(app), Names{L"b"});
    });
}

TEST_F(StartCommandTest, TheReportIsOfTheMarkedProgram)
{
    const TempFolder folder;
    menu.place = folder.Folder();
    const std::wstring path = folder.WriteFile(L"Calc.lnk", {'1', '#', 'x'});
    menu.targets[path] = L"\\Windows\\calc.exe -s";
    OnPage([&](ProgramApp& app) {
        EXPECT_TRUE(SeeReport(app, [&](HWND dialog) {
            EXPECT_EQ(Text(dialog), L"Information");
            EXPECT_EQ(Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT)),
                      L"Name: Calc\r\nExecuteable: " + path +
                          L"\r\nTarget: \\Windows\\calc.exe -s\r\n\r\nLNK file contents:\r\n1#x");
        }));
        DeleteFileW(path.c_str());
        EXPECT_TRUE(SeeReport(app, [&](HWND dialog) {
            EXPECT_EQ(Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT)),
                      L"Name: Calc\r\nExecuteable: " + path + L"\r\nTarget: \\Windows\\calc.exe -s");
        }));
        EXPECT_EQ(GetFocus(), Box(app)) << "one can go on typing";
    });
}

TEST_F(StartCommandTest, ARefreshUnderAReportLeavesTheReport)
{
    AddPrograms({L"a", L"b"});
    OnPage([&](ProgramApp& app) {
        EXPECT_TRUE(SeeReport(app, [&](HWND dialog) {
            menu.Remove(L"a.lnk");
            Run(app, CMD_REFRESH);
            EXPECT_EQ(Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT)),
                      L"Name: a\r\nExecuteable: \\Menu\\a.lnk\r\nTarget: \\Windows\\a.exe");
        }));
        EXPECT_EQ(Listed(app), Names{L"b"});
    });
}

TEST_F(StartCommandTest, ARefreshScansThenSearchesThenPaints)
{
    AddPrograms({L"xa", L"b"});
    OnPage([&](ProgramApp& app) {
        HWND list = List(app);
        Search(app, L"x");
        AddPrograms({L"xb", L"0x"});
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == list && message == LVM_SETITEMCOUNT) {
                Note(menu.calls.empty() ? "count before the scan" : "count " + std::to_string(wParam));
            } else if (window == list && (message == LVM_DELETECOLUMN || message == LVM_INSERTCOLUMNW)) {
                Note(message == LVM_DELETECOLUMN ? "column goes" : "column comes");
            }
            return send.Real(window, message, wParam, lParam);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            Note(window == list ? "list painted" : "other painted");
            return update.Real(window);
        });
        menu.calls.clear();
        TakeEvents();
        Run(app, 0x8019);
        EXPECT_EQ(TakeEvents(), (Events{"count 3", "column goes", "column comes", "list painted"}));
        EXPECT_EQ(std::count(menu.calls.begin(), menu.calls.end(), L"allocator"), 1);
        EXPECT_EQ(menu.askedOwner, app.MainWindow());
        EXPECT_EQ(Listed(app), (Names{L"0x", L"xa", L"xb"}));
        ExpectSelected(app, 0);
    });
}

// In a guarded heap a row that points to a record of before ends the program.
TEST_F(StartCommandTest, NoRowOutlivesItsRecord)
{
    menu.AddMany(20);
    OnPage([&](ProgramApp& app) {
        for (int left = 19; left >= 0; left--) {
            menu.Remove(L"Program " + std::to_wstring(left) + L".lnk");
            Run(app, CMD_REFRESH);
            EXPECT_EQ(Count(app), left);
            EXPECT_EQ(Listed(app).size(), static_cast<size_t>(left));
        }
        EXPECT_EQ(Mark(List(app)), -1);
        menu.AddMany(2);
        Run(app, CMD_REFRESH);
        ExpectSelected(app, 0);
    });
}

TEST_F(StartCommandTest, AStartMenuThatCannotBeFoundEmptiesTheList)
{
    AddPrograms({L"a", L"b"});
    OnPage([&](ProgramApp& app) {
        menu.locationAnswer = E_FAIL;
        Run(app, CMD_REFRESH);
        EXPECT_EQ(Listed(app), Names{});
        EXPECT_EQ(Mark(List(app)), -1);
        menu.locationAnswer = S_OK;
        Run(app, CMD_REFRESH);
        EXPECT_EQ(Count(app), 2);
        ExpectSelected(app, 0);
    });
}

TEST_F(StartCommandTest, OnlyThisPagesRefreshScans)
{
    AddPrograms({L"a"});
    InProgram([&](ProgramApp& app) {
        EXPECT_EQ(std::count(menu.calls.begin(), menu.calls.end(), L"allocator"), 1) << "the start";
        menu.calls.clear();
        for (const int page : {1, 2, 4, 3}) {
            app.ActivateView(page);
            EXPECT_TRUE(menu.calls.empty()) << page;
            Run(app, CMD_REFRESH);
            SendMessageW(app.MainWindow(), WM_TIMER, 1, 0);
            EXPECT_EQ(menu.calls.empty(), page != 3) << page;
        }
    });
}

TEST_F(StartCommandTest, TheArrowsLeadToTheNeighboursAndOtherCommandsAreTheApplications)
{
    OnPage([](ProgramApp& app) {
        Run(app, 0x8006);
        EXPECT_EQ(app.ActiveView()->Id(), 1);
        app.ActivateView(3);
        Run(app, 0x8007);
        EXPECT_EQ(app.ActiveView()->Id(), 2);
        app.ActivateView(3);
        Run(app, CMD_SETTINGS);
        EXPECT_EQ(Notice(app), L"Settings cmd");
        Run(app, CMD_SHOW_PROCS);
        EXPECT_EQ(app.ActiveView()->Id(), 4);
    });
}
