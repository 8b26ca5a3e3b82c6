// The page of the running applications: what its commands do to the selected task.
// profiles: pocketpc smartphone
#include "dialogs/WindowReport.h"
#include "resources/ids.h"
#include "tests/ui/ProgramTest.h"

#include <algorithm>

class CViewTasksCommandTest : public ProgramTest
{
  protected:
    std::vector<HWND> broughtForward; // with the low bit
    SPY(SetForegroundWindow) foreground;

    CViewTasksCommandTest()
    {
        foreground.instead = [this](HWND window) {
            broughtForward.push_back(window);
            return TRUE;
        };
    }

    static HWND WithPopups(HWND window)
    {
        return reinterpret_cast<HWND>(reinterpret_cast<ULONG_PTR>(window) | 1);
    }

    void AddTasks(int count)
    {
        for (int i = 0; i < count; i++) {
            AddTask((L"Task " + std::to_wstring(i)).c_str());
        }
    }

    static void Run(ProgramApp& app, UINT command) { SendMessageW(app.MainWindow(), WM_COMMAND, command, 0); }

    // Selects the row and closes its task, as an application does that ends at once.
    void CloseRow(ProgramApp& app, int row)
    {
        HWND task = listed.at(static_cast<size_t>(row));
        app.Tasks().FillList(row);
        const size_t looks = enumWindows.calls.size();
        sleep.instead = [this, task, looks](DWORD) {
            EXPECT_EQ(enumWindows.calls.size(), looks) << "listed before the wait";
            Unlist(task);
        };
        sleep.calls.clear();
        Run(app, CMD_CLOSE_APPLICATION);
        EXPECT_FALSE(IsWindow(task));
        ASSERT_EQ(sleep.calls.size(), 1u);
        EXPECT_EQ(std::get<0>(sleep.calls[0]), 500u);
    }
};

TEST_F(CViewTasksCommandTest, WithAnEmptyListNoCommandDoesAnything)
{
    InProgram([&](ProgramApp& app) {
        broughtForward.clear();
        for (const UINT command : {CMD_SWITCH_TO_APPLICATION, CMD_ACTIVATE_ITEM, CMD_CLOSE_APPLICATION,
                                   CMD_APPLICATION_INFO, CMD_WINDOWS_LIST}) {
            Run(app, command);
            EXPECT_EQ(app.dialogs->Count(), 0u) << command;
            EXPECT_EQ(Notice(app), L"") << command;
        }
        EXPECT_TRUE(broughtForward.empty());
        EXPECT_TRUE(sleep.calls.empty());
        EXPECT_EQ(app.ActiveView()->Id(), 1);
    });
}

TEST_F(CViewTasksCommandTest, WithAMarkBehindTheLastRowNoCommandDoesAnything)
{
    AddTasks(5);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(4);
        SendMessageW(app.TaskList(), LVM_SETITEMCOUNT, 2, 0); // the control keeps its mark
        ASSERT_EQ(Mark(app.TaskList()), 4);
        broughtForward.clear();
        for (const UINT command : {CMD_SWITCH_TO_APPLICATION, CMD_ACTIVATE_ITEM, CMD_CLOSE_APPLICATION,
                                   CMD_APPLICATION_INFO, CMD_WINDOWS_LIST}) {
            Run(app, command);
            EXPECT_EQ(app.dialogs->Count(), 0u) << command;
            EXPECT_EQ(Notice(app), L"") << command;
        }
        EXPECT_TRUE(broughtForward.empty());
        EXPECT_TRUE(sleep.calls.empty());
    });
}

TEST_F(CViewTasksCommandTest, SwitchBringsTheTaskWithItsPopupsForward)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        broughtForward.clear();
        Run(app, CMD_SWITCH_TO_APPLICATION);
        Run(app, 114);
        EXPECT_EQ(broughtForward, (std::vector<HWND>{WithPopups(listed[1]), WithPopups(listed[1])}));
    });
}

TEST_F(CViewTasksCommandTest, SwitchToATaskThatHasGoneDoesNothing)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        EndTask(listed[1]);
        broughtForward.clear();
        Run(app, CMD_SWITCH_TO_APPLICATION);
        Run(app, 114);
        EXPECT_TRUE(broughtForward.empty());
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(app.Tasks().TaskCount(), 3u) << "not even a rebuild";
    });
}

TEST_F(CViewTasksCommandTest, CloseSelectsTheRowBelow)
{
    AddTasks(4);
    InProgram([&](ProgramApp& app) {
        HWND below = listed[2];
        CloseRow(app, 1);
        EXPECT_EQ(app.Tasks().TaskCount(), 3u);
        EXPECT_EQ(Mark(app.TaskList()), 1);
        EXPECT_EQ(app.Tasks().Task(1).window, below);
        RECT dirty = {};
        EXPECT_FALSE(GetUpdateRect(app.TaskList(), &dirty, FALSE)) << "painted at once";
    });
}

TEST_F(CViewTasksCommandTest, CloseOfTheLastRowSelectsTheRowAbove)
{
    AddTasks(4);
    InProgram([&](ProgramApp& app) {
        HWND above = listed[2];
        CloseRow(app, 3);
        EXPECT_EQ(Mark(app.TaskList()), 2);
        EXPECT_EQ(app.Tasks().Task(2).window, above);
    });
}

TEST_F(CViewTasksCommandTest, CloseOfTheOnlyRowLeavesAnEmptyList)
{
    AddTasks(1);
    InProgram([&](ProgramApp& app) {
        CloseRow(app, 0);
        EXPECT_EQ(app.Tasks().TaskCount(), 0u);
        EXPECT_EQ(Mark(app.TaskList()), -1);
    });
}

TEST_F(CViewTasksCommandTest, CloseOfATaskThatStaysSelectsItsNeighbour)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(0);
        SPY(SendMessageW) send;
        send.instead = [&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            return message == WM_CLOSE ? 0 : send.Real(window, message, wParam, lParam);
        };
        Run(app, CMD_CLOSE_APPLICATION);
        EXPECT_EQ(app.Tasks().TaskCount(), 3u);
        EXPECT_EQ(Mark(app.TaskList()), 1);
        const auto closes = std::count_if(send.calls.begin(), send.calls.end(), [&](const auto& call) {
            return std::get<1>(call) == WM_CLOSE && std::get<0>(call) == listed[0];
        });
        EXPECT_EQ(closes, 1);
    });
}

TEST_F(CViewTasksCommandTest, CloseOfATaskThatHasGoneRebuildsTheListWithoutAMessage)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        EndTask(listed[1]);
        Unlist(listed[1]);
        Run(app, CMD_CLOSE_APPLICATION);
        ASSERT_EQ(sleep.calls.size(), 1u);
        EXPECT_EQ(app.Tasks().TaskCount(), 2u);
        EXPECT_EQ(Notice(app), L"");
        EXPECT_EQ(Mark(app.TaskList()), 1);
    });
}

TEST_F(CViewTasksCommandTest, TheShellsWindowsAreNotClosed)
{
    for (const wchar_t* className : {L"DesktopExplorerWindow", L"EXPLORE"}) {
        HWND shell = AddTask(L"Shell", className);
        InProgram([&](ProgramApp& app) {
            SPY(SetTimer) timer;
            Run(app, CMD_CLOSE_APPLICATION);
            EXPECT_TRUE(IsWindow(shell));
            EXPECT_TRUE(sleep.calls.empty());
            EXPECT_EQ(Notice(app), L"It's forbidden to end this application!");
            ASSERT_EQ(timer.calls.size(), 1u);
            EXPECT_EQ(std::get<2>(timer.calls[0]), 3000u);
            EXPECT_EQ(app.Tasks().TaskCount(), 1u);
        });
        EndTask(shell);
        Unlist(shell);
        UnregisterClassW(className, GetModuleHandleW(nullptr));
    }
}

TEST_F(CViewTasksCommandTest, CloseOfTheProgramsOwnRowEndsTheProgram)
{
    AddTasks(2);
    const int result = InProgram([&](ProgramApp& app) {
        listed.insert(listed.begin() + 1, app.MainWindow());
        app.Tasks().FillList(-1);
        SendMessageW(app.TaskList(), WM_KEYDOWN, VK_DOWN, 1);
        ASSERT_EQ(app.Tasks().Task(static_cast<uint32_t>(Mark(app.TaskList()))).window, app.MainWindow());
        Unlist(app.MainWindow());
        Run(app, CMD_CLOSE_APPLICATION);
        EXPECT_FALSE(app.HasMainWindow());
        EXPECT_TRUE(sleep.calls.empty());
    });
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(IsWindow(listed[0]));
}

TEST_F(CViewTasksCommandTest, ApplicationInfoShowsTheReportOnTheTask)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(2);
        bool seen = false;
        app.Later([&] {
            seen = true;
            ASSERT_EQ(app.dialogs->Count(), 1u);
            HWND dialog = app.dialogs->At(0)->Window();
            const std::wstring report = Text(GetDlgItem(dialog, IDC_INFORMATION_TEXT));
            EXPECT_EQ(Text(dialog), L"Information");
            EXPECT_EQ(report.find(L"Executable:\r\n"), 0u);
            EXPECT_NE(
                report.find(L"_tests.exe\r\n\r\nWindow name: Task 2\r\nClass name: QuorvaneTestTask\r\n"),
                std::wstring::npos)
                << report;
            SendMessageW(dialog, WM_COMMAND, 2, 0);
        });
        Run(app, CMD_APPLICATION_INFO);
        EXPECT_TRUE(seen);
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
    });
}

TEST_F(CViewTasksCommandTest, InfoAndWindowsListOfATaskThatHasGoneGiveANotice)
{
    for (const UINT command : {32799u, 32792u}) {
        AddTasks(2);
        InProgram([&](ProgramApp& app) {
            EndTask(listed[0]);
            SPY(SetTimer) timer;
            Run(app, command);
            EXPECT_EQ(Notice(app), L"Window is no longer exists.") << command;
            ASSERT_EQ(timer.calls.size(), 1u);
            EXPECT_EQ(std::get<2>(timer.calls[0]), 3000u);
            EXPECT_EQ(app.dialogs->Count(), 0u);
        });
        EndTask(listed[1]);
        listed.clear();
    }
}

TEST_F(CViewTasksCommandTest, TheReportOnNoWindowIsNone)
{
    InProgram([&](ProgramApp& app) {
        ShowWindowReport(reinterpret_cast<HWND>(-1));
        EXPECT_EQ(app.dialogs->Count(), 0u);
        EXPECT_EQ(Notice(app), L"");
        ShowWindowReport(nullptr);
        EXPECT_EQ(Notice(app), L"Window is no longer exists.");
    });
}

TEST_F(CViewTasksCommandTest, WindowsListShowsTheTasksProcessWithTheTaskSelected)
{
    AddTasks(3);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        bool seen = false;
        app.Later([&] {
            seen = true;
            ASSERT_EQ(app.dialogs->Count(), 1u);
            HWND dialog = app.dialogs->At(0)->Window();
            HWND tree = GetDlgItem(dialog, IDC_WINDOWS_TREE);
            wchar_t text[300] = {};
            TVITEMW item = {};
            item.mask = TVIF_TEXT | TVIF_PARAM;
            item.pszText = text;
            item.cchTextMax = 300;
            item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
            SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            EXPECT_STREQ(text, L"ui_tests.exe");
            item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
            SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            EXPECT_EQ(item.lParam, reinterpret_cast<LPARAM>(listed[1]));
            SendMessageW(dialog, WM_COMMAND, 1, 0);
        });
        Run(app, CMD_WINDOWS_LIST);
        EXPECT_TRUE(seen);
    });
}

TEST_F(CViewTasksCommandTest, TheArrowsLeadToTheNeighbours)
{
    InProgram([&](ProgramApp& app) {
        Run(app, CMD_PREVIOUS_PAGE);
        EXPECT_EQ(app.ActiveView()->Id(), 4);
        app.ActivateView(1);
        Run(app, CMD_NEXT_PAGE);
        EXPECT_EQ(app.ActiveView()->Id(), 3);
    });
}

TEST_F(CViewTasksCommandTest, AListsNotificationsAreAnswered)
{
    AddTasks(2);
    InProgram([&](ProgramApp& app) {
        app.Tasks().FillList(1);
        HWND page = app.Tasks().Window();
        const auto notify = [&](UINT_PTR control, UINT code) {
            NMHDR notification = {app.TaskList(), control, code};
            return SendMessageW(page, WM_NOTIFY, control, reinterpret_cast<LPARAM>(&notification));
        };
        broughtForward.clear();
        EXPECT_EQ(notify(IDC_LIST, LVN_ITEMACTIVATE), 0);
        EXPECT_EQ(broughtForward, std::vector<HWND>{WithPopups(listed[1])});
        EXPECT_EQ(notify(IDC_LIST, 1000), 1);
        for (const UINT code :
             {0u, 1u, 999u, 1001u, static_cast<UINT>(NM_CLICK), static_cast<UINT>(LVN_ITEMCHANGED)}) {
            EXPECT_EQ(notify(IDC_LIST, code), 0) << code;
        }
        for (const UINT code : {static_cast<UINT>(LVN_ITEMACTIVATE), 1000u, 0u}) {
            EXPECT_EQ(notify(111, code), 1) << code;
            EXPECT_EQ(notify(0, code), 1) << code;
        }
        EXPECT_EQ(broughtForward.size(), 1u);
    });
}

TEST_F(CViewTasksCommandTest, TheFirstShowingIsFollowedByOneMoreLook)
{
    SPY(SetTimer) timer;
    SPY(KillTimer) kill;
    const auto started = [&](const ProgramApp&, HWND page) {
        return std::count_if(timer.calls.begin(), timer.calls.end(), [&](const auto& call) {
            return std::get<0>(call) == page && std::get<1>(call) == 2 && std::get<2>(call) == 1000;
        });
    };
    InProgram([&](ProgramApp& app) {
        HWND page = app.Tasks().Window();
        EXPECT_EQ(started(app, page), 1);
        app.ActivateView(3);
        app.ActivateView(1);
        EXPECT_EQ(started(app, page), 1) << "only the first showing";
        kill.calls.clear();
        const size_t before = enumWindows.calls.size();
        SendMessageW(page, WM_TIMER, 2, 0);
        EXPECT_EQ(enumWindows.calls.size(), before + 1);
        ASSERT_EQ(kill.calls.size(), 1u);
        EXPECT_EQ(std::get<0>(kill.calls[0]), page);
        EXPECT_EQ(std::get<1>(kill.calls[0]), 2u);
        SendMessageW(page, WM_TIMER, 1, 0);
        SendMessageW(page, WM_TIMER, 3, 0);
        EXPECT_EQ(enumWindows.calls.size(), before + 1) << "other timers are none of its own";
    });
}

TEST_F(CViewTasksCommandTest, TheOneMoreLookComesByItself)
{
    AddTasks(1);
    InProgram([&](ProgramApp& app) {
        AddTask(L"late");
        EXPECT_EQ(app.Tasks().TaskCount(), 1u);
        EXPECT_TRUE(PumpUntil([&] { return app.Tasks().TaskCount() == 2; }));
    });
}
