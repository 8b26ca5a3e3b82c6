// The processes page: what its commands do to the selected process.
// profiles: pocketpc smartphone
#include "tests/ui/pages/procs/ProcsTest.h"

#include <deque>

class CViewProcsCommandTest : public ProcsTest
{
  protected:
    std::deque<int> answers; // of the boxes, in order; afterwards 0
    std::vector<std::wstring> asked;
    SPY(MessageBoxW) box;
    SPY(OpenProcess) open; // no process may be opened
    SPY(QueryPolicy) policy;

    CViewProcsCommandTest()
    {
        box.instead = [this](HWND, const wchar_t* text, const wchar_t*, UINT) {
            asked.emplace_back(text);
            const int answer = answers.empty() ? 0 : answers.front();
            if (!answers.empty()) {
                answers.pop_front();
            }
            return answer;
        };
        open.instead = [](DWORD, BOOL, DWORD) { return HANDLE{nullptr}; };
        policy.instead = [](DWORD, DWORD*) { return E_FAIL; };
    }

    static constexpr UINT rowCommands[] = {CMD_PROCESS_DETAILS, CMD_ACTIVATE_ITEM, CMD_WINDOWS_LIST,
                                           CMD_END_PROCESS};

    void ExpectNoCommandActs(ProgramApp& app)
    {
        for (const UINT command : rowCommands) {
            const size_t snapshots = system.snapshots.size();
            Run(app, command);
            EXPECT_EQ(app.dialogs->Count(), 0u) << command;
            EXPECT_TRUE(asked.empty()) << command;
            EXPECT_EQ(Notice(app), L"") << command;
            EXPECT_EQ(system.snapshots.size(), snapshots) << command;
        }
    }

    // The steps of refilling and repainting the list that the command takes.
    Events StepsOf(ProgramApp& app, UINT command)
    {
        HWND list = List(app);
        const SPY(CreateToolhelp32Snapshot) take([&](DWORD flags, DWORD process) {
            if (flags == 0x40000002) {
                Note("snapshot");
            }
            return take.Real(flags, process);
        });
        const SPY(SendMessageW) send([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == list && message == LVM_SETITEMCOUNT) {
                Note("count " + std::to_string(wParam));
            }
            if (window == list && (message == LVM_DELETECOLUMN || message == LVM_INSERTCOLUMNW)) {
                Note(message == LVM_DELETECOLUMN ? "column goes" : "column comes");
            }
            return send.Real(window, message, wParam, lParam);
        });
        const SPY(InvalidateRect) invalidate([&](HWND window, const RECT* area, BOOL erased) {
            if (window == list) {
                Note(std::string(area ? "part" : "list") + (erased ? " erased" : " dirty"));
            }
            return invalidate.Real(window, area, erased);
        });
        const SPY(UpdateWindow) update([&](HWND window) {
            if (window == list) {
                Note("list painted");
            }
            return update.Real(window);
        });
        TakeEvents();
        Run(app, command);
        return TakeEvents();
    }

    static const Events refreshOfThree;

    // Runs the command, which opens a dialog; see sees it and it is closed then.
    static void SeeDialog(ProgramApp& app, const std::function<void(HWND)>& see,
                          const std::function<void()>& command)
    {
        bool seen = false;
        app.Later([&] {
            seen = true;
            ASSERT_EQ(app.dialogs->Count(), 1u);
            HWND dialog = app.dialogs->At(0)->Window();
            see(dialog);
            SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        command();
        EXPECT_TRUE(seen);
        EXPECT_EQ(app.dialogs->Count(), 0u);
    }

    static TVITEMW TreeItem(HWND tree, UINT relation, HTREEITEM of, wchar_t (&text)[300])
    {
        TVITEMW item = {};
        item.mask = TVIF_TEXT | TVIF_PARAM;
        item.pszText = text;
        item.cchTextMax = 300;
        item.hItem = reinterpret_cast<HTREEITEM>(
            SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(of)));
        text[0] = 0;
        if (item.hItem) {
            SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        return item;
    }
};

const Events CViewProcsCommandTest::refreshOfThree = {"snapshot",     "count 3",    "column goes",
                                                      "column comes", "list dirty", "list painted"};

TEST_F(CViewProcsCommandTest, WithAnEmptyListNoCommandDoesAnything)
{
    AddProcesses(2);
    OnPage([&](ProgramApp& app) {
        SendMessageW(List(app), LVM_SETITEMCOUNT, 0, 0);
        ExpectNoCommandActs(app);
    });
}

TEST_F(CViewProcsCommandTest, BeforeThePageWasShownNoCommandDoesAnything)
{
    AddProcesses(2);
    InProgram([&](ProgramApp& app) {
        for (const UINT command : rowCommands) {
            Page(app).OnCommand(command, 0, 0);
        }
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_TRUE(asked.empty());
        EXPECT_TRUE(system.snapshots.empty());
    });
}

TEST_F(CViewProcsCommandTest, WithAMarkBehindTheLastRowNoCommandDoesAnything)
{
    AddProcesses(5);
    OnPage([&](ProgramApp& app) {
        Select(app, 4);
        SendMessageW(List(app), LVM_SETITEMCOUNT, 4, 0); // the control keeps its mark
        ASSERT_EQ(Mark(List(app)), 4);
        ExpectNoCommandActs(app);
        SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, -1);
        ExpectNoCommandActs(app);
    });
}

TEST_F(CViewProcsCommandTest, DetailsAreTheReportOnTheMarkedProcess)
{
    AddProcesses(4);
    system.processes[2].version = 0x00050002;
    system.processes[2].modules = {{L"a.dll", L"", 1, 1, 5}};
    OnPage([&](ProgramApp& app) {
        Select(app, 2);
        // The mark counts, not the state.
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
        SendMessageW(List(app), LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
        SendMessageW(List(app), LVM_SETSELECTIONMARK, 0, 2);
        const auto see = [&](HWND dialog) {
            EXPECT_EQ(Text(dialog), L"Information");
            EXPECT_EQ(Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT)), L"Full name:\r\n\\Windows\\p3.exe"
                                                                      L"\r\n\r\nProcess ID: 0x7F000003"
                                                                      L"\r\nMemory usage: 0 B"
                                                                      L"\r\nThread count: 1"
                                                                      L"\r\nRequired OS version: 5.2"
                                                                      L"\r\n\r\nLIST OF MODULES:\r\n\r\n"
                                                                      L"Name: a.dll"
                                                                      L"\r\nGlobal usage count: 1"
                                                                      L"\r\nProcess ref. count: 1"
                                                                      L"\r\nSize of the module: 5 B\r\n\r\n");
        };
        SeeDialog(app, see, [&] { Run(app, 32790); });
        SeeDialog(app, see, [&] { Run(app, 114); });
        SeeDialog(app, see, [&] {
            NMHDR notification = {List(app), IDC_LIST, static_cast<UINT>(LVN_ITEMACTIVATE)};
            SendMessageW(Page(app).Window(), WM_NOTIFY, IDC_LIST, reinterpret_cast<LPARAM>(&notification));
        });
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

TEST_F(CViewProcsCommandTest, TheWindowsListIsOfTheMarkedProcessUnderItsName)
{
    HWND task = AddTask(L"Task");
    system.Add(firstId, L"first.exe");
    system.Add(GetCurrentProcessId(), L"Marked 100%.exe");
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        const auto see = [&](HWND dialog) {
            HWND tree = GetDlgItem(dialog, IDC_WINDOWS_TREE);
            wchar_t text[300];
            const TVITEMW root = TreeItem(tree, TVGN_ROOT, nullptr, text);
            EXPECT_STREQ(text, L"Marked 100%.exe");
            const TVITEMW window = TreeItem(tree, TVGN_CHILD, root.hItem, text);
            EXPECT_STREQ(text, L"\"Task\" - QuorvaneTestTask");
            EXPECT_EQ(window.lParam, reinterpret_cast<LPARAM>(task));
            EXPECT_EQ(TreeItem(tree, TVGN_NEXT, window.hItem, text).hItem, nullptr);
            EXPECT_NE(TreeItem(tree, TVGN_CARET, nullptr, text).hItem, window.hItem) << "none is preselected";
        };
        SeeDialog(app, see, [&] { Run(app, 32792); });
    });
}

TEST_F(CViewProcsCommandTest, AProcessWithoutWindowsHasAnEmptyWindowsList)
{
    AddTask(L"Task");
    AddProcesses(2);
    OnPage([&](ProgramApp& app) {
        const auto see = [&](HWND dialog) {
            HWND tree = GetDlgItem(dialog, IDC_WINDOWS_TREE);
            wchar_t text[300];
            const TVITEMW root = TreeItem(tree, TVGN_ROOT, nullptr, text);
            EXPECT_STREQ(text, L"p1.exe");
            TreeItem(tree, TVGN_CHILD, root.hItem, text);
            EXPECT_STREQ(text, L"No windows detected");
        };
        SeeDialog(app, see, [&] { Run(app, 32792); });
    });
}

TEST_F(CViewProcsCommandTest, ARefreshRefillsThenPaintsWithoutErasing)
{
    AddProcesses(3);
    OnPage([&](ProgramApp& app) { EXPECT_EQ(StepsOf(app, 32793), refreshOfThree); });
}

TEST_F(CViewProcsCommandTest, TheQuestionIsAboutTheMarkedProcessAndOfThePage)
{
    AddProcesses(3);
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        Run(app, 32791);
        EXPECT_EQ(asked, Names{L"End p2.exe?"});
        ASSERT_EQ(box.calls.size(), 1u);
        EXPECT_EQ(std::get<0>(box.calls[0]), Page(app).Window());
    });
}

TEST_F(CViewProcsCommandTest, DecliningRefreshesAndKeepsTheRow)
{
    AddProcesses(3);
    OnPage([&](ProgramApp& app) {
        Select(app, 1);
        answers = {IDNO};
        EXPECT_EQ(StepsOf(app, 32791), refreshOfThree);
        ExpectSelected(app, 1);
        EXPECT_TRUE(open.calls.empty());
    });
}

TEST_F(CViewProcsCommandTest, AProcessThatCannotBeOpenedIsToldAboutAndThePageRefreshed)
{
    AddProcesses(3);
    OnPage([&](ProgramApp& app) {
        Select(app, 2);
        answers = {IDYES};
        EXPECT_EQ(StepsOf(app, 32791), refreshOfThree);
        ASSERT_EQ(open.calls.size(), 1u);
        EXPECT_EQ(open.calls[0], std::make_tuple(DWORD{0x100001}, BOOL{FALSE}, DWORD{firstId + 2}));
        EXPECT_EQ(Notice(app), L"Can't end process");
        ExpectSelected(app, 2);
    });
}

TEST_F(CViewProcsCommandTest, ARefusalIsToldAndRefreshesNothing)
{
    AddProcesses(2);
    system.Add(firstId + 9, L"GWES.exe");
    OnPage([&](ProgramApp& app) {
        Select(app, 2);
        EXPECT_EQ(StepsOf(app, 32791), Events{});
        EXPECT_TRUE(asked.empty());
        EXPECT_EQ(Notice(app), L"It's forbidden to end this process!");
    });
}

TEST_F(CViewProcsCommandTest, TheProgramsOwnNameEndsItAndRefreshesNothing)
{
    AddProcesses(2);
    system.Add(firstId + 9, L"QUORVANE.EXE");
    InProgram([&](ProgramApp& app) {
        app.endsAfterBody = false;
        app.ActivateView(4);
        Select(app, 2);
        EXPECT_EQ(StepsOf(app, 32791), Events{});
        EXPECT_TRUE(asked.empty());
        EXPECT_TRUE(app.HasMainWindow()) << "asked to close, not closed";
    });
}

TEST_F(CViewProcsCommandTest, TheArrowsLeadToTheNeighbours)
{
    AddProcesses(1);
    OnPage([](ProgramApp& app) {
        Run(app, 32774);
        EXPECT_EQ(app.ActiveView()->Id(), 2);
        app.ActivateView(4);
        Run(app, 32775);
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    });
}

TEST_F(CViewProcsCommandTest, OtherCommandsAreTheApplications)
{
    AddProcesses(1);
    OnPage([](ProgramApp& app) {
        Run(app, CMD_SETTINGS);
        EXPECT_EQ(Notice(app), L"Settings cmd");
        Run(app, CMD_SHOW_TASKS);
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    });
}
